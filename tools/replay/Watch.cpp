#include "tools/replay/Watch.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

#include "game/MainWindow.h"
#include "game/Modes.h"
#include "game/Takeover.h"
#include "screens/PlayOn.h"
#include "tools/replay/Replay.h"

namespace prismfall {

namespace {

constexpr int kTick = 10;                 // milliseconds
constexpr std::int64_t kStep = 10'000;    // milliseconds, back and forth
constexpr std::int64_t kLineTicks = 800;  // how long the lines about keys stay
constexpr int kFullPace = 100;            // percent, of game time

// Of the lines: in the panel beside the playfield, between the scores and the buttons, where nothing else is.
constexpr float kLinesLeft = 690;
constexpr float kLinesTop = 116;
constexpr int kLinesWidth = 112;
constexpr int kLinesHeight = 106;

std::string Clock(std::int64_t milliseconds) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%d:%02d", static_cast<int>(milliseconds / 60'000),
                  static_cast<int>(milliseconds / 1000 % 60));
    return text.data();
}

// The machine that the game shown runs on. Its strokes also go to the player's surface, and its sounds to the player's
// speakers if the pace is the original one.
class StageMachine final : public HeadlessPlatform {
  public:
    explicit StageMachine(Platform& playersMachine) : real(playersMachine) {}

    bool isHeard = false;
    bool isSeen = true;

    void SurfaceLine(int x1, int y1, int x2, int y2, Colour colour, int width) override {
        if (isSeen) real.SurfaceLine(x1, y1, x2, y2, colour, width);
    }
    void SurfaceBox(int x1, int y1, int x2, int y2, Colour colour, int width) override {
        if (isSeen) real.SurfaceBox(x1, y1, x2, y2, colour, width);
    }
    void SurfaceRestore(int x1, int y1, int x2, int y2) override {
        if (isSeen) real.SurfaceRestore(x1, y1, x2, y2);
    }
    void SurfaceClear() override {
        if (isSeen) real.SurfaceClear();
    }
    void PlayWave(Wave wave, bool) override {
        if (isHeard && isSeen) real.PlayWave(wave, false);
    }

  private:
    Platform& real;
};

}  // namespace

// The game shown.
class Watch::Stage {
  public:
    Stage(VMain& player, const Recording& recording)
        : machine(player.platform), game(machine), replay((Load(player), machine), game, recording) {
        // What comes after the game is not shown.
        replay.whenOver = [this, &player] {
            Mirror(player);
            machine.isSeen = false;
        };
    }

    void PlayUntil(std::int64_t moment, bool isHeard) {
        machine.isHeard = isHeard;
        replay.PlayUntil(moment);
    }
    bool IsOver() const { return replay.IsOver(); }
    bool Differs() const { return replay.Fault().has_value(); }

    // Makes the elements of the player's window look like those of the game.
    void Mirror(VMain& player) {
        if (machine.isSeen) ShowSameElements(player, game);
    }

    VMain& Game() { return game; }

  private:
    void Load(const VMain& player) {
        machine.isSeen = false;
        MakeMainWindow(game);
        game.settings.SoundEffects = player.settings.SoundEffects;
        machine.Open(game.window);
        machine.isSeen = true;
    }

    StageMachine machine;
    VMain game;
    Replay replay;
};

Watch::Watch(VMain& player, Recording recorded, bool hasLine)
    : main(player), recording(std::move(recorded)), showsLine(hasLine) {
    TakeWindow();
    Begin();
    Show();
}

Watch::~Watch() {
    Leave();
    if (log != nullptr) EndPlayedOn();
}

void Watch::TakeWindow() {
    handlers = std::exchange(main.window.on, {});
    for (const Element* element : main.window.elements) elements.push_back(*element);
    numbers = main;
    WindowHandlers& on = main.window.on;
    on.queryUnload = handlers.queryUnload;
    on.unload = handlers.unload;
    on.mouseDown = [this](MouseButton button, float, float) { Press(button); };
    on.doubleClick = [this] { PlayOn(); };
    on.keyDown = [this](std::int16_t) { Leave(); };  // Esc is the only key that comes this way
    on.command = [this](Key key) { Command(key); };
    on.elementClick = [this](const Element& element) {
        if (&element == &main.cmdPause) Press(MouseButton::Left);
        if (&element == &main.CmdStart) GoTo(0);
        if (&element == &main.CommandExit) Leave();
    };
    TimerWheel& timers = main.platform.Timers();
    timers.StopAll();
    main.platform.SetPace(kFullPace);
    main.platform.SetTickHandler([this](Timer) { Tick(); });
    main.platform.SetTimerInterval(Timer::LineExtender, kTick);
    main.platform.StartTimer(Timer::LineExtender);
}

