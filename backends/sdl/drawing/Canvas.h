// A block of pixels to compose on, and pictures to draw on it. Everything is 32-bit ARGB with premultiplied alpha, so
// that pictures can be scaled and blended without dark seams.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/Element.h"
#include "platform/PixelBox.h"

namespace prismfall {

// A pixel made more transparent: `opacity` is from 0 (nothing left) to 255 (unchanged).
std::uint32_t WithOpacity(std::uint32_t pixel, std::uint32_t opacity);

struct Image {
    Image() = default;
    Image(int imageWidth, int imageHeight);

    std::uint32_t* Row(int y) { return &pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width)]; }
    const std::uint32_t* Row(int y) const {
        return &pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width)];
    }

    int width = 0;
    int height = 0;
    bool opaque = false;  // no pixel is transparent
    std::vector<std::uint32_t> pixels;
};

// The two pixels of a row or column that a pixel of the scaled picture lies between.
struct Neighbours {
    int first = 0;
    int second = 0;
    std::uint32_t share = 0;  // of the second one, out of 256
};
Neighbours NeighboursAt(int place, float scale, int size);
// A pixel interpolated from the four around it.
std::uint32_t MixFour(const std::uint32_t* upper, const std::uint32_t* lower, const Neighbours& column,
                      std::uint32_t shareOfLower);

// The smallest box around what can clearly be seen of the picture, without the glow at its edges.
PixelBox OpaquePart(const Image& image);

// The picture at another size, smoothed.
Image Scaled(const Image& image, int width, int height);

class Canvas {
  public:
    // `stride` is the distance between rows in pixels. The pixels must outlive the canvas.
    Canvas(std::uint32_t* pixels, int width, int height, int stride);

    // Nothing is drawn outside `clip` from now on; initially nothing is clipped.
    void SetClip(const PixelBox& box);
    const PixelBox& Clip() const { return clip; }
    int Width() const { return bounds.right; }

    void Fill(const PixelBox& box, std::uint32_t pixel);
    // The inner edge of a box.
    void Frame(const PixelBox& box, std::uint32_t pixel, int width);
    void Draw(const Image& image, int left, int top);
    // A straight stroke with round ends and smooth edges; with length 0 it is a disc.
    void Stroke(float x1, float y1, float x2, float y2, float width, std::uint32_t pixel);
    std::uint32_t* Row(int y) { return pixels + static_cast<std::ptrdiff_t>(y) * stride; }

  private:
    std::uint32_t* pixels;
    PixelBox bounds;
    PixelBox clip;
    int stride;
};

// `over` blended over `below`.
inline std::uint32_t Blend(std::uint32_t over, std::uint32_t below) {
    const std::uint32_t through = 255 - (over >> 24);
    if (through == 0) return over;
    const std::uint32_t oddParts = ((below >> 8) & 0xFF00FF) * through + 0x800080;
    const std::uint32_t evenParts = (below & 0xFF00FF) * through + 0x800080;
    const std::uint32_t odd = (oddParts + ((oddParts >> 8) & 0xFF00FF)) & 0xFF00FF00;
    const std::uint32_t even = ((evenParts + ((evenParts >> 8) & 0xFF00FF)) >> 8) & 0xFF00FF;
    return over + (odd | even);
}

}  // namespace prismfall
