// The faces and the sound of buttons, in all windows.
#include "screens/Buttons.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

struct Face {
    std::string_view button, tag, up, down;
};

constexpr Face kMainFaces[] = {{"CommandPuzzle", "", "PuzzleUp", "PuzzleDown"},
                               {"CommandArcade", "", "ArcadeUp", "ArcadeDown"},
                               {"CommandPrevious", "", "PreviousUp", "PreviousDown"},
                               {"CommandNext", "", "NextUp", "NextDown"},
                               {"CmdStart", "", "StartUp", "StartDown"},
                               {"CmdStart", "Restart", "RestartUp", "RestartDown"},
                               {"CmdStart", "Takeover", "TakeoverUp", "TakeoverDown"},
                               {"cmdPause", "", "PauseUp", "PauseDown"},
                               {"cmdPause", "Resume", "ResumeUp", "ResumeDown"},
                               {"CmdOptions", "", "OptionsUp", "OptionsDown"},
                               {"CmdScores", "", "ScoresUp", "ScoresDown"},
                               {"CmdAbout", "", "AboutUp", "AboutDown"},
                               {"CommandExit", "", "ExitUp", "ExitDown"}};

TEST(Buttons, ShowTheDownFaceUnderThePointer) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    for (const Face& face : kMainFaces) {
        Element& button = main.window[face.button];
        button.tag = face.tag;
        ResetButtons(main);
        EXPECT_EQ(button.picture, face.up);
        main.window.on.elementMove(button);
        EXPECT_EQ(button.picture, face.down);
    }
    main.window.on.mouseMove(5, 5);
    for (const Face& face : kMainFaces) EXPECT_TRUE(main.window[face.button].picture.ends_with("Up")) << face.button;
    main.window.on.elementMove(main.ImagePrismfall);
    EXPECT_EQ(main.ImagePrismfall.picture, "ImagePrismfall") << "not a button";
}

TEST(Buttons, AreResetInAGameOnlyRightOfThePlayfield) {
    for (int mode = 0; mode <= 4; ++mode) {
        TestGame game;
        VMain& main = game.QuietStore().Load();
        main.GameMode = mode;
        const auto resets = [&](float x) {
            main.window.on.elementMove(main.CmdAbout);
            main.window.on.mouseMove(x, 300);
            return main.CmdAbout.picture == "AboutUp";
        };
        EXPECT_EQ(resets(0), mode == 0);
        EXPECT_EQ(resets(670), mode == 0);
        EXPECT_TRUE(resets(670.25F));
        EXPECT_TRUE(resets(671));
    }
}

TEST(Buttons, OfDialogsWorkAlike) {
    struct Case {
        std::string_view opener;
        std::string_view button, up, down;
    };
    for (const Case& row : {Case{"CmdScores", "Command1", "ClearScoresUp", "ClearScoresDown"},
                            Case{"CmdScores", "Command2", "OKScoresUp", "OKScoresDown"},
                            Case{"CmdScores", "Command3", "ClearPuzzleProgressUp", "ClearPuzzleProgressDown"},
                            Case{"CmdAbout", "Command1", "OKAboutUp", "OKAboutDown"},
                            Case{"CmdOptions", "Command1", "OKOptionsUp", "OKOptionsDown"},
                            Case{"", "Command1", "MenuResultUp", "MenuResultDown"},
                            Case{"", "CommandNext", "NextPuzzleUp", "NextPuzzleDown"},
                            Case{"", "CommandTryAgain", "TryAgainUp", "TryAgainDown"},
                            Case{"", "CommandSolution", "ShowSolutionUp", "ShowSolutionDown"}}) {
        TestGame game;
        VMain& main = game.QuietStore().Load();
        int dialogs = 0;
        game.Machine().onDialog = [&](Window& dialog) {
            ++dialogs;
            Element& button = dialog[row.button];
            EXPECT_EQ(button.picture, row.up);
            dialog.on.elementMove(button);
            EXPECT_EQ(button.picture, row.down);
            dialog.on.mouseMove(0, 0);
            EXPECT_EQ(button.picture, row.up);
            dialog.on.elementMove(button);
            dialog.on.activate();
            EXPECT_EQ(button.picture, row.up);
            EXPECT_FALSE(dialog.on.keyDown) << "dialogs do not listen to the keyboard";
            game.TakePrinted();
            dialog.on.elementDown(button, MouseButton::Right, 1, 1);
            EXPECT_EQ(game.TakePrinted(), "sound 7 sync\n") << "any mouse button sounds";
        };
        if (!row.opener.empty()) {
            game.Click(row.opener);
        } else {
            main.GameMode = kPuzzleGame;
            game.AddBeam(100, 500, 185, 585, 1);
            game.Machine().Fire(Timer::LineExtender);
        }
        EXPECT_EQ(dialogs, 1);
    }
}

TEST(Buttons, ThatOpenADialogGoBackUpWhenItHasClosed) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    for (const std::string_view button : {"CmdOptions", "CmdScores", "CmdAbout"}) {
        main.window.on.elementMove(main.CommandExit);
        main.window.on.elementMove(main.window[button]);
        game.Machine().onDialog = [&](Window&) { EXPECT_TRUE(main.window[button].picture.ends_with("Down")); };
        game.Click(button);
        EXPECT_TRUE(main.window[button].picture.ends_with("Up")) << button;
        EXPECT_EQ(main.CommandExit.picture, "ExitDown") << "and no other";
    }
}

TEST(Buttons, AloneSoundAtAPress) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    main.window.on.elementDown(main.CmdAbout, MouseButton::Right, 1, 1);
    EXPECT_EQ(game.TakePrinted(), "sound 7 sync\n");
    main.window.on.elementDown(main.ImagePrismfall, MouseButton::Left, 1, 1);
    main.window.on.elementDown(main.VScore, MouseButton::Left, 1, 1);
    EXPECT_EQ(game.TakePrinted(), "") << "pictures and labels are no buttons";
}

}  // namespace
}  // namespace prismfall
