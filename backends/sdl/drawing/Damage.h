// The boxes of a picture that must be redrawn. Boxes close together are joined, so that nothing is drawn several times
// and the desktop is not sent a swarm of tiny boxes.
#pragma once

#include <vector>

#include "platform/PixelBox.h"

namespace prismfall {

class Damage {
  public:
    void Add(PixelBox box);
    void Clear() { boxes.clear(); }
    // Drops what is outside `limits`.
    void CutTo(const PixelBox& limits);
    const std::vector<PixelBox>& Boxes() const { return boxes; }

  private:
    std::vector<PixelBox> boxes;
};

}  // namespace prismfall
