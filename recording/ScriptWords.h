// Takes a script line apart: words, and what they are meant to be.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace prismfall {

using Words = std::vector<std::string>;

// The words of a line, without the comment that a # starts.
Words SplitWords(std::string_view line);

// The words behind a command's name, taken one after the other; there must be a next one. The first that is not what it
// should be is the line's fault. After that the calls go on and give values in their ranges, which nobody must use.
class Arguments {
  public:
    explicit Arguments(Words line) : words(std::move(line)) {}

    const std::string& Name() const { return words[0]; }
    std::size_t Left() const { return words.size() - next; }
    const std::string& Next() const { return words[next]; }  // which is not taken yet
    std::string Word() { return words[next++]; }
    // A whole decimal number from `lowest` to `highest`.
    std::int64_t WholeNumber(std::int64_t lowest, std::int64_t highest);
    // A whole number of 16 bits.
    std::int16_t ShortNumber();
    // A decimal number that may have a fraction.
    double DecimalNumber();

    // Only the first fault counts.
    void Fail(std::string why);
    bool IsGood() const { return fault.empty(); }
    const std::string& Fault() const { return fault; }

  private:
    Words words;
    std::size_t next = 1;
    std::string fault;
};

}  // namespace prismfall
