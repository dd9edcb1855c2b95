// Where everything stands in the windows, what it reads, and how dialogs come and go.
#include "screens/Dialogs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "game/HighScores.h"
#include "game/PuzzleResult.h"
#include "screens/About.h"
#include "screens/Options.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

using Lines = std::vector<std::string>;

// "NAME X,Y WIDTHxHEIGHT", for texts also points, style, colour and text.
std::string Described(const Element& element) {
    std::ostringstream line;
    line << element.name << ' ' << element.left << ',' << element.top << ' ' << element.width << 'x' << element.height;
    if (element.text.empty()) return line.str();
    line << ' ' << element.font.points << (element.font.bold ? " bold" : "") << (element.font.italic ? " italic" : "")
         << ' ' << std::hex << std::uppercase << element.colour << " \"" << element.text << '"';
    return line.str();
}

Lines Described(const Window& window) {
    Lines lines;
    for (const Element* element : window.elements) lines.push_back(Described(*element));
    std::ranges::sort(lines);
    return lines;
}

// A dialog that has been shown and hidden by its button.
Window& Shown(TestGame& game, void (*show)(VMain&), std::unique_ptr<Window>& dialog, const char* button) {
    game.Machine().QueueAnswer(button);
    show(game.Main());
    return *dialog;
}

void ExpectDialog(const Window& dialog, std::string_view title, int width, int height, bool hasIcon) {
    EXPECT_EQ(dialog.title, title);
    EXPECT_EQ(dialog.innerWidth, width);
    EXPECT_EQ(dialog.innerHeight, height);
    EXPECT_EQ(dialog.background, "DialogBackground");
    EXPECT_EQ(dialog.hasIcon, hasIcon);
    EXPECT_TRUE(dialog.isDialog);
}

TEST(Layout, MainWindow) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    EXPECT_EQ(main.window.title, "Prismfall v1.1");
    EXPECT_EQ(game.Machine().OuterSize(main.window).width, 806);
    EXPECT_EQ(game.Machine().OuterSize(main.window).height, 629);
    std::string all;
    for (const Element* element : main.window.elements) {
        if (element->name.starts_with("LabelSolved") || element->kind == ElementKind::PressPicture) continue;
        Element box = *element;
        box.text.clear();
        all += Described(box) + "; ";
    }
    EXPECT_EQ(all,
              "ImagePrismfall 46,101 586x205; ImageA 544,102 84x87; CommandPuzzle 160,408 133x54; "
              "CommandArcade 400,409 151x58; CommandPrevious 679,27 121x37; CommandNext 693,71 97x33; "
              "LabelPuzzlePage 680,110 129x57; PictureScores 682,-1 120x114; VScore 57,22 57x23; VLevel 57,52 56x22; "
              "VHighScore 57,80 57x23; PictureScores2 682,-1 120x114; LabelPuzzleNr 76,22 23x21; "
              "CmdStart 690,223 100x54; cmdPause 695,294 89x38; CmdOptions 696,362 97x39; CmdScores 691,428 107x34; "
              "CmdAbout 698,479 86x44; CommandExit 711,540 59x37; LabelMulti 703,191 41x17; ");
    EXPECT_EQ(Described(main.VLevel), "VLevel 57,52 56x22 14.25 FF \"0\"") << "until a game shows its own";
    EXPECT_EQ(Described(main.LabelSolved[3]), "LabelSolved3 0,0 57x17 12 FF \"Solved\"");
}

