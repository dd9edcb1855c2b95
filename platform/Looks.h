// What is shown of the painted layer. The game's rules paint on a Surface and know nothing of this; whatever makes the
// picture easier to see or to use is laid over its pixels here, for all backends alike. Without any of it the pixels
// are the surface's own.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/PixelBox.h"
#include "platform/Surface.h"
#include "platform/Window.h"

namespace prismfall {

class Looks {
  public:
    // The surface must outlive this, and no one else may take its damage.
    explicit Looks(Surface& painted) : surface(painted) {}
    Looks(const Looks&) = delete;
    Looks& operator=(const Looks&) = delete;

    // Marks the place that the player has chosen by keys, if it is on the surface and is to be shown: the head of a
    // beam with a ring, anything else with a frame.
    void Mark(const KeyChoice& choice);

    // As Surface.h has them, of what is shown. Rows are valid until the next call of TakeDamage.
    void TakeDamage(std::vector<PixelBox>& boxes);
    const std::uint32_t* Row(int y) const;

  private:
    bool ChangesPixels() const { return mark.isShown; }
    void CopyFrom(const PixelBox& box);
    void PaintMark();
    void Set(int x, int y, std::uint32_t pixel);

    Surface& surface;
    KeyChoice mark;
    std::vector<PixelBox> lost;         // where a mark has gone or come since the last call of TakeDamage
    std::vector<std::uint32_t> pixels;  // empty while the surface's own are shown
};

}  // namespace prismfall
