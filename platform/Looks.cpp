#include "platform/Looks.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace prismfall {

namespace {

constexpr std::uint32_t kMarkPixel = 0xFFFFFFFF;
constexpr std::uint32_t kShadowPixel = 0xFF000000;  // next to the mark, so that it is visible on any colour

// Game pixels. The ring leaves the head itself free.
constexpr int kRingReach = 12;
constexpr float kRingInner = 8.5F;
constexpr float kRingOuter = 10.5F;
constexpr float kShadow = 1;
constexpr int kFrameGap = 3;
constexpr int kFrameWidth = 2;

constexpr PixelBox kWhole{0, 0, Surface::kWidth, Surface::kHeight};

// Between the numbers and the buttons of the panel, where no game shows anything that lasts.
constexpr std::array<PixelBox, 2> kPauseBars = {{{726, 130, 738, 172}, {748, 130, 760, 172}}};
constexpr std::uint32_t kPausePixel = 0xFFD4E4FF;

int Whole(float place) { return static_cast<int>(std::lround(place)); }

PixelBox BoxOf(const KeyChoice& mark) {
    const int out = mark.width == 0 ? kRingReach : kFrameGap + kFrameWidth;
    return Overlap({Whole(mark.left) - out, Whole(mark.top) - out, Whole(mark.left + mark.width) + out + 1,
                    Whole(mark.top + mark.height) + out + 1},
                   kWhole);
}

std::size_t Index(int x, int y) { return static_cast<std::size_t>(y) * Surface::kWidth + static_cast<std::size_t>(x); }

// Rows of pixels: a pattern's period, and how many of its rows are alternately lit and dim, starting with lit ones.
struct Rhythm {
    int period = 1;
    std::array<int, 4> turns{};  // lit, dim, lit, dim
};

constexpr std::array<Rhythm, 4> kRhythms = {{{1, {1}}, {18, {12, 6}}, {6, {3, 3}}, {20, {10, 4, 2, 4}}}};

bool IsLit(Pattern pattern, int y) {
    const Rhythm& rhythm = kRhythms[static_cast<std::size_t>(pattern)];
    int row = y % rhythm.period;
    bool isLit = true;
    for (const int turn : rhythm.turns) {
        if (row < turn) return isLit;
        row -= turn;
        isLit = !isLit;
    }
    return isLit;
}

// A quarter of the brightness.
std::uint32_t Dimmed(std::uint32_t pixel) { return 0xFF000000 | (pixel >> 2 & 0x3F3F3F); }

// What a ring paints at this distance from its center, or nothing.
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

void Looks::MarkPause(bool isPaused) {
    if (isPaused == isPauseMarked) return;
    isPauseMarked = isPaused;
    lost.insert(lost.end(), kPauseBars.begin(), kPauseBars.end());
}

void Looks::CopyFrom(const PixelBox& box) {
    for (int y = box.top; y < box.bottom; ++y) {
        const std::uint32_t* row = surface.Row(y);
        std::uint32_t* to = &pixels[Index(0, y)];
        std::transform(row + box.left, row + box.right, to + box.left,
                       [this, y](std::uint32_t pixel) { return Shown(pixel, y); });
    }
}

std::uint32_t Looks::Shown(std::uint32_t pixel, int y) const {
    if (pixel == Surface::kUnpainted || pixel == PixelOf(kBlack)) return pixel;
    const auto colour = std::ranges::find(colours, pixel, &Colours::painted);
    if (colour == colours.end()) return pixel;
    return IsLit(colour->pattern, y) ? colour->shown : colour->dim;
}

void Looks::Recolour(const std::vector<Recolouring>& wanted) {
    colours.clear();
    for (const Recolouring& row : wanted) {
        const std::uint32_t shown = PixelOf(row.shown);
        colours.push_back({PixelOf(row.painted), shown, Dimmed(shown), row.pattern});
    }
    pixels.clear();
    lost.push_back(kWhole);
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

void Looks::Enliven(const Window* window, double now, bool isCalm) {
    seen.clear();
    if (window != nullptr && window->on.beams) window->on.beams(seen);
    sparks.See(seen, now, !isCalm);
    sparks.TakeDamage(lost);
}

void Looks::PaintPause() {
    for (const PixelBox& bar : kPauseBars)
        for (int y = bar.top; y < bar.bottom; ++y)
            std::fill_n(&pixels[Index(bar.left, y)], bar.right - bar.left, kPausePixel);
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
    if (!sparks.IsEmpty()) sparks.Paint(pixels, Surface::kWidth);
    if (mark.isShown) PaintMark();
    if (isPauseMarked) PaintPause();
}

const std::uint32_t* Looks::Row(int y) const { return pixels.empty() ? surface.Row(y) : &pixels[Index(0, y)]; }

}  // namespace prismfall