TEST(Layout, About) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    const Window& about = Shown(game, ShowAbout, main.VAbout, "Command1");
    ExpectDialog(about, "About Prisfall v1.1", 408, 472, false);
    const Lines kFixed = {
        "Command1 176,422 65x50",
        "Image1 202,28 195x58",
        "Label1 22,20 139x21 12 bold C0FFC0 \"Prismfall v1.1\"",
        "Label11 22,120 365x85 11.25 80FFFF \"Bend the beams by clicking on their ends. When beams of the same color "
        "collide they are destroyed. You can make them go faster with Mouse Right button. Hurry up before they reach "
        "the "
        "ground! In Puzzle mode all beams must be destroyed.\"",
        "Label12 118,213 242x17 11.25 bold C0FFC0 \"Mouse L button = Bend the beam\"",
        "Label13 120,256 263x17 11.25 bold C0FFC0 \"Mouse R button  = Speed up the beam\"",
        "Label14 120,232 311x20 9 italic C0FFC0 \"also used to Start an inactive beam in Puzzle mode\"",
        "Label15 122,276 338x16 9 italic C0FFC0 \"in Arcade mode only possibly if resulting in collision\"",
        "Label16 22,214 81x17 11.25 bold C0FFC0 \"CONTROL\"",
        "Label17 22,324 77x15 9.75 C0FFC0 \"(Arcade Only)\"",
        "Label18 342,307 81x17 11.25 C0FFC0 \"10 pt\"",
        "Label19 118,324 302x41 9.75 italic C0FFC0 \"The score is doubled for each additional beam in a single "
        "collition\"",
        "Label2 62,52 134x17 11.25 C0FFC0 ",  // the year
        "Label20 117,306 226x17 11.25 C0FFC0 \"Two destroyed beams in a collision = \"",
        "Label21 22,304 55x17 11.25 bold C0FFC0 \"SCORE A\"",
        "Label22 22,98 125x17 11.25 bold 80FFFF \"OBJECTIVE\"",
        "Label3 22,370 61x13 8.25 bold C0FFFF \"CREDITS\"",
        "Label4 22,402 177x17 8.25 C0FFFF \"Programming - ",
        "Label5 22,388 105x13 8.25 C0FFFF \"Game concept and\"",
        "Label6 246,420 135x17 8.25 C0FFFF \"Intro Music - Orvane\"",
        "Label7 246,402 126x15 8.25 C0FFFF \"Music - ",
        "Label9 22,420 131x15 8.25 C0FFFF \"Graphics - ",
        "Shape1 12,90 383x105"};
    const Lines lines = Described(about);
    ASSERT_EQ(lines.size(), kFixed.size());
    for (std::size_t i = 0; i < lines.size(); ++i) EXPECT_TRUE(lines[i].starts_with(kFixed[i])) << lines[i];
}

TEST(Layout, Options) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    const Window& options = Shown(game, ShowOptions, main.VOptions, "Command1");
    ExpectDialog(options, "Options", 237, 297, false);
    Lines expected = {"CheckMusic 144,56 63x41 9.75 80FFFF \"Music\"",
                      "CheckSoundEffects 144,32 63x38 9.75 80FFFF \"Effects\"", "Command1 142,238 73x49",
                      "Frame1 21,16 89x265 12 80FFFF \"Start Level\"", "Frame2 135,17 82x83 12 80FFFF \"Sound\""};
    for (int level = 1; level <= 10; ++level)
        expected.push_back("Option" + std::to_string(level) + " 29," + std::to_string(16 + 24 * level) +
                           " 65x17 9.75 80FFFF \"Level " + std::to_string(level) + '"');
    std::ranges::sort(expected);
    EXPECT_EQ(Described(options), expected);
}

TEST(Layout, HighScores) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    for (std::size_t row = 0; row < kScoreRows; ++row)
        main.Scores[row].score = static_cast<std::int16_t>(1000 - 100 * row);
    const Window& scores = Shown(game, ShowHighScores, main.VHighScore2, "Command2");
    ExpectDialog(scores, "Highscore", 327, 455, true);
    Lines expected = {"Command1 82,412 123x36",
                      "Command2 244,402 70x47",
                      "Command3 22,374 191x40",
                      "Label11 96,16 81x17 12 bold 80FFFF \"Score\"",
                      "Label12 200,4 60x37 12 bold 80FFFF \"Start Level\"",
                      "Label13 264,5 50x36 12 bold 80FFFF \"End Level\""};
    const char* const kY[] = {"56", "88", "120", "152", "184", "216", "248", "280", "312", "344"};
    const char* const kY2[] = {"56", "89", "122", "155", "187", "216", "248", "280", "312", "344"};
    for (int i = 0; i < 10; ++i) {
        const std::string index = std::to_string(i);
        const std::string row = std::to_string(i + 1);
        expected.push_back("Label" + row + " 24," + kY[i] + " 33x25 12 bold 80FFFF \"" + row + '"');
        expected.push_back("LabelScore" + index + " 96," + kY[i] + " 105x25 12 80FFFF \"" +
                           std::to_string(1000 - 100 * i) + '"');
        expected.push_back("LabelLevel" + index + " 208," + kY2[i] + " 49x25 12 80FFFF \"1\"");
        expected.push_back("LabelEndLevel" + index + " 272," + kY2[i] + " 49x25 12 80FFFF \"1\"");
    }
    std::ranges::sort(expected);
    EXPECT_EQ(Described(scores), expected);
    ClearScores(main);
    for (const std::string_view name : {"LabelScore0", "LabelScore9", "LabelLevel0", "LabelEndLevel9"})
        EXPECT_EQ((*main.VHighScore2)[name].text, "0") << "what is shown is cleared as well";
}

