#include "tools/replay/Verify.h"

#include <array>
#include <cstdio>

#include "backends/headless/HeadlessPlatform.h"
#include "game/MainWindow.h"
#include "tools/replay/Replay.h"

namespace prismfall {

namespace {

template <typename... Values>
std::string Printed(const char* format, Values... values) {
    std::array<char, 160> text{};
    std::snprintf(text.data(), text.size(), format, values...);
    return text.data();
}

std::string Clock(std::int64_t milliseconds) {
    const auto seconds = static_cast<int>(milliseconds / 1000);
    return Printed("%d:%02d", seconds / 60, seconds % 60);
}

std::string LineWords(const RecordingFault& fault) { return Printed("line %d: ", fault.line) + fault.reason; }

std::string Difference(const ReplayFault& fault) {
    if (!fault.reason.empty()) return LineWords({fault.line, fault.reason});
    return WordsOf(fault) + Printed(" (line %d)", fault.line);
}

std::string Result(const VMain& main, const Recording& recording) {
    const std::string length = Clock(recording.length);
    if (recording.kind == "arcade") return Printed("Arcade, %d points, level %d, ", main.Score, main.Level) + length;
    const std::size_t lastLine = recording.text.rfind(' ', recording.text.size() - 2) + 1;
    const std::string ending = recording.text.substr(lastLine, recording.text.size() - lastLine - 1);
    return Printed("Puzzle %d, %s, ", main.CurrentPuzzle, ending.c_str()) + length;
}

}  // namespace

Verdict VerifyRecording(std::string_view text) {
    Recording recording;
    if (const auto fault = ReadRecording(text, recording)) return {false, LineWords(*fault)};
    HeadlessPlatform machine;
    VMain main(machine);
    MakeMainWindow(main);
    machine.Open(main.window);
    Replay replay(machine, main, recording);
    std::string result;
    replay.whenOver = [&] { result = Result(main, recording); };
    replay.Play();
    if (replay.Fault()) return {false, Difference(*replay.Fault())};
    return {true, result};
}

}  // namespace prismfall
