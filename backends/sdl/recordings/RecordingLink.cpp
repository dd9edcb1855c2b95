#include "backends/sdl/recordings/RecordingLink.h"

#include <zlib.h>

#include <cstdint>
#include <optional>
#include <utility>

namespace prismfall {

namespace {

constexpr std::string_view kFormat = "1";
constexpr std::string_view kBlanks = " \t\r\n";
constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";
constexpr int kLetterBits = 6;
constexpr int kRaw = -MAX_WBITS;  // plain deflate, without header and checksum
constexpr int kMostMemory = 9;
constexpr int kStrategy = Z_FILTERED;  // fewer short matches: in such texts it saves 2 to 4 %
constexpr const char* kDamaged = "The link is damaged or incomplete.";

struct Parts {
    std::string_view format;
    std::string_view letters;
};

std::optional<Parts> PartsOf(std::string_view link) {
    const std::size_t mark = link.rfind('#');
    if (mark == std::string_view::npos) return std::nullopt;
    const std::string_view after = link.substr(mark + 1);
    const std::size_t stop = after.find_first_not_of(kDigits);
    if (stop == 0 || stop == std::string_view::npos || after[stop] != '.') return std::nullopt;
    std::string_view letters = after.substr(stop + 1);
    letters = letters.substr(0, letters.find_last_not_of(kBlanks) + 1);
    return Parts{after.substr(0, stop), letters};
}

// Both texts must outlive this.
void Connect(z_stream& stream, std::string& from, std::string& to) {
    stream.next_in = reinterpret_cast<Bytef*>(from.data());
    stream.avail_in = static_cast<uInt>(from.size());
    stream.next_out = reinterpret_cast<Bytef*>(to.data());
    stream.avail_out = static_cast<uInt>(to.size());
}

// Bits left over from the last letter or byte are 0.
template <typename Take>
void Regroup(std::string_view from, int bitsFrom, int bitsTo, Take take) {
    std::uint32_t bits = 0;
    int count = 0;
    for (const char letter : from) {
        bits = bits << bitsFrom | static_cast<unsigned char>(letter);
        for (count += bitsFrom; count >= bitsTo; count -= bitsTo) take(bits >> (count - bitsTo) & ((1U << bitsTo) - 1));
    }
    if (bitsTo < bitsFrom && count > 0) take(bits << (bitsTo - count) & ((1U << bitsTo) - 1));
}

std::string Letters(std::string_view bytes) {
    std::string letters;
    Regroup(bytes, 8, kLetterBits, [&](std::uint32_t value) { letters += kLetters[value]; });
    return letters;
}

std::optional<std::string> Bytes(std::string_view letters) {
    std::string values;
    for (const char letter : letters) {
        const std::size_t value = kLetters.find(letter);
        if (value == std::string_view::npos) return std::nullopt;
        values += static_cast<char>(value);
    }
    std::string bytes;
    Regroup(values, kLetterBits, 8, [&](std::uint32_t value) { bytes += static_cast<char>(value); });
    return bytes;
}

std::string Deflated(std::string text) {
    z_stream stream{};
    deflateInit2(&stream, Z_BEST_COMPRESSION, Z_DEFLATED, kRaw, kMostMemory, kStrategy);
    std::string packed(deflateBound(&stream, static_cast<uLong>(text.size())), '\0');
    Connect(stream, text, packed);
    deflate(&stream, Z_FINISH);
    packed.resize(stream.total_out);
    deflateEnd(&stream);
    return packed;
}

LinkContents Inflated(std::string packed, std::size_t most) {
    std::string text(most, '\0');
    z_stream stream{};
    inflateInit2(&stream, kRaw);
    Connect(stream, packed, text);
    const int status = inflate(&stream, Z_FINISH);
    text.resize(stream.total_out);
    const bool isWhole = status == Z_STREAM_END && stream.avail_in == 0;
    const bool isFull = status != Z_STREAM_END && stream.avail_out == 0;
    inflateEnd(&stream);
    if (isFull) return {.fault = "The recording in the link is too long."};
    if (!isWhole) return {.fault = kDamaged};
    return {.text = std::move(text)};
}

}  // namespace

std::string LinkTo(std::string_view page, std::string_view text) {
    return std::string(page) + '#' + std::string(kFormat) + '.' + Letters(Deflated(std::string(text)));
}

bool IsRecordingLink(std::string_view words) { return PartsOf(words).has_value(); }

LinkContents ReadRecordingLink(std::string_view link, std::size_t most) {
    const std::optional<Parts> parts = PartsOf(link);
    if (!parts) return {.fault = kDamaged};
    if (parts->format != kFormat)
        return {.fault = "The link needs a Prismfall that knows links of format " + std::string(parts->format) + "."};
    const std::optional<std::string> packed = Bytes(parts->letters);
    return packed ? Inflated(*packed, most) : LinkContents{.fault = kDamaged};
}

}  // namespace prismfall
