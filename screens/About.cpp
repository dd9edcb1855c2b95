#include "screens/About.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "screens/MainElements.h"

namespace prismfall {

namespace {

enum class Style { Plain, Bold, Italic };

struct Text {
    std::string_view name;
    int left, top, width, height;
    float points;
    Style style;
    Colour colour;
    std::string_view text;
    bool wraps = false;
};

constexpr std::string_view kObjective =
    "Bend the beams by clicking on their ends. When beams of the same color collide they are destroyed. You can make "
    "them go faster with Mouse Right button. Hurry up before they reach the ground! In Puzzle mode all beams must be "
    "destroyed.";
constexpr int kObjectiveHeight = 74;  // from Label11's top to above the lower edge of Shape1
constexpr std::string_view kDoubling = "The score is doubled for each additional beam in a single collition";

constexpr std::array<Text, 20> kTexts = {{
    {"Label1", 22, 20, 139, 21, 12, Style::Bold, kPaleGreen, "Prismfall v1.1"},
    {"Label2", 62, 52, 134, 17, 11.25F, Style::Plain, kPaleGreen, "Published in 2026"},
    {"Label22", 22, 98, 125, 17, 11.25F, Style::Bold, kPaleYellow, "OBJECTIVE"},
    {"Label11", 22, 120, 365, 85, 11.25F, Style::Plain, kPaleYellow, kObjective, true},
    {"Label16", 22, 214, 81, 17, 11.25F, Style::Bold, kPaleGreen, "CONTROL"},
    {"Label12", 118, 213, 242, 17, 11.25F, Style::Bold, kPaleGreen, "Mouse L button = Bend the beam"},
    {"Label14", 120, 232, 311, 20, 9, Style::Italic, kPaleGreen, "also used to Start an inactive beam in Puzzle mode"},
    {"Label13", 120, 256, 263, 17, 11.25F, Style::Bold, kPaleGreen, "Mouse R button  = Speed up the beam"},
    {"Label15", 122, 276, 338, 16, 9, Style::Italic, kPaleGreen,
     "in Arcade mode only possibly if resulting in collision"},
    {"Label21", 22, 304, 55, 17, 11.25F, Style::Bold, kPaleGreen, "SCORE A"},
    {"Label20", 117, 306, 226, 17, 11.25F, Style::Plain, kPaleGreen, "Two destroyed beams in a collision = "},
    {"Label18", 342, 307, 81, 17, 11.25F, Style::Plain, kPaleGreen, "10 pt"},
    {"Label17", 22, 324, 77, 15, 9.75F, Style::Plain, kPaleGreen, "(Arcade Only)"},
    {"Label19", 118, 324, 302, 41, 9.75F, Style::Italic, kPaleGreen, kDoubling, true},
    {"Label3", 22, 370, 61, 13, 8.25F, Style::Bold, kCream, "CREDITS"},
    {"Label5", 22, 388, 105, 13, 8.25F, Style::Plain, kCream, "Game concept and"},
    {"Label4", 22, 402, 177, 17, 8.25F, Style::Plain, kCream, "Programming - the Prismfall team"},
    {"Label9", 22, 420, 131, 15, 8.25F, Style::Plain, kCream, "Graphics - Prismfall team"},
    {"Label7", 246, 402, 126, 15, 8.25F, Style::Plain, kCream, "Music - Prismfall team"},
    {"Label6", 246, 420, 135, 17, 8.25F, Style::Plain, kCream, "Intro Music - Orvane"},
}};

Element MakeText(const Text& text) {
    return {.name = text.name,
            .kind = ElementKind::Label,
            .left = static_cast<float>(text.left),
            .top = static_cast<float>(text.top),
            .width = text.width,
            .height = text.height,
            .text = std::string(text.text),
            .colour = text.colour,
            .font = {.points = text.points, .bold = text.style == Style::Bold, .italic = text.style == Style::Italic},
            .wraps = text.wraps};
}

std::vector<Element> MakeElements() {
    std::vector<Element> table;
    table.reserve(kTexts.size() + 3);
    for (const Text& text : kTexts) table.push_back(MakeText(text));
    std::ranges::find(table, "Label11", &Element::name)->fitHeight = kObjectiveHeight;
    Element picture = MakePicture("Image1", 202, 28, 195, 58);
    picture.picture = "AboutPicture";
    picture.accessibleName = "Prismfall";
    table.push_back(picture);
    Element outline = MakePicture("Shape1", 12, 90, 383, 105);
    outline.kind = ElementKind::Outline;
    outline.picture = {};
    outline.colour = kCream;
    table.push_back(outline);
    table.push_back(MakeOkButton("Command1", 176, 422, 65, 50, {"OKAboutUp", "OKAboutDown"}));
    return table;
}

}  // namespace

void ShowAbout(const DialogHost& host, std::unique_ptr<Window>& VAbout) {
    if (!VAbout)
        VAbout = MakeDialog(host.audio, "VAbout", "About Prisfall v1.1", {408, 472}, MakeElements(),
                            {{"Command1", [&VAbout] { VAbout->Hide(); }}});
    ShowDialog(host, VAbout);
}

}  // namespace prismfall
