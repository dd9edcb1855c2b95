#include "backends/web/ShownWindow.h"

#include <algorithm>

#include "platform/NominalFrame.h"

namespace prismfall {

namespace {

page::SpotRecord SpotOf(const PressSpot& spot) {
    const MouseButton button = spot.rightButton ? MouseButton::Right : MouseButton::Left;
    return {spot.left, spot.top, spot.width, spot.height, static_cast<std::int32_t>(button), spot.accessibleName};
}

}  // namespace

ShownWindow::ShownWindow(Window& shown, std::int32_t pageNumber, Place place) : window(shown), number(pageNumber) {
    if (window.isDialog) origin = {place.left + kNominalFrame.left, place.top + kNominalFrame.top};
    page::WindowRecord record;
    record.isDialog = window.isDialog ? 1 : 0;
    record.left = place.left;
    record.top = place.top;
    record.width = window.innerWidth;
    record.height = window.innerHeight;
    record.title = window.title;
    record.background = window.background;
    page::OpenWindow(number, &record);
}

ShownWindow::~ShownWindow() { page::CloseWindow(number); }

void ShownWindow::Refresh() {
    for (std::size_t place = 0; place < window.elements.size(); ++place) {
        const bool isNew = place == sent.size();
        if (!isNew && sent[place] == *window.elements[place]) continue;
        if (isNew) sent.emplace_back();
        sent[place] = *window.elements[place];
        Send(place);
    }
}

void ShownWindow::Send(std::size_t place) const {
    const Element& element = *window.elements[place];
    page::ElementRecord record;
    record.kind = static_cast<std::int32_t>(element.kind);
    const auto panel = std::ranges::find(window.elements, element.panel);
    if (panel != window.elements.end()) record.panel = static_cast<std::int32_t>(panel - window.elements.begin());
    record.visible = element.visible ? 1 : 0;
    record.enabled = element.enabled ? 1 : 0;
    record.checked = element.checked ? 1 : 0;
    record.left = element.left;
    record.top = element.top;
    record.width = element.width;
    record.height = element.height;
    record.colour = element.colour;
    record.ground = element.ground.value_or(page::kNoGround);
    record.points = element.font.points;
    record.bold = element.font.bold ? 1 : 0;
    record.italic = element.font.italic ? 1 : 0;
    record.wraps = element.wraps ? 1 : 0;
    record.fitHeight = element.fitHeight;
    record.row = element.cell.row;
    record.column = element.cell.column;
    record.family = element.font.family;
    record.picture = element.picture;
    record.accessibleName = element.accessibleName;
    record.text = std::string_view(element.text);
    record.group = element.group;
    std::ranges::transform(element.spots, record.spots, SpotOf);
    page::ShowElement(number, static_cast<std::int32_t>(place), &record);
}

}  // namespace prismfall
