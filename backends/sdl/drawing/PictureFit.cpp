#include "backends/sdl/drawing/PictureFit.h"

#include <algorithm>
#include <cmath>

namespace prismfall {

namespace {

float LargestScale(Extent inner, Extent given, float wantedScale) {
    const float largest = std::min(static_cast<float>(given.width) / static_cast<float>(inner.width),
                                   static_cast<float>(given.height) / static_cast<float>(inner.height));
    const float onePixel = 1.01F / static_cast<float>(std::max(inner.width, inner.height));
    if (std::abs(largest - wantedScale) <= onePixel) return wantedScale;
    // A whole factor gives sharp pixels, which is worth a pixel of size.
    const float whole = std::floor(largest);
    return largest - whole <= onePixel ? std::max(whole, onePixel) : largest;
}

}  // namespace

PictureFit FitPicture(Extent inner, Extent given, float wantedScale) {
    PictureFit fit;
    fit.scale = LargestScale(inner, given, wantedScale);
    const auto pixels = [&](int size, int room) {
        return std::clamp(static_cast<int>(std::nearbyint(static_cast<float>(size) * fit.scale)), 1, room);
    };
    const int width = pixels(inner.width, given.width);
    const int height = pixels(inner.height, given.height);
    const int left = (given.width - width) / 2;
    const int top = (given.height - height) / 2;
    fit.box = {left, top, left + width, top + height};
    return fit;
}

}  // namespace prismfall
