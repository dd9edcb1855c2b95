#include "screens/Dialogs.h"

#include <algorithm>
#include <utility>

#include "audio/SoundEffects.h"
#include "screens/MainElements.h"

namespace prismfall {

namespace {

constexpr float kFramePoints = 12;
constexpr float kOptionPoints = 9.75F;

}  // namespace

void ResetFaces(Window& window) {
    for (Element* element : window.elements)
        if (element->kind == ElementKind::Button) element->picture = element->faces.up;
}

void ShowDownFace(Element& element) {
    if (element.kind == ElementKind::Button) element.picture = element.faces.down;
}

void PressElement(const Audio& audio, const Element& element) {
    if (element.kind == ElementKind::Button) PlaySound2(audio, Sound::Button, true);
}

Element MakeOkButton(std::string_view name, int left, int top, int width, int height, ButtonFaces faces) {
    Element button = MakeButton(name, left, top, width, height, faces, "OK");
    button.shortcut = Key::Enter;
    return button;
}

Element MakeOption(std::string_view name, ElementKind kind, int left, int top, int width, int height,
                   std::string text) {
    return {.name = name,
            .kind = kind,
            .left = static_cast<float>(left),
            .top = static_cast<float>(top),
            .width = width,
            .height = height,
            .text = std::move(text),
            .colour = kPaleYellow,
            .ground = kBlack,
            .font = {.points = kind == ElementKind::GroupFrame ? kFramePoints : kOptionPoints}};
}

std::unique_ptr<Window> MakeDialog(const Audio& audio, std::string_view name, std::string_view title, Extent inner,
                                   std::vector<Element> elements, std::vector<DialogClick> clicks) {
    auto made = std::make_unique<Window>();
    Window& dialog = *made;
    dialog.name = name;
    dialog.title = title;
    dialog.innerWidth = inner.width;
    dialog.innerHeight = inner.height;
    dialog.background = "DialogBackground";
    dialog.isDialog = true;
    dialog.Own(std::move(elements));
    dialog.on.activate = [&dialog] { ResetFaces(dialog); };
    dialog.on.mouseMove = [&dialog](float, float) { ResetFaces(dialog); };
    dialog.on.elementMove = ShowDownFace;
    dialog.on.elementDown = [&audio](Element& element, MouseButton, float, float) { PressElement(audio, element); };
    dialog.on.elementClick = [clicks = std::move(clicks)](const Element& element) {
        const auto click = std::ranges::find(clicks, element.name, &DialogClick::element);
        if (click != clicks.end()) click->act();
    };
    return made;
}

void ShowDialog(const DialogHost& host, std::unique_ptr<Window>& dialog) {
    WindowHost& desktop = host.desktop;
    const Extent mainSize = desktop.OuterSize(host.mainWindow);
    const int frameHeight = mainSize.height - desktop.InnerSize(host.mainWindow).height;
    const Place corner = desktop.Position(host.mainWindow);
    const int aside = (mainSize.width - desktop.OuterSize(*dialog).width) / 2;
    desktop.SetPosition(*dialog, {corner.left + aside, corner.top + frameHeight});
    const bool wasHidden = desktop.ShowModally(*dialog);
    if (!wasHidden) dialog.reset();
}

}  // namespace prismfall
