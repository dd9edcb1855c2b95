// Paints what prismfall-headless prints with `paint on` on black and writes the pixels, red, green, blue and opacity,
// to standard output: what a page's canvases have to show.
#include <array>
#include <cstdio>
#include <iostream>
#include <sstream>
#include <string>

#include "platform/Surface.h"

int main() {
    prismfall::Surface surface;
    for (std::string line; std::getline(std::cin, line);) {
        std::istringstream words(line);
        std::string what, colour;
        int x1 = 0, y1 = 0, x2 = 0, y2 = 0, width = 0;
        words >> what >> x1 >> y1 >> x2 >> y2 >> colour >> width;
        const auto value =
            static_cast<prismfall::Colour>(colour.starts_with("0x") ? std::stoul(colour, nullptr, 16) : 0);
        if (what == "line") surface.Line(x1, y1, x2, y2, value, width);
        if (what == "box") surface.Box(x1, y1, x2, y2, value, width);
        if (what == "restore") surface.Restore(x1, y1, x2, y2);
        if (what == "clear") surface.Clear();
    }
    for (int y = 0; y < prismfall::Surface::kHeight; ++y) {
        for (int x = 0; x < prismfall::Surface::kWidth; ++x) {
            const std::uint32_t pixel = surface.PixelAt(x, y) | 0xFF000000U;
            for (const int shift : {16, 8, 0, 24}) std::putchar(static_cast<int>(pixel >> shift & 0xFF));
        }
    }
}
