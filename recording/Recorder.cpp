#include "recording/Recorder.h"

#include <algorithm>

#include "recording/Recording.h"

namespace prismfall {

namespace {

constexpr std::int64_t kCheckEvery = 5000;  // milliseconds
constexpr std::uint32_t kPrime = 16777619U;
constexpr std::size_t kUsualBytes = 8192;  // for a game of a few minutes

class TextPrinter final : public Printer {
  public:
    explicit TextPrinter(std::string& printed) : text(printed) {}
    void Print(std::string_view more) override { text += more; }

  private:
    std::string& text;
};

void PrintHexadecimal(Printer& out, std::uint32_t number) {
    constexpr std::string_view kDigits = "0123456789abcdef";
    for (int shift = 28; shift >= 0; shift -= 4) out << kDigits[number >> shift & 15];
}

std::string EndLine(std::int64_t moment, std::string_view how) {
    return "end " + std::to_string(moment) + ' ' + std::string(how);
}

}  // namespace

void Fingerprint::Print(std::string_view text) {
    for (const char letter : text) value = (value ^ static_cast<unsigned char>(letter)) * kPrime;
}

void Recorder::Begin(std::string_view head) {
    text.clear();
    text.reserve(kUsualBytes);
    text += head;
    ofLines.Begin();
    ofLines.Print(head);
    origin = wheel.MomentInMilliseconds();
    nextCheck = kCheckEvery;
    lastRenewal = 0;
    isRecording = true;
}

void Recorder::End(std::string_view how) {
    if (!isRecording) return;
    const std::int64_t moment = Moment();
    WriteCheck(moment);
    Write(EndLine(moment, how));
    isRecording = false;
}

std::string Recorder::EndedNow(std::string_view how) const {
    std::string ended = text;
    AppendCheck(ended, Moment());
    return ended + EndLine(Moment(), how) + '\n';
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
    const std::string line = EventLine(moment, event);
    if (line.empty()) return;  // nor a check, for which there would be no reason when the game is played again
    if (moment >= nextCheck) CheckBefore(moment);
    Write(line);
}

void Recorder::MomentRenewed(std::int64_t moment) {
    if (!isRecording) return;
    lastRenewal = moment - origin;
    Write(RenewalLine(lastRenewal));
}

// The state after everything before the last full five seconds. If nothing has happened for longer, one check covers it
// all. A handler that has gone on since has a later line already, and moments never go back.
void Recorder::CheckBefore(std::int64_t moment) {
    const std::int64_t last = moment / kCheckEvery * kCheckEvery;
    WriteCheck(std::max(last, lastRenewal));
    nextCheck = last + kCheckEvery;
}

void Recorder::WriteCheck(std::int64_t moment) {
    const std::size_t before = text.size();
    AppendCheck(text, moment);
    ofLines.Print(std::string_view(text).substr(before));
}

void Recorder::AppendCheck(std::string& lines, std::int64_t moment) const {
    Fingerprint whole;
    whole.Begin(ofLines.Value());
    printState(whole);
    TextPrinter line(lines);
    line << "check " << moment << ' ';
    PrintHexadecimal(line, whole.Value());
    line << '\n';
}

void Recorder::Write(std::string_view line) {
    const std::size_t before = text.size();
    text += line;
    text += '\n';
    ofLines.Print(std::string_view(text).substr(before));
}

}  // namespace prismfall
