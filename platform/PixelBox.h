// A box of pixels, on the surface or on the display.
#pragma once

#include <algorithm>

namespace prismfall {

// From (left, top) up to but not including (right, bottom).
struct PixelBox {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    bool IsEmpty() const { return left >= right || top >= bottom; }
    bool operator==(const PixelBox&) const = default;
};

// The area that both boxes cover; empty if they do not overlap.
inline PixelBox Overlap(const PixelBox& a, const PixelBox& b) {
    return {std::max(a.left, b.left), std::max(a.top, b.top), std::min(a.right, b.right), std::min(a.bottom, b.bottom)};
}

// The smallest box that contains both. An empty one adds nothing.
inline PixelBox BoundingBox(const PixelBox& a, const PixelBox& b) {
    if (a.IsEmpty()) return b;
    if (b.IsEmpty()) return a;
    return {std::min(a.left, b.left), std::min(a.top, b.top), std::max(a.right, b.right), std::max(a.bottom, b.bottom)};
}

inline long Area(const PixelBox& box) {
    return box.IsEmpty() ? 0 : static_cast<long>(box.right - box.left) * (box.bottom - box.top);
}

}  // namespace prismfall
