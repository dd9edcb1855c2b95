// A window as plain data: its size, its elements in stacking order and the handlers that a backend calls when the
// player or the desktop acts on it. What the handlers do belongs to the screens and the game.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <string_view>
#include <vector>

#include "platform/Element.h"

namespace prismfall {

enum class MouseButton : std::int16_t { Left = 1, Right = 2 };

constexpr std::int16_t kEscapeKey = 27;

// Called by a backend on the one thread that runs everything. Any of them may be empty. Places are in game pixels:
// of the window's inner area for the window's own events, of the element for an element's.
struct WindowHandlers {
    std::function<void()> activate;                                       // the window has come to the front
    std::function<void(float x, float y)> mouseMove;                      // over the surface, not over an element
    std::function<void(MouseButton button, float x, float y)> mouseDown;  // on the surface
    std::function<void()> doubleClick;  // the second press of a double click, in place of mouseDown
    std::function<void(std::int16_t code)> keyDown;
    std::function<void(bool minimised)> resize;
    std::function<void()> queryUnload;  // the window may be about to close; can come more than once, as where a hidden
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
    std::string_view background;  // a picture laid at the top left and cut off at the edges
    bool isDialog = false;        // a small frame without minimise and maximise boxes
    bool hasIcon = false;
    bool visible = false;            // set when the backend opens it, cleared by Hide or the close box
    bool takesInput = true;          // if false, only the close box works
    bool isErrorBox = false;         // opened by a backend, and no part of the game
    std::vector<Element*> elements;  // stacking order, later ones on top
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

    // The element of that name. The program ends here, with a line on standard error, if there is none.
    Element& operator[](std::string_view elementName) {
        if (Element* element = Find(elementName)) return *element;
        std::fprintf(stderr, "no element %.*s\n", static_cast<int>(elementName.size()), elementName.data());
        std::abort();
    }

    // The topmost element at a place that takes the mouse, or null for the surface.
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