TEST(Layout, PuzzleResult) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    const Window& result = Shown(
        game, [](VMain& state) { ShowPuzzleResult(state, true); }, main.VPuzzleResult, "Command1");
    ExpectDialog(result, "Puzzle Result", 512, 266, false);
    EXPECT_EQ(Described(result),
              (Lines{"Command1 225,203 83x47", "CommandNext 343,201 155x53", "CommandSolution 15,206 169x44",
                     "CommandTryAgain 376,202 125x51", "ImageMessage 103,59 320x70"}));
}

TEST(Dialogs, StandCentredBelowTheTitleBar) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    Place place;
    game.Machine().onDialog = [&](Window& dialog) { place = game.Machine().Position(dialog); };
    game.Machine().SetPosition(main.window, {100, 50});
    ShowOptions(main);  // 237 wide inside, 241 with the nominal frame of 4 by 27
    EXPECT_EQ(place.left, 100 + (806 - 241) / 2);
    EXPECT_EQ(place.top, 50 + 27);
    game.Machine().SetPosition(main.window, {-30, 7});
    ShowAbout(main);
    EXPECT_EQ(place.left, -30 + (806 - 412) / 2);
    EXPECT_EQ(place.top, 7 + 27);
}

TEST(Dialogs, AreKeptWhenHiddenAndMadeAnewWhenClosed) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    const Window* const kept = &Shown(game, ShowOptions, main.VOptions, "Command1");
    main.StartLevel = 9;  // not through the dialog: a dialog that is kept does not look again
    std::string marked;
    game.Machine().onDialog = [&](Window& dialog) {
        marked.clear();
        for (const Element* element : dialog.elements)
            if (element->checked) marked += std::string(element->name) + ' ';
    };
    EXPECT_EQ(&Shown(game, ShowOptions, main.VOptions, "Command1"), kept);
    EXPECT_EQ(marked, "Option1 CheckSoundEffects ");
    EXPECT_EQ(main.StartLevel, 1);
    main.StartLevel = 9;
    ShowOptions(main);
    EXPECT_EQ(main.VOptions, nullptr);
    ShowOptions(main);
    EXPECT_EQ(marked, "Option9 CheckSoundEffects ");
    for (const int level : {0, 11, -1, 32767}) {
        main.StartLevel = static_cast<std::int16_t>(level);
        main.Music = true;
        ShowOptions(main);
        EXPECT_EQ(marked, "CheckSoundEffects CheckMusic ") << level;
        game.Machine().QueueAnswer("Command1");
        ShowOptions(main);
        EXPECT_EQ(main.StartLevel, level);
        main.VOptions.reset();
    }
}

TEST(MainWindow, TakesNoInputDuringAGamesEndButClosesAtOnce) {
    TestGame game;
    VMain& main = game.QuietStore().Load();
    game.Click("CommandArcade");
    main.Lines.clear();
    const CLine& lost = game.AddBeam(100, 500, 185, 585, 1);
    game.TakePrinted();
    int yields = 0;
    game.Machine().onYield = [&] {
        const WindowHandlers& on = main.window.on;
        const std::string before = InShort(main) + std::to_string(main.GameMode);
        on.mouseDown(MouseButton::Left, lost.XEnd, lost.YEnd);
        on.doubleClick();
        on.keyDown(kEscapeKey);
        for (const std::string_view button : {"CommandExit", "cmdPause", "CmdAbout", "CommandPuzzle"})
            game.Click(button);
        EXPECT_EQ(InShort(main) + std::to_string(main.GameMode), before);
        EXPECT_TRUE(game.Machine().Store().size() < 79);
        ++yields;
    };
    main.Score = 30;
    game.Machine().Fire(Timer::LineExtender);
    EXPECT_EQ(yields, 291);
    EXPECT_EQ(game.TakePrinted(), "sound 5 sync\ndialog VHighScore2\n");
    EXPECT_EQ(main.Scores[0].score, 30);
    game.Machine().onYield = nullptr;
    game.Click("CmdAbout");
    EXPECT_EQ(game.TakePrinted(), "sound 7 sync\ndialog VAbout\n") << "and afterwards it takes it again";

    main.window.on.queryUnload();
    EXPECT_EQ(game.Machine().Store().size(), 79U);
}

}  // namespace
}  // namespace prismfall
