// The game in a browser: the page calls `run`, which returns when the program has ended.
#include <array>
#include <cstdint>
#include <optional>
#include <string_view>
#include <vector>

#include "app/WatchInPage.h"
#include "backends/web/Imports.h"
#include "backends/web/WebPlatform.h"
#include "game/GameRecorder.h"
#include "game/MainWindow.h"
#include "game/VMain.h"

namespace {

prismfall::page::GameRecord RecordOf(const prismfall::PlayedGame& game) {
    return {.kind = static_cast<std::int32_t>(game.kind),
            .ending = static_cast<std::int32_t>(game.ending),
            .puzzle = game.puzzle,
            .score = game.score,
            .level = game.level,
            .length = static_cast<std::int32_t>(game.length),
            .recording = std::string_view(game.recording)};
}

void KeepGame(const prismfall::VMain& main, const prismfall::PlayedGame& game) {
    if (game.length < prismfall::kShortestKept) return;
    std::vector<prismfall::page::ScoreRecord> table;
    for (const prismfall::ScoreRow& row : main.settings.Scores)
        if (row.score > 0) table.push_back({row.score, row.endLevel});
    const prismfall::page::GameRecord record = RecordOf(game);
    prismfall::page::KeepGame(&record, table.data(), static_cast<std::int32_t>(table.size()));
}

// The memory in which the stack is saved during a wait, in browsers that cannot suspend a program: from the first
// address to the second.
struct SuspendedStack {
    std::uint8_t* start;
    std::uint8_t* end;
};

std::array<std::uint8_t, 65536> room;
SuspendedStack stack;

// While the program runs.
prismfall::WebPlatform* machine = nullptr;
prismfall::WatchInPage* watching = nullptr;
const prismfall::GameRecorder* recorder = nullptr;

void KeepGameSoFar() {
    const auto game = recorder->LeftNow();
    if (!game || game->length < prismfall::kShortestKept) return;
    const prismfall::page::GameRecord record = RecordOf(*game);
    prismfall::page::KeepUnfinished(&record);
}

}  // namespace

extern "C" {

__attribute__((export_name("suspendedStack"))) SuspendedStack* GetSuspendedStack() {
    stack = {room.data(), room.data() + room.size()};
    return &stack;
}

__attribute__((export_name("recordSizes"))) const prismfall::page::RecordSizes* GetRecordSizes() {
    static constexpr prismfall::page::RecordSizes kSizes;
    return &kSizes;
}

// The program has failed: keeps the game as it was after the last thing that happened in it.
__attribute__((export_name("keepGameSoFar"))) void KeepGameOnFailure() {
    if (machine == nullptr) return;
    prismfall::TimerWheel& timers = machine->Timers();
    timers.HandleAt(timers.LastMoment(), KeepGameSoFar);
}

__attribute__((export_name("run"))) void Run() {
    prismfall::WebPlatform platform;
    prismfall::VMain main(platform);
    prismfall::MakeMainWindow(main);
    const prismfall::GameRecorder games(main, [&](const prismfall::PlayedGame& game) { KeepGame(main, game); });
    prismfall::WatchInPage watch(platform, main);
    machine = &platform;
    watching = &watch;
    recorder = &games;
    platform.whenHidden = KeepGameSoFar;
    platform.Run(main.window);
    machine = nullptr;
    watching = nullptr;
    recorder = nullptr;
}

// The page calls this once a frame while the program waits.
__attribute__((export_name("present"))) void Present() {
    if (machine == nullptr) return;
    machine->Present();
    watching->Report();
}
}
