#include "backends/sdl/desktop/MarginNote.h"

#include <algorithm>
#include <utility>

namespace prismfall {

namespace {

constexpr Font kFont{.points = 9.75F};
constexpr Colour kTextColour = 0xC0FFFF;
constexpr Colour kBarColour = 0xC08040;
constexpr Colour kTroughColour = 0x402010;

// Game pixels.
constexpr float kPadding = 8;
constexpr float kBarHeight = 5;
constexpr float kNarrowest = 120;  // beside the picture, for lines below each other
constexpr float kLowest = 40;      // below it, for one line

std::string OneLine(std::string text) {
    for (std::size_t at = text.find('\n'); at != std::string::npos; at = text.find('\n', at))
        text.replace(at, 1, "    ");
    return text;
}

}  // namespace

PixelBox MarginNote::Update(Window& window, Extent size, const PictureFit& fit, Display& display, bool isLost) {
    const Aside& aside = window.aside;
    const bool isBeside = size.width - fit.box.right >= display.Pixels(kNarrowest);
    const bool isBelow = size.height - fit.box.bottom >= display.Pixels(kLowest);
    window.aside.hasRoom = isBeside || isBelow;
    PixelBox newBox;
    PixelBox newBar;
    std::string newText;
    if (window.aside.hasRoom && !aside.IsEmpty()) {
        newBox = isBeside ? PixelBox{fit.box.right, fit.box.top, size.width, fit.box.bottom}
                          : PixelBox{fit.box.left, fit.box.bottom, fit.box.right, size.height};
        newText = isBeside ? aside.text : OneLine(aside.text);
        const int padding = display.Pixels(kPadding);
        const int top = newBox.top + padding;
        newBar = {newBox.left + padding, top, newBox.right - padding, top + display.Pixels(kBarHeight)};
    }
    const int full = newBar.right - newBar.left;
    const int newRight = newBar.right;
    newBar.right =
        newBar.left + static_cast<int>(static_cast<float>(full) * std::clamp(aside.share.value_or(0), 0.F, 1.F));
    const bool isSame = newBox == box && newBar == bar && newText == text;
    const PixelBox old = std::exchange(box, newBox);
    bar = newBar;
    barRight = newRight;
    text = std::move(newText);
    if (isSame && !isLost) return {};
    return Overlap(box.IsEmpty() ? old : box, {0, 0, size.width, size.height});
}

void MarginNote::Draw(Canvas& canvas, Display& display) const {
    if (box.IsEmpty()) return;
    canvas.Fill({bar.left, bar.top, barRight, bar.bottom}, PixelOf(kTroughColour));
    canvas.Fill(bar, PixelOf(kBarColour));
    const int padding = display.Pixels(kPadding);
    display.text.Draw(canvas, text, {.font = kFont, .wrapWidth = barRight - bar.left}, kTextColour, bar.left,
                      bar.bottom + padding / 2);
}

}  // namespace prismfall
