// What pictures, labels, marks and frames look like.
#include "backends/sdl/drawing/ElementPainter.h"

#include <algorithm>
#include <cmath>

namespace prismfall {

namespace {

constexpr float kMarkSize = 13;       // of a radio button's circle and a check box's square, in game pixels
constexpr float kMarkGap = 4;         // between the mark and the text
constexpr float kFrameTextInset = 8;  // of a group frame's text from the frame's left edge
constexpr std::uint32_t kFrameOpacity = 0x90;
constexpr std::uint32_t kPlaceholderGround = 0xFF202020;
constexpr Font kPlaceholderFont{.family = "MS Sans Serif", .points = 9};
constexpr Colour kPlaceholderColour = 0xC0C0C0;

int LineWidth(const Display& display) { return std::max(1, display.Pixels(1)); }

void DrawPicture(Canvas& canvas, const Element& element, const PixelBox& box, Display& display) {
    if (element.picture.empty()) return;
    if (const Image* image = display.pictures.Find(element.picture); image != nullptr) {
        canvas.Draw(*image, box.left, box.top);
        return;
    }
    canvas.Fill(box, kPlaceholderGround);
    canvas.Frame(box, PixelOf(kPlaceholderColour), LineWidth(display));
    display.text.Draw(canvas, element.picture, {.font = kPlaceholderFont}, kPlaceholderColour,
                      box.left + display.Pixels(4), box.top + display.Pixels(4));
}

void DrawLabel(Canvas& canvas, const Element& element, const PixelBox& box, Display& display) {
    if (element.ground) canvas.Fill(box, PixelOf(*element.ground));
    TextLayout layout{.font = element.font};
    // A box may extend beyond the window; wrapped lines break where they can still be read.
    if (element.wraps) layout.wrapWidth = std::max(1, std::min(box.right, canvas.Width()) - box.left);
    layout.fitHeight = display.Pixels(static_cast<float>(element.fitHeight));
    display.text.Draw(canvas, element.text, layout, element.colour, box.left, box.top);
}

void DrawRadioMark(Canvas& canvas, const Element& element, int left, int top, int size, int line) {
    const std::uint32_t pixel = PixelOf(element.colour);
    const std::uint32_t ground = PixelOf(element.ground.value_or(kBlack));
    const auto disc = [&](int width, std::uint32_t colour) {
        const float x = static_cast<float>(left) + static_cast<float>(size) / 2;
        const float y = static_cast<float>(top) + static_cast<float>(size) / 2;
        canvas.Stroke(x, y, x, y, static_cast<float>(width), colour);
    };
    disc(size, pixel);
    disc(size - 2 * line, ground);
    if (element.checked) disc(size - 6 * line, pixel);
}

void DrawCheckMark(Canvas& canvas, const Element& element, int left, int top, int size, int line) {
    const std::uint32_t pixel = PixelOf(element.colour);
    canvas.Frame({left, top, left + size, top + size}, pixel, line);
    if (!element.checked) return;
    const auto stroke = [&](float x1, float y1, float x2, float y2) {
        const auto whole = static_cast<float>(size);
        const auto x = static_cast<float>(left);
        const auto y = static_cast<float>(top);
        canvas.Stroke(x + x1 * whole, y + y1 * whole, x + x2 * whole, y + y2 * whole, static_cast<float>(2 * line),
                      pixel);
    };
    stroke(0.26F, 0.52F, 0.43F, 0.70F);
    stroke(0.43F, 0.70F, 0.76F, 0.30F);
}

void DrawMarkedText(Canvas& canvas, const Element& element, const PixelBox& box, Display& display) {
    const int size = display.Pixels(kMarkSize);
    const int markTop = (box.top + box.bottom - size) / 2;
    const int textHeight = display.text.LineHeight(element.font);
    const int textTop = (box.top + box.bottom - textHeight) / 2;
    // Boxes may overlap: the label's background is only as tall as its text.
    canvas.Fill({box.left, std::min(markTop, textTop), box.right, std::max(markTop + size, textTop + textHeight)},
                PixelOf(element.ground.value_or(kBlack)));
    const auto draw = element.kind == ElementKind::RadioButton ? DrawRadioMark : DrawCheckMark;
    draw(canvas, element, box.left, markTop, size, LineWidth(display));
    display.text.Draw(canvas, element.text, {.font = element.font}, element.colour,
                      box.left + size + display.Pixels(kMarkGap), textTop);
}

void DrawGroupFrame(Canvas& canvas, const Element& element, const PixelBox& box, Display& display) {
    const std::uint32_t ground = PixelOf(element.ground.value_or(kBlack));
    PixelBox frame = box;
    frame.top += display.text.LineHeight(element.font) / 2;
    canvas.Fill(frame, ground);
    const std::uint32_t shade = Blend(WithOpacity(PixelOf(element.colour), kFrameOpacity), ground);
    canvas.Frame(frame, shade, LineWidth(display));
    const int left = box.left + display.Pixels(kFrameTextInset);
    const int gap = display.Pixels(2);
    const int right = left + display.text.Width(element.text, element.font);
    canvas.Fill({left - gap, box.top, right + gap, frame.top + LineWidth(display)}, ground);
    display.text.Draw(canvas, element.text, {.font = element.font}, element.colour, left, box.top);
}

}  // namespace

void Display::SetScale(float newScale) {
    if (newScale == scale) return;
    scale = newScale;
    pictures.SetScale(newScale);
    text.SetScale(newScale);
}

int Display::Pixels(float gamePixels) const { return static_cast<int>(std::nearbyint(gamePixels * scale)); }

PixelBox WholeBox(const Element& element, const Display& display) {
    const PixelBox corner{display.Pixels(LeftInWindow(element)), display.Pixels(TopInWindow(element)), 0, 0};
    return {corner.left, corner.top, corner.left + display.Pixels(static_cast<float>(element.width)),
            corner.top + display.Pixels(static_cast<float>(element.height))};
}

PixelBox VisibleBox(const Element& element, const Display& display) {
    const PixelBox box = WholeBox(element, display);
    return element.panel != nullptr ? Overlap(box, WholeBox(*element.panel, display)) : box;
}

void DrawElement(Canvas& canvas, const Element& element, const PixelBox& area, Display& display) {
    canvas.SetClip(Overlap(area, VisibleBox(element, display)));
    if (canvas.Clip().IsEmpty()) return;
    const PixelBox box = WholeBox(element, display);
    switch (element.kind) {
        case ElementKind::Picture:
        case ElementKind::Button:
        case ElementKind::PressPicture:
            return DrawPicture(canvas, element, box, display);
        case ElementKind::Label:
            return DrawLabel(canvas, element, box, display);
        case ElementKind::RadioButton:
        case ElementKind::CheckBox:
            return DrawMarkedText(canvas, element, box, display);
        case ElementKind::GroupFrame:
            return DrawGroupFrame(canvas, element, box, display);
        case ElementKind::Outline:
            return canvas.Frame(box, PixelOf(element.colour), LineWidth(display));
    }
}

}  // namespace prismfall
