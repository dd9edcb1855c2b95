// One window on the page: tells the page what its elements look like whenever they have changed, and brings the
// player's input to the window's handlers.
#pragma once

#include <vector>

#include "backends/web/Imports.h"
#include "platform/Platform.h"
#include "platform/WindowInput.h"

namespace prismfall {

class ShownWindow {
  public:
    // Opens the window on the page under a number. `place` is that of a dialog's frame.
    ShownWindow(Window& shown, std::int32_t pageNumber, Place place);
    ~ShownWindow();
    ShownWindow(const ShownWindow&) = delete;
    ShownWindow& operator=(const ShownWindow&) = delete;

    std::int32_t Number() const { return number; }
    bool Shows(const Window& other) const { return &window == &other; }
    bool CloseBoxUsed() const { return closeBoxUsed; }

    // Sends the page every element that is not as it was last sent.
    void Refresh();
    void Handle(const page::Event& event);

  private:
    void Send(std::size_t place) const;

    Window& window;
    std::int32_t number;
    WindowInput input;
    std::vector<Element> sent;
    bool closeBoxUsed = false;
};

}  // namespace prismfall
