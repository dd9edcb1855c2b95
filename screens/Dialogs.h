// How dialogs are built, placed over the main window and shown, and how all buttons of all windows behave: a button
// shows the brighter of its two pictures while the pointer is over it, and plays a sound when pressed, before its
// click.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "audio/Audio.h"
#include "platform/Window.h"
#include "platform/WindowHost.h"

namespace prismfall {

constexpr Colour kPaleYellow = 0x80FFFF;
constexpr Colour kPaleGreen = 0xC0FFC0;
constexpr Colour kCream = 0xC0FFFF;

// --- Buttons.

// Restores the Up pictures of all buttons in a window.
void ResetFaces(Window& window);
// The pointer is over an element: if it is a button, shows its Down picture.
void ShowDownFace(Element& element);
// Plays a button's press sound, for any mouse button; the click follows when it has ended. Other elements do nothing.
void PressElement(const Audio& audio, const Element& element);

// --- Dialogs.

// What is needed to show a dialog.
struct DialogHost {
    WindowHost& desktop;
    const Window& mainWindow;
    const Audio& audio;
};

// A label, a check box, a radio button or the frame around some of them, in their common style.
Element MakeOption(std::string_view name, ElementKind kind, int left, int top, int width, int height, std::string text);

// What a click on an element of a dialog does.
struct DialogClick {
    std::string_view element;
    std::function<void()> act;
};

// The OK of a dialog, which Enter clicks too.
Element MakeOkButton(std::string_view name, int left, int top, int width, int height, ButtonFaces faces);

// A dialog with the shared background and the given elements. Its buttons have their faces and sounds; a click on an
// element that is not in `clicks` does nothing. `audio` must outlive it.
std::unique_ptr<Window> MakeDialog(const Audio& audio, std::string_view name, std::string_view title, Extent inner,
                                   std::vector<Element> elements, std::vector<DialogClick> clicks);

// Centres the dialog horizontally over the main window, just below its title bar, and shows it until its own buttons
// hide it or its close box is used; timers keep running. A closed dialog is null afterwards and must be rebuilt, a
// hidden one keeps the state of its elements.
void ShowDialog(const DialogHost& host, std::unique_ptr<Window>& dialog);

}  // namespace prismfall
