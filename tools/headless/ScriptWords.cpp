// See ScriptWords.h.
#include "tools/headless/ScriptWords.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace prismfall {

namespace {

constexpr std::string_view kBlanks = " \t\r\v\f";

}  // namespace

Words SplitWords(std::string_view line) {
    line = line.substr(0, line.find('#'));
    Words words;
    for (std::size_t at = line.find_first_not_of(kBlanks); at != std::string_view::npos;
         at = line.find_first_not_of(kBlanks, at)) {
        const std::size_t end = std::min(line.find_first_of(kBlanks, at), line.size());
        words.emplace_back(line.substr(at, end - at));
        at = end;
    }
    return words;
}

std::int64_t WholeNumber(const std::string& word, std::int64_t lowest, std::int64_t highest) {
    std::int64_t number = 0;
    const char* end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, number);
    if (error != std::errc{} || stop != end) throw ScriptError("not a whole number: " + word);
    if (number < lowest || number > highest) throw ScriptError("out of range: " + word);
    return number;
}

std::int16_t ShortNumberOf(const std::string& word) {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(WholeNumber(word, Limits::min(), Limits::max()));
}

double DecimalNumber(const std::string& word) {
    double number = 0;
    const char* end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, number, std::chars_format::fixed);
    if (error != std::errc{} || stop != end || !std::isfinite(number)) throw ScriptError("not a number: " + word);
    return number;
}

}  // namespace prismfall
