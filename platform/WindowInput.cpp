#include "platform/WindowInput.h"

#include <cmath>
#include <limits>
#include <utility>

namespace prismfall {

namespace {

constexpr float kDoubleClickReach = 4;  // game pixels that the pointer may move between the two presses

bool TakesFastPresses(const Element& element) {
    return element.fastPresses || element.kind == ElementKind::RadioButton || element.kind == ElementKind::CheckBox;
}

}  // namespace

void WindowInput::Open(Window& window) {
    windows.push_back(&window);
    pressed = nullptr;
    closed = nullptr;
}

void WindowInput::Close(const Window& window) {
    std::erase(windows, &window);
    pressed = nullptr;
    closed = nullptr;
    if (last.window == &window) last.window = nullptr;  // a later window at the same address is a different one
}

bool WindowInput::HasInput(const Window& window) const {
    return &window == Front() && IsOpen(window) && window.takesInput;
}

void WindowInput::Tell(const Window& window, const InputEvent& event) const {
    if (listener != nullptr && !window.isErrorBox && !window.stopsTime) listener->BeforeInput(event);
}

void WindowInput::Move(Window& window, float x, float y) const {
    if (!HasInput(window)) return;
    if (Element* element = window.ElementAt(x, y); element != nullptr) {
        if (window.on.elementMove) window.on.elementMove(*element);
    } else if (window.on.mouseMove) {
        window.on.mouseMove(x, y);
    }
}

bool WindowInput::IsNearLast(const Window& window, const PressPlace& place) const {
    float aside = place.x - last.place.x;
    float below = place.y - last.place.y;
    if (&window != last.window) {
        if (!place.origin || !last.place.origin) return true;
        aside += static_cast<float>(place.origin->left - last.place.origin->left);
        below += static_cast<float>(place.origin->top - last.place.origin->top);
    }
    return std::abs(aside) <= kDoubleClickReach && std::abs(below) <= kDoubleClickReach;
}

void WindowInput::Press(Window& window, MouseButton button, const PressPlace& place) {
    if (!HasInput(window)) return;
    Element* const element = window.ElementAt(place.x, place.y);
    if (button == MouseButton::Left) {
        const bool isSecond =
            last.isFirst && place.time - last.place.time <= doubleClickTime && IsNearLast(window, place);
        const Reached first = std::exchange(last, {&window, element, place, !isSecond});
        pressed = nullptr;
        if (isSecond && (first.window != &window || first.element != element)) return;
        if (isSecond && element == nullptr) return DoubleClickSurface(window);
        if (isSecond && !TakesFastPresses(*element)) return;
        pressed = element;
    }
    if (element == nullptr) return PressSurface(window, button, place.x, place.y);
    PressOn(window, *element, button, place.x - LeftInWindow(*element), place.y - TopInWindow(*element));
}

void WindowInput::Release(Window& window, MouseButton button, float x, float y) {
    if (button != MouseButton::Left) return;
    Element* const element = std::exchange(pressed, nullptr);
    if (element != nullptr && window.ElementAt(x, y) == element) Click(window, *element);
}

void WindowInput::Key(const Window& window, std::int32_t code) const {
    using Limits = std::numeric_limits<std::int16_t>;
    if (!HasInput(window) || code < Limits::min() || code > Limits::max()) return;
    if (!window.on.keyDown) return;
    Tell(window, {.kind = InputKind::Key, .code = static_cast<std::int16_t>(code)});
    window.on.keyDown(static_cast<std::int16_t>(code));
}

void WindowInput::UseCloseBox(const Window& dialog) {
    if (&dialog != Front() || !IsOpen(dialog) || !dialog.isDialog) return;
    Tell(dialog, {.kind = InputKind::CloseBox});
    closed = &dialog;
}

void WindowInput::Resize(const Window& window, bool isMinimised) const {
    if (!window.on.resize) return;
    Tell(window, {.kind = isMinimised ? InputKind::Minimise : InputKind::Restore});
    window.on.resize(isMinimised);
}

void WindowInput::PressSurface(const Window& window, MouseButton button, float x, float y) const {
    if (!HasInput(window) || !window.on.mouseDown) return;
    Tell(window, {.kind = InputKind::Press, .button = button, .x = x, .y = y});
    window.on.mouseDown(button, x, y);
}

void WindowInput::DoubleClickSurface(const Window& window) const {
    if (!HasInput(window) || !window.on.doubleClick) return;
    Tell(window, {.kind = InputKind::DoubleClick});
    window.on.doubleClick();
}

void WindowInput::PressOn(const Window& window, Element& element, MouseButton button, float x, float y) const {
    if (!HasInput(window) || !TakesMouse(element)) return;
    if (!window.on.elementDown) return;
    Tell(window, {.kind = InputKind::PressElement, .element = &element, .button = button, .x = x, .y = y});
    window.on.elementDown(element, button, x, y);
}

void WindowInput::PressAndClick(const Window& window, Element& element) const {
    if (!HasClick(element)) return;
    PressOn(window, element, MouseButton::Left, 0, 0);
    Click(window, element);
}

void WindowInput::Click(const Window& window, Element& element) const {
    if (!HasInput(window) || !HasClick(element) || !TakesMouse(element)) return;
    if (!window.on.elementClick) return;
    Tell(window, {.kind = InputKind::Click, .element = &element});
    window.on.elementClick(element);
}

}  // namespace prismfall
