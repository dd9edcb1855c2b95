// Turns what the pointer and the keyboard do in one window into calls of the window's handlers: finds the element under
// the pointer, clicks and double clicks. It knows nothing of where events come from.
#pragma once

#include <cstdint>

#include "platform/Window.h"

namespace prismfall {

class WindowInput {
  public:
    WindowInput(Window& target, int doubleClickMilliseconds);

    // Places are game pixels of the window's inner area; `time` is in milliseconds.
    void Move(float x, float y);
    void Press(MouseButton button, float x, float y, std::uint32_t time);
    void Release(MouseButton button, float x, float y);
    void Key(std::int32_t code) const;
    // Forgets a press that has not been released and one that could become a double click.
    void Forget();

  private:
    // Whether a press of the left button makes a double click with the one before.
    bool CompletesDoubleClick(float x, float y, std::uint32_t time);

    struct PressPlace {
        float x = 0;
        float y = 0;
        std::uint32_t time = 0;
        bool counts = false;
    };

    Window& window;
    std::uint32_t doubleClickTime;
    Element* pressed = nullptr;
    PressPlace last;
};

}  // namespace prismfall
