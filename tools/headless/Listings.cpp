// See Listings.h.
#include "tools/headless/Listings.h"

#include <algorithm>
#include <vector>

#include "backends/headless/PrintFormat.h"

namespace prismfall {

namespace {

int Flag(bool value) { return value ? 1 : 0; }

bool IsPlacedByGame(const Element& element) {
    return element.kind == ElementKind::PressPicture || element.name.starts_with("LabelSolved") ||
           element.name == "LabelMulti";
}

void PrintElement(std::ostream& out, const Element& element) {
    out << "element " << element.name;
    if (element.kind == ElementKind::Label) {
        out << " text=\"" << element.text << '"';
    } else {
        out << " picture=" << element.picture;
    }
    if (element.name == "CmdStart" || element.name == "cmdPause") out << " tag=\"" << element.tag << '"';
    if (IsPlacedByGame(element)) out << " at=" << ShortNumber(element.left) << ',' << ShortNumber(element.top);
    if (element.name == "LabelMulti") out << " color=" << ColourName(element.colour);
    out << '\n';
}

}  // namespace

void PrintElements(std::ostream& out, const VMain& main) {
    std::vector<Element*> shown;
    std::ranges::copy_if(main.window.elements, std::back_inserter(shown),
                         [](Element* element) { return IsShown(*element); });
    std::ranges::sort(shown, {}, [](const Element* element) { return element->name; });
    for (const Element* element : shown) PrintElement(out, *element);
}

void PrintSettings(std::ostream& out, const VMain& main, std::int64_t time) {
    out << "settings start=" << main.settings.StartLevel << " gamestart=" << main.GameStartLevel
        << " music=" << Flag(main.settings.Music) << " effects=" << Flag(main.settings.SoundEffects)
        << " first=" << Flag(main.settings.PlayFirstTime) << " time=" << time << '\n';
    int number = 0;
    for (const ScoreRow& row : main.settings.Scores)
        out << "row " << ++number << ' ' << row.score << ' ' << row.startLevel << ' ' << row.endLevel << '\n';
}

void PrintStore(std::ostream& out, const HeadlessPlatform& platform) {
    for (const auto& [name, text] : platform.Store()) out << name.first << ' ' << name.second << ' ' << text << '\n';
}

}  // namespace prismfall
