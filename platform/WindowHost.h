// Shows windows. Their elements are plain data: a backend draws what has changed, the game never asks for it. The main
// window is opened by whatever runs the backend; then its `activate` handler runs.
#pragma once

#include "platform/Facet.h"
#include "platform/Window.h"
#include "platform/WindowInput.h"

namespace prismfall {

class WindowHost : public Facet {
  public:
    // The machine's way from pointer and keys to the handlers of its windows.
    virtual WindowInput& Input() = 0;
    // Shows a dialog, which then is the only window that gets input, runs its `activate`, and returns when a handler
    // has hidden it or its close box was used; timers go on meanwhile. True if it was hidden, false if it was closed.
    // Returns true at once if the dialog is already open.
    virtual bool ShowModally(Window& dialog) = 0;
    // The size with the desktop's frame, the size within it, and the place of the frame's corner on the desktop. For a
    // dialog that is not open yet, the frame is the one it is expected to get.
    virtual Extent OuterSize(const Window& window) = 0;
    virtual Extent InnerSize(const Window& window) = 0;
    virtual Place Position(const Window& window) = 0;
    virtual void SetOuterSize(Window& window, Extent size) = 0;
    virtual void SetPosition(Window& window, Place place) = 0;
};

}  // namespace prismfall
