#include "game/GameControl.h"

#include <string_view>

#include "audio/Music.h"
#include "game/GameTimers.h"
#include "game/PuzzleMenu.h"
#include "game/PuzzleStart.h"
#include "game/Tutorial.h"
#include "screens/About.h"
#include "screens/MainMenu.h"
#include "screens/SettingsStore.h"
#include "simulation/BeamRemoval.h"
#include "simulation/BeamSpawning.h"
#include "simulation/Playfield.h"
#include "state/GameModes.h"

namespace prismfall {

namespace {

// --- Starting.

void ShowArcadeScreen(VMain& main) {
    main.GameMode = kArcadeGame;
    ShowMainMenu(main, false);
    ShowScoreboard(main, true);
    ClearLines(main);
    main.CollisionLineY = kArcadeCollisionLineY;
    ShowFace(main.cmdPause, kPauseFace);
    main.cmdPause.visible = true;
    main.platform.SurfaceClear();
}

void StartScore(VMain& main) {
    main.Score = 0;
    ShowNumber(main.VScore, 0);
    main.LevelLineCount = 0;
    main.Level = main.StartLevel;
    PlayLevelMusic(main, main.Level);
    ShowNumber(main.VLevel, main.Level);
    SetLevelSpeed(main);
    main.GameStartLevel = main.StartLevel;
}

void MakeOpeningBeams(VMain& main) {
    for (const int below : {0, main.CollisionLineY / 2, int{main.CollisionLineY}})
        CreateLine(main, nullptr, false, Saturated(kSpawnHeight + below));
}

void TakeOver(VMain& main) {
    main.GameMode = kPuzzleGame;
    ShowFace(main.CmdStart, kRestartFace);
}

void StartWaitingPuzzle(VMain& main) {
    StartBeamTimers(main);
    ShowFace(main.CmdStart, kRestartFace);
    ShowFace(main.cmdPause, kPauseFace);
    main.cmdPause.visible = true;
    main.GameRunning = true;
    main.PuzzleWaiting = false;
}

// --- Pausing.

void StandStill(VMain& main) {
    main.GameRunning = false;
    StopGameTimers(main);
    ShowFace(main.cmdPause, kResumeFace);
}

void GoOn(VMain& main) {
    main.GameRunning = true;
    if (main.GameMode == kArcadeGame) main.platform.StartTimer(Timer::LineCreator);
    StartBeamTimers(main);
    ShowFace(main.cmdPause, kPauseFace);
}

// --- Leaving.

void DropGame(VMain& main) {
    main.GameRunning = false;
    StopGameTimers(main);
    ClearLines(main);
    main.platform.SurfaceClear();
}

void LeaveArcade(VMain& main) {
    main.GameMode = kMainMenu;
    DropGame(main);
    ShowMainMenu(main, true);
    ShowScoreboard(main, false);
}

void LeavePuzzle(VMain& main) {
    main.GameMode = kPuzzleMenu;
    DropGame(main);
    ShowPuzzleMenu(main, true);
    ShowScoreboard(main, false);
    main.TutorialActive = false;
    main.TutorialStep = 0;
}

void LeavePuzzleMenu(VMain& main) {
    main.GameMode = kMainMenu;
    main.platform.SurfaceClear();
    ShowMainMenu(main, true);
    ShowScoreboard(main, false);
}

// Leaves a game for its menu, or the puzzle menu for the main menu.
void LeaveScreen(VMain& main) {
    if (IsPuzzle(main)) return LeavePuzzle(main);
    if (main.GameMode == kArcadeGame) return LeaveArcade(main);
    LeavePuzzleMenu(main);
}

void HandleEscape(VMain& main) {
    if (main.GameMode == kMainMenu) {
        SaveSettings(main);
        main.platform.EndProgram();
        return;
    }
    if (IsPuzzle(main)) HideTutorialPictures(main);
    LeaveScreen(main);
}

}  // namespace

void CommandArcade_Click(VMain& main) {
    main.platform.StopTimer(Timer::TimerPlayIntro);
    ShowArcadeScreen(main);
    main.platform.StartTimer(Timer::LineCreator);
    StartBeamTimers(main);
    main.GameRunning = true;
    RedrawLines(main);
    StartScore(main);
    MakeOpeningBeams(main);
}

void CmdStart_Click(VMain& main) {
    HideTutorialPictures(main);
    if (main.GameMode == kSolutionReplay) return TakeOver(main);
    if (main.PuzzleWaiting) return StartWaitingPuzzle(main);
    StartPuzzleGame(main, false, false);
}

void cmdPause_Click(VMain& main) {
    if (main.TutorialActive && main.TutorialStep != 0) return;
    if (main.GameRunning) {
        StandStill(main);
        PauseMusic(main);
    } else {
        GoOn(main);
        ResumeMusic(main);
    }
}

void CommandExit_Click(VMain& main) {
    HideTutorialPictures(main);
    if (main.GameMode == kMainMenu) {
        SaveSettings(main);
        StopMusic(main);
        main.platform.EndProgram();
        return;
    }
    const bool isGame = main.GameMode != kPuzzleMenu;
    LeaveScreen(main);
    if (isGame) PlayMusicFile(main, kIntroTrack, kMusicVolume);
}

void Form_KeyDown(VMain& main, std::int16_t KeyCode) {
    if (KeyCode == kEscapeKey) HandleEscape(main);
}

void Form_Resize(VMain& main, bool isMinimised) {
    if (isMinimised) {
        PauseMusic(main);
        if (main.GameRunning) StandStill(main);
        return;
    }
    ResumeMusic(main);
    if (main.GameMode != kSolutionReplay) return;
    StartBeamTimers(main);
    main.GameRunning = true;
}

void Form_Activate(VMain& main) {
    if (!main.PlayFirstTime) return;
    main.PlayFirstTime = false;
    ShowAbout(main);
    main.CurrentPuzzle = 1;
    StartPuzzleGame(main, false, false);
}

}  // namespace prismfall
