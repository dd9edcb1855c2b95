// Feeds scripts to the headless driver. No script may crash, hang or leak; its output does not matter.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <ostream>
#include <sstream>
#include <string>

#include "tools/headless/HeadlessDriver.h"

namespace {

// A script may ask for years of play. Here each gets half a minute in total, and no line may ask for more than is left.
class TimeBudget {
  public:
    bool Covers(const std::string& line) {
        if (line.find("run") == std::string::npos && line.find("fire") == std::string::npos) return true;
        const std::size_t digits = line.find_first_of("0123456789");
        const long asked = digits == std::string::npos ? 1 : std::strtol(&line[digits], nullptr, 10);
        if (asked > left) return false;
        left -= asked;
        return true;
    }

  private:
    long left = 30'000;  // milliseconds, and handler calls
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::istringstream script(std::string(reinterpret_cast<const char*>(data), size));
    std::ostream nowhere(nullptr);
    prismfall::HeadlessDriver driver(nowhere);
    TimeBudget budget;
    for (std::string line; std::getline(script, line);) {
        if (!budget.Covers(line)) continue;
        driver.Execute(line);  // a bad line ends a real run; here the next one may still find something
    }
    return 0;
}
