#include "screens/Options.h"

#include <array>
#include <string>
#include <utility>

#include "screens/MainElements.h"

namespace prismfall {

namespace {

constexpr std::array<std::string_view, 10> kLevelOptions = {"Option1", "Option2", "Option3", "Option4", "Option5",
                                                            "Option6", "Option7", "Option8", "Option9", "Option10"};
constexpr int kFirstOptionY = 40;
constexpr int kOptionStep = 24;

// Called by the OK button.
void ApplyLevel(Window& dialog, Settings& settings) {
    for (std::size_t i = 0; i < kLevelOptions.size(); ++i) {
        if (!dialog[kLevelOptions[i]].checked) continue;
        SetStartLevel(settings, static_cast<std::int16_t>(i + 1));
        break;
    }
    dialog.Hide();
}

void SelectOption(Window& dialog, std::string_view option) {
    for (const std::string_view name : kLevelOptions) dialog[name].checked = name == option;
}

// Returns whether the box is checked now.
bool Toggle(Element& box) { return box.checked = !box.checked; }

std::vector<Element> MakeElements() {
    std::vector<Element> table = {MakeOption("Frame1", ElementKind::GroupFrame, 21, 16, 89, 265, "Start Level")};
    for (std::size_t i = 0; i < kLevelOptions.size(); ++i) {
        table.push_back(MakeOption(kLevelOptions[i], ElementKind::RadioButton, 29,
                                   kFirstOptionY + kOptionStep * static_cast<int>(i), 65, 17,
                                   "Level " + std::to_string(i + 1)));
        table.back().group = "Start Level";
    }
    table.push_back(MakeOption("Frame2", ElementKind::GroupFrame, 135, 17, 82, 83, "Sound"));
    table.push_back(MakeOption("CheckSoundEffects", ElementKind::CheckBox, 144, 32, 63, 38, "Effects"));
    table.push_back(MakeOption("CheckMusic", ElementKind::CheckBox, 144, 56, 63, 41, "Music"));
    table.push_back(MakeOkButton("Command1", 142, 238, 73, 49, {"OKOptionsUp", "OKOptionsDown"}));
    return table;
}

// Marks the current settings. If the start level has no button, none is marked.
void Options_Load(Window& dialog, const Settings& settings) {
    for (std::size_t i = 0; i < kLevelOptions.size(); ++i)
        dialog[kLevelOptions[i]].checked = settings.StartLevel == static_cast<std::int16_t>(i + 1);
    dialog["CheckSoundEffects"].checked = settings.SoundEffects;
    dialog["CheckMusic"].checked = settings.Music;
}

std::vector<DialogClick> MakeClicks(std::unique_ptr<Window>& VOptions, Settings& settings,
                                    std::function<void(bool isOn)> setMusic) {
    std::vector<DialogClick> clicks = {
        {"Command1", [&] { ApplyLevel(*VOptions, settings); }},
        {"CheckSoundEffects", [&] { SetSoundEffects(settings, Toggle((*VOptions)["CheckSoundEffects"])); }},
        {"CheckMusic", [&, setMusic = std::move(setMusic)] { setMusic(Toggle((*VOptions)["CheckMusic"])); }}};
    for (const std::string_view option : kLevelOptions)
        clicks.push_back({option, [&VOptions, option] { SelectOption(*VOptions, option); }});
    return clicks;
}

}  // namespace

void ShowOptions(const DialogHost& host, std::unique_ptr<Window>& VOptions, Settings& settings,
                 std::function<void(bool isOn)> setMusic) {
    if (!VOptions) {
        VOptions = MakeDialog(host.audio, "VOptions", "Options", {237, 297}, MakeElements(),
                              MakeClicks(VOptions, settings, std::move(setMusic)));
        Options_Load(*VOptions, settings);
    }
    ShowDialog(host, VOptions);
}

void SetStartLevel(Settings& settings, std::int16_t start) { settings.StartLevel = start; }

void SetSoundEffects(Settings& settings, bool value) { settings.SoundEffects = value; }

}  // namespace prismfall
