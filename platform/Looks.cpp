#include "platform/Looks.h"

#include <algorithm>
#include <cmath>

namespace prismfall {

namespace {

constexpr std::uint32_t kMarkPixel = 0xFFFFFFFF;
constexpr std::uint32_t kShadowPixel = 0xFF000000;  // beside the mark, so that it is seen on any colour

// Game pixels. The ring leaves the head itself free.
constexpr int kRingReach = 12;
constexpr float kRingInner = 8.5F;
constexpr float kRingOuter = 10.5F;
constexpr float kShadow = 1;
constexpr int kFrameGap = 3;
constexpr int kFrameWidth = 2;

constexpr PixelBox kWhole{0, 0, Surface::kWidth, Surface::kHeight};

int Whole(float place) { return static_cast<int>(std::lround(place)); }

PixelBox BoxOf(const KeyChoice& mark) {
    const int out = mark.width == 0 ? kRingReach : kFrameGap + kFrameWidth;
    return Overlap({Whole(mark.left) - out, Whole(mark.top) - out, Whole(mark.left + mark.width) + out + 1,
                    Whole(mark.top + mark.height) + out + 1},
                   kWhole);
}

std::size_t Index(int x, int y) { return static_cast<std::size_t>(y) * Surface::kWidth + static_cast<std::size_t>(x); }

// What a ring puts at this distance from its middle, or nothing.
std::uint32_t RingPixel(float distance) {
    if (distance >= kRingInner && distance <= kRingOuter) return kMarkPixel;
    const bool isBeside = distance >= kRingInner - kShadow && distance <= kRingOuter + kShadow;
    return isBeside ? kShadowPixel : Surface::kUnpainted;
}

}  // namespace

void Looks::Mark(const KeyChoice& choice) {
    const KeyChoice wanted = choice.isShown && choice.isOnSurface ? choice : KeyChoice{};
    if (wanted == mark) return;
    if (mark.isShown) lost.push_back(BoxOf(mark));
    if (wanted.isShown) lost.push_back(BoxOf(wanted));
    mark = wanted;
}

void Looks::CopyFrom(const PixelBox& box) {
    for (int y = box.top; y < box.bottom; ++y)
        std::copy_n(surface.Row(y) + box.left, box.right - box.left, &pixels[Index(box.left, y)]);
}

void Looks::Set(int x, int y, std::uint32_t pixel) {
    if (pixel != Surface::kUnpainted) pixels[Index(x, y)] = pixel;
}

void Looks::PaintMark() {
    const PixelBox box = BoxOf(mark);
    const auto inFrame = [&](int x, int y) {
        return x < box.left + kFrameWidth || x >= box.right - kFrameWidth || y < box.top + kFrameWidth ||
               y >= box.bottom - kFrameWidth;
    };
    for (int y = box.top; y < box.bottom; ++y)
        for (int x = box.left; x < box.right; ++x) {
            const float distance = std::hypot(static_cast<float>(x) - mark.left, static_cast<float>(y) - mark.top);
            Set(x, y, mark.width == 0 ? RingPixel(distance) : inFrame(x, y) ? kMarkPixel : Surface::kUnpainted);
        }
}

void Looks::TakeDamage(std::vector<PixelBox>& boxes) {
    surface.TakeDamage(boxes);
    boxes.insert(boxes.end(), lost.begin(), lost.end());
    lost.clear();
    if (!ChangesPixels()) return pixels.clear();
    if (pixels.empty()) {
        pixels.resize(Index(0, Surface::kHeight));
        CopyFrom(kWhole);
    }
    for (const PixelBox& box : boxes) CopyFrom(box);
    PaintMark();
}

const std::uint32_t* Looks::Row(int y) const { return pixels.empty() ? surface.Row(y) : &pixels[Index(0, y)]; }

}  // namespace prismfall
