#include "screens/Extras.h"

#include <array>
#include <string>
#include <utility>

namespace prismfall {

namespace {

constexpr Extent kInner{545, 424};
constexpr int kLineHeight = 22;

// A frame around a group of choices, or of lines.
struct Frame {
    std::string_view name;
    std::string_view title;
    int left, top, width, height;
};

constexpr std::array<Frame, 5> kFrames = {{
    {"FrameLooks", "Looks", 10, 10, 262, 100},
    {"FramePace", "Pace", 10, 116, 262, 122},
    {"FrameSound", "Sound", 10, 244, 262, 110},
    {"FrameKeys", "Keys", 280, 10, 256, 246},
    {"FrameGamepad", "Gamepad", 280, 264, 256, 88},
}};

// A check box is set if its value is 1; in a group of radio buttons, the one whose number is the value is set.
struct Choice {
    std::string_view name;
    std::string_view text;
    int left, top, width;
    std::int16_t Extras::*value;
    std::int16_t number = 1;
    std::string_view group = {};
};

constexpr std::array<Choice, 18> kChoices = {{
    {"Palette", "Colours that everyone can tell apart", 20, 32, 250, &Extras::Palette},
    {"Patterns", "A pattern for each colour", 20, 56, 250, &Extras::Patterns},
    {"Rings", "A ring around the end that a press reaches", 20, 80, 250, &Extras::Rings},
    {"Pace100", "100 %", 20, 140, 58, &Extras::Pace, 100, "Pace"},
    {"Pace80", "80 %", 84, 140, 58, &Extras::Pace, 80, "Pace"},
    {"Pace60", "60 %", 148, 140, 58, &Extras::Pace, 60, "Pace"},
    {"Pace40", "40 %", 212, 140, 58, &Extras::Pace, 40, "Pace"},
    {"SameBeams", "Arcade: the beams of the last game again", 20, 190, 250, &Extras::SameBeams},
    {"PauseAway", "Pause when another window is used", 20, 212, 250, &Extras::PauseAway},
    {"Music100", "100 %", 72, 264, 54, &Extras::MusicVolume, 100, "Music volume"},
    {"Music75", "75 %", 128, 264, 47, &Extras::MusicVolume, 75, "Music volume"},
    {"Music50", "50 %", 176, 264, 47, &Extras::MusicVolume, 50, "Music volume"},
    {"Music25", "25 %", 224, 264, 47, &Extras::MusicVolume, 25, "Music volume"},
    {"Effects100", "100 %", 72, 294, 54, &Extras::EffectsVolume, 100, "Effects volume"},
    {"Effects75", "75 %", 128, 294, 47, &Extras::EffectsVolume, 75, "Effects volume"},
    {"Effects50", "50 %", 176, 294, 47, &Extras::EffectsVolume, 50, "Effects volume"},
    {"Effects25", "25 %", 224, 294, 47, &Extras::EffectsVolume, 25, "Effects volume"},
    {"Mute", "Mute (M)", 20, 324, 250, &Extras::Mute},
}};

struct Line {
    std::string_view name;
    std::string_view text;
    int left, top, width;
};

constexpr std::array<Line, 23> kLines = {{
    {"NotePace", "From the next game on; slower is not ranked.", 20, 166, 250},
    {"NoteMusic", "Music", 20, 266, 50},
    {"NoteEffects", "Effects", 20, 296, 50},
    {"KeyArrows", "Arrows, Tab", 290, 32, 84},
    {"KeyArrowsDo", "choose the end of a beam", 376, 32, 156},
    {"KeySpace", "Space", 290, 54, 84},
    {"KeySpaceDo", "bends it", 376, 54, 156},
    {"KeyEnter", "Enter", 290, 76, 84},
    {"KeyEnterDo", "runs it forward; OK", 376, 76, 156},
    {"KeyP", "P", 290, 98, 84},
    {"KeyPDo", "pauses", 376, 98, 156},
    {"KeyR", "R", 290, 120, 84},
    {"KeyRDo", "starts, and restarts a puzzle", 376, 120, 156},
    {"KeyPages", "Page Up, Down", 290, 142, 84},
    {"KeyPagesDo", "turn the pages of puzzles", 376, 142, 156},
    {"KeyM", "M", 290, 164, 84},
    {"KeyMDo", "mutes", 376, 164, 156},
    {"KeyEsc", "Esc", 290, 186, 84},
    {"KeyEscDo", "goes back", 376, 186, 156},
    {"KeyOthers", "F1, F2, F11", 290, 208, 84},
    {"KeyOthersDo", "extras, games, full screen", 376, 208, 156},
    {"KeyQuit", "Ctrl+Q", 290, 230, 84},
    {"KeyQuitDo", "ends the program", 376, 230, 156},
}};

constexpr std::array<Line, 3> kPadLines = {{
    {"PadChoose", "Stick or cross: choose the end of a beam", 290, 286, 240},
    {"PadPress", "A: bend, B: run forward", 290, 308, 240},
    {"PadOthers", "Start: pause, shoulders: turn pages", 290, 330, 240},
}};

void AddLines(std::vector<Element>& table, std::span<const Line> lines) {
    table.reserve(table.size() + lines.size());
    for (const Line& line : lines)
        table.push_back(MakeOption(line.name, ElementKind::Label, line.left, line.top, line.width, kLineHeight - 4,
                                   std::string(line.text)));
}

std::vector<Element> MakeElements() {
    std::vector<Element> table;
    table.reserve(kFrames.size() + kChoices.size());
    for (const Frame& frame : kFrames)
        table.push_back(MakeOption(frame.name, ElementKind::GroupFrame, frame.left, frame.top, frame.width,
                                   frame.height, std::string(frame.title)));
    for (const Choice& choice : kChoices) {
        const ElementKind kind = choice.group.empty() ? ElementKind::CheckBox : ElementKind::RadioButton;
        table.push_back(MakeOption(choice.name, kind, choice.left, choice.top, choice.width, kLineHeight,
                                   std::string(choice.text)));
        table.back().group = choice.group;
    }
    AddLines(table, kLines);
    AddLines(table, kPadLines);
    table.push_back(MakeOkButton("Command1", 236, 364, 73, 49, {"OKOptionsUp", "OKOptionsDown"}));
    return table;
}

void Mark(Window& dialog, const Extras& extras) {
    for (const Choice& choice : kChoices) dialog[choice.name].checked = extras.*choice.value == choice.number;
}

// Clicking toggles a check box and sets a radio button.
void Take(const Choice& choice, Extras& extras) {
    std::int16_t& value = extras.*choice.value;
    value = choice.group.empty() && value == choice.number ? std::int16_t{0} : choice.number;
}

std::vector<DialogClick> MakeClicks(std::unique_ptr<Window>& VExtras, Extras& extras,
                                    const std::function<void()>& apply) {
    std::vector<DialogClick> clicks = {{"Command1", [&VExtras] { VExtras->Hide(); }}};
    for (const Choice& choice : kChoices)
        clicks.push_back({choice.name, [&VExtras, &extras, &choice, apply] {
                              Take(choice, extras);
                              Mark(*VExtras, extras);
                              apply();
                          }});
    return clicks;
}

}  // namespace

void ShowExtras(const DialogHost& host, std::unique_ptr<Window>& VExtras, Extras& extras, std::function<void()> apply) {
    if (!VExtras) {
        VExtras =
            MakeDialog(host.audio, "VExtras", "Extras", kInner, MakeElements(), MakeClicks(VExtras, extras, apply));
        VExtras->stopsTime = true;
        VExtras->on.command = [&VExtras, &extras, apply = std::move(apply)](Key key) {
            if (key != Key::M) return;
            extras.Mute = extras.Mute == 0 ? 1 : 0;
            Mark(*VExtras, extras);
            apply();
        };
    }
    Mark(*VExtras, extras);
    ShowDialog(host, VExtras);
}

}  // namespace prismfall
