#include "screens/ButtonFaces.h"

#include <algorithm>
#include <utility>

#include "audio/SoundEffects.h"

namespace prismfall {

namespace {

void ResetFaces(Window& dialog, std::span<const ButtonRow> buttons) {
    for (const ButtonRow& row : buttons) dialog[row.button].picture = row.up;
}

void ShowDownFace(Element& element, std::span<const ButtonRow> buttons) {
    if (const ButtonRow* row = FindRow(buttons, element.name)) element.picture = row->down;
}

}  // namespace

const ButtonRow* FindRow(std::span<const ButtonRow> buttons, std::string_view button) {
    const auto row = std::ranges::find(buttons, button, &ButtonRow::button);
    return row == buttons.end() ? nullptr : &*row;
}

void PressElement(const VMain& main, const Element& element) {
    if (element.kind == ElementKind::Button) PlaySound2(main, kSoundButton, true);
}

void WireDialog(VMain& main, Window& dialog, std::span<const ButtonRow> buttons, std::function<void(Element&)> other) {
    dialog.on.activate = [&dialog, buttons] { ResetFaces(dialog, buttons); };
    dialog.on.mouseMove = [&dialog, buttons](float, float) { ResetFaces(dialog, buttons); };
    dialog.on.elementMove = [buttons](Element& element) { ShowDownFace(element, buttons); };
    dialog.on.elementDown = [&main](Element& element, MouseButton, float, float) { PressElement(main, element); };
    dialog.on.elementClick = [&main, buttons, other = std::move(other)](Element& element) {
        if (const ButtonRow* row = FindRow(buttons, element.name)) return row->click(main);
        if (other) other(element);
    };
}

}  // namespace prismfall
