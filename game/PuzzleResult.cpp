#include "game/PuzzleResult.h"

#include "game/PuzzleMenu.h"
#include "game/PuzzleStart.h"

namespace prismfall {

namespace {

// A button that makes a move and then hides the dialog.
template <typename Move>
DialogClick MakeClick(VMain& main, std::string_view button, Move move) {
    return {button, [&main, move] {
                move(main);
                main.VPuzzleResult->Hide();
            }};
}

void MakeResult(VMain& main) {
    main.VPuzzleResult = MakeDialog(
        main.audio, "VPuzzleResult", "Puzzle Result", {512, 266},
        {MakePicture("ImageMessage", 103, 59, 320, 70),
         MakeButton("CommandSolution", 15, 206, 169, 44, {"ShowSolutionUp", "ShowSolutionDown"}, "Show solution"),
         MakeButton("Command1", 225, 203, 83, 47, {"MenuResultUp", "MenuResultDown"}, "Menu"),
         MakeButton("CommandNext", 343, 201, 155, 53, {"NextPuzzleUp", "NextPuzzleDown"}, "Next puzzle"),
         MakeButton("CommandTryAgain", 376, 202, 125, 51, {"TryAgainUp", "TryAgainDown"}, "Try again")},
        {MakeClick(main, "CommandSolution", [](VMain& game) { StartPuzzleGame(game, false, true); }),
         MakeClick(main, "Command1", ShowPuzzleMenu),
         MakeClick(main, "CommandNext", [](VMain& game) { StartPuzzleGame(game, true, false); }),
         MakeClick(main, "CommandTryAgain", [](VMain& game) { StartPuzzleGame(game, false, false); })});
}

void ShowMessage(Window& dialog, bool Solved) {
    Element& message = dialog["ImageMessage"];
    message.picture = Solved ? "PuzzleSolved" : "YouFailed";
    message.accessibleName = Solved ? "You Succeeded!" : "Puzzle Failed...";
}

}  // namespace

void ShowPuzzleResult(VMain& main, bool Solved) {
    if (!main.VPuzzleResult) MakeResult(main);
    Window& dialog = *main.VPuzzleResult;
    ShowMessage(dialog, Solved);
    dialog["CommandSolution"].visible = !Solved;
    dialog["CommandTryAgain"].visible = !Solved;
    dialog["CommandNext"].visible = Solved;
    dialog["CommandNext"].enabled = main.CurrentPuzzle != kPuzzleCount;
    ShowDialog(main.dialogs, main.VPuzzleResult);
}

}  // namespace prismfall
