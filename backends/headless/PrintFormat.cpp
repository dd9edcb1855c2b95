// See PrintFormat.h.
#include "backends/headless/PrintFormat.h"

#include <array>
#include <cstdio>
#include <string_view>

namespace prismfall {

namespace {

struct NamedColour {
    Colour colour;
    std::string_view name;
};

constexpr std::array<NamedColour, 3> kGreys = {{{0x808080, "grey1"}, {0xC0C0C0, "grey2"}, {0xA0A0A0, "grey3"}}};

template <typename Value>
std::string Printed(const char* format, Value value) {
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), format, value);
    return text.data();
}

}  // namespace

std::string ColourName(Colour colour) {
    for (const NamedColour& grey : kGreys)
        if (grey.colour == colour) return std::string(grey.name);
    return Printed("0x%06X", colour);
}

std::string DialogTitle(Window& dialog) {
    const Element* message = dialog.Find("ImageMessage");
    std::string name(dialog.name);
    if (message == nullptr) return name;
    return name + (message->picture == "PuzzleSolved" ? " solved" : " failed");
}

std::string ShortNumber(double number) { return Printed("%.6g", number); }

}  // namespace prismfall
