// Gamepads, with a virtual one from SDL: what its buttons and its stick stand for, and that it may come and go.
#include "backends/sdl/desktop/Gamepads.h"

#include <gtest/gtest.h>

#include <string>

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

    // The codes of the keys pressed so far.
    std::string Keys() {
        std::string keys;
        SDL_JoystickUpdate();
        SDL_PumpEvents();
        SDL_Event event;
        while (SDL_PeepEvents(&event, 1, SDL_GETEVENT, SDL_FIRSTEVENT, SDL_LASTEVENT) > 0)
            if (const Key key = gamepads.KeyOf(event); key != Key::None)
                keys += std::to_string(static_cast<int>(key)) + " ";
        return keys;
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

}  // namespace
}  // namespace prismfall
