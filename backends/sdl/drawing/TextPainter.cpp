// Each face is opened once and resized as needed, so trying out sizes for a text that has to fit leaves nothing open.
#include "backends/sdl/drawing/TextPainter.h"

#include <SDL.h>
#include <SDL_ttf.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <memory>
#include <string>
#include <utility>

namespace prismfall {

namespace {

constexpr float kPixelsPerPoint = 96.0F / 72.0F;

using Letters = std::unique_ptr<SDL_Surface, void (*)(SDL_Surface*)>;

Letters RenderWith(TTF_Font* font, std::string_view text, int wrapWidth) {
    constexpr SDL_Color kWhite{255, 255, 255, 255};
    const auto width = static_cast<std::uint32_t>(std::max(wrapWidth, 0));
    return {TTF_RenderUTF8_Blended_Wrapped(font, std::string(text).c_str(), kWhite, width), SDL_FreeSurface};
}

}  // namespace

TextPainter::~TextPainter() {
    for (const auto& [face, opened] : faces)
        if (opened.font != nullptr) TTF_CloseFont(opened.font);
    if (TTF_WasInit() != 0) TTF_Quit();
}

// Between whole scales, rounds down, so that the text fits its box as it does at scale 1.
int TextPainter::Pixels(const Font& font) const {
    constexpr float kInexactness = 0.01F;
    return std::max(1, static_cast<int>(font.points * kPixelsPerPoint * scale + kInexactness));
}

TTF_Font* TextPainter::Open(const Font& font, int pixels) {
    const Face face{font.family, font.bold, font.italic};
    auto found = faces.find(face);
    if (found == faces.end()) found = faces.emplace(face, Opened{Load(font), Pixels(font)}).first;
    Opened& opened = found->second;
    // A different size discards the glyphs that SDL_ttf has cached.
    if (opened.font != nullptr && std::exchange(opened.pixels, pixels) != pixels) TTF_SetFontSize(opened.font, pixels);
    return opened.font;
}

TTF_Font* TextPainter::Load(const Font& font) {
    if (TTF_WasInit() == 0 && TTF_Init() != 0) {
        Report("letters cannot be drawn");
        return nullptr;
    }
    const FontFile file = finder.Find(font);
    TTF_Font* opened =
        file.stream != nullptr ? TTF_OpenFontIndexRW(file.stream, SDL_TRUE, Pixels(font), file.face) : nullptr;
    if (opened == nullptr) {
        Report("no font is installed");
        return nullptr;
    }
    // Uses the glyphs' exact widths: with whole-pixel ones, lines become several letters longer and no longer fit their
    // boxes.
    TTF_SetFontHinting(opened, TTF_HINTING_LIGHT_SUBPIXEL);
    const bool thicken = font.bold && !file.bold;
    const bool slope = font.italic && !file.italic;
    TTF_SetFontStyle(opened, (thicken ? TTF_STYLE_BOLD : 0) | (slope ? TTF_STYLE_ITALIC : 0));
    return opened;
}

void TextPainter::Report(const char* what) {
    if (!reported) std::fprintf(stderr, "prismfall: %s, the game shows no text.\n", what);
    reported = true;
}

int TextPainter::LineHeight(const Font& font) {
    TTF_Font* opened = Open(font, Pixels(font));
    return opened != nullptr ? TTF_FontHeight(opened) : 0;
}

int TextPainter::Width(std::string_view line, const Font& font) {
    TTF_Font* opened = Open(font, Pixels(font));
    int width = 0;
    if (opened != nullptr) TTF_SizeUTF8(opened, std::string(line).c_str(), &width, nullptr);
    return width;
}

std::optional<Image> TextPainter::Render(std::string_view text, const TextLayout& layout) {
    int pixels = Pixels(layout.font);
    TTF_Font* font = Open(layout.font, pixels);
    if (font == nullptr) return std::nullopt;
    Letters letters = RenderWith(font, text, layout.wrapWidth);
    while (letters && layout.fitHeight > 0 && letters->h > layout.fitHeight && pixels > 1)
        letters = RenderWith(Open(layout.font, --pixels), text, layout.wrapWidth);
    if (!letters) return std::nullopt;
    Image opacity(letters->w, letters->h);
    for (int y = 0; y < opacity.height; ++y) {
        const auto* row =
            static_cast<const std::uint8_t*>(letters->pixels) + static_cast<std::ptrdiff_t>(y) * letters->pitch;
        std::transform(reinterpret_cast<const std::uint32_t*>(row),
                       reinterpret_cast<const std::uint32_t*>(row) + opacity.width, opacity.Row(y),
                       [](std::uint32_t pixel) { return pixel >> 24; });
    }
    return opacity;
}

int TextPainter::Height(std::string_view text, const TextLayout& layout) {
    const std::optional<Image> letters = Render(text, layout);
    return letters ? letters->height : 0;
}

void TextPainter::Draw(Canvas& canvas, std::string_view text, const TextLayout& layout, Colour colour, int left,
                       int top) {
    std::optional<Image> letters = Render(text, layout);
    if (!letters) return;
    const std::uint32_t pixel = PixelOf(colour);
    for (std::uint32_t& letter : letters->pixels) letter = WithOpacity(pixel, letter);
    canvas.Draw(*letters, left, top);
}

}  // namespace prismfall
