// Which keys do what in the main window. Each action has one key, by default the one it is named after.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>

#include "platform/Key.h"

namespace prismfall {

// The actions whose keys can be changed.
constexpr std::array<Key, 7> kActions = {Key::Space, Key::Enter, Key::P, Key::R, Key::PageUp, Key::PageDown, Key::M};

constexpr bool IsLetterOrDigit(Key key) {
    const auto code = static_cast<int>(key);
    return (code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9');
}

constexpr bool CanBeChosen(Key key) {
    return IsLetterOrDigit(key) || std::ranges::find(kActions, key) != kActions.end();
}

struct KeyMap {
    std::array<Key, kActions.size()> keys = kActions;  // no two alike

    // The action of a pressed key. A key that was never an action's stands for itself; one that has lost its action is
    // None.
    constexpr Key Meaning(Key pressed) const {
        const auto found = std::ranges::find(keys, pressed);
        if (found != keys.end()) return kActions[static_cast<std::size_t>(found - keys.begin())];
        return std::ranges::find(kActions, pressed) != kActions.end() ? Key::None : pressed;
    }

    // Gives an action another key. If another action has that key, the two swap.
    constexpr void Give(std::size_t action, Key key) {
        if (const auto former = std::ranges::find(keys, key); former != keys.end()) *former = keys[action];
        keys[action] = key;
    }

    constexpr bool operator==(const KeyMap&) const = default;
};

}  // namespace prismfall
