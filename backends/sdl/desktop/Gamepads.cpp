#include "backends/sdl/desktop/Gamepads.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <utility>

namespace prismfall {

namespace {

// Where a stick, which moves up to 32767, counts as held in a direction, and where as released again.
constexpr int kHeldFrom = 20000;
constexpr int kReleasedBelow = 10000;

struct ButtonRow {
    std::uint8_t button;
    Key key;
};

constexpr std::array<ButtonRow, 11> kButtons = {{{SDL_CONTROLLER_BUTTON_DPAD_LEFT, Key::Left},
                                                 {SDL_CONTROLLER_BUTTON_DPAD_RIGHT, Key::Right},
                                                 {SDL_CONTROLLER_BUTTON_DPAD_UP, Key::Up},
                                                 {SDL_CONTROLLER_BUTTON_DPAD_DOWN, Key::Down},
                                                 {SDL_CONTROLLER_BUTTON_A, Key::Space},
                                                 {SDL_CONTROLLER_BUTTON_B, Key::Enter},
                                                 {SDL_CONTROLLER_BUTTON_Y, Key::R},
                                                 {SDL_CONTROLLER_BUTTON_START, Key::P},
                                                 {SDL_CONTROLLER_BUTTON_BACK, Key::Escape},
                                                 {SDL_CONTROLLER_BUTTON_LEFTSHOULDER, Key::PageUp},
                                                 {SDL_CONTROLLER_BUTTON_RIGHTSHOULDER, Key::PageDown}}};

bool IsSideways(Key arrow) { return arrow == Key::Left || arrow == Key::Right; }

}  // namespace

void Gamepads::Begin() { SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER); }

Key Gamepads::KeyOf(const SDL_Event& event) {
    switch (event.type) {
        case SDL_CONTROLLERDEVICEADDED:
            SDL_GameControllerOpen(event.cdevice.which);
            return Key::None;
        case SDL_CONTROLLERDEVICEREMOVED:
            held = Key::None;
            SDL_GameControllerClose(SDL_GameControllerFromInstanceID(event.cdevice.which));
            return Key::None;
        case SDL_CONTROLLERBUTTONDOWN: {
            const auto row = std::ranges::find(kButtons, event.cbutton.button, &ButtonRow::button);
            return row != kButtons.end() ? row->key : Key::None;
        }
        case SDL_CONTROLLERAXISMOTION:
            return KeyOfStick(event.caxis);
        default:
            return Key::None;
    }
}

// A stick counts as an arrow once, until it is released.
Key Gamepads::KeyOfStick(const SDL_ControllerAxisEvent& event) {
    const bool isSideways = event.axis == SDL_CONTROLLER_AXIS_LEFTX;
    if (!isSideways && event.axis != SDL_CONTROLLER_AXIS_LEFTY) return Key::None;
    const int way = std::abs(int{event.value});
    if (held != Key::None) {
        if (IsSideways(held) == isSideways && way < kReleasedBelow) held = Key::None;
        return Key::None;
    }
    if (way < kHeldFrom) return Key::None;
    const auto [back, forth] = isSideways ? std::pair{Key::Left, Key::Right} : std::pair{Key::Up, Key::Down};
    return held = event.value < 0 ? back : forth;
}

}  // namespace prismfall
