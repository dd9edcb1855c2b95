#include "screens/Options.h"

#include <array>
#include <string>
#include <utility>

#include "audio/Music.h"
#include "audio/SoundEffects.h"
#include "screens/ButtonFaces.h"
#include "screens/Dialogs.h"

namespace prismfall {

namespace {

constexpr std::array<std::string_view, 10> kLevelOptions = {"Option1", "Option2", "Option3", "Option4", "Option5",
                                                            "Option6", "Option7", "Option8", "Option9", "Option10"};
constexpr int kFirstOptionY = 40;
constexpr int kOptionStep = 24;

constexpr float kFramePoints = 12;
constexpr float kOptionPoints = 9.75F;

// The OK button.
void ApplyLevel(VMain& main) {
    Window& dialog = *main.VOptions;
    for (std::size_t i = 0; i < kLevelOptions.size(); ++i) {
        if (!dialog[kLevelOptions[i]].checked) continue;
        SetStartLevel(main, static_cast<std::int16_t>(i + 1));
        break;
    }
    dialog.Hide();
}

constexpr std::array<ButtonRow, 1> kButtons = {{{"Command1", "OKOptionsUp", "OKOptionsDown", ApplyLevel}}};

void CheckSoundEffects_Click(VMain& main) { SetSoundEffects(main, (*main.VOptions)["CheckSoundEffects"].checked); }

void CheckMusic_Click(VMain& main) { SetMusic(main, (*main.VOptions)["CheckMusic"].checked); }

void SelectOption(Window& dialog, const Element& option) {
    for (const std::string_view name : kLevelOptions) dialog[name].checked = name == option.name;
}

void ToggleOrSelect(VMain& main, Element& element) {
    if (element.kind == ElementKind::RadioButton) return SelectOption(*main.VOptions, element);
    element.checked = !element.checked;
    if (element.name == "CheckMusic") {
        CheckMusic_Click(main);
    } else {
        CheckSoundEffects_Click(main);
    }
}

Element MakeElement(std::string_view name, ElementKind kind, int left, int top, int width, int height,
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

std::vector<Element> MakeElements() {
    std::vector<Element> table = {MakeElement("Frame1", ElementKind::GroupFrame, 21, 16, 89, 265, "Start Level")};
    for (std::size_t i = 0; i < kLevelOptions.size(); ++i) {
        table.push_back(MakeElement(kLevelOptions[i], ElementKind::RadioButton, 29,
                                    kFirstOptionY + kOptionStep * static_cast<int>(i), 65, 17,
                                    "Level " + std::to_string(i + 1)));
        table.back().group = "Start Level";
    }
    table.push_back(MakeElement("Frame2", ElementKind::GroupFrame, 135, 17, 82, 83, "Sound"));
    table.push_back(MakeElement("CheckSoundEffects", ElementKind::CheckBox, 144, 32, 63, 38, "Effects"));
    table.push_back(MakeElement("CheckMusic", ElementKind::CheckBox, 144, 56, 63, 41, "Music"));
    table.push_back(MakeButton("Command1", 142, 238, 73, 49, "OKOptionsUp", "OK"));
    return table;
}

// Marks what the state holds. A start level that no button stands for is not marked.
void Options_Load(VMain& main) {
    Window& dialog = *main.VOptions;
    for (std::size_t i = 0; i < kLevelOptions.size(); ++i)
        dialog[kLevelOptions[i]].checked = main.StartLevel == static_cast<std::int16_t>(i + 1);
    dialog["CheckSoundEffects"].checked = main.SoundEffects;
    dialog["CheckMusic"].checked = main.Music;
}

void MakeOptions(VMain& main) {
    main.VOptions = MakeDialog("VOptions", "Options", 237, 297);
    main.VOptions->Own(MakeElements());
    WireDialog(main, *main.VOptions, kButtons, [&main](Element& element) { ToggleOrSelect(main, element); });
    Options_Load(main);
}

}  // namespace

void ShowOptions(VMain& main) {
    if (!main.VOptions) MakeOptions(main);
    ShowDialog(main, main.VOptions);
}

void SetStartLevel(VMain& main, std::int16_t start) { main.StartLevel = start; }

}  // namespace prismfall
