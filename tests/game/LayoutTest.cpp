// Everything in the windows, as a list to be compared with layout.expected: positions, texts, button faces, and where
// the tutorial pictures can be pressed. The window tests find their way with that file.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include "game/Buttons.h"
#include "game/HighScores.h"
#include "game/PuzzleResult.h"
#include "game/Tutorial.h"
#include "screens/About.h"
#include "screens/Options.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

void Describe(std::ostream& out, const Window& window, Element& element) {
    out << window.name << ' ' << element.name << ' ' << element.left << ',' << element.top << ' ' << element.width
        << 'x' << element.height;
    if (element.kind == ElementKind::Button) {
        window.on.elementMove(element);
        const std::string_view down = element.picture;
        window.on.mouseMove(0, 0);
        out << ' ' << element.picture << ' ' << down;
    }
    if (!element.accessibleName.empty()) out << " accessibleName=\"" << element.accessibleName << '"';
    if (element.picture.empty())
        out << ' ' << element.font.points << (element.font.bold ? " bold" : "")
            << (element.font.italic ? " italic" : "") << (element.wraps ? " wraps" : "") << std::hex << std::uppercase
            << ' ' << element.colour << (element.ground ? " on black" : "") << std::dec << " \"" << element.text << '"';
    out << (element.fitHeight > 0 ? " fits " + std::to_string(element.fitHeight) : "")
        << (element.fastPresses ? " fast" : "") << (element.group.empty() ? "" : " of a group")
        << (element.checked ? " checked" : "") << (element.visible ? "" : " hidden") << '\n';
}

void Describe(std::ostream& out, TestMachine& machine, const Window& window) {
    const Place place = machine.Position(window);
    out << window.name << " \"" << window.title << "\" at " << place.left << ',' << place.top << " inside "
        << window.innerWidth << 'x' << window.innerHeight << ' ' << window.background
        << (window.isDialog ? " dialog" : "") << (window.hasIcon ? " icon" : "") << '\n';
    for (Element* element : window.elements) Describe(out, window, *element);
}

// Where a tutorial picture can be pressed, with either button or only the right one.
void DescribeSpots(std::ostream& out, TestGame& game, std::size_t picture) {
    VMain& main = game.Main();
    for (const bool skips : {true, false}) {
        int count[2] = {}, left = 999, top = 999, right = 0, bottom = 0;
        for (int at = 0; at < 2 * 220 * 220; ++at) {
            const int button = at % 2, x = at / 2 % 220, y = at / 440;
            main.TutorialActive = true;
            main.TutorialStep = 1;  // a step that does nothing to the beams
            PictTut_MouseDown(main, picture, button == 0 ? MouseButton::Left : MouseButton::Right,
                              static_cast<float>(x), static_cast<float>(y));
            if (main.TutorialStep != 0 || main.TutorialActive == skips) continue;
            ++count[button];
            left = std::min(left, x), right = std::max(right, x), top = std::min(top, y), bottom = std::max(bottom, y);
        }
        if (count[1] == 0) continue;
        out << "spot " << main.PictTut[picture].name << (skips ? " skips " : " goes on ") << left << ',' << top << ' '
            << right - left + 1 << 'x' << bottom - top + 1 << (count[0] == 0 ? " right button\n" : "\n");
        EXPECT_EQ(count[1], (right - left + 1) * (bottom - top + 1)) << "a rectangle";
        const auto seen = static_cast<float>(std::min(bottom, main.PictTut[picture].height));
        const auto isForKeys = [&](const PressSpot& spot) {
            const float middleX = spot.left + spot.width / 2, middleY = spot.top + spot.height / 2;
            return middleX > static_cast<float>(left) && middleX < static_cast<float>(right) &&
                   middleY > static_cast<float>(top) && middleY < seen && spot.rightButton == (count[0] == 0);
        };
        EXPECT_TRUE(std::ranges::any_of(main.PictTut[picture].spots, isForKeys));
    }
}

// When the tutorial pictures appear, by the height of the beam that serves as the clock, and where.
void DescribeMoments(std::ostream& out, TestGame& game) {
    VMain& main = game.Main();
    AddBeams(game.Main().field, "400,20 400,20 red #4; 300,300 324,324 red #4; 300,300 324,324 red #3");
    for (CLine& clock = game.Beam(1); clock.YEnd < 586; ++clock.YEnd) {
        main.TutorialStep = 0;
        main.platform.StartTimer(Timer::LineExtender);
        TriggerTutorial(main);
        EXPECT_EQ(game.Machine().Timers().IsOn(Timer::LineExtender), main.TutorialStep == 0);
        if (main.TutorialStep == 0) continue;
        const Element& picture = main.PictTut.at(static_cast<std::size_t>(main.TutorialStep) - 1);
        out << "moment " << clock.YEnd << " at " << picture.left << ',' << picture.top << ' ' << picture.name
            << (picture.visible ? "\n" : " hidden\n");
    }
}

TEST(Layout, IsAsExpected) {
    std::ostringstream out;
    TestGame game;
    VMain& main = game.QuietStore().Load();
    main.platform.SetPosition(main.window, {100, -30});
    Describe(out, game.Machine(), main.window);
    for (const auto& [button, meaning] :
         {std::pair{&main.CmdStart, kRestart}, {&main.CmdStart, kTakeover}, {&main.cmdPause, kResume}}) {
        SetMeaning(*button, meaning);
        Describe(out, main.window, *button);
    }
    game.Machine().onDialog = [&](Window& dialog) { Describe(out, game.Machine(), dialog); };
    ShowAbout(main.dialogs, main.VAbout);
    ShowOptions(main.dialogs, main.VOptions, main.settings, {});
    ShowHighScores(main);
    ShowPuzzleResult(main, true);
    DescribeMoments(out, game);
    for (std::size_t picture = 0; picture < main.PictTut.size(); ++picture) DescribeSpots(out, game, picture);
    const std::string path = PRISMFALL_TESTS "/game/layout.expected";
    if (std::getenv("UPDATE_STORIES") != nullptr) std::ofstream(path) << out.str();
    std::ifstream file(path);
    EXPECT_EQ(out.str(), std::string(std::istreambuf_iterator<char>(file), {}));
}

}  // namespace
}  // namespace prismfall
