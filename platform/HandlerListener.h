// Is told of everything that is about to reach a handler: timer ticks, and what the player and the desktop do. Games
// are recorded here, the same way on every machine.
#pragma once

#include <cstdint>
#include <string_view>

#include "platform/Window.h"

namespace prismfall {

enum class InputKind {
    Press,         // on the surface: button, x, y
    DoubleClick,   // on the surface
    PressElement,  // element, button, and x and y in the element
    Click,         // on an element
    Key,           // code
    Minimise,      // the main window
    Restore,
    CloseBox,  // of the dialog in front
};

struct InputEvent {
    InputKind kind{};
    const Element* element = nullptr;
    MouseButton button{};
    float x = 0;  // game pixels
    float y = 0;
    std::int16_t code = 0;
};

class HandlerListener {
  public:
    HandlerListener() = default;
    HandlerListener(const HandlerListener&) = delete;
    HandlerListener& operator=(const HandlerListener&) = delete;
    virtual ~HandlerListener() = default;

    // A timer is about to tick. Moments are game time in whole milliseconds.
    virtual void BeforeTick(std::int64_t moment) = 0;
    // A handler of a window is about to run, at the moment that TimerWheel gives it. Error boxes and dialogs that stop
    // time are left out: what happens in them is not part of the game.
    virtual void BeforeInput(const InputEvent& event) = 0;
    // The running handler has a new moment: it has let events run, or a dialog that it had opened has closed.
    virtual void MomentRenewed(std::int64_t moment) = 0;
};

}  // namespace prismfall
