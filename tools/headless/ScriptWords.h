// Takes a script line apart: words, numbers in their ranges, and the one way in which a bad line is told.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace prismfall {

// Why a line cannot be carried out.
class ScriptError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

using Words = std::vector<std::string>;

// The words of a line, without the comment that a # starts.
Words SplitWords(std::string_view line);

// A whole decimal number from `lowest` to `highest`.
std::int64_t WholeNumber(const std::string& word, std::int64_t lowest, std::int64_t highest);

// A whole number of 16 bits.
std::int16_t ShortNumberOf(const std::string& word);

// A decimal number that may have a fraction.
double DecimalNumber(const std::string& word);

}  // namespace prismfall
