#include "game/GameRecorder.h"

#include <cmath>
#include <utility>

#include "game/GameStart.h"
#include "game/Modes.h"
#include "game/StateDump.h"

namespace prismfall {

namespace {

constexpr int kSeedBits = 53;  // in one random number

std::string HeadLines(VMain& main, GameKind kind, std::uint64_t seed) {
    return "recording 1\nprogram " PRISMFALL_VERSION "\n" + StartLines(main, kind) + "seed " + std::to_string(seed) +
           '\n';
}

std::uint64_t SeedFor(VMain& main, GameKind kind) {
    const bool isArcade = kind == GameKind::Arcade;
    if (isArcade && main.settings.extras.SameBeams != 0 && main.ArcadeSeed) return *main.ArcadeSeed;
    const auto seed = static_cast<std::uint64_t>(std::ldexp(main.platform.Random(), kSeedBits));
    if (isArcade) main.ArcadeSeed = seed;
    return seed;
}

}  // namespace

GameRecorder::GameRecorder(VMain& main, std::function<void(const PlayedGame& game)> keepGame)
    : game(main),
      recorder(main.platform.Timers(), [&main](Printer& out) { PrintDump(out, main); }),
      keep(std::move(keepGame)) {
    game.log = this;
    game.platform.Timers().SetListener(&recorder);
    game.platform.Input().SetListener(&recorder);
}

GameRecorder::~GameRecorder() {
    game.log = &noGameLog;
    game.platform.Timers().SetListener(nullptr);
    game.platform.Input().SetListener(nullptr);
}

void GameRecorder::Begins(VMain& main, GameKind kind) {
    Ends(main, GameEnding::Left);
    begunAs = kind;
    const std::uint64_t seed = SeedFor(main, kind);
    main.platform.BeginRandom(seed);
    recorder.Begin(HeadLines(main, kind, seed));
}

void GameRecorder::Ends(VMain& main, GameEnding ending) {
    if (!recorder.IsRecording()) return;
    if (main.GameMode == Mode::SolutionReplay) return recorder.Drop();
    recorder.End(EndingWords(main, ending));
    if (keep) keep(Played(ending, recorder.Text()));
}

std::optional<PlayedGame> GameRecorder::LeftNow() const {
    if (!recorder.IsRecording() || game.GameMode == Mode::SolutionReplay) return std::nullopt;
    return Played(GameEnding::Left, recorder.EndedNow(EndingWords(game, GameEnding::Left)));
}

PlayedGame GameRecorder::Played(GameEnding ending, std::string text) const {
    return {std::move(text), begunAs, ending, game.CurrentPuzzle, game.Score, game.Level, recorder.Moment()};
}

std::string_view GameRecorder::TextSoFar() const {
    return recorder.IsRecording() ? std::string_view(recorder.Text()) : std::string_view();
}

std::string EndingWords(const VMain& main, GameEnding ending) {
    if (ending == GameEnding::Left) return "left";
    if (!RowOf(main.GameMode).isScored) return ending == GameEnding::Solved ? "solved" : "failed";
    return "score " + std::to_string(main.Score) + " level " + std::to_string(main.Level);
}

}  // namespace prismfall
