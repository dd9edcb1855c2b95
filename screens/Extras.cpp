#include "screens/Extras.h"

#include <algorithm>
#include <array>
#include <string>
#include <utility>

namespace prismfall {

namespace {

constexpr Extent kInner{545, 474};
constexpr int kLineHeight = 22;

// A frame around a group of choices, or of lines.
struct Frame {
    std::string_view name;
    std::string_view title;
    int left, top, width, height;
};

constexpr std::array<Frame, 5> kFrames = {{
    {"FrameLooks", "Looks", 10, 10, 262, 124},
    {"FramePace", "Pace", 10, 140, 262, 122},
    {"FrameSound", "Sound", 10, 268, 262, 110},
    {"FrameKeys", "Keys", 280, 10, 256, 308},
    {"FrameGamepad", "Gamepad", 280, 324, 256, 88},
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

constexpr std::array<Choice, 19> kChoices = {{
    {"Palette", "Colours that everyone can tell apart", 20, 32, 250, &Extras::Palette},
    {"Patterns", "A pattern for each colour", 20, 56, 250, &Extras::Patterns},
    {"Rings", "A ring around the end that a press reaches", 20, 80, 250, &Extras::Rings},
    {"Lively", "Sparks, glows, the way to the next level", 20, 104, 250, &Extras::Lively},
    {"Pace100", "100 %", 20, 164, 58, &Extras::Pace, 100, "Pace"},
    {"Pace80", "80 %", 84, 164, 58, &Extras::Pace, 80, "Pace"},
    {"Pace60", "60 %", 148, 164, 58, &Extras::Pace, 60, "Pace"},
    {"Pace40", "40 %", 212, 164, 58, &Extras::Pace, 40, "Pace"},
    {"SameBeams", "Arcade: the beams of the last game again", 20, 214, 250, &Extras::SameBeams},
    {"PauseAway", "Pause when another window is used", 20, 236, 250, &Extras::PauseAway},
    {"Music100", "100 %", 72, 288, 54, &Extras::MusicVolume, 100, "Music volume"},
    {"Music75", "75 %", 128, 288, 47, &Extras::MusicVolume, 75, "Music volume"},
    {"Music50", "50 %", 176, 288, 47, &Extras::MusicVolume, 50, "Music volume"},
    {"Music25", "25 %", 224, 288, 47, &Extras::MusicVolume, 25, "Music volume"},
    {"Effects100", "100 %", 72, 318, 54, &Extras::EffectsVolume, 100, "Effects volume"},
    {"Effects75", "75 %", 128, 318, 47, &Extras::EffectsVolume, 75, "Effects volume"},
    {"Effects50", "50 %", 176, 318, 47, &Extras::EffectsVolume, 50, "Effects volume"},
    {"Effects25", "25 %", 224, 318, 47, &Extras::EffectsVolume, 25, "Effects volume"},
    {"Mute", "Mute", 20, 348, 250, &Extras::Mute},
}};

struct Line {
    std::string_view name;
    std::string_view text;
    int left, top, width;
};

constexpr std::array<Line, 11> kLines = {{
    {"NotePace", "From the next game on; slower is not ranked.", 20, 190, 250},
    {"NoteMusic", "Music", 20, 290, 50},
    {"NoteEffects", "Effects", 20, 320, 50},
    {"KeyArrows", "Arrows, Tab", 290, 32, 84},
    {"KeyArrowsDo", "choose the end of a beam", 376, 32, 156},
    {"KeyEsc", "Esc", 290, 208, 84},
    {"KeyEscDo", "goes back", 376, 208, 156},
    {"KeyOthers", "F1, F2, F11", 290, 230, 84},
    {"KeyOthersDo", "extras, games, full screen", 376, 230, 156},
    {"KeyQuit", "Ctrl+Q", 290, 252, 84},
    {"KeyQuitDo", "ends the program", 376, 252, 156},
}};

constexpr std::array<Line, 3> kPadLines = {{
    {"PadChoose", "Stick or cross: choose the end of a beam", 290, 346, 240},
    {"PadPress", "A: bend, B: run forward", 290, 368, 240},
    {"PadOthers", "Start: pause, shoulders: turn pages", 290, 390, 240},
}};

// The keys that can be changed, in the order of kActions: a radio button with the key, and what it does.
struct KeyRow {
    std::string_view name;
    std::string_view lineName;
    std::string_view does;
};

constexpr std::array<KeyRow, kActions.size()> kKeyRows = {{
    {"KeyBend", "KeyBendDo", "bends it"},
    {"KeyRun", "KeyRunDo", "runs it forward"},
    {"KeyPause", "KeyPauseDo", "pauses"},
    {"KeyRestart", "KeyRestartDo", "starts, and restarts a puzzle"},
    {"KeyPrevious", "KeyPreviousDo", "the previous page of puzzles"},
    {"KeyNext", "KeyNextDo", "the next page of puzzles"},
    {"KeyMute", "KeyMuteDo", "mutes"},
}};
constexpr int kFirstKeyTop = 54;
constexpr std::string_view kHowToChange = "To change a key, click it and press another.";
constexpr std::string_view kAsks = "Now press the new key.";
constexpr std::string_view kRefuses = "Only letters, digits, Space, Enter and Page keys.";

std::string NameOf(Key key) {
    switch (key) {
        case Key::Space:
            return "Space";
        case Key::Enter:
            return "Enter";
        case Key::PageUp:
            return "Page Up";
        case Key::PageDown:
            return "Page Down";
        default:
            return {static_cast<char>(key)};
    }
}

void AddKeys(std::vector<Element>& table) {
    int top = kFirstKeyTop;
    for (const KeyRow& row : kKeyRows) {
        table.push_back(MakeOption(row.name, ElementKind::RadioButton, 290, top, 86, kLineHeight, {}));
        table.back().group = "Key to change";
        table.push_back(
            MakeOption(row.lineName, ElementKind::Label, 376, top + 2, 158, kLineHeight - 4, std::string(row.does)));
        top += kLineHeight;
    }
    table.push_back(MakeOption("KeyNote", ElementKind::Label, 290, 274, 244, kLineHeight - 4, {}));
    table.back().accessibleName = "Keys:";
    table.push_back(MakeOption("DefaultKeys", ElementKind::CheckBox, 290, 294, 130, kLineHeight, "Default keys"));
}

void AddLines(std::vector<Element>& table, std::span<const Line> lines) {
    table.reserve(table.size() + lines.size());
    for (const Line& line : lines)
        table.push_back(MakeOption(line.name, ElementKind::Label, line.left, line.top, line.width, kLineHeight - 4,
                                   std::string(line.text)));
}

std::vector<Element> MakeElements() {
    std::vector<Element> table;
    table.reserve(std::size(kFrames) + std::size(kChoices));
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
    AddKeys(table);
    AddLines(table, kPadLines);
    table.push_back(MakeOkButton("Command1", 236, 418, 73, 49, {"OKOptionsUp", "OKOptionsDown"}));
    return table;
}

void Mark(Window& dialog, const Extras& extras) {
    for (const Choice& choice : kChoices) dialog[choice.name].checked = extras.*choice.value == choice.number;
    for (std::size_t i = 0; i < kKeyRows.size(); ++i) dialog[kKeyRows[i].name].text = NameOf(extras.Keys.keys[i]);
    dialog["DefaultKeys"].checked = extras.Keys == KeyMap{};
}

// The row of the key being changed, or none.
void AskForKey(Window& dialog, const KeyRow* asked, std::string_view note) {
    for (const KeyRow& row : kKeyRows) dialog[row.name].checked = &row == asked;
    dialog["KeyNote"].text = note;
}

// Takes the new key. Returns whether one was awaited.
bool TakeKey(Window& dialog, KeyMap& keys, Key key) {
    const auto asked = std::ranges::find_if(kKeyRows, [&](const KeyRow& row) { return dialog[row.name].checked; });
    if (asked == kKeyRows.end()) return false;
    AskForKey(dialog, nullptr, CanBeChosen(key) ? kHowToChange : kRefuses);
    if (CanBeChosen(key)) keys.Give(static_cast<std::size_t>(asked - kKeyRows.begin()), key);
    return true;
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
    for (const KeyRow& row : kKeyRows)
        clicks.push_back({row.name, [&VExtras, &row] { AskForKey(*VExtras, &row, kAsks); }});
    clicks.push_back({"DefaultKeys", [&VExtras, &extras, apply] {
                          extras.Keys = {};
                          AskForKey(*VExtras, nullptr, kHowToChange);
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
        VExtras->on.takesKey = [&VExtras, &extras, apply](Key key) {
            if (!TakeKey(*VExtras, extras.Keys, key)) return false;
            Mark(*VExtras, extras);
            apply();
            return true;
        };
        VExtras->on.command = [&VExtras, &extras, apply = std::move(apply)](Key key) {
            if (extras.Keys.Meaning(key) != Key::M) return;
            extras.Mute = extras.Mute == 0 ? 1 : 0;
            Mark(*VExtras, extras);
            apply();
        };
    }
    Mark(*VExtras, extras);
    AskForKey(*VExtras, nullptr, kHowToChange);
    ShowDialog(host, VExtras);
}

}  // namespace prismfall
