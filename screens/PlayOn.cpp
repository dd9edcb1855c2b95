#include "screens/PlayOn.h"

#include <array>

namespace prismfall {

namespace {

struct Line {
    std::string_view name;
    std::string_view text;
};

constexpr std::array<Line, 3> kLines = {{
    {"Line1", "From here on you play."},
    {"Line2", "This game enters no table, and a puzzle that"},
    {"Line3", "it solves does not count as solved."},
}};

constexpr Extent kInner{300, 150};
constexpr int kMargin = 20;
constexpr int kLineStep = 22;

std::vector<Element> MakeElements() {
    std::vector<Element> table;
    int top = kMargin;
    for (const Line& line : kLines) {
        table.push_back(MakeOption(line.name, ElementKind::Label, kMargin, top, kInner.width - 2 * kMargin, kLineStep,
                                   std::string(line.text)));
        top += kLineStep;
    }
    table.push_back(MakeOkButton("Command1", 113, 92, 73, 49, {"OKOptionsUp", "OKOptionsDown"}));
    return table;
}

}  // namespace

bool AgreeToPlayOn(const DialogHost& host) {
    std::unique_ptr<Window> dialog;
    dialog = MakeDialog(host.audio, "VPlayOn", "Play on", kInner, MakeElements(),
                        {{"Command1", [&dialog] { dialog->Hide(); }}});
    dialog->stopsTime = true;
    ShowDialog(host, dialog);
    return dialog != nullptr;
}

}  // namespace prismfall
