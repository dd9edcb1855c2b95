// Presses, clicks and double clicks. A double click uses its two presses up, so a third one is a press again.
#include "platform/WindowInput.h"

#include <cmath>
#include <limits>

namespace prismfall {

namespace {

constexpr float kDoubleClickReach = 4;  // game pixels that the pointer may move between the two presses

}  // namespace

WindowInput::WindowInput(Window& target, int doubleClickMilliseconds)
    : window(target), doubleClickTime(static_cast<std::uint32_t>(doubleClickMilliseconds)) {}

void WindowInput::Forget() {
    pressed = nullptr;
    last = {};
}

void WindowInput::Move(float x, float y) {
    if (Element* element = window.ElementAt(x, y); element != nullptr) {
        if (window.on.elementMove) window.on.elementMove(*element);
    } else if (window.on.mouseMove) {
        window.on.mouseMove(x, y);
    }
}

bool WindowInput::CompletesDoubleClick(float x, float y, std::uint32_t time) {
    const bool completes = last.counts && time - last.time <= doubleClickTime &&
                           std::abs(x - last.x) <= kDoubleClickReach && std::abs(y - last.y) <= kDoubleClickReach;
    last = {x, y, time, !completes};
    return completes;
}

void WindowInput::Press(MouseButton button, float x, float y, std::uint32_t time) {
    const bool left = button == MouseButton::Left;
    const bool isSecond = left && CompletesDoubleClick(x, y, time);
    Element* element = window.ElementAt(x, y);
    if (left) pressed = element;
    if (element != nullptr) {
        if (!window.on.elementDown) return;
        const float inX = x - element->left - (element->panel != nullptr ? element->panel->left : 0);
        const float inY = y - element->top - (element->panel != nullptr ? element->panel->top : 0);
        window.on.elementDown(*element, button, inX, inY);
    } else if (isSecond) {
        if (window.on.doubleClick) window.on.doubleClick();
    } else if (window.on.mouseDown) {
        window.on.mouseDown(button, x, y);
    }
}

void WindowInput::Release(MouseButton button, float x, float y) {
    if (button != MouseButton::Left) return;
    Element* const element = pressed;
    pressed = nullptr;
    if (element == nullptr || !HasClick(*element) || window.ElementAt(x, y) != element) return;
    if (window.on.elementClick) window.on.elementClick(*element);
}

void WindowInput::Key(std::int32_t code) const {
    if (code > std::numeric_limits<std::int16_t>::max() || !window.on.keyDown) return;
    window.on.keyDown(static_cast<std::int16_t>(code));
}

}  // namespace prismfall
