#include "platform/KeyInput.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>
#include <vector>

namespace prismfall {

namespace {

constexpr float kFollowReach = 4;  // game pixels; after a bend the new head is at most this far away
constexpr float kAsideWeight = 2;  // how much more a pixel sideways counts than one in the arrow's direction

// Something that can be chosen and pressed.
struct Target {
    KeyChoice place;
    Element* element = nullptr;  // null for a place on the surface
    MouseButton button = MouseButton::Left;
    bool isSpot = false;  // of the element, which is pressed at that spot
};

struct Targets {
    std::vector<Target> list;  // in Tab order
    bool haveKeysAlone = false;
};

float MiddleX(const KeyChoice& place) { return place.left + place.width / 2; }
float MiddleY(const KeyChoice& place) { return place.top + place.height / 2; }

void AddSurface(const Window& window, Targets& targets) {
    if (!window.on.spots) return;
    SurfaceSpots spots;
    window.on.spots(spots);
    targets.haveKeysAlone = spots.haveKeysAlone;
    for (const SurfaceSpot& spot : spots.list)
        targets.list.push_back({.place = {.what = spot.what,
                                          .isOnSurface = true,
                                          .left = spot.x - spot.width / 2,
                                          .top = spot.y - spot.height / 2,
                                          .width = spot.width,
                                          .height = spot.height}});
}

void AddSpots(Element& element, Targets& targets) {
    for (const PressSpot& spot : element.spots) {
        if (spot.width == 0) continue;
        targets.list.push_back({.place = {.what = &spot,
                                          .left = LeftInWindow(element) + spot.left,
                                          .top = TopInWindow(element) + spot.top,
                                          .width = spot.width,
                                          .height = spot.height},
                                .element = &element,
                                .button = spot.rightButton ? MouseButton::Right : MouseButton::Left,
                                .isSpot = true});
    }
}

void AddControl(Element& element, Targets& targets) {
    targets.list.push_back({.place = {.what = &element,
                                      .left = LeftInWindow(element),
                                      .top = TopInWindow(element),
                                      .width = static_cast<float>(element.width),
                                      .height = static_cast<float>(element.height)},
                            .element = &element});
}

// Pictures that prompt for a press come first, since the game is waiting for it.
Targets TargetsOf(const Window& window, KeyReach reach) {
    Targets targets;
    AddSurface(window, targets);
    if (targets.haveKeysAlone || reach == KeyReach::Surface) return targets;
    for (Element* element : window.elements)
        if (TakesMouse(*element)) AddSpots(*element, targets);
    for (Element* element : window.elements)
        if (TakesMouse(*element) && HasClick(*element)) AddControl(*element, targets);
    return targets;
}

float Distance(const KeyChoice& a, const KeyChoice& b) {
    return std::hypot(MiddleX(a) - MiddleX(b), MiddleY(a) - MiddleY(b));
}

// The previously chosen target, or the one that continues it.
const Target* Chosen(const Targets& targets, const KeyChoice& choice) {
    if (choice.what == nullptr) return nullptr;
    const std::vector<Target>& list = targets.list;
    const auto same = std::ranges::find(list, choice.what, [](const Target& target) { return target.place.what; });
    if (same != list.end()) return &*same;
    if (!choice.isOnSurface) return nullptr;
    const auto near = std::ranges::find_if(list, [&choice](const Target& target) {
        return target.place.isOnSurface && Distance(target.place, choice) <= kFollowReach;
    });
    return near == list.end() ? nullptr : &*near;
}

void Choose(Window& window, const Target* target) {
    const bool isShown = window.choice.isShown;
    window.choice = target != nullptr ? target->place : KeyChoice{};
    window.choice.isShown = isShown;
}

struct Arrow {
    Key key;
    float x;
    float y;
};

constexpr std::array<Arrow, 4> kArrows = {
    {{Key::Left, -1, 0}, {Key::Right, 1, 0}, {Key::Up, 0, -1}, {Key::Down, 0, 1}}};

// The nearest target in an arrow's direction, or null.
const Target* NextThatWay(const Targets& targets, const KeyChoice& from, const Arrow& arrow) {
    const Target* next = nullptr;
    float best = 0;
    for (const Target& target : targets.list) {
        const float x = MiddleX(target.place) - MiddleX(from);
        const float y = MiddleY(target.place) - MiddleY(from);
        const float ahead = x * arrow.x + y * arrow.y;
        const float cost = ahead + kAsideWeight * std::abs(x * arrow.y + y * arrow.x);
        if (ahead <= 0 || (next != nullptr && cost >= best)) continue;
        best = cost;
        next = &target;
    }
    return next;
}

const Target* NextInOrder(const Targets& targets, const Target* from, Key key) {
    const std::size_t count = targets.list.size();
    const auto place = static_cast<std::size_t>(from - targets.list.data());
    const std::size_t steps = key == Key::Tab ? 1 : count - 1;
    return &targets.list[(place + steps) % count];
}

// Moves the choice; if there is none, it starts at the first target.
void MoveChoice(Window& window, const Targets& targets, const Target* chosen, Key key) {
    if (targets.list.empty()) return Choose(window, nullptr);
    if (chosen == nullptr) return Choose(window, &targets.list.front());
    if (key == Key::Tab || key == Key::ShiftTab) return Choose(window, NextInOrder(targets, chosen, key));
    const auto arrow = std::ranges::find(kArrows, key, &Arrow::key);
    const Target* next = NextThatWay(targets, chosen->place, *arrow);
    Choose(window, next != nullptr ? next : chosen);
}

void PressTarget(const WindowInput& input, Window& window, const Target& target, Key key) {
    const float x = MiddleX(target.place);
    const float y = MiddleY(target.place);
    if (target.element == nullptr)
        return input.PressSurface(window, key == Key::Space ? MouseButton::Left : MouseButton::Right, x, y);
    if (!target.isSpot) return input.PressAndClick(window, *target.element);
    input.PressOn(window, *target.element, target.button, x - LeftInWindow(*target.element),
                  y - TopInWindow(*target.element));
}

// Whether an element had the key as its shortcut.
bool ClickShortcut(const WindowInput& input, const Window& window, Key key) {
    const auto element = std::ranges::find_if(window.elements, [key](const Element* candidate) {
        return candidate->shortcut == key && TakesMouse(*candidate);
    });
    if (element == window.elements.end()) return false;
    input.PressAndClick(window, **element);
    return true;
}

// Enter on a mark that can be set is the window's OK.
bool IsMark(const Target* chosen) {
    return chosen != nullptr && chosen->element != nullptr && !chosen->isSpot &&
           chosen->element->kind != ElementKind::Button;
}

void PressChosen(const WindowInput& input, Window& window, const Targets& targets, const Target* chosen, Key key) {
    const bool isMarked = window.choice.isShown;
    if (key == Key::Enter && (chosen == nullptr || !isMarked || IsMark(chosen)) && ClickShortcut(input, window, key))
        return;
    window.choice.isShown = true;
    if (chosen == nullptr) return MoveChoice(window, targets, chosen, key);
    if (isMarked) PressTarget(input, window, *chosen, key);
}

bool IsMove(Key key) {
    return key == Key::Tab || key == Key::ShiftTab || std::ranges::find(kArrows, key, &Arrow::key) != kArrows.end();
}

}  // namespace

void PressKey(const WindowInput& input, Window& window, Key key, KeyReach reach) {
    if (!input.HasInput(window)) return;
    if (window.on.takesKey && window.on.takesKey(key)) return;
    if (!IsMove(key) && key != Key::Space && key != Key::Enter) {
        if (!ClickShortcut(input, window, key) && window.on.command) window.on.command(key);
        return;
    }
    const Targets targets = TargetsOf(window, reach);
    const Target* chosen = Chosen(targets, window.choice);
    if (!IsMove(key)) return PressChosen(input, window, targets, chosen, key);
    window.choice.isShown = true;
    MoveChoice(window, targets, chosen, key);
}

void FollowChoice(Window& window, KeyReach reach) {
    if (window.choice.what == nullptr) return;
    const Targets targets = TargetsOf(window, reach);
    Choose(window, Chosen(targets, window.choice));
}

void NotePointer(Window& window, float x, float y) {
    window.choice.isShown = false;
    window.pointer = {true, x, y};
}

KeyChoice PlaceToMark(Window& window, bool ringsAtPointer) {
    if (window.choice.isShown) return window.choice;
    const Pointer& pointer = window.pointer;
    if (!ringsAtPointer || !pointer.isKnown || !window.on.reached) return {};
    if (window.ElementAt(pointer.x, pointer.y) != nullptr) return {};
    const std::optional<SurfaceSpot> spot = window.on.reached(pointer.x, pointer.y);
    if (!spot) return {};
    return {.what = spot->what, .isShown = true, .isOnSurface = true, .left = spot->x, .top = spot->y};
}

}  // namespace prismfall
