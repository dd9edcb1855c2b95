// The painted layer of the main window: a block of pixels over the background picture that keeps what was painted. All
// backends share it, so that the picture is the same everywhere and tests can inspect its pixels.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/Element.h"
#include "platform/PixelBox.h"

namespace prismfall {

class Surface {
  public:
    static constexpr int kWidth = 802;
    static constexpr int kHeight = 602;
    static constexpr std::uint32_t kUnpainted = 0;  // a pixel through which the background shows

    Surface();

    // The operations of SurfacePainter.h. Any coordinates are allowed: what is outside is cut off. A width of 0 or less
    // paints nothing. As long as nothing is painted, the pixels take no memory.
    void Line(int x1, int y1, int x2, int y2, Colour colour, int width);
    void Box(int x1, int y1, int x2, int y2, Colour colour, int width);
    void Restore(int x1, int y1, int x2, int y2);
    void Clear();

    // 0xFFRRGGBB, or kUnpainted. kWidth pixels per row, without gaps; x and y must be on the surface.
    std::uint32_t PixelAt(int x, int y) const { return Row(y)[x]; }
    const std::uint32_t* Row(int y) const;

    // What has changed since the last call, as boxes on the surface that may overlap; long diagonals are split.
    // Replaces the contents of `boxes`, which the caller keeps to avoid an allocation per frame.
    void TakeDamage(std::vector<PixelBox>& boxes);

  private:
    static std::size_t Index(int x, int y) {
        return static_cast<std::size_t>(y) * kWidth + static_cast<std::size_t>(x);
    }
    void FillSpan(int y, int left, int right, std::uint32_t pixel);
    void AddDamage(PixelBox box);
    void AddLineDamage(int x1, int y1, int x2, int y2, int reach);

    std::vector<std::uint32_t> pixels;  // empty while nothing is painted
    std::vector<PixelBox> damage;
};

}  // namespace prismfall
