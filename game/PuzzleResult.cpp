#include "game/PuzzleResult.h"

#include <array>

#include "game/PuzzleMenu.h"
#include "game/PuzzleStart.h"
#include "screens/ButtonFaces.h"
#include "screens/Dialogs.h"

namespace prismfall {

namespace {

void HideResult(VMain& main) { main.VPuzzleResult->Hide(); }

void CommandSolution_Click(VMain& main) {
    StartPuzzleGame(main, false, true);
    HideResult(main);
}

void Menu_Click(VMain& main) {
    ShowPuzzleMenu(main, true);
    HideResult(main);
}

void NextPuzzle_Click(VMain& main) {
    StartPuzzleGame(main, true, false);
    HideResult(main);
}

void CommandTryAgain_Click(VMain& main) {
    StartPuzzleGame(main, false, false);
    HideResult(main);
}

constexpr std::array<ButtonRow, 4> kButtons = {{
    {"CommandSolution", "ShowSolutionUp", "ShowSolutionDown", CommandSolution_Click},
    {"Command1", "MenuResultUp", "MenuResultDown", Menu_Click},
    {"CommandNext", "NextPuzzleUp", "NextPuzzleDown", NextPuzzle_Click},
    {"CommandTryAgain", "TryAgainUp", "TryAgainDown", CommandTryAgain_Click},
}};

void MakeResult(VMain& main) {
    main.VPuzzleResult = MakeDialog("VPuzzleResult", "Puzzle Result", 512, 266);
    main.VPuzzleResult->Own({MakePicture("ImageMessage", 103, 59, 320, 70),
                             MakeButton("CommandSolution", 15, 206, 169, 44, "ShowSolutionUp", "Show solution"),
                             MakeButton("Command1", 225, 203, 83, 47, "MenuResultUp", "Menu"),
                             MakeButton("CommandNext", 343, 201, 155, 53, "NextPuzzleUp", "Next puzzle"),
                             MakeButton("CommandTryAgain", 376, 202, 125, 51, "TryAgainUp", "Try again")});
    WireDialog(main, *main.VPuzzleResult, kButtons);
}

void ShowMessage(Window& dialog, Boolean Solved) {
    Element& message = dialog["ImageMessage"];
    message.picture = Solved ? "PuzzleSolved" : "YouFailed";
    message.spoken = Solved ? "You Succeeded!" : "Puzzle Failed...";
}

}  // namespace

void ShowPuzzleResult(VMain& main, Boolean Solved) {
    if (!main.VPuzzleResult) MakeResult(main);
    Window& dialog = *main.VPuzzleResult;
    ShowMessage(dialog, Solved);
    dialog["CommandSolution"].visible = !Solved;
    dialog["CommandTryAgain"].visible = !Solved;
    dialog["CommandNext"].visible = Solved;
    dialog["CommandNext"].enabled = main.CurrentPuzzle != kPuzzleCount;
    ShowDialog(main, main.VPuzzleResult);
}

}  // namespace prismfall
