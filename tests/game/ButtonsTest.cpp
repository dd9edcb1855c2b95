// The faces and the sound of buttons, in all windows.
#include "game/Buttons.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

struct Face {
    std::string_view button, tag;
    std::string face;  // the pictures are called FACEUp and FACEDown
};

const Face kMainFaces[] = {
    {"CommandPuzzle", "", "Puzzle"},      {"CommandArcade", "", "Arcade"}, {"CommandPrevious", "", "Previous"},
    {"CommandNext", "", "Next"},          {"CmdStart", "", "Start"},       {"CmdStart", "Restart", "Restart"},
    {"CmdStart", "Takeover", "Takeover"}, {"cmdPause", "", "Pause"},       {"cmdPause", "Resume", "Resume"},
    {"CmdOptions", "", "Options"},        {"CmdScores", "", "Scores"},     {"CmdAbout", "", "About"},
    {"CommandExit", "", "Exit"}};

TEST(Buttons, AloneHaveADownFaceAndASound) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    for (const Face& face : kMainFaces) {
        Element& button = main.window[face.button];
        button.tag = face.tag;
        ResetButtons(main);
        EXPECT_EQ(button.picture, face.face + "Up");
        main.window.on.elementMove(button);
        EXPECT_EQ(button.picture, face.face + "Down");
    }
    main.window.on.mouseMove(5, 5);
    for (const Face& face : kMainFaces) EXPECT_TRUE(main.window[face.button].picture.ends_with("Up")) << face.button;
    main.window.on.elementMove(main.ImagePrismfall);
    EXPECT_EQ(main.ImagePrismfall.picture, "ImagePrismfall");
    for (Element* other : {&main.ImagePrismfall, &main.VScore}) {
        main.window.on.elementDown(*other, MouseButton::Left, 1, 1);
        EXPECT_EQ(game.TakePrinted(), "") << "pictures and labels are no buttons";
    }
    main.window.on.elementDown(main.CmdAbout, MouseButton::Right, 1, 1);
    EXPECT_EQ(game.TakePrinted(), "sound 7 sync\n") << "any mouse button sounds";
}

TEST(Buttons, OfDialogsWorkAlike) {
    struct Case {
        std::string_view opener;  // empty for the dialog after a puzzle
        std::string_view button;
        std::string face;
    };
    const Case kCases[] = {{"CmdScores", "Command1", "ClearScores"},
                           {"CmdScores", "Command2", "OKScores"},
                           {"CmdScores", "Command3", "ClearPuzzleProgress"},
                           {"CmdAbout", "Command1", "OKAbout"},
                           {"CmdOptions", "Command1", "OKOptions"},
                           {"", "Command1", "MenuResult"},
                           {"", "CommandNext", "NextPuzzle"},
                           {"", "CommandTryAgain", "TryAgain"},
                           {"", "CommandSolution", "ShowSolution"}};
    for (const Case& row : kCases) {
        TestGame game;
        VMain& main = game.QuietStore().Load();
        int dialogs = 0;
        game.Machine().onDialog = [&](Window& dialog) {
            ++dialogs;
            Element& button = dialog[row.button];
            EXPECT_EQ(button.picture, row.face + "Up");
            dialog.on.elementMove(button);
            EXPECT_EQ(button.picture, row.face + "Down");
            dialog.on.mouseMove(0, 0);
            EXPECT_EQ(button.picture, row.face + "Up");
            dialog.on.elementMove(button);
            dialog.on.activate();
            EXPECT_EQ(button.picture, row.face + "Up");
            EXPECT_FALSE(dialog.on.keyDown) << "dialogs do not listen to the keyboard";
            game.TakePrinted();
            dialog.on.elementDown(button, MouseButton::Right, 1, 1);
            EXPECT_EQ(game.TakePrinted(), "sound 7 sync\n");
        };
        if (row.opener.empty()) {
            main.GameMode = kPuzzleGame;
            game.AddBeam(100, 500, 185, 585, 1);
            game.Machine().Fire(Timer::LineExtender);
        } else {
            main.window.on.elementMove(main.window[row.opener]);
            game.Click(row.opener);
            EXPECT_TRUE(main.window[row.opener].picture.ends_with("Up")) << row.opener << " goes back up";
        }
        EXPECT_EQ(dialogs, 1);
    }
}

}  // namespace
}  // namespace prismfall
