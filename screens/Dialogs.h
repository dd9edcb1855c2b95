// How a dialog is placed over the main window and shown, and what all dialogs look like.
#pragma once

#include <memory>

#include "state/VMain.h"

namespace prismfall {

constexpr Colour kPaleYellow = 0x80FFFF;
constexpr Colour kPaleGreen = 0xC0FFC0;
constexpr Colour kCream = 0xC0FFFF;

// A dialog with the shared background and no elements yet.
std::unique_ptr<Window> MakeDialog(std::string_view name, std::string_view title, int innerWidth, int innerHeight);

// Centres the dialog across the main window, just below its title bar, and shows it until it has been hidden by its own
// buttons or closed by its close box; timers go on meanwhile. A closed one is gone afterwards and has to be made anew,
// a hidden one keeps what its elements hold.
void ShowDialog(const VMain& main, std::unique_ptr<Window>& dialog);

}  // namespace prismfall
