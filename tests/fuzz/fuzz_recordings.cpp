// Recordings come from strangers, and so do links to them: whatever it is must be refused or played, without a crash,
// and within the limit of -timeout.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "backends/sdl/recordings/RecordingLink.h"
#include "recording/Recording.h"
#include "tools/replay/Verify.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace prismfall;
    const std::string_view input(reinterpret_cast<const char*>(data), size);
    LinkContents contents{.text = std::string(input)};
    if (IsRecordingLink(input)) contents = ReadRecordingLink(input, kMostRecordedBytes + 1);
    if (!contents.fault.empty()) return 0;
    if (VerifyRecording(contents.text).words.empty()) std::abort();
    if (ReadRecordingLink(LinkTo({}, contents.text), contents.text.size() + 1).text != contents.text) std::abort();
    return 0;
}
