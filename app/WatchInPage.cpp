#include "app/WatchInPage.h"

#include <string>
#include <utility>

#include "audio/Music.h"

namespace prismfall {

namespace {

constexpr int kScreensDeep = 2;  // from a puzzle through the puzzle menu to the main menu
constexpr float kMillisecondsInSecond = 1000;

}  // namespace

WatchInPage::WatchInPage(WebPlatform& machine, VMain& player) : platform(machine), main(player) {
    platform.whenWatching = [this](page::WatchCommand command, float value) { Take(command, value); };
    platform.betweenHandlers = [this] { BeginAsked(); };
    main.watchScore = [](const ScoreRow& row) { return page::WatchScore(row.score, row.endLevel) != 0; };
    if (std::optional<Recording> recording = TakeRecording()) watch.emplace(main, std::move(*recording), false);
}

WatchInPage::~WatchInPage() {
    platform.whenWatching = {};
    platform.betweenHandlers = {};
    main.watchScore = {};
}

void WatchInPage::Take(page::WatchCommand command, float value) {
    if (command == page::WatchCommand::Begin) isAsked = true;
    if (!watch || !watch->State().isWatching || platform.Input().Front() != &main.window) return;
    switch (command) {
        case page::WatchCommand::Begin:
            return;
        case page::WatchCommand::PlayOn:
            return watch->PlayOn();
        case page::WatchCommand::Pause:
        case page::WatchCommand::GoOn:
            return watch->SetPaused(command == page::WatchCommand::Pause);
        case page::WatchCommand::Pace:
            return watch->SetPace(static_cast<int>(value));
        case page::WatchCommand::GoTo:
            return watch->GoTo(static_cast<std::int64_t>(value * kMillisecondsInSecond));
        case page::WatchCommand::Leave:
            return watch->Leave();
    }
}

void WatchInPage::BeginAsked() {
    if (!std::exchange(isAsked, false)) return;
    std::optional<Recording> recording = TakeRecording();
    if (!recording || !GoToMenu()) return;
    StopMusic(main.audio);
    watch.emplace(main, std::move(*recording), false);
}

// By the player's own keys, so that the recording of the game left behind stays genuine.
bool WatchInPage::GoToMenu() {
    watch.reset();
    for (int i = 0; i < kScreensDeep && main.GameMode != Mode::MainMenu; ++i)
        platform.Input().Key(main.window, kEscapeKey);
    return main.GameMode == Mode::MainMenu;
}

std::optional<Recording> WatchInPage::TakeRecording() {
    std::string text(page::OpenRecording(), '\0');
    if (text.empty()) return std::nullopt;
    page::ReadRecording(text.data());
    Recording recording;
    const auto fault = ReadRecording(text, recording);
    if (!fault) return recording;
    page::RefuseRecording(fault->line, fault->reason.data(), static_cast<std::uint32_t>(fault->reason.size()));
    return std::nullopt;
}

void WatchInPage::Report() {
    page::WatchRecord record;
    if (watch) {
        const WatchState state = watch->State();
        record.isWatching = state.isWatching ? 1 : 0;
        record.isPaused = state.isPaused ? 1 : 0;
        record.isOver = state.isOver ? 1 : 0;
        record.differs = state.differs ? 1 : 0;
        record.pace = state.pace;
        record.position = static_cast<std::int32_t>(state.position);
        record.length = static_cast<std::int32_t>(state.length);
    }
    if (record == reported) return;
    reported = record;
    page::ShowWatching(&record);
}

}  // namespace prismfall
