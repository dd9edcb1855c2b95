#include "game/Modes.h"

#include <algorithm>
#include <array>
#include <string>

#include "audio/Music.h"

namespace prismfall {

namespace {

constexpr std::array<ModeRow, 5> kModes = {{
    {.mode = Mode::MainMenu, .track = Track::Intro},
    {.mode = Mode::PuzzleMenu, .track = Track::Intro, .clears = 2},
    {.mode = Mode::PuzzleGame,
     .isGame = true,
     .isPuzzle = true,
     .takesPresses = true,
     .marksSolved = true,
     .exitTo = Mode::PuzzleMenu,
     .track = Track::Puzzle,
     .clears = 4},
    {.mode = Mode::ArcadeGame,
     .rules = {.hasEntryZone = true},
     .collisionLineY = 40,
     .isGame = true,
     .takesPresses = true,
     .spawnsBeams = true,
     .isScored = true,
     .track = Track::Level,
     .clears = 2},
    {.mode = Mode::SolutionReplay, .isGame = true, .isPuzzle = true, .exitTo = Mode::PuzzleMenu, .clears = 4},
}};

// --- Which elements of the main window a screen shows when it is entered. Elements without a row here are always
// shown, or are shown and hidden elsewhere.

struct ScreenElement {
    Element MainElements::*element;
    std::array<bool, kModes.size()> isShown;  // by mode, in the order of Mode
};

constexpr std::array<bool, kModes.size()> kNowhere{};
constexpr std::array<bool, kModes.size()> kInMainMenu{true};
constexpr std::array<bool, kModes.size()> kInPuzzleMenu{false, true};
constexpr std::array<bool, kModes.size()> kInPuzzles{false, false, true, false, true};
constexpr std::array<bool, kModes.size()> kInArcade{false, false, false, true};

constexpr std::array<ScreenElement, 15> kScreenElements = {{
    {&MainElements::ImagePrismfall, kInMainMenu},
    {&MainElements::ImageA, kNowhere},  // flickers in the main menu
    {&MainElements::CommandPuzzle, kInMainMenu},
    {&MainElements::CommandArcade, kInMainMenu},
    {&MainElements::CommandPrevious, kInPuzzleMenu},
    {&MainElements::CommandNext, kInPuzzleMenu},
    {&MainElements::LabelPuzzlePage, kInPuzzleMenu},
    {&MainElements::PictureScores, kInArcade},
    {&MainElements::VScore, kInArcade},
    {&MainElements::VLevel, kInArcade},
    {&MainElements::VHighScore, kInArcade},
    {&MainElements::PictureScores2, kInPuzzles},
    {&MainElements::LabelPuzzleNr, kInPuzzles},
    {&MainElements::CmdStart, kInPuzzles},
    {&MainElements::cmdPause, kInArcade},  // a puzzle shows it when it is started
}};

void ShowElements(VMain& main, Mode mode) {
    for (const ScreenElement& row : kScreenElements)
        (main.*row.element).visible = row.isShown[static_cast<std::size_t>(mode)];
    for (Element& mark : main.LabelSolved) mark.visible = false;
}

}  // namespace

const ModeRow& RowOf(Mode mode) { return kModes[static_cast<std::size_t>(mode)]; }

void EnterMode(VMain& main, Mode mode) {
    main.GameMode = mode;
    main.field.rules = RowOf(mode).rules;
}

void ShowPaceNote(VMain& main) {
    const std::int16_t pace = main.settings.extras.Pace;
    main.LabelPace.visible = main.GameMode == Mode::MainMenu && pace != 100;
    main.LabelPace.text = "At " + std::to_string(pace) + " % of the pace: no place among the scores";
}

void EnterScreen(VMain& main, Mode mode) {
    EnterMode(main, mode);
    ShowElements(main, mode);
    ShowPaceNote(main);
    for (int i = 0; i < RowOf(mode).clears; ++i) main.platform.SurfaceClear();
    if (mode == Mode::MainMenu) {
        main.platform.StartTimer(Timer::TimerA);
    } else {
        main.platform.StopTimer(Timer::TimerA);
    }
}

void PlayMusicOfMode(const VMain& main) {
    switch (RowOf(main.GameMode).track) {
        case Track::None:
            return;
        case Track::Intro:
            return PlayIntroMusic(main.audio);
        case Track::Puzzle:
            return PlayLevelMusic(main.audio, main.CurrentPuzzle);
        case Track::Level:
            return PlayLevelMusic(main.audio, main.Level);
    }
}

void SetMusic(VMain& main, bool value) {
    if (value == main.settings.Music) return;
    if (!value) StopMusic(main.audio);  // first, since nothing reaches the platform once it is off
    main.settings.Music = value;
    if (value) PlayMusicOfMode(main);
}

}  // namespace prismfall
