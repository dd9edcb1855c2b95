// Error boxes.
#pragma once

#include <string_view>

#include "platform/Facet.h"

namespace prismfall {

class MessageBoxes : public Facet {
  public:
    // Shows an error box with an OK button; returns when the player has dismissed it. No timer ticks while it is open.
    virtual void ShowMessageBox(std::string_view text) = 0;
};

}  // namespace prismfall
