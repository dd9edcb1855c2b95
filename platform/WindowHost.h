// Shows windows. Their elements are plain data: a backend draws what has changed without being asked. The backend's run
// function opens the main window; then its `activate` handler runs.
#pragma once

#include "platform/Facet.h"
#include "platform/Window.h"
#include "platform/WindowInput.h"

namespace prismfall {

class WindowHost : public Facet {
  public:
    // Routes the machine's pointer and keys to the handlers of its windows.
    virtual WindowInput& Input() = 0;
    // Shows a dialog, which is then the only window that gets input, runs its `activate`, and returns when a handler
    // has hidden it (true) or its close box was used (false); timers keep running. Returns true at once if the dialog
    // is already open.
    virtual bool ShowModally(Window& dialog) = 0;
    // The size including the desktop's frame, the size inside it, and the position of the frame's top left corner on
    // the desktop. For a dialog that is not open yet, the expected frame is used.
    virtual Extent OuterSize(const Window& window) = 0;
    virtual Extent InnerSize(const Window& window) = 0;
    virtual Place Position(const Window& window) = 0;
    virtual void SetOuterSize(Window& window, Extent size) = 0;
    virtual void SetPosition(Window& window, Place place) = 0;
};

}  // namespace prismfall
