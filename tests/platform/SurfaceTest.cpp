// The painter, compared with a plain distance test for every pixel, and its damage boxes, compared with what really
// changed.
#include "platform/Surface.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <random>

namespace prismfall {
namespace {

constexpr int kWidth = Surface::kWidth;
constexpr int kHeight = Surface::kHeight;

// Whether a pixel is within half of `width` of a segment, computed with squares, which do not overflow here.
bool IsCovered(std::int64_t x1, std::int64_t y1, std::int64_t x2, std::int64_t y2, std::int64_t width, std::int64_t x,
               std::int64_t y) {
    const auto isNear = [width](std::int64_t offX, std::int64_t offY) {
        return std::abs(offX) < width && std::abs(offY) < width && 4 * (offX * offX + offY * offY) <= width * width;
    };
    if (isNear(x - x1, y - y1) || isNear(x - x2, y - y2)) return true;
    const std::int64_t dx = x2 - x1, dy = y2 - y1;
    const std::int64_t along = (x - x1) * dx + (y - y1) * dy, length2 = dx * dx + dy * dy;
    const std::int64_t across = 2 * std::abs((x - x1) * dy - (y - y1) * dx);
    return length2 != 0 && along >= 0 && along <= length2 && across <= 1'000'000 &&
           across * across <= width * width * length2;
}

// A surface and a plain model of it, painted alike.
class SurfaceTest : public testing::Test {
  protected:
    void Set(PixelBox box, auto isMeant, std::uint32_t pixel) {
        for (int y = std::max(box.top, 0); y < std::min(box.bottom, kHeight); ++y)
            for (int x = std::max(box.left, 0); x < std::min(box.right, kWidth); ++x)
                if (isMeant(x, y)) model[static_cast<std::size_t>(y * kWidth + x)] = pixel;
    }
    void ModelLine(int x1, int y1, int x2, int y2, int width) {
        if (width <= 0) return;
        Set(
            {std::min(x1, x2) - width, std::min(y1, y2) - width, std::max(x1, x2) + width, std::max(y1, y2) + width},
            [&](int x, int y) { return IsCovered(x1, y1, x2, y2, width, x, y); }, 0xFF000000U | rgb);
    }
    Colour Bgr() const { return (rgb & 0xFF) << 16 | (rgb & 0xFF00) | rgb >> 16; }
    void Line(int x1, int y1, int x2, int y2, int width) {
        rgb = (rgb * 5 + 0x123457) & 0xFFFFFF;
        surface.Line(x1, y1, x2, y2, Bgr(), width);
        ModelLine(x1, y1, x2, y2, width);
    }
    void Box(int x1, int y1, int x2, int y2, int width) {
        surface.Box(x1, y1, x2, y2, Bgr(), width);
        for (const int y : {y1, y2}) ModelLine(x1, y, x2, y, width);
        for (const int x : {x1, x2}) ModelLine(x, y1, x, y2, width);
    }
    void Restore(PixelBox box) {
        surface.Restore(box.left, box.top, box.right, box.bottom);
        Set(
            box, [](int, int) { return true; }, Surface::kUnpainted);
    }
    void Clear() {
        surface.Clear();
        model.assign(model.size(), Surface::kUnpainted);
    }
    // Also checks that the damage boxes are on the surface and contain everything that has changed since the last call.
    void Check(const std::string& after) {
        std::vector<PixelBox> boxes;
        surface.TakeDamage(boxes);
        std::vector<bool> isDamaged(model.size());
        for (const PixelBox& box : boxes) {
            ASSERT_TRUE(box.left >= 0 && box.top >= 0 && box.right <= kWidth && box.bottom <= kHeight);
            for (int y = box.top; y < box.bottom; ++y)
                std::fill_n(isDamaged.begin() + y * kWidth + box.left, box.right - box.left, true);
        }
        for (int i = 0; i < kWidth * kHeight; ++i) {
            const auto at = static_cast<std::size_t>(i);
            ASSERT_EQ(surface.PixelAt(i % kWidth, i / kWidth), model[at]) << i % kWidth << ',' << i / kWidth << after;
            ASSERT_TRUE(isDamaged[at] || model[at] == last[at]) << i % kWidth << ',' << i / kWidth << after;
        }
        last = model;
        surface.TakeDamage(boxes);
        EXPECT_TRUE(boxes.empty()) << "damage is reported once";
    }

    Surface surface;
    std::vector<std::uint32_t> model = std::vector<std::uint32_t>(static_cast<std::size_t>(kWidth * kHeight)),
                               last = model;
    std::uint32_t rgb = 0;
};

TEST_F(SurfaceTest, PaintsThinAndThickAnywhere) {
    constexpr int kEnds[] = {100,   100,    140,    140,   140,    100, 100,   140,  30,     300,    30,    300,
                             50,    50,     90,     50,    90,     60,  90,    20,   100,    100,    161,   117,
                             300,   200,    307,    290,   0,      0,   801,   601,  -3,     -3,     5,     5,
                             799,   599,    810,    610,   -50,    300, 900,   310,  -32768, -32768, 32767, 32767,
                             32767, -32768, -32768, 32767, -32768, 300, 32767, 301,  400,    -32768, 401,   32767,
                             32767, 32767,  32766,  32767, 802,    602, 1300,  1100, -2,     10,     -2,    500,
                             803,   10,     803,    500,   20,     -2,  500,   -2,   20,     603,    500,   603};
    for (std::size_t i = 0; i < std::size(kEnds); i += 4) {
        for (const int width : {5, 4, 1, 0}) Line(kEnds[i], kEnds[i + 1], kEnds[i + 2], kEnds[i + 3], width);
        Check(" after segment " + std::to_string(i / 4));
    }
}

TEST_F(SurfaceTest, PaintsAndRestoresAtRandom) {
    std::mt19937 random(7);
    const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
    for (const int operations : {1, 1, 1, 1, 1, 5, 5, 5, 30, 30, 600}) {
        for (int i = 0; i < operations; ++i) {
            const int x = below(880) - 40, y = below(680) - 40, x2 = x + below(60) - 10, y2 = y + below(60) - 10;
            const int what = below(100), width = 1 + below(7);
            if (what == 0)
                Clear();
            else if (what < 10)
                Restore({x, y, x2, y2});
            else if (what < 20)
                Box(x, y, x2, y2, width);
            else if (what < 30)
                Line(x, y, below(880) - 40, below(680) - 40, width);
            else
                Line(x, y, x2, y2, width);
        }
        Check(" after " + std::to_string(operations) + " at random");
    }
    Restore({-100, -100, 32767, 32767});
    Check(" after all of it was restored");
}

}  // namespace
}  // namespace prismfall