bool Watch::GiveBack() {
    if (!std::exchange(isWatching, false)) return false;
    std::swap(main.window.on, handlers);  // one of the handlers swapped out may be running
    main.platform.Timers().StopAll();
    for (const TimerName& row : kTimerNames) main.platform.SetTimerInterval(row.timer, IntervalAtStart(row.timer));
    main.platform.SetTickHandler([&player = main](Timer timer) { TickTimer(player, timer); });
    for (std::size_t i = 0; i < elements.size(); ++i) *main.window.elements[i] = elements[i];
    main.window.aside = {};
    return true;
}

void Watch::Leave() {
    if (!GiveBack()) return;
    EnterScreen(main, Mode::MainMenu);
    PlayMusicOfMode(main);
}

void Watch::PlayOn() {
    if (!isWatching || stage->IsOver() || !AgreeToPlayOn(main.dialogs)) return;
    stage->Mirror(main);
    GiveBack();
    TakeOverGame(main, stage->Game());
    stage.reset();
    log = main.log;
    main.log = this;
}

void Watch::Begins(VMain& begun, GameKind kind) {
    EndPlayedOn();
    main.log->Begins(begun, kind);
}

void Watch::Ends(VMain& ended, GameEnding ending) {
    EndPlayedOn();
    main.log->Ends(ended, ending);
}

void Watch::EndPlayedOn() {
    main.log = std::exchange(log, nullptr);
    main.HighScore = numbers.HighScore;
    ShowNumber(main.VHighScore, main.HighScore);
    main.PuzzlePage = numbers.PuzzlePage;
}

void Watch::Begin() {
    position = 0;
    ticks = 0;
    stage.reset();
    stage = std::make_unique<Stage>(main, recording);
}

WatchState Watch::State() const {
    return {.isWatching = isWatching,
            .isPaused = isPaused,
            .isOver = stage && stage->IsOver(),
            .differs = stage && stage->Differs(),
            .pace = pace,
            .position = position,
            .length = recording.length};
}

void Watch::GoTo(std::int64_t newPosition) {
    if (newPosition < position) Begin();
    position = std::clamp<std::int64_t>(newPosition, 0, recording.length);
    stage->PlayUntil(position, false);
    ticks = 0;
    Show();
}

void Watch::Tick() {
    ++ticks;
    if (!isPaused && !stage->IsOver()) {
        position = std::min(position + std::int64_t{kTick} * pace, recording.length);
        stage->PlayUntil(position, pace == 1);
    }
    Show();
}

void Watch::Show() {
    stage->Mirror(main);
    const bool isTold = isPaused || stage->IsOver() || ticks < kLineTicks;
    Aside& aside = main.window.aside;
    aside.text = isTold ? Position() + Keys() : Position();
    aside.share = recording.length > 0 ? static_cast<float>(position) / static_cast<float>(recording.length) : 1;
    main.LabelPace.visible = showsLine && isTold && !aside.hasRoom;
    main.LabelPace.text = aside.text;
    main.LabelPace.left = kLinesLeft;
    main.LabelPace.top = kLinesTop;
    main.LabelPace.width = kLinesWidth;
    main.LabelPace.height = kLinesHeight;
}

std::string Watch::Position() const {
    const std::string line = Clock(position) + " of " + Clock(recording.length);
    return pace > 1 ? line + "\n" + std::to_string(pace) + " times as fast" : line;
}

std::string Watch::Keys() const {
    return std::string(isPaused ? "\nP: go on" : "\nP: pause") + "\nPage keys: 10 s\nRight button: pace" +
           (stage->IsOver() ? "" : "\nG: play on") + "\nEsc: leave";
}

void Watch::Press(MouseButton button) {
    if (button == MouseButton::Left) isPaused = !isPaused;
    if (button == MouseButton::Right) pace = pace == kFastestPace ? 1 : 2 * pace;
    ticks = 0;
}

void Watch::Command(Key key) {
    if (key == Key::P) Press(MouseButton::Left);
    if (key == Key::R) GoTo(0);
    if (key == Key::G) PlayOn();
    if (key == Key::PageUp) GoTo(position - kStep);
    if (key == Key::PageDown) GoTo(position + kStep);
}

}  // namespace prismfall
