#include "recording/ScriptWords.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace prismfall {

namespace {

constexpr std::string_view kBlanks = " \t\r\v\f";
constexpr std::string_view kDigits = "0123456789";

// Digits with or without a decimal point, perhaps after a minus.
bool IsDecimal(std::string_view word) {
    if (word.starts_with('-')) word.remove_prefix(1);
    const std::size_t point = std::min(word.find('.'), word.size());
    const std::string_view whole = word.substr(0, point);
    const std::string_view fraction = word.substr(std::min(point + 1, word.size()));
    const auto isOther = [](std::string_view part) {
        return part.find_first_not_of(kDigits) != std::string_view::npos;
    };
    return !isOther(whole) && !isOther(fraction) && !(whole.empty() && fraction.empty());
}

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

std::int64_t Arguments::WholeNumber(std::int64_t lowest, std::int64_t highest) {
    const std::string word = Word();
    std::int64_t number = 0;
    const char* end = word.data() + word.size();
    const auto [stop, error] = std::from_chars(word.data(), end, number);
    if (error != std::errc{} || stop != end) {
        Fail("not a whole number: " + word);
    } else if (number < lowest || number > highest) {
        Fail("out of range: " + word);
    }
    return std::clamp(number, lowest, highest);
}

std::int16_t Arguments::ShortNumber() {
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(WholeNumber(Limits::min(), Limits::max()));
}

double Arguments::DecimalNumber() {
    const std::string word = Word();
    const double number = IsDecimal(word) ? std::strtod(word.c_str(), nullptr) : std::nan("");
    const bool isTooSmall = number == 0 && word.find_first_of("123456789") != std::string::npos;
    if (std::isfinite(number) && !isTooSmall) return number;
    Fail("not a number: " + word);
    return 0;
}

void Arguments::Fail(std::string why) {
    if (IsGood()) fault = std::move(why);
}

}  // namespace prismfall
