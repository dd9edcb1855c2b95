// Recordings come from strangers: any text is refused or played, without a crash, and within the time that -timeout
// gives.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "tools/replay/Verify.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (prismfall::VerifyRecording({reinterpret_cast<const char*>(data), size}).words.empty()) std::abort();
    return 0;
}
