// How dialogs are made, placed over the main window and shown, and what all buttons of all windows have in common: a
// button shows the brighter of its two pictures while the pointer is over it, and sounds when it is pressed, before its
// click.
#pragma once

#include <functional>
#include <memory>
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

// Puts the Up pictures back on all buttons of a window.
void ResetFaces(Window& window);
// The pointer is over an element: a button shows its Down picture, others do nothing.
void ShowDownFace(Element& element);
// The press sound of a button, at any mouse button; the click comes when it has ended. Others do nothing.
void PressElement(const Audio& audio, const Element& element);

// --- Dialogs.

// What a dialog is shown with.
struct DialogHost {
    WindowHost& desktop;
    const Window& mainWindow;
    const Audio& audio;
};

// What a click on an element of a dialog does.
struct DialogClick {
    std::string_view element;
    std::function<void()> act;
};

// The OK of a dialog, which Enter clicks too.
Element MakeOkButton(std::string_view name, int left, int top, int width, int height, ButtonFaces faces);

// A dialog with the shared background and the given elements. Its buttons have their faces and sounds; a click on an
// element that `clicks` does not name does nothing. `audio` must outlive it.
std::unique_ptr<Window> MakeDialog(const Audio& audio, std::string_view name, std::string_view title, Extent inner,
                                   std::vector<Element> elements, std::vector<DialogClick> clicks);

// Centres the dialog across the main window, just below its title bar, and shows it until its own buttons have hidden
// it or its close box was used; timers go on meanwhile. A closed one is null afterwards and has to be made anew, a
// hidden one keeps what its elements hold.
void ShowDialog(const DialogHost& host, std::unique_ptr<Window>& dialog);

}  // namespace prismfall
