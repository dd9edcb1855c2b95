// Text on a canvas: opens a family's font, and has SDL_ttf break lines and draw the letters.
#pragma once

#include <SDL_ttf.h>

#include <map>
#include <optional>
#include <string_view>
#include <tuple>

#include "backends/sdl/drawing/Canvas.h"
#include "backends/sdl/drawing/FontFinder.h"
#include "platform/Element.h"

namespace prismfall {

// How a text is laid out, in display pixels except for the font. It always breaks at line feeds.
struct TextLayout {
    Font font;
    int wrapWidth = 0;  // if above 0, lines break before this width, between words or within an overlong one
    int fitHeight = 0;  // if above 0, the text is made smaller, pixel by pixel, until it fits this height
};

class TextPainter {
  public:
    TextPainter() = default;
    TextPainter(const TextPainter&) = delete;
    TextPainter& operator=(const TextPainter&) = delete;
    ~TextPainter();

    // Display pixels per game pixel.
    void SetScale(float displayScale) { scale = displayScale; }

    // All sizes and positions below are in display pixels. If there is no font at all there is no text, and its height
    // is 0.
    int LineHeight(const Font& font);
    int Width(std::string_view line, const Font& font);
    int Height(std::string_view text, const TextLayout& layout);
    void Draw(Canvas& canvas, std::string_view text, const TextLayout& layout, Colour colour, int left, int top);

  private:
    using Face = std::tuple<std::string_view, bool, bool>;
    struct Opened {
        TTF_Font* font = nullptr;
        int pixels = 0;  // the current size
    };

    int Pixels(const Font& font) const;
    // The font, set to a size. Null if there is none.
    TTF_Font* Open(const Font& font, int pixels);
    TTF_Font* Load(const Font& font);
    // The text as an alpha mask, or null if it has no visible pixels.
    std::optional<Image> Render(std::string_view text, const TextLayout& layout);
    void Report(const char* what);

    float scale = 1;
    FontFinder finder;
    std::map<Face, Opened> faces;
    bool reported = false;
};

}  // namespace prismfall
