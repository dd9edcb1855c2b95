// Text on a canvas: opens the font of a family, breaks lines and lays the letters down. Where text goes and in
// which colour is the caller's.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "backends/sdl/drawing/Canvas.h"
#include "backends/sdl/drawing/FontFinder.h"
#include "platform/Element.h"

struct _TTF_Font;

namespace prismfall {

class TextPainter {
  public:
    TextPainter() = default;
    TextPainter(const TextPainter&) = delete;
    TextPainter& operator=(const TextPainter&) = delete;
    ~TextPainter();

    // How many pixels of the display a game pixel has.
    void SetScale(float displayScale);

    // All sizes and places from here on are pixels of the display. Without any font there is no text and no height.
    int LineHeight(const Font& font);
    int Width(std::string_view line, const Font& font);
    // The text's lines: it breaks at line feeds and, if `width` is more than 0, between words before that width.
    std::vector<std::string> Lines(std::string_view text, const Font& font, int width);
    void DrawLine(Canvas& canvas, std::string_view line, const Font& font, Colour colour, int left, int top);

  private:
    using Key = std::tuple<std::string_view, int, bool, bool>;

    _TTF_Font* Open(const Font& font);
    _TTF_Font* Load(const Font& font, int pixels);
    // How many bytes of a line fit into a width, at least one letter's.
    std::size_t Fitting(const std::string& line, const Font& font, int width);
    void Report(const char* what);

    float scale = 1;
    FontFinder finder;
    std::map<Key, _TTF_Font*> fonts;
    bool reported = false;
};

}  // namespace prismfall
