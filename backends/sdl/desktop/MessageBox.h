// The error box: a small dialog of our own with a stop sign, a text and an OK button, built as an ordinary window.
#pragma once

#include <functional>
#include <string_view>

#include "backends/sdl/drawing/ElementPainter.h"
#include "platform/Window.h"

namespace prismfall {

// Fills an empty window. `dismiss` is called when the player presses OK, Enter or Esc.
void MakeMessageBox(Window& box, std::string_view text, Display& display, const std::function<void()>& dismiss);

}  // namespace prismfall
