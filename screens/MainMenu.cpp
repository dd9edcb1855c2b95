#include "screens/MainMenu.h"

#include "audio/SoundEffects.h"

namespace prismfall {

namespace {

constexpr double kLongestDark = 10000;  // milliseconds
constexpr double kLongestLit = 1000;

}  // namespace

void ShowMainMenu(VMain& main, Boolean state) {
    main.platform.SurfaceClear();
    ShowScoreboard(main, false);
    HideSolvedLabels(main);
    for (Element* element : {&main.CommandArcade, &main.CommandPuzzle, &main.ImagePrismfall}) element->visible = state;
    if (state) {
        main.platform.StartTimer(Timer::TimerA);
    } else {
        main.platform.StopTimer(Timer::TimerA);
    }
    for (Element* element : {&main.ImageA, &main.cmdPause, &main.CmdStart}) element->visible = false;
    if (!state) return;
    main.GameMode = kMainMenu;
    for (Element* element : {&main.LabelPuzzlePage, &main.CommandPrevious, &main.CommandNext}) element->visible = false;
}

void ShowScoreboard(VMain& main, Boolean state) {
    const bool isArcade = main.GameMode == kArcadeGame;
    for (Element* element : {&main.VScore, &main.VHighScore, &main.VLevel, &main.PictureScores})
        element->visible = isArcade && state;
    for (Element* element : {&main.PictureScores2, &main.LabelPuzzleNr}) element->visible = !isArcade && state;
}

void HideSolvedLabels(VMain& main) {
    for (Element& mark : main.LabelSolved) mark.visible = false;
}

void TimerA_Timer(VMain& main) {
    const double longest = main.ImageA.visible ? kLongestDark : kLongestLit;
    main.ImageA.visible = !main.ImageA.visible;
    main.platform.SetTimerInterval(Timer::TimerA, Rounded(longest * main.platform.Random()));
    main.platform.LetEventsRun();
    PlaySound2(main, kSoundFlicker, true);
}

}  // namespace prismfall
