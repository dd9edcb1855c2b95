// How the headless driver writes colors, dialogs and numbers.
#pragma once

#include <string>

#include "platform/Window.h"

namespace prismfall {

// 0xBBGGRR as six digits; grey1, grey2 and grey3 for the core and the two edges of a beam at a game's end.
std::string ColourName(Colour colour);

// The dialog's name, followed by the verdict if it shows a puzzle's result.
std::string DialogTitle(Window& dialog);

// Up to six significant digits, no trailing zeros.
std::string ShortNumber(double number);

}  // namespace prismfall
