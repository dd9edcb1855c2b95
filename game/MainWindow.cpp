#include "game/MainWindow.h"

#include <algorithm>
#include <array>

#include "audio/Music.h"
#include "game/Buttons.h"
#include "game/GameControl.h"
#include "game/GameTimers.h"
#include "game/GrowthTick.h"
#include "game/LogoFlicker.h"
#include "game/Modes.h"
#include "game/PlayerInput.h"
#include "game/PlayerWishes.h"
#include "game/RemovalTick.h"
#include "game/Scoring.h"
#include "game/Tutorial.h"
#include "settings/SettingsStore.h"

namespace prismfall {

namespace {

constexpr Extent kOuterSize{806, 629};  // with a nominal frame; the inner area is 802 by 602 whatever the desktop draws

// One second after start-up: plays the intro track, once.
void TimerPlayIntro_Timer(VMain& main) {
    PlayIntroMusic(main.audio);
    main.platform.StopTimer(Timer::TimerPlayIntro);
}

struct TimerRow {
    Timer timer;
    int interval;  // milliseconds, at start-up
    void (*tick)(VMain& main);
};

constexpr std::array<TimerRow, kTimerCount> kTimers = {{
    {Timer::LineDeleter, 100, LineDeleter_Timer},
    {Timer::LineExtender, 75, LineExtender_Timer},
    {Timer::LineCreator, 2500, LineCreator_Timer},
    {Timer::TimerMulti, 250, TimerMulti_Timer},
    {Timer::TimerA, 5000, TimerA_Timer},
    {Timer::TimerPlayIntro, 1000, TimerPlayIntro_Timer},
}};

void PressElementOfMain(VMain& main, Element& element, MouseButton button, float x, float y) {
    if (element.kind != ElementKind::PressPicture) return PressElement(main.audio, element);
    PictTut_MouseDown(main, static_cast<std::size_t>(&element - main.PictTut.data()), button, x, y);
}

void Connect(VMain& main) {
    WindowHandlers& on = main.window.on;
    on.activate = [&main] { Form_Activate(main); };
    on.resize = [&main](bool isMinimised) { Form_Resize(main, isMinimised); };
    on.queryUnload = [&main] { Form_QueryUnload(main); };
    on.unload = [&main] { Form_Unload(main); };
    on.mouseMove = [&main](float x, float) { Form_MouseMove(main, x); };
    on.elementMove = ShowDownFace;
    on.mouseDown = [&main](MouseButton button, float x, float y) { Form_MouseDown(main, button, x, y); };
    on.doubleClick = [&main] { Form_DblClick(main); };
    on.keyDown = [&main](std::int16_t code) { Form_KeyDown(main, code); };
    on.spots = [&main](SurfaceSpots& spots) { ListSpots(main, spots); };
    on.reached = [&main](float x, float y) { return ReachedHead(main, x, y); };
    on.beams = [&main](std::vector<SeenBeam>& beams) { ListBeams(main, beams); };
    on.command = [&main](Key key) { Form_Command(main, key); };
    on.isPaused = [&main] { return IsShown(main.cmdPause) && main.cmdPause.tag == kResume.tag; };
    on.deactivate = [&main] { Form_Deactivate(main); };
    on.elementDown = [&main](Element& element, MouseButton button, float x, float y) {
        PressElementOfMain(main, element, button, x, y);
    };
    on.elementClick = [&main](const Element& element) { Button_Click(main, element); };
    main.platform.SetTickHandler([&main](Timer timer) { TickTimer(main, timer); });
}

void ShowStartNumbers(VMain& main) {
    ShowNumber(main.VScore, 0);
    main.Level = 1;
    ShowNumber(main.VLevel, 0);  // until a game shows its own level
}

void TakeHighScore(VMain& main) {
    main.HighScore = main.settings.Scores.front().score;
    ShowNumber(main.VHighScore, main.HighScore);
}

}  // namespace

void Form_Load(VMain& main) {
    for (const TimerRow& row : kTimers) main.platform.SetTimerInterval(row.timer, row.interval);
    main.platform.SetOuterSize(main.window, kOuterSize);
    StopGameTimers(main);
    ShowStartNumbers(main);
    ReadSettings(main.settings, main.platform);
    TakeHighScore(main);
    ApplyExtras(main);
    EnterScreen(main, Mode::MainMenu);
    main.PuzzlePage = 1;
    if (main.settings.Music) main.platform.StartTimer(Timer::TimerPlayIntro);
    ResetFaces(main.window);
    main.TutorialActive = false;
    main.TutorialStep = 0;
}

void Form_QueryUnload(VMain& main) { SaveSettings(main.settings, main.platform); }

void Form_Unload(VMain& main) {
    main.log->Ends(main, GameEnding::Left);
    StopMusic(main.audio);
}

int IntervalAtStart(Timer timer) { return std::ranges::find(kTimers, timer, &TimerRow::timer)->interval; }

void TickTimer(VMain& main, Timer timer) {
    for (const TimerRow& row : kTimers)
        if (row.timer == timer) return row.tick(main);
}

void MakeMainWindow(VMain& main) {
    Window& window = main.window;
    window.name = "VMain";
    window.title = "Prismfall v1.1";
    window.background = "Background";
    window.hasIcon = true;
    window.elements = main.InStackingOrder();
    MarkTutorialSpots(main);
    Connect(main);
    Form_Load(main);
}

}  // namespace prismfall
