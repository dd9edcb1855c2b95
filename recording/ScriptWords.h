// Parses a script line: its words, and the values they stand for.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace prismfall {

using Words = std::vector<std::string>;

// The words of a line, without the comment that starts at a #.
Words SplitWords(std::string_view line);

// The words after a command's name, taken one by one; there must be a next one. The first bad word becomes the line's
// error. Later calls still return values in their ranges, but these must not be used.
class Arguments {
  public:
    explicit Arguments(Words line) : words(std::move(line)) {}

    const std::string& Name() const { return words[0]; }
    std::size_t Left() const { return words.size() - next; }
    const std::string& Next() const { return words[next]; }  // without taking it
    std::string Word() { return words[next++]; }
    // A decimal integer from `lowest` to `highest`.
    std::int64_t WholeNumber(std::int64_t lowest, std::int64_t highest);
    // A 16-bit integer.
    std::int16_t ShortNumber();
    // A decimal number that may have a fraction.
    double DecimalNumber();

    // Only the first error counts.
    void Fail(std::string why);
    bool IsGood() const { return fault.empty(); }
    const std::string& Fault() const { return fault; }

  private:
    Words words;
    std::size_t next = 1;
    std::string fault;
};

}  // namespace prismfall
