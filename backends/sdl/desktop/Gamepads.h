// Gamepads as keys: stick and cross are the arrows, the buttons press, pause and turn pages. They may be plugged in and
// out at any time.
#pragma once

#include <SDL.h>

#include "platform/Key.h"

namespace prismfall {

class Gamepads {
  public:
    Gamepads() = default;
    Gamepads(const Gamepads&) = delete;
    Gamepads& operator=(const Gamepads&) = delete;

    // Starts looking for gamepads. On a system that cannot, there are none.
    static void Begin();

    // The key that a gamepad event stands for; None for all other events. Opens gamepads as they are plugged in and
    // closes those that are removed.
    Key KeyOf(const SDL_Event& event);

  private:
    Key KeyOfStick(const SDL_ControllerAxisEvent& event);

    Key held = Key::None;  // the direction in which a stick is held
};

}  // namespace prismfall
