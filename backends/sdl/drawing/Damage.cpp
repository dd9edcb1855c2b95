// Two boxes become one if their bounding box is hardly larger than they are.
#include "backends/sdl/drawing/Damage.h"

namespace prismfall {

namespace {

// How many pixels may be drawn needlessly to save a box: about what it costs to send one.
constexpr long kSlack = 64;

}  // namespace

void Damage::Add(PixelBox box) {
    if (box.IsEmpty()) return;
    for (std::size_t i = 0; i < boxes.size();) {
        const PixelBox joined = BoundingBox(boxes[i], box);
        if (Area(joined) > Area(boxes[i]) + Area(box) + kSlack) {
            ++i;
            continue;
        }
        // The joined box may now be close to one that was skipped before.
        box = joined;
        boxes[i] = boxes.back();
        boxes.pop_back();
        i = 0;
    }
    boxes.push_back(box);
}

void Damage::CutTo(const PixelBox& limits) {
    for (PixelBox& box : boxes) box = Overlap(box, limits);
    std::erase_if(boxes, [](const PixelBox& box) { return box.IsEmpty(); });
}

}  // namespace prismfall
