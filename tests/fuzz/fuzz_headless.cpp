// Feeds scripts to the headless driver. No script may crash, hang or leak; what it prints does not matter.
#include <cstddef>
#include <cstdint>
#include <ostream>
#include <sstream>
#include <string>

#include "tools/headless/HeadlessDriver.h"

namespace {

// A script may ask for years of play; here a line asks for seconds at the most.
constexpr std::size_t kMostDigits = 4;

bool AsksForTooMuch(const std::string& line) {
    if (line.find("run") == std::string::npos && line.find("fire") == std::string::npos) return false;
    std::size_t digits = 0;
    for (const char letter : line) {
        digits = letter >= '0' && letter <= '9' ? digits + 1 : 0;
        if (digits > kMostDigits) return true;
    }
    return false;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream script(std::string(reinterpret_cast<const char*>(data), size));
    std::ostream nowhere(nullptr);
    prismfall::HeadlessDriver driver(nowhere);
    for (std::string line; std::getline(script, line);) {
        if (AsksForTooMuch(line)) continue;
        try {
            driver.Execute(line);
        } catch (const prismfall::ScriptError&) {
            continue;  // a bad line is told and ends a real run; here the next one may still find something
        }
    }
    return 0;
}
