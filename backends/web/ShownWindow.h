// One window on the page: tells the page what its elements look like whenever they change.
#pragma once

#include <vector>

#include "backends/web/Imports.h"
#include "platform/WindowHost.h"

namespace prismfall {

class ShownWindow {
  public:
    // Opens the window on the page under the number `pageNumber`. `place` is the position of a dialog's frame, relative
    // to the corner of the main window's inner area.
    ShownWindow(Window& shown, std::int32_t pageNumber, Place place);
    ~ShownWindow();
    ShownWindow(const ShownWindow&) = delete;
    ShownWindow& operator=(const ShownWindow&) = delete;

    Window& Content() const { return window; }
    // Where the inner area begins, for a dialog and the main window alike.
    Place Origin() const { return origin; }

    // Sends the page every element that has changed since it was last sent.
    void Refresh();

  private:
    void Send(std::size_t place) const;

    Window& window;
    std::int32_t number;
    Place origin;
    std::vector<Element> sent;
};

}  // namespace prismfall
