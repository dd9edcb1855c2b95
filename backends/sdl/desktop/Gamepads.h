// Gamepads as keys: stick and cross are the arrows, the buttons press, pause and turn pages. They may come and go at
// any time.
#pragma once

#include <SDL.h>

#include "platform/Key.h"

namespace prismfall {

class Gamepads {
  public:
    Gamepads() = default;
    Gamepads(const Gamepads&) = delete;
    Gamepads& operator=(const Gamepads&) = delete;

    // Begins to look for gamepads. A system that cannot is one without any.
    static void Begin();

    // The key that an event of a gamepad stands for; None for all other events. Takes in a gamepad that has come, and
    // lets one go that has gone.
    Key KeyOf(const SDL_Event& event);

  private:
    Key KeyOfStick(const SDL_ControllerAxisEvent& event);

    Key held = Key::None;  // the direction in which a stick is held
};

}  // namespace prismfall
