// The boxes of a picture that have to be drawn anew. Boxes that lie close together are joined, so that one place is not
// drawn several times and the desktop is not sent a swarm of tiny boxes.
#pragma once

#include <vector>

#include "platform/PixelBox.h"

namespace prismfall {

class Damage {
  public:
    void Add(PixelBox box);
    void Clear() { boxes.clear(); }
    // Drops what lies outside `limits`.
    void CutTo(const PixelBox& limits);
    const std::vector<PixelBox>& Boxes() const { return boxes; }

  private:
    std::vector<PixelBox> boxes;
};

}  // namespace prismfall
