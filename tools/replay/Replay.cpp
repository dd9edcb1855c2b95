#include "tools/replay/Replay.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "game/GameRecorder.h"
#include "game/GameStart.h"
#include "game/StateDump.h"

namespace prismfall {

namespace {

// Counts ticks with the beams they look at: far more than a player causes in ten hours, and less than a second of work.
constexpr std::int64_t kMostWork = 20'000'000;

int LineAt(const std::string& text, std::size_t place) {
    return 1 + static_cast<int>(std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(place), '\n'));
}

}  // namespace

std::string WordsOf(const ReplayFault& fault) {
    if (!fault.reason.empty()) return fault.reason;
    std::array<char, 40> words{};
    std::snprintf(words.data(), words.size(), "differs at %.3f s", static_cast<double>(fault.moment) / 1000);
    return words.data();
}

Replay::Replay(HeadlessPlatform& playedOn, VMain& played, const Recording& recorded)
    : machine(playedOn),
      main(played),
      recording(recorded),
      recorder(machine.Timers(), [this](Printer& out) { PrintDump(out, main); }),
      start(machine.Now()) {
    main.log = this;
    machine.Timers().SetListener(this);
    machine.Input().SetListener(this);
    machine.Follow(this);
    std::string reason;
    machine.Timers().HandleAt(start, [&] { reason = StartRecordedGame(main, recording); });
    if (!reason.empty()) Stop({.line = 3, .reason = reason});
}

Replay::~Replay() {
    main.log = &noGameLog;
    machine.Timers().SetListener(nullptr);
    machine.Input().SetListener(nullptr);
    machine.Follow(nullptr);
}

std::int64_t Replay::Moment() const { return (machine.Now() - start) / std::chrono::milliseconds(1); }

void Replay::PlayUntil(std::int64_t moment) {
    while (!IsOver() && next < recording.events.size() && recording.events[next].moment <= moment) LetNextHappen();
    if (!IsOver()) PassTimeUntil(std::min(moment, recording.length));
}

void Replay::PassTimeUntil(std::int64_t moment) {
    const Nanoseconds end = InMachineTime(moment);
    machine.TickThrough(end);
    if (!IsOver()) machine.MoveClockTo(end);
    Compare();
    if (!recording.isWhole || moment < recording.length || IsOver()) return;
    machine.Timers().HandleAt(end, [this] { Ends(main, GameEnding::Left); });  // the program ended, perhaps in a dialog
}

void Replay::Play() { PlayUntil(recording.length); }

bool Replay::LetNextHappen() {
    if (IsOver()) return false;
    if (next == recording.events.size()) {
        if (recording.isWhole) PassTimeUntil(recording.length);  // a dialog was open when the program ended
        return false;
    }
    const std::size_t number = next;
    const RecordedEvent& event = recording.events[number];
    const Nanoseconds moment = InMachineTime(event.moment);
    machine.TickThrough(moment);
    if (IsOver()) return false;
    if (next != number) return true;  // the renewal of a tick that let events run
    ++next;
    machine.MoveClockTo(moment);
    machine.Timers().HandleAt(moment, [&] { Do(event); });
    Compare();
    return !IsOver();
}

std::optional<Nanoseconds> Replay::TakeRenewal() {
    if (next == recording.events.size() || !recording.events[next].isRenewal) return std::nullopt;
    return InMachineTime(recording.events[next++].moment);
}

void Replay::Do(const RecordedEvent& event) {
    Window* const front = machine.Input().Front();
    if (front == nullptr) return;
    // A renewal outside this game's handlers comes from a dialog opened before it.
    if (event.isRenewal) return machine.Timers().RenewMoment();
    switch (event.kind) {
        case InputKind::Press:
            return machine.Input().PressSurface(*front, event.button, event.x, event.y);
        case InputKind::DoubleClick:
            return machine.Input().DoubleClickSurface(*front);
        case InputKind::Key:
            return machine.Input().Key(*front, event.code);
        case InputKind::Minimise:
        case InputKind::Restore:
            return machine.Input().Resize(main.window, event.kind == InputKind::Minimise);
        case InputKind::CloseBox:
            return machine.Input().UseCloseBox(*front);
        case InputKind::PressElement:
        case InputKind::Click:
            return Press(*front, event);
    }
}

void Replay::Press(Window& window, const RecordedEvent& event) {
    Element* const element = window.Find(event.element);
    if (element == nullptr) return;
    if (event.kind == InputKind::Click) return machine.Input().PressAndClick(window, *element);
    machine.Input().PressOn(window, *element, event.button, event.x, event.y);
}

void Replay::BeforeTick(std::int64_t moment) {
    recorder.BeforeTick(moment);
    work += 1 + static_cast<std::int64_t>(main.field.Lines.size());
    if (work > kMostWork) Stop({.line = 1, .moment = Moment(), .reason = "the game takes too long to play"});
}

void Replay::BeforeInput(const InputEvent& event) { recorder.BeforeInput(event); }

void Replay::MomentRenewed(std::int64_t moment) { recorder.MomentRenewed(moment); }

void Replay::Begins(VMain& begun, GameKind /*kind*/) {
    if (recorder.IsRecording()) return Ends(begun, GameEnding::Left);
    recorder.Begin(std::string_view(recording.text).substr(0, recording.headBytes));
}

void Replay::Ends(VMain& ended, GameEnding ending) {
    if (!recorder.IsRecording()) return;
    recorder.End(EndingWords(ended, ending));
    Compare();
    if (fault) return;
    isOver = true;
    machine.Follow(nullptr);
    if (whenOver) whenOver();
}

// Line by line. The checks in between may be missing from the recording, since the last one covers them too.
void Replay::Compare() {
    while (isComparing && !IsOver() && compared < recorder.Text().size()) {
        const std::string_view anew = std::string_view(recorder.Text()).substr(compared);
        const std::string_view line = anew.substr(0, anew.find('\n') + 1);
        const std::string_view rest = std::string_view(recording.text).substr(matched);
        compared += line.size();
        if (rest.starts_with(line)) {
            matched += line.size();
        } else if (!line.starts_with(kCheckWord) || rest.starts_with(kCheckWord) || rest.starts_with(kEndWord)) {
            Stop({.line = LineAt(recording.text, matched), .moment = Moment(), .reason = {}});
        }
    }
}

void Replay::Stop(ReplayFault found) {
    if (IsOver()) return;
    fault = std::move(found);
    machine.Timers().StopAll();
    machine.Follow(nullptr);
}

}  // namespace prismfall
