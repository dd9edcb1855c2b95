// What all buttons of all windows have in common: a button shows one of two pictures, the brighter one while the
// pointer is over it, and sounds when it is pressed, before its click.
#pragma once

#include <span>
#include <string_view>

#include "state/VMain.h"

namespace prismfall {

struct ButtonRow {
    std::string_view button;
    std::string_view up;
    std::string_view down;  // while the pointer is over it
    void (*click)(VMain& main);
};

// The row of a button, or nothing for an element that is not in the table.
const ButtonRow* FindRow(std::span<const ButtonRow> buttons, std::string_view button);

// The press sound of a button, at any mouse button. The click comes when it has ended.
void PressElement(const VMain& main, const Element& element);

// Gives a dialog's buttons their faces, sounds and clicks. `buttons` is a constant table, in the order of its reset:
// the dialog's coming up and the pointer on its ground put all Up pictures back. A click on any other element goes to
// `other`, which may be left out.
void WireDialog(VMain& main, Window& dialog, std::span<const ButtonRow> buttons,
                std::function<void(Element&)> other = {});

}  // namespace prismfall
