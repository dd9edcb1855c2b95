// Text on a canvas: opens the font of a family, and has SDL_ttf break lines and draw the letters.
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

// How a text is set, in pixels of the display but for the font. It breaks at line feeds in any case.
struct TextLayout {
    Font font;
    int wrapWidth = 0;  // above 0 lines break before this width: between words, or within one that is too long for any
    int fitHeight = 0;  // above 0 letters are made smaller, pixel by pixel, until the text ends within this height
};

class TextPainter {
  public:
    TextPainter() = default;
    TextPainter(const TextPainter&) = delete;
    TextPainter& operator=(const TextPainter&) = delete;
    ~TextPainter();

    // How many pixels of the display a game pixel has.
    void SetScale(float displayScale) { scale = displayScale; }

    // All sizes and places from here on are pixels of the display. Without any font there is no text and no height.
    int LineHeight(const Font& font);
    int Width(std::string_view line, const Font& font);
    int Height(std::string_view text, const TextLayout& layout);
    void Draw(Canvas& canvas, std::string_view text, const TextLayout& layout, Colour colour, int left, int top);

  private:
    using Face = std::tuple<std::string_view, bool, bool>;
    struct Opened {
        TTF_Font* font = nullptr;
        int pixels = 0;  // the size that it is set to
    };

    int Pixels(const Font& font) const;
    // The font, set to a size. Nothing if there is none.
    TTF_Font* Open(const Font& font, int pixels);
    TTF_Font* Load(const Font& font);
    // The letters as their opacity, or nothing where there are none.
    std::optional<Image> Render(std::string_view text, const TextLayout& layout);
    void Report(const char* what);

    float scale = 1;
    FontFinder finder;
    std::map<Face, Opened> faces;
    bool reported = false;
};

}  // namespace prismfall
