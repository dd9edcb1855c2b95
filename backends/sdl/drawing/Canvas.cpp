// Drawing on a block of pixels: fills, pictures, and the few smooth shapes that marks are made of.
#include "backends/sdl/drawing/Canvas.h"

#include <algorithm>
#include <cmath>

namespace prismfall {

namespace {

// Blends the four channels of a pixel in 256ths.
std::uint32_t Mix(std::uint32_t a, std::uint32_t b, std::uint32_t shareOfB) {
    const std::uint32_t shareOfA = 256 - shareOfB;
    const std::uint32_t odd = ((a >> 8) & 0xFF00FF) * shareOfA + ((b >> 8) & 0xFF00FF) * shareOfB;
    const std::uint32_t even = (a & 0xFF00FF) * shareOfA + (b & 0xFF00FF) * shareOfB;
    return (odd & 0xFF00FF00) | ((even >> 8) & 0xFF00FF);
}

std::vector<Neighbours> Positions(int from, int to) {
    std::vector<Neighbours> positions;
    const float scale = static_cast<float>(to) / static_cast<float>(from);
    positions.reserve(static_cast<std::size_t>(to));
    for (int i = 0; i < to; ++i) positions.push_back(NeighboursAt(i, scale, from));
    return positions;
}

float DistanceToStroke(float x, float y, float x1, float y1, float x2, float y2) {
    const float length2 = (x2 - x1) * (x2 - x1) + (y2 - y1) * (y2 - y1);
    const float along =
        length2 > 0 ? std::clamp(((x - x1) * (x2 - x1) + (y - y1) * (y2 - y1)) / length2, 0.0F, 1.0F) : 0.0F;
    return std::hypot(x - x1 - along * (x2 - x1), y - y1 - along * (y2 - y1));
}

}  // namespace

std::uint32_t WithOpacity(std::uint32_t pixel, std::uint32_t opacity) {
    return Mix(0, pixel, opacity + (opacity >> 7));
}

Image::Image(int imageWidth, int imageHeight)
    : width(imageWidth),
      height(imageHeight),
      pixels(static_cast<std::size_t>(imageWidth) * static_cast<std::size_t>(imageHeight)) {}

Neighbours NeighboursAt(int place, float scale, int size) {
    const float exact =
        std::clamp((static_cast<float>(place) + 0.5F) / scale - 0.5F, 0.0F, static_cast<float>(size - 1));
    const int first = static_cast<int>(exact);
    const auto share = static_cast<std::uint32_t>(std::lround((exact - static_cast<float>(first)) * 256));
    return {first, std::min(first + 1, size - 1), share};
}

std::uint32_t MixFour(const std::uint32_t* upper, const std::uint32_t* lower, const Neighbours& column,
                      std::uint32_t shareOfLower) {
    return Mix(Mix(upper[column.first], upper[column.second], column.share),
               Mix(lower[column.first], lower[column.second], column.share), shareOfLower);
}

PixelBox OpaquePart(const Image& image) {
    constexpr std::uint32_t kClear = 0x80;  // opacity
    PixelBox part;
    for (int y = 0; y < image.height; ++y)
        for (int x = 0; x < image.width; ++x)
            if (image.Row(y)[x] >> 24 >= kClear) part = BoundingBox(part, {x, y, x + 1, y + 1});
    return part;
}

Image Scaled(const Image& image, int width, int height) {
    Image result(width, height);
    result.opaque = image.opaque;
    const std::vector<Neighbours> columns = Positions(image.width, width);
    const std::vector<Neighbours> rows = Positions(image.height, height);
    for (int y = 0; y < height; ++y) {
        const Neighbours& row = rows[static_cast<std::size_t>(y)];
        std::uint32_t* out = result.Row(y);
        for (const Neighbours& column : columns)
            *out++ = MixFour(image.Row(row.first), image.Row(row.second), column, row.share);
    }
    return result;
}

Canvas::Canvas(std::uint32_t* canvasPixels, int width, int height, int canvasStride)
    : pixels(canvasPixels), bounds{0, 0, width, height}, clip(bounds), stride(canvasStride) {}

void Canvas::SetClip(const PixelBox& box) { clip = Overlap(box, bounds); }

void Canvas::Fill(const PixelBox& box, std::uint32_t pixel) {
    const PixelBox area = Overlap(box, clip);
    if (area.IsEmpty()) return;
    for (int y = area.top; y < area.bottom; ++y) std::fill(Row(y) + area.left, Row(y) + area.right, pixel);
}

void Canvas::Frame(const PixelBox& box, std::uint32_t pixel, int width) {
    Fill({box.left, box.top, box.right, box.top + width}, pixel);
    Fill({box.left, box.bottom - width, box.right, box.bottom}, pixel);
    Fill({box.left, box.top, box.left + width, box.bottom}, pixel);
    Fill({box.right - width, box.top, box.right, box.bottom}, pixel);
}

void Canvas::Draw(const Image& image, int left, int top) {
    const PixelBox area = Overlap({left, top, left + image.width, top + image.height}, clip);
    if (area.IsEmpty()) return;
    for (int y = area.top; y < area.bottom; ++y) {
        const std::uint32_t* from = image.Row(y - top) + (area.left - left);
        std::uint32_t* to = Row(y) + area.left;
        const int count = area.right - area.left;
        if (image.opaque) {
            std::copy_n(from, count, to);
        } else {
            for (int i = 0; i < count; ++i) to[i] = Blend(from[i], to[i]);
        }
    }
}

void Canvas::Stroke(float x1, float y1, float x2, float y2, float width, std::uint32_t pixel) {
    const float reach = width / 2 + 1;
    const auto floorOf = [](float value) { return static_cast<int>(std::floor(value)); };
    const PixelBox area = Overlap({floorOf(std::min(x1, x2) - reach), floorOf(std::min(y1, y2) - reach),
                                   floorOf(std::max(x1, x2) + reach) + 1, floorOf(std::max(y1, y2) + reach) + 1},
                                  clip);
    for (int y = area.top; y < area.bottom; ++y) {
        for (int x = area.left; x < area.right; ++x) {
            const float distance =
                DistanceToStroke(static_cast<float>(x) + 0.5F, static_cast<float>(y) + 0.5F, x1, y1, x2, y2);
            const float strength = std::clamp(width / 2 + 0.5F - distance, 0.0F, 1.0F);
            const auto opacity = static_cast<std::uint32_t>(std::lround(strength * 255));
            Row(y)[x] = Blend(WithOpacity(pixel, opacity), Row(y)[x]);
        }
    }
}

}  // namespace prismfall
