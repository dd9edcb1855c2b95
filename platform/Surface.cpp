// The painting itself, in integer arithmetic, so that every machine covers the same pixels.
#include "platform/Surface.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace prismfall {

namespace {

using Wide = std::int64_t;

// The integers from `first` to `last`; empty if `last` is below `first`.
struct Span {
    Wide first;
    Wide last;
};

constexpr Span kEverywhere{-(Wide{1} << 40), Wide{1} << 40};
constexpr Span kNowhere{1, 0};

bool IsEmpty(Span span) { return span.first > span.last; }

Span Common(Span a, Span b) { return {std::max(a.first, b.first), std::min(a.last, b.last)}; }

Span Hull(Span a, Span b) {
    if (IsEmpty(a)) return b;
    if (IsEmpty(b)) return a;
    return {std::min(a.first, b.first), std::max(a.last, b.last)};
}

Wide FloorDivide(Wide a, Wide b) {
    const Wide quotient = a / b;
    return (a % b != 0 && (a < 0) != (b < 0)) ? quotient - 1 : quotient;
}

// The x with low <= factor * x <= high.
Span Solve(Wide factor, Wide low, Wide high) {
    if (factor == 0) return low <= 0 && 0 <= high ? kEverywhere : kNowhere;
    if (factor < 0) return Solve(-factor, -high, -low);
    return {-FloorDivide(-low, factor), FloorDivide(high, factor)};
}

// The largest integer whose square is at most `value`.
Wide RootBelow(Wide value) {
    auto root = static_cast<Wide>(std::sqrt(static_cast<double>(value)));
    while (root * root > value) --root;
    while ((root + 1) * (root + 1) <= value) ++root;
    return root;
}

// A segment drawn with a round pen: a band along it and a disc at each end. Each row is one span.
class Stroke {
  public:
    Stroke(int x1, int y1, int x2, int y2, int penWidth)
        : startX(x1), startY(y1), endX(x2), endY(y2), width(penWidth), dx(endX - startX), dy(endY - startY) {
        length2 = dx * dx + dy * dy;
        reach = RootBelow(width * width * length2) / 2;
    }

    Span Row(Wide y) const {
        const Span discs = Hull(Disc(startX, y - startY), Disc(endX, y - endY));
        return length2 == 0 ? discs : Hull(discs, Band(y - startY));
    }

  private:
    // 4 (x² + y²) <= width²
    Span Disc(Wide centreX, Wide y) const {
        const Wide room = width * width - 4 * y * y;
        if (room < 0) return kNowhere;
        const Wide half = RootBelow(room) / 2;
        return {centreX - half, centreX + half};
    }

    // Beside the segment (0 <= x dx + y dy <= length²) and close enough (|x dy - y dx| <= length * width / 2).
    Span Band(Wide y) const {
        const Span along = Solve(dx, -y * dy, length2 - y * dy);
        const Span across = Solve(dy, y * dx - reach, y * dx + reach);
        const Span offset = Common(along, across);
        return IsEmpty(offset) ? kNowhere : Span{startX + offset.first, startX + offset.last};
    }

    Wide startX, startY, endX, endY, width, dx, dy;
    Wide length2 = 0;
    Wide reach = 0;
};

constexpr PixelBox kWholeSurface{0, 0, Surface::kWidth, Surface::kHeight};

constexpr std::size_t kMaxDamageBoxes = 512;  // beyond that, one box around everything is cheaper to show
constexpr int kDamagePiece = 16;              // pixels of a long diagonal that share a box

}  // namespace

Surface::Surface() { damage.reserve(kMaxDamageBoxes); }

const std::uint32_t* Surface::Row(int y) const {
    static constexpr std::array<std::uint32_t, kWidth> kUnpaintedRow{};
    return pixels.empty() ? kUnpaintedRow.data() : &pixels[Index(0, y)];
}

void Surface::Line(int x1, int y1, int x2, int y2, Colour colour, int width) {
    if (width <= 0) return;
    if (pixels.empty()) pixels.assign(static_cast<std::size_t>(kWidth) * kHeight, kUnpainted);
    const Stroke stroke(x1, y1, x2, y2, width);
    const std::uint32_t pixel = PixelOf(colour);
    const int top = std::max(std::min(y1, y2) - width / 2, 0);
    const int bottom = std::min(std::max(y1, y2) + width / 2, kHeight - 1);
    for (int y = top; y <= bottom; ++y) {
        const Span row = Common(stroke.Row(y), {0, kWidth - 1});
        if (!IsEmpty(row)) FillSpan(y, static_cast<int>(row.first), static_cast<int>(row.last) + 1, pixel);
    }
    AddLineDamage(x1, y1, x2, y2, width / 2);
}

void Surface::Box(int x1, int y1, int x2, int y2, Colour colour, int width) {
    Line(x1, y1, x2, y1, colour, width);
    Line(x2, y1, x2, y2, colour, width);
    Line(x2, y2, x1, y2, colour, width);
    Line(x1, y2, x1, y1, colour, width);
}

void Surface::Restore(int x1, int y1, int x2, int y2) {
    const PixelBox box = Overlap({x1, y1, x2, y2}, kWholeSurface);
    if (box.IsEmpty() || pixels.empty()) return;
    for (int y = box.top; y < box.bottom; ++y) FillSpan(y, box.left, box.right, kUnpainted);
    AddDamage(box);
}

void Surface::Clear() {
    std::vector<std::uint32_t>().swap(pixels);
    damage.assign(1, kWholeSurface);
}

void Surface::TakeDamage(std::vector<PixelBox>& boxes) {
    boxes.assign(damage.begin(), damage.end());
    damage.clear();
}

void Surface::FillSpan(int y, int left, int right, std::uint32_t pixel) {
    std::fill(&pixels[Index(left, y)], &pixels[Index(left, y)] + (right - left), pixel);
}

void Surface::AddDamage(PixelBox box) {
    box = Overlap(box, kWholeSurface);
    if (box.IsEmpty()) return;
    if (!damage.empty()) {
        const PixelBox both = BoundingBox(damage.back(), box);
        if (damage.size() == kMaxDamageBoxes || Area(both) <= Area(damage.back()) + Area(box)) {
            damage.back() = both;
            return;
        }
    }
    damage.push_back(box);
}

void Surface::AddLineDamage(int x1, int y1, int x2, int y2, int reach) {
    const int pieces = std::max(std::abs(x2 - x1), std::abs(y2 - y1)) / kDamagePiece + 1;
    const bool isStraight = x1 == x2 || y1 == y2;
    const int count = isStraight ? 1 : pieces;
    if (count > 1) ++reach;  // the pieces meet at whole pixels, up to one pixel away from the segment
    for (int i = 0; i < count; ++i) {
        const auto at = [&](int from, int to, int step) {
            return from + static_cast<int>(static_cast<Wide>(to - from) * step / count);
        };
        const int fromX = at(x1, x2, i), toX = at(x1, x2, i + 1), fromY = at(y1, y2, i), toY = at(y1, y2, i + 1);
        AddDamage({std::min(fromX, toX) - reach, std::min(fromY, toY) - reach, std::max(fromX, toX) + reach + 1,
                   std::max(fromY, toY) + reach + 1});
    }
}

}  // namespace prismfall
