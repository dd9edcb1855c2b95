// The contents of a window: pictures, labels, buttons and so on, as plain data. The game changes the data, and a
// backend draws what has changed.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Key.h"

namespace prismfall {

// 0xBBGGRR: blue in the high byte, red in the low byte.
using Colour = std::uint32_t;

// 0xFFRRGGBB, the pixel format of pictures and surfaces.
constexpr std::uint32_t PixelOf(Colour colour) {
    return 0xFF000000U | (colour & 0x0000FFU) << 16 | (colour & 0x00FF00U) | (colour & 0xFF0000U) >> 16;
}

constexpr Colour kBlack = 0x000000;
constexpr Colour kRed = 0x0000FF;

enum class ElementKind {
    Picture,       // shows `picture`
    Button,        // shows `picture`; plays a sound when pressed and has a click
    PressPicture,  // shows `picture`; gets presses with their position; has no click
    Label,         // shows `text`; ignored by the mouse, which reaches what is beneath it
    RadioButton,   // a round mark when `checked`, then `text`; has a click, takes fast presses
    CheckBox,      // a square mark when `checked`, then `text`; has a click, takes fast presses
    GroupFrame,    // a frame with `text` in its upper edge
    Outline,       // a rectangle one pixel thick, not filled
};

struct Font {
    std::string_view family = "Times New Roman";
    float points = 12;
    bool bold = false;
    bool italic = false;

    bool operator==(const Font&) const = default;
};

// A place in a PressPicture that the player is prompted to press, for those who use keys instead of a pointer.
struct PressSpot {
    std::string_view accessibleName = {};  // for screen readers
    float left = 0;                        // in the picture
    float top = 0;
    float width = 0;  // 0 for no spot
    float height = 0;
    bool rightButton = false;  // takes the right mouse button, not the left one

    bool operator==(const PressSpot&) const = default;
};

// A label's place in its window's table, for players who have it read aloud. Row 1 holds the column headings, column 1
// the row headings.
struct TableCell {
    int row = 0;  // 0 for a label that is not in a table
    int column = 0;

    bool operator==(const TableCell&) const = default;
};

// The two pictures of a button.
struct ButtonFaces {
    std::string_view up = {};
    std::string_view down = {};  // while the pointer is over it

    bool operator==(const ButtonFaces&) const = default;
};

// One element of a window. The box is in game pixels of the window's inner area, or of `panel` if there is one, and
// covers x from `left` to below `left + width`. Names, pictures, tags and font families are literals.
struct Element {
    std::string_view name;
    ElementKind kind = ElementKind::Picture;
    float left = 0;
    float top = 0;
    int width = 0;
    int height = 0;
    bool visible = true;
    bool enabled = true;                   // a disabled element is ignored by the mouse
    bool fastPresses = false;              // the second press of a double click is a press as well
    std::string_view picture = {};         // name of the picture it shows, empty for none
    std::string_view accessibleName = {};  // for screen readers, read before the text; empty for decoration
    std::string text = {};                 // starts at the top left corner; what does not fit is cut off
    ButtonFaces faces = {};                // of a Button: what `picture` alternates between
    std::string_view tag = {};             // which of several meanings a button currently has
    Colour colour = kBlack;                // of text, marks and outlines
    std::optional<Colour> ground = {};     // the background of a label; without one, what is below shows through
    Font font = {};
    bool wraps = false;                   // break the text into lines at the box's right edge
    int fitHeight = 0;                    // if above 0, the text is made smaller if it would not fit this height
    bool checked = false;                 // radio buttons and check boxes
    std::string_view group = {};          // only one radio button of a group is checked
    std::array<PressSpot, 2> spots = {};  // of a PressPicture
    Key shortcut = Key::None;             // the key that clicks it; Enter for the OK of a dialog
    TableCell cell = {};                  // of a label
    const Element* panel = nullptr;       // the element that contains this one and hides it when hidden

    bool operator==(const Element&) const = default;
};

inline void ShowNumber(Element& label, int number) { label.text = std::to_string(number); }

// The top left corner of the element's box in its window.
inline float LeftInWindow(const Element& element) {
    return element.left + (element.panel != nullptr ? element.panel->left : 0);
}
inline float TopInWindow(const Element& element) {
    return element.top + (element.panel != nullptr ? element.panel->top : 0);
}

inline bool IsShown(const Element& element) {
    return element.visible && (element.panel == nullptr || element.panel->visible);
}

// Labels, and what is hidden or disabled, are ignored by the mouse.
inline bool TakesMouse(const Element& element) {
    return IsShown(element) && element.enabled && element.kind != ElementKind::Label;
}

}  // namespace prismfall
