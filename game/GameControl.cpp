#include "game/GameControl.h"

#include "audio/Music.h"
#include "game/GameTimers.h"
#include "game/Modes.h"
#include "game/PlayerWishes.h"
#include "game/PuzzleMenu.h"
#include "game/PuzzleStart.h"
#include "game/Scoring.h"
#include "game/Tutorial.h"
#include "platform/Numbers.h"
#include "screens/About.h"
#include "settings/SettingsStore.h"
#include "simulation/BeamRemoval.h"
#include "simulation/BeamSpawning.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

// --- Starting.

void ShowArcadeScreen(VMain& main) {
    EnterScreen(main, Mode::ArcadeGame);
    SetMeaning(main.cmdPause, kPause);
    ClearLines(main.field);
    main.field.CollisionLineY = RowOf(main.GameMode).collisionLineY;
}

void StartScore(VMain& main) {
    main.Score = 0;
    ShowNumber(main.VScore, 0);
    main.LevelLineCount = 0;
    main.Level = main.settings.StartLevel;
    PlayLevelMusic(main.audio, main.Level);
    ShowNumber(main.VLevel, main.Level);
    SetLevelSpeed(main);
    ShowWayToLevel(main);
    main.GameStartLevel = main.settings.StartLevel;
}

void MakeOpeningBeams(Field& field) {
    for (const int below : {0, field.CollisionLineY / 2, int{field.CollisionLineY}})
        CreateLine(field, Saturated(kSpawnHeight + below));
}

void TakeOver(VMain& main) {
    EnterMode(main, Mode::PuzzleGame);
    SetMeaning(main.CmdStart, kRestart);
}

void StartWaitingPuzzle(VMain& main) {
    StartBeamTimers(main);
    SetMeaning(main.CmdStart, kRestart);
    SetMeaning(main.cmdPause, kPause);
    main.cmdPause.visible = true;
    main.GameRunning = true;
    main.PuzzleWaiting = false;
}

// --- Pausing.

void PauseGame(VMain& main) {
    main.GameRunning = false;
    StopGameTimers(main);
    SetMeaning(main.cmdPause, kResume);
}

void ResumeGame(VMain& main) {
    main.GameRunning = true;
    if (RowOf(main.GameMode).spawnsBeams) main.platform.StartTimer(Timer::LineCreator);
    StartBeamTimers(main);
    SetMeaning(main.cmdPause, kPause);
}

// --- Leaving.

void DropGame(VMain& main) {
    main.GameRunning = false;
    StopGameTimers(main);
    ClearLines(main.field);
}

void DropTutorial(VMain& main) {
    main.TutorialActive = false;
    main.TutorialStep = 0;
}

// Goes from a game to its menu, or from the puzzle menu to the main menu.
void LeaveScreen(VMain& main) {
    const ModeRow& row = RowOf(main.GameMode);
    if (row.isGame) {
        main.log->Ends(main, GameEnding::Left);
        DropGame(main);
    }
    if (row.isPuzzle) DropTutorial(main);
    main.platform.SurfaceClear();
    const Mode next = row.exitTo;
    if (next == Mode::PuzzleMenu) return ShowPuzzleMenu(main);
    EnterScreen(main, next);
}

}  // namespace

void CommandArcade_Click(VMain& main) {
    main.log->Begins(main, GameKind::Arcade);
    main.platform.StopTimer(Timer::TimerPlayIntro);
    BeginAtPace(main);
    ShowArcadeScreen(main);
    main.platform.StartTimer(Timer::LineCreator);
    StartBeamTimers(main);
    main.GameRunning = true;
    RedrawLines(main.field);
    StartScore(main);
    MakeOpeningBeams(main.field);
}

void CmdStart_Click(VMain& main) {
    HideTutorialPictures(main);
    if (main.GameMode == Mode::SolutionReplay) return TakeOver(main);
    if (main.PuzzleWaiting) return StartWaitingPuzzle(main);
    StartPuzzleGame(main, false, false);
}

void cmdPause_Click(VMain& main) {
    if (main.TutorialActive && main.TutorialStep != 0) return;
    if (main.GameRunning) {
        PauseGame(main);
        PauseMusic(main.audio);
    } else {
        ResumeGame(main);
        ResumeMusic(main.audio);
    }
}

void CommandExit_Click(VMain& main) {
    HideTutorialPictures(main);
    if (main.GameMode == Mode::MainMenu) {
        SaveSettings(main.settings, main.platform);
        StopMusic(main.audio);
        main.platform.EndProgram();
        return;
    }
    const bool isGame = RowOf(main.GameMode).isGame;
    LeaveScreen(main);
    if (isGame) PlayIntroMusic(main.audio);
}

void Form_KeyDown(VMain& main, std::int16_t KeyCode) {
    if (KeyCode != kEscapeKey) return;
    if (main.GameMode == Mode::MainMenu) {
        SaveSettings(main.settings, main.platform);
        main.platform.EndProgram();
        return;
    }
    HideTutorialPictures(main);
    LeaveScreen(main);
}

void Form_Resize(VMain& main, bool isMinimised) {
    if (isMinimised) {
        PauseMusic(main.audio);
        if (main.GameRunning) PauseGame(main);
        return;
    }
    ResumeMusic(main.audio);
    if (main.GameMode != Mode::SolutionReplay) return;
    StartBeamTimers(main);
    main.GameRunning = true;
}

void Form_Deactivate(VMain& main) {
    if (main.settings.extras.PauseAway != 0 && main.GameRunning)
        main.platform.Input().Click(main.window, main.cmdPause);
}

void Form_Activate(VMain& main) {
    if (!main.settings.PlayFirstTime) return;
    main.settings.PlayFirstTime = false;
    ShowAbout(main.dialogs, main.VAbout);
    main.CurrentPuzzle = 1;
    StartPuzzleGame(main, false, false);
}

}  // namespace prismfall
