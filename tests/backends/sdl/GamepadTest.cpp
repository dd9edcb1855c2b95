// Gamepads, with a virtual one from SDL: what its buttons and its stick stand for, and that it may come and go.
#include "backends/sdl/desktop/Gamepads.h"

#include <gtest/gtest.h>

#include <cmath>
#include <ranges>
#include <string>
#include <vector>

#include "game/PuzzleCatalogue.h"
#include "game/PuzzleStart.h"
#include "platform/KeyInput.h"
#include "tests/support/TestGame.h"

namespace prismfall {
namespace {

class GamepadTest : public ::testing::Test {
  protected:
    GamepadTest() {
        SDL_SetHint(SDL_HINT_JOYSTICK_ALLOW_BACKGROUND_EVENTS, "1");
        SDL_SetHint(SDL_HINT_VIDEODRIVER, "dummy");
        SDL_InitSubSystem(SDL_INIT_VIDEO);
        Gamepads::Begin();
    }
    ~GamepadTest() override { SDL_QuitSubSystem(SDL_INIT_GAMECONTROLLER | SDL_INIT_VIDEO); }

    void PlugIn() {
        pad = SDL_JoystickAttachVirtual(SDL_JOYSTICK_TYPE_GAMECONTROLLER, SDL_CONTROLLER_AXIS_MAX,
                                        SDL_CONTROLLER_BUTTON_MAX, 0);
        ASSERT_GE(pad, 0) << SDL_GetError();
        Keys();
        joystick = SDL_JoystickFromInstanceID(SDL_JoystickGetDeviceInstanceID(pad));
        ASSERT_NE(joystick, nullptr) << "the gamepad is taken in";
    }

    std::vector<Key> Taken() {
        std::vector<Key> keys;
        SDL_JoystickUpdate();
        SDL_PumpEvents();
        SDL_Event event;
        while (SDL_PeepEvents(&event, 1, SDL_GETEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT) > 0)
            if (const Key key = gamepads.KeyOf(event); key != Key::None) keys.push_back(key);
        return keys;
    }
    // The codes of the keys pressed so far.
    std::string Keys() {
        std::string codes;
        for (const Key key : Taken()) codes += std::to_string(static_cast<int>(key)) + " ";
        return codes;
    }
    std::string Press(SDL_GameControllerButton button) {
        SDL_JoystickSetVirtualButton(joystick, button, 1);
        const std::string keys = Keys();
        SDL_JoystickSetVirtualButton(joystick, button, 0);
        return keys + Keys();
    }
    std::string Push(int x, int y) {
        SDL_JoystickSetVirtualAxis(joystick, SDL_CONTROLLER_AXIS_LEFTX, static_cast<Sint16>(x));
        SDL_JoystickSetVirtualAxis(joystick, SDL_CONTROLLER_AXIS_LEFTY, static_cast<Sint16>(y));
        return Keys();
    }

    Gamepads gamepads;
    int pad = -1;
    SDL_Joystick* joystick = nullptr;
};

TEST_F(GamepadTest, ActsAsKeysAndMayComeAndGo) {
    for (int round = 0; round < 2; ++round) {
        PlugIn();
        EXPECT_EQ(Press(SDL_CONTROLLER_BUTTON_A) + Press(SDL_CONTROLLER_BUTTON_B) + Press(SDL_CONTROLLER_BUTTON_START) +
                      Press(SDL_CONTROLLER_BUTTON_RIGHTSHOULDER) + Press(SDL_CONTROLLER_BUTTON_DPAD_UP),
                  "32 13 80 34 38 ");
        EXPECT_EQ(Push(-30000, 0), "37 ");
        EXPECT_EQ(Push(-15000, 0) + Push(-30000, 9000), "") << "it has not been let go";
        EXPECT_EQ(Push(0, 0) + Push(0, 15000), "");
        EXPECT_EQ(Push(3000, 32767), "40 ");
        SDL_JoystickDetachVirtual(pad);
        EXPECT_EQ(Keys(), "");
    }
}

// Plays with the gamepad alone what the catalogue says.
class PadPlayer : public GamepadTest {
  protected:
    void PressFor(SDL_GameControllerButton button) {
        for (const std::uint8_t isDown : {1, 0}) {
            SDL_JoystickSetVirtualButton(joystick, button, isDown);
            for (const Key key : Taken()) PressKey(game.Machine().Input(), game.Main().window, key);
        }
    }

    // The end of the beam with that number, or null.
    const CLine* EndOf(std::int16_t number) {
        const auto isIt = [number](const CLine* beam) {
            return beam->PuzzleLineNr == number && !beam->Deleted && beam->RunMode != Motion::Stopped;
        };
        const auto& lines = game.Main().field.Lines;
        const auto found = std::ranges::find_if(lines, isIt);
        return found != lines.end() ? *found : nullptr;
    }

    void Choose(const CLine& beam) {
        const KeyChoice& choice = game.Main().window.choice;
        for (int presses = 0; presses < 60 && choice.what != &beam; ++presses) {
            const float x = static_cast<float>(beam.XEnd) - choice.left;
            const float y = static_cast<float>(beam.YEnd) - choice.top;
            const bool isAcross = (std::abs(x) > std::abs(y)) != (presses % 4 == 3);
            PressFor(isAcross ? x < 0 ? SDL_CONTROLLER_BUTTON_DPAD_LEFT : SDL_CONTROLLER_BUTTON_DPAD_RIGHT
                     : y < 0  ? SDL_CONTROLLER_BUTTON_DPAD_UP
                              : SDL_CONTROLLER_BUTTON_DPAD_DOWN);
        }
    }

    void Take(const SolutionStep& step) {
        const std::int16_t number = step.OtherLineNr != 0 ? step.OtherLineNr : step.TriggerLineNr;
        const std::vector<SDL_GameControllerButton> buttons =
            !step.SpeedUp    ? std::vector{SDL_CONTROLLER_BUTTON_A}
            : step.BendFirst ? std::vector{SDL_CONTROLLER_BUTTON_A, SDL_CONTROLLER_BUTTON_B}
                             : std::vector{SDL_CONTROLLER_BUTTON_B};
        for (const SDL_GameControllerButton button : buttons) {
            const CLine* beam = EndOf(number);
            if (beam == nullptr) return;
            Choose(*beam);
            PressFor(button);
        }
    }

    bool Solves(std::int16_t puzzle) {
        VMain& main = game.Main();
        main.CurrentPuzzle = puzzle;
        StartPuzzleGame(main, false, false);
        PressFor(SDL_CONTROLLER_BUTTON_Y);
        std::vector<SolutionStep> left;
        std::ranges::copy(PuzzleSolution(puzzle), std::back_inserter(left));
        for (int tick = 0; tick < 900; ++tick) {
            std::erase_if(left, [this](const SolutionStep& step) {
                const CLine* beam = EndOf(step.TriggerLineNr);
                const bool isTime =
                    beam != nullptr && beam->RunMode == Motion::Growing && beam->YEnd == step.TriggerYEnd;
                if (isTime) Take(step);
                return isTime;
            });
            game.Machine().Run(75);
        }
        return main.settings.SolvedPuzzles[static_cast<std::size_t>(puzzle - 1)];
    }

    TestGame game;
};

TEST_F(PadPlayer, SolvesPuzzles) {
    PlugIn();
    game.QuietStore().Load();
    for (const std::int16_t puzzle : {2, 3, 8, 12, 16}) EXPECT_TRUE(Solves(puzzle)) << puzzle;
}

}  // namespace
}  // namespace prismfall
