// How the headless driver writes colours, dialogs and numbers.
#pragma once

#include <string>

#include "platform/Window.h"

namespace prismfall {

// 0xBBGGRR in six digits; grey1, grey2 and grey3 for the core and the two edges of a beam at a game's end.
std::string ColourName(Colour colour);

// The dialog's name, with the verdict behind that of a puzzle's result.
std::string DialogTitle(Window& dialog);

// Up to six significant digits, no trailing zeros.
std::string ShortNumber(double number);

}  // namespace prismfall
