// A window as plain data: its size, its elements in stacking order and the handlers that a backend calls when the
// player or the desktop acts on it. What the handlers do belongs to the screens and the game.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Element.h"

namespace prismfall {

// A place on the surface that keys can choose and press.
struct SurfaceSpot {
    const void* what = nullptr;  // identifies it, even after it has moved; only compared
    float x = 0;                 // where to press, game pixels
    float y = 0;
    float width = 0;  // of what is there, around that place; 0 for the head of a beam
    float height = 0;
    std::string accessibleName = {};  // empty for the head of a beam

    bool operator==(const SurfaceSpot&) const = default;
};

struct SurfaceSpots {
    std::vector<SurfaceSpot> list;  // in Tab order
    bool haveKeysAlone = false;     // a game is being played: keys are for the surface, not for the elements
};

// The place in the window that the player has chosen with keys.
struct KeyChoice {
    const void* what = nullptr;  // null for none
    bool isShown = false;        // keys are in use, so the place is marked
    bool isOnSurface = false;    // otherwise it is an element, or a spot on one
    float left = 0;
    float top = 0;
    float width = 0;  // 0 for the head of a beam
    float height = 0;

    bool operator==(const KeyChoice&) const = default;
};

// Where the pointer was last seen in a window.
struct Pointer {
    bool isKnown = false;
    float x = 0;
    float y = 0;
};

// What is shown beside the window's picture where the desktop gives the window more room than that needs.
struct Aside {
    std::string text = {};            // lines, each ends with a line feed except for the last
    std::optional<float> share = {};  // of a bar that is filled, 0 to 1
    bool hasRoom = false;             // set by a backend that shows it

    bool IsEmpty() const { return text.empty() && !share; }
};

// What can be seen of a beam, for what is laid over the picture.
struct SeenBeam {
    const void* what = nullptr;
    float startX = 0;
    float startY = 0;
    float x = 0;  // of its end
    float y = 0;
    Colour colour = kBlack;
    bool isGrowing = false;
    bool isStruck = false;  // it is being destroyed, and has not only hung on one that is
};

enum class MouseButton : std::int16_t { Left = 1, Right = 2 };

constexpr std::int16_t kEscapeKey = 27;

// Called by a backend on the one thread that runs everything. Any of them may be empty. Places are in game pixels:
// of the window's inner area for the window's own events, of the element for an element's.
struct WindowHandlers {
    std::function<void()> activate;                                       // the window has come to the front
    std::function<void()> deactivate;                                     // another program's window gets the focus
    std::function<void(float x, float y)> mouseMove;                      // over the surface, not over an element
    std::function<void(MouseButton button, float x, float y)> mouseDown;  // on the surface
    std::function<void()> doubleClick;  // the second press of a double click, instead of mouseDown
    std::function<void(std::int16_t code)> keyDown;
    std::function<void(SurfaceSpots& spots)> spots;  // adds what keys can choose on the surface now
    std::function<std::optional<SurfaceSpot>(float x, float y)> reached;  // the head that a press would reach
    std::function<bool(Key key)> takesKey;                    // before all else; whether the window has asked for a key
    std::function<void(Key key)> command;                     // a key that is not an element's shortcut
    std::function<void(std::vector<SeenBeam>& beams)> beams;  // adds all that can be seen on the surface
    std::function<bool()> isPaused;                           // a game has been begun and stands still
    std::function<void(bool minimised)> resize;
    std::function<void()> queryUnload;  // the window may be about to close; can come more than once, e.g. when a hidden
                                        // page may never be seen again
    std::function<void()> unload;       // the window closes
    std::function<void(Element&)> elementMove;
    std::function<void(Element&, MouseButton button, float x, float y)> elementDown;
    std::function<void(Element&)> elementClick;  // press and release of the left button on the same element
};

struct Window {
    std::string_view name;
    std::string_view title;
    int innerWidth = 0;  // game pixels
    int innerHeight = 0;
    std::string_view background;  // a picture placed at the top left and cut off at the edges
    bool isDialog = false;        // has a small frame without minimise and maximise buttons
    bool stopsTime = false;  // a dialog outside the game: game time is frozen meanwhile, and recordings leave it out
    bool hasIcon = false;
    bool visible = false;            // set when the backend opens it, cleared by Hide or the close box
    bool takesInput = true;          // if false, only the close box works
    bool isErrorBox = false;         // opened by a backend, and not part of the game
    std::vector<Element*> elements;  // stacking order, later ones on top
    KeyChoice choice;                // see KeyInput.h
    Aside aside;
    Pointer pointer;
    WindowHandlers on;

    Window() = default;
    Window(const Window&) = delete;
    Window& operator=(const Window&) = delete;

    // Takes ownership of the elements and puts them on top. Call once.
    void Own(std::vector<Element> table) {
        owned = std::move(table);
        for (Element& element : owned) elements.push_back(&element);
    }

    // Ends an open dialog's ShowModally when the calling handler returns.
    void Hide() { visible = false; }

    // The element of that name, or null.
    Element* Find(std::string_view elementName) {
        for (Element* element : elements)
            if (element->name == elementName) return element;
        return nullptr;
    }

    // The element of that name. If there is none, the program ends here, with a line on standard error.
    Element& operator[](std::string_view elementName) {
        if (Element* element = Find(elementName)) return *element;
        std::fprintf(stderr, "no element %.*s\n", static_cast<int>(elementName.size()), elementName.data());
        std::abort();
    }

    // The topmost element at a place that takes the mouse, or null if that is the surface.
    Element* ElementAt(float x, float y) {
        const auto covers = [x, y](const Element* element) { return Covers(*element, x, y); };
        const auto topmost = std::find_if(elements.rbegin(), elements.rend(), covers);
        return topmost == elements.rend() ? nullptr : *topmost;
    }

  private:
    static bool Covers(const Element& element, float x, float y) {
        if (!TakesMouse(element)) return false;
        const float left = LeftInWindow(element);
        const float top = TopInWindow(element);
        return x >= left && x < left + static_cast<float>(element.width) && y >= top &&
               y < top + static_cast<float>(element.height);
    }

    std::vector<Element> owned;
};

inline bool HasClick(const Element& element) {
    return element.kind == ElementKind::Button || element.kind == ElementKind::RadioButton ||
           element.kind == ElementKind::CheckBox;
}

}  // namespace prismfall
