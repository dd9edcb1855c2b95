// The look of the error box: as tall as its text needs, and drawn in code, so it needs no picture files.
#include "backends/sdl/desktop/MessageBox.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace prismfall {

namespace {

constexpr std::string_view kMarkPicture = "MessageStopMark";
constexpr Font kFont{.family = "MS Sans Serif", .points = 9.75F};
constexpr Colour kTextColour = 0x80FFFF;  // pale yellow, as in the game's other dialogs
constexpr Colour kMarkColour = 0x2020D0;
constexpr Colour kCrossColour = 0xFFFFFF;

constexpr int kMargin = 18;
constexpr int kMarkSize = 36;
constexpr int kTextWidth = 320;
constexpr int kButtonWidth = 76;
constexpr int kButtonHeight = 26;
constexpr int kTextLeft = 2 * kMargin + kMarkSize;
constexpr int kInnerWidth = kTextLeft + kTextWidth + kMargin;

// A disc with a cross.
Image StopMark(float scale) {
    const int size = std::max(1, static_cast<int>(std::nearbyint(static_cast<float>(kMarkSize) * scale)));
    Image mark(size, size);
    Canvas canvas(mark.pixels.data(), size, size, size);
    const auto whole = static_cast<float>(size);
    const float near = whole * 0.34F;
    const float far = whole * 0.66F;
    canvas.Stroke(whole / 2, whole / 2, whole / 2, whole / 2, whole - 1, PixelOf(kMarkColour));
    canvas.Stroke(near, near, far, far, whole * 0.12F, PixelOf(kCrossColour));
    canvas.Stroke(near, far, far, near, whole * 0.12F, PixelOf(kCrossColour));
    return mark;
}

int GamePixels(int displayPixels, const Display& display) {
    return static_cast<int>(std::ceil(static_cast<float>(displayPixels) / display.scale));
}

}  // namespace

void MakeMessageBox(Window& box, std::string_view text, Display& display, const std::function<void()>& dismiss) {
    display.pictures.Add(kMarkPicture, StopMark);
    const TextLayout layout{.font = kFont, .wrapWidth = display.Pixels(static_cast<float>(kTextWidth))};
    const int textHeight = GamePixels(display.text.Height(text, layout), display);
    const int bodyHeight = std::max(kMarkSize, textHeight);
    const int buttonTop = kMargin + bodyHeight + kMargin;
    const int buttonLeft = (kInnerWidth - kButtonWidth) / 2;
    const int wordWidth = GamePixels(display.text.Width("OK", kFont), display);
    const int wordHeight = GamePixels(display.text.LineHeight(kFont), display);

    box.name = "MessageBox";
    box.title = "Prismfall";
    box.isDialog = true;
    box.isErrorBox = true;
    box.innerWidth = kInnerWidth;
    box.innerHeight = buttonTop + kButtonHeight + kMargin;
    const auto at = [](Element element, int left, int top, int width, int height) {
        element.left = static_cast<float>(left);
        element.top = static_cast<float>(top);
        element.width = width;
        element.height = height;
        element.font = kFont;
        element.colour = kTextColour;
        return element;
    };
    box.Own({
        at({.name = "Mark", .picture = kMarkPicture}, kMargin, kMargin + (bodyHeight - kMarkSize) / 2, kMarkSize,
           kMarkSize),
        at({.name = "Text",
            .kind = ElementKind::Label,
            .text = std::string(text),
            .wraps = true,
            .fitHeight = textHeight},
           kTextLeft, kMargin + (bodyHeight - textHeight) / 2, kTextWidth, textHeight),
        at({.name = "Word", .kind = ElementKind::Label, .text = "OK"}, buttonLeft + (kButtonWidth - wordWidth) / 2,
           buttonTop + (kButtonHeight - wordHeight) / 2, wordWidth, wordHeight),
        at({.name = "Edge", .kind = ElementKind::Outline}, buttonLeft, buttonTop, kButtonWidth, kButtonHeight),
        at({.name = "Button", .kind = ElementKind::Button, .shortcut = Key::Enter}, buttonLeft, buttonTop, kButtonWidth,
           kButtonHeight),
    });
    box.on.elementClick = [dismiss](Element&) { dismiss(); };
}

}  // namespace prismfall
