#include "recording/Recorder.h"

#include <array>
#include <cstdio>

#include "recording/Recording.h"

namespace prismfall {

namespace {

constexpr std::int64_t kCheckEvery = 5000;  // milliseconds
constexpr std::uint32_t kPrime = 16777619U;
constexpr std::size_t kUsualBytes = 8192;  // for a game of a few minutes

}  // namespace

Fingerprint::int_type Fingerprint::overflow(int_type letter) {
    const char written = traits_type::to_char_type(letter);
    xsputn(&written, 1);
    return letter;
}

std::streamsize Fingerprint::xsputn(const char* letters, std::streamsize count) {
    for (const char letter : std::string_view(letters, static_cast<std::size_t>(count)))
        value = (value ^ static_cast<unsigned char>(letter)) * kPrime;
    return count;
}

void Recorder::Begin(std::string_view head) {
    text.clear();
    text.reserve(kUsualBytes);
    text += head;
    ofLines.Begin();
    ofLines.Add(head);
    origin = wheel.MomentInMilliseconds();
    nextCheck = kCheckEvery;
    isRecording = true;
}

void Recorder::End(std::string_view how) {
    if (!isRecording) return;
    const std::int64_t moment = Moment();
    WriteCheck(moment);
    Write("end " + std::to_string(moment) + ' ' + std::string(how));
    isRecording = false;
}

void Recorder::Drop() {
    isRecording = false;
    text.clear();
}

void Recorder::BeforeTick(std::int64_t moment) {
    if (isRecording && moment - origin >= nextCheck) CheckBefore(moment - origin);
}

void Recorder::BeforeInput(const InputEvent& event) {
    if (!isRecording) return;
    const std::int64_t moment = Moment();
    if (moment >= nextCheck) CheckBefore(moment);
    const std::string line = EventLine(moment, event);
    if (!line.empty()) Write(line);
}

void Recorder::MomentRenewed(std::int64_t moment) {
    if (isRecording) Write(RenewalLine(moment - origin));
}

// The state after everything before the last full five seconds. If nothing has happened for longer, one check covers it
// all.
void Recorder::CheckBefore(std::int64_t moment) {
    const std::int64_t last = moment / kCheckEvery * kCheckEvery;
    WriteCheck(last);
    nextCheck = last + kCheckEvery;
}

void Recorder::WriteCheck(std::int64_t moment) {
    Fingerprint whole;
    whole.Begin(ofLines.Value());
    std::ostream state(&whole);
    printState(state);
    std::array<char, 16> digits{};
    std::snprintf(digits.data(), digits.size(), "%08x", static_cast<unsigned>(whole.Value()));
    Write("check " + std::to_string(moment) + ' ' + digits.data());
}

void Recorder::Write(std::string_view line) {
    const std::size_t before = text.size();
    text += line;
    text += '\n';
    ofLines.Add(std::string_view(text).substr(before));
}

}  // namespace prismfall
