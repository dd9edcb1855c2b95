// Routes pointer and keyboard input to the handlers of windows: which window gets input, what a press hits, what makes
// a click, and what the second press of a double click does. It does not know where events come from; input that it
// does not pass on has no effect at all.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "platform/Extent.h"
#include "platform/HandlerListener.h"
#include "platform/Window.h"

namespace prismfall {

// Where and when a mouse button was pressed. Positions are in game pixels.
struct PressPlace {
    float x = 0;  // in the window's inner area
    float y = 0;
    std::uint32_t time = 0;  // milliseconds, may wrap
    // Where the window's inner area begins on the desktop, so that presses in two windows can be compared. Nothing if
    // the desktop does not say; then any two presses in different windows count as near each other.
    std::optional<Place> origin = {};
};

class WindowInput {
  public:
    explicit WindowInput(int doubleClickMilliseconds = 500)
        : doubleClickTime(static_cast<std::uint32_t>(doubleClickMilliseconds)) {}

    // Null for none. It must outlive this, or be removed first.
    void SetListener(HandlerListener* newListener) { listener = newListener; }

    // --- The open windows, the latest in front. Only the front window gets input, as long as it is visible and takes
    // it.

    void Open(Window& window);
    void Close(const Window& window);
    // The window in front, or null.
    Window* Front() const { return windows.empty() ? nullptr : windows.back(); }
    bool HasInput(const Window& window) const;

    // --- The player's input, for a backend that knows places and times. Every button except the left one acts as the
    // right one; the backend translates it.

    void Move(Window& window, float x, float y) const;
    // The second press of a double click is dropped if it hits something else than the first did, or the same element,
    // unless that takes fast presses. If both hit the surface, it is a double click. A third press is a normal press
    // again.
    void Press(Window& window, MouseButton button, const PressPlace& place);
    // A left press and its release on the same element are a click.
    void Release(Window& window, MouseButton button, float x, float y);
    void Key(const Window& window, std::int32_t code) const;
    // The close box of the dialog in front, which gets no input any more.
    void UseCloseBox(const Window& dialog);
    // Whether a dialog is open and stays so: it has been neither hidden nor closed.
    bool IsOpen(const Window& dialog) const { return dialog.visible && closed != &dialog; }
    // The main window has been minimised or restored; whether it gets input does not matter.
    void Resize(const Window& window, bool isMinimised) const;

    // --- The same, for a backend that already knows what a press hits and that it is not a second press.

    void PressSurface(const Window& window, MouseButton button, float x, float y) const;
    void DoubleClickSurface(const Window& window) const;
    // `x` and `y` are relative to the element. Does nothing if the element ignores the mouse.
    void PressOn(const Window& window, Element& element, MouseButton button, float x, float y) const;
    // Left button, press and release. Does nothing, not even a press, if the element has no click.
    void PressAndClick(const Window& window, Element& element) const;
    // Without the press, and so without a sound.
    void Click(const Window& window, Element& element) const;

  private:
    struct Reached {
        const Window* window = nullptr;
        const Element* element = nullptr;  // null for the surface
        PressPlace place;
        bool isFirst = false;  // the first press of a possible double click
    };

    void Tell(const Window& window, const InputEvent& event) const;
    bool IsNearLast(const Window& window, const PressPlace& place) const;

    std::uint32_t doubleClickTime;
    std::vector<Window*> windows;
    HandlerListener* listener = nullptr;
    const Window* closed = nullptr;  // the dialog in front, once its close box was used
    Element* pressed = nullptr;      // by the left button, in the window in front
    Reached last;                    // left press
};

}  // namespace prismfall
