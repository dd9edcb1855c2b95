#include "app/ReadGame.h"

#include <filesystem>
#include <fstream>
#include <optional>

#include "backends/sdl/recordings/RecordingLink.h"

namespace prismfall {

namespace {

namespace fs = std::filesystem;

// One byte more than the longest recording shows that a file is not one.
constexpr std::size_t kMostBytes = kMostRecordedBytes + 1;

// Returns nothing if the file cannot be read.
std::optional<std::string> TextOf(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::string text(kMostBytes, '\0');
    stream.read(text.data(), static_cast<std::streamsize>(text.size()));
    if (stream.bad() || (stream.fail() && !stream.eof())) return std::nullopt;
    text.resize(static_cast<std::size_t>(stream.gcount()));
    return text;
}

std::string FaultIn(std::string_view text, Recording& recording) {
    const auto fault = ReadRecording(text, recording);
    return fault ? "line " + std::to_string(fault->line) + ": " + fault->reason : std::string();
}

}  // namespace

std::string ReadGame(const std::string& fileOrLink, Recording& recording) {
    const fs::path file(reinterpret_cast<const char8_t*>(fileOrLink.c_str()));
    std::error_code ignored;
    if (IsRecordingLink(fileOrLink) && !fs::exists(file, ignored)) {
        const LinkContents contents = ReadRecordingLink(fileOrLink, kMostBytes);
        if (!contents.fault.empty()) return contents.fault;
        const std::string fault = FaultIn(contents.text, recording);
        return fault.empty() ? fault : "The recording in the link has a fault in " + fault + '.';
    }
    const std::optional<std::string> text = TextOf(file);
    const std::string fault = text ? FaultIn(*text, recording) : "the file cannot be read";
    return fault.empty() ? fault : fileOrLink + ": " + fault;
}

}  // namespace prismfall
