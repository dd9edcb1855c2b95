// Letters by SDL_ttf.
#include "backends/sdl/drawing/TextPainter.h"

#include <SDL.h>
#include <SDL_ttf.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

namespace prismfall {

namespace {

constexpr float kPixelsPerPoint = 96.0F / 72.0F;

// SDL_ttf refuses text that is not UTF-8; a file's name need not be.
std::string ValidUtf8(std::string_view text) {
    std::string result;
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const std::size_t length = lead < 0x80 ? 1 : lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : lead >= 0xC2 ? 2 : 0;
        bool valid = length > 0 && lead < 0xF5 && i + length <= text.size();
        for (std::size_t k = 1; valid && k < length; ++k)
            valid = (static_cast<unsigned char>(text[i + k]) & 0xC0) == 0x80;
        result += valid ? std::string(text.substr(i, length)) : "?";
        i += valid ? length : 1;
    }
    return result;
}

}  // namespace

TextPainter::~TextPainter() {
    SetScale(1);
    if (TTF_WasInit() != 0) TTF_Quit();
}

void TextPainter::SetScale(float displayScale) {
    scale = displayScale;
    for (const auto& [key, font] : fonts)
        if (font != nullptr) TTF_CloseFont(font);
    fonts.clear();
}

_TTF_Font* TextPainter::Open(const Font& font) {
    const int pixels = std::max(1, static_cast<int>(std::lround(font.points * kPixelsPerPoint * scale)));
    const Key key{font.family, pixels, font.bold, font.italic};
    const auto found = fonts.find(key);
    if (found != fonts.end()) return found->second;
    return fonts[key] = Load(font, pixels);
}

_TTF_Font* TextPainter::Load(const Font& font, int pixels) {
    if (TTF_WasInit() == 0 && TTF_Init() != 0) {
        Report("letters cannot be drawn");
        return nullptr;
    }
    const FontFile file = finder.Find(font);
    TTF_Font* opened = file.stream != nullptr ? TTF_OpenFontIndexRW(file.stream, SDL_TRUE, pixels, file.face) : nullptr;
    if (opened == nullptr) {
        Report("no font is installed");
        return nullptr;
    }
    // The letters' true widths: with whole-pixel ones lines grow by several letters and no longer fit their boxes.
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
    TTF_Font* opened = Open(font);
    return opened != nullptr ? TTF_FontHeight(opened) : 0;
}

int TextPainter::Width(std::string_view line, const Font& font) {
    TTF_Font* opened = Open(font);
    int width = 0;
    if (opened != nullptr) TTF_SizeUTF8(opened, ValidUtf8(line).c_str(), &width, nullptr);
    return width;
}

std::vector<std::string> TextPainter::Lines(std::string_view text, const Font& font, int width) {
    std::vector<std::string> lines(1);
    for (std::size_t i = 0; i < text.size();) {
        if (text[i] == '\n') {
            lines.emplace_back();
            ++i;
            continue;
        }
        // A word comes with the blanks before it; those vanish where a line breaks.
        const std::size_t word = std::min(text.find_first_not_of(' ', i), text.size());
        const std::size_t end = std::min(text.find_first_of(" \n", word), text.size());
        std::string longer = lines.back() + std::string(text.substr(i, end - i));
        i = end;
        const bool breaks = width > 0 && word < end && Width(longer, font) > width;
        if (breaks && !lines.back().empty()) longer = lines.emplace_back(text.substr(word, end - word));
        // A word that is too long for any line, like a file's path, breaks between its letters.
        while (breaks && Width(longer, font) > width) {
            const std::size_t fitting = Fitting(longer, font, width);
            lines.back() = longer.substr(0, fitting);
            longer = lines.emplace_back(longer.substr(fitting));
        }
        lines.back() = longer;
    }
    return lines;
}

std::size_t TextPainter::Fitting(const std::string& line, const Font& font, int width) {
    TTF_Font* opened = Open(font);
    int extent = 0;
    int count = 0;
    if (opened != nullptr) TTF_MeasureUTF8(opened, ValidUtf8(line).c_str(), width, &extent, &count);
    // `count` is in characters: their bytes beyond the first do not count.
    std::size_t bytes = 0;
    const auto isInside = [&](std::size_t at) { return at < line.size() && (line[at] & 0xC0) == 0x80; };
    for (count = std::max(count, 1); count > 0 && bytes < line.size(); --count) do
            ++bytes;
        while (isInside(bytes));
    return bytes;
}

void TextPainter::DrawLine(Canvas& canvas, std::string_view line, const Font& font, Colour colour, int left, int top) {
    TTF_Font* opened = Open(font);
    if (opened == nullptr || line.empty()) return;
    const SDL_Color white{255, 255, 255, 255};
    SDL_Surface* letters = TTF_RenderUTF8_Blended(opened, ValidUtf8(line).c_str(), white);
    if (letters == nullptr) return;
    Image image(letters->w, letters->h);
    const std::uint32_t pixel = PixelOf(colour);
    for (int y = 0; y < image.height; ++y) {
        const auto* from =
            static_cast<const std::uint8_t*>(letters->pixels) + static_cast<std::ptrdiff_t>(y) * letters->pitch;
        for (int x = 0; x < image.width; ++x)
            image.Row(y)[x] = WithOpacity(pixel, reinterpret_cast<const std::uint32_t*>(from)[x] >> 24);
    }
    SDL_FreeSurface(letters);
    canvas.Draw(image, left, top);
}

}  // namespace prismfall
