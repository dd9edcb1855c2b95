#include "screens/Games.h"

#include <algorithm>
#include <array>
#include <utility>

#include "screens/MainElements.h"

namespace prismfall {

namespace {

constexpr Extent kInner{545, 424};
constexpr std::size_t kRows = 12;
constexpr int kFirstRowTop = 38;
constexpr int kRowStep = 22;
constexpr int kRowLeft = 14;
constexpr int kRowWidth = 517;
constexpr int kLineHeight = 18;
constexpr int kAdviceHeight = 32;

constexpr std::array<std::string_view, kRows> kRowNames = {"Game1", "Game2", "Game3", "Game4",  "Game5",  "Game6",
                                                           "Game7", "Game8", "Game9", "Game10", "Game11", "Game12"};

// A column is a part of the lines; the first is the text of the rows themselves.
struct Column {
    std::string_view heading;
    int left, width;
    std::string GameLine::*part;
    std::array<std::string_view, kRows> names;
};

constexpr std::array<Column, 4> kColumns = {{
    {"Game",
     180,
     150,
     &GameLine::game,
     {"What1", "What2", "What3", "What4", "What5", "What6", "What7", "What8", "What9", "What10", "What11", "What12"}},
    {"Level",
     340,
     40,
     &GameLine::level,
     {"Level1", "Level2", "Level3", "Level4", "Level5", "Level6", "Level7", "Level8", "Level9", "Level10", "Level11",
      "Level12"}},
    {"Points",
     396,
     55,
     &GameLine::points,
     {"Points1", "Points2", "Points3", "Points4", "Points5", "Points6", "Points7", "Points8", "Points9", "Points10",
      "Points11", "Points12"}},
    {"Length",
     466,
     60,
     &GameLine::length,
     {"Length1", "Length2", "Length3", "Length4", "Length5", "Length6", "Length7", "Length8", "Length9", "Length10",
      "Length11", "Length12"}},
}};

constexpr std::array<std::string_view, 4> kActions = {"Watch", "CopyLink", "SaveAs", "Delete"};

Element MakeLabel(std::string_view name, int left, int top, int width, std::string text) {
    return MakeOption(name, ElementKind::Label, left, top, width, kLineHeight, std::move(text));
}

void AddRow(std::vector<Element>& table, std::size_t row) {
    const int top = kFirstRowTop + kRowStep * static_cast<int>(row);
    table.push_back(MakeOption(kRowNames[row], ElementKind::RadioButton, kRowLeft, top, kRowWidth, kRowStep, {}));
    table.back().group = "Games";
    for (const Column& column : kColumns)
        table.push_back(MakeLabel(column.names[row], column.left, top + 2, column.width, {}));
}

std::vector<Element> MakeElements() {
    std::vector<Element> table = {MakeLabel("When", 34, 14, 140, "When")};
    for (const Column& column : kColumns)
        table.push_back(MakeLabel(column.heading, column.left, 14, column.width, std::string(column.heading)));
    for (std::size_t row = 0; row < kRows; ++row) AddRow(table, row);
    table.push_back(MakeOption("Advice", ElementKind::Label, kRowLeft, 302, kRowWidth, kAdviceHeight, {}));
    table.back().wraps = true;
    table.back().fitHeight = kAdviceHeight;
    table.push_back(MakeLabel("Page", 246, 342, 120, {}));
    for (Element& element : table) element.ground.reset();  // a row shows through its columns
    table.push_back(MakeButton("PreviousPage", 10, 332, 121, 37, {"PreviousUp", "PreviousDown"}, "Previous page"));
    table.back().shortcut = Key::PageUp;
    table.push_back(MakeButton("NextPage", 136, 334, 97, 33, {"NextUp", "NextDown"}, "Next page"));
    table.back().shortcut = Key::PageDown;
    table.push_back(MakeButton("Watch", 10, 376, 92, 38, {"WatchGameUp", "WatchGameDown"}, "Watch"));
    table.back().shortcut = Key::Enter;
    table.push_back(MakeButton("CopyLink", 106, 376, 110, 38, {"CopyLinkUp", "CopyLinkDown"}, "Copy link"));
    table.push_back(MakeButton("SaveAs", 220, 376, 100, 38, {"SaveGameUp", "SaveGameDown"}, "Save as"));
    table.push_back(MakeButton("Delete", 324, 376, 92, 38, {"DeleteGameUp", "DeleteGameDown"}, "Delete"));
    table.push_back(MakeButton("Command1", 458, 370, 73, 49, {"OKOptionsUp", "OKOptionsDown"}, "OK"));
    return table;
}

class GamesDialog {
  public:
    GamesDialog(const DialogHost& shownBy, const KeptGames& kept, std::string said)
        : host(shownBy), games(kept), lines(kept.list()), advice(std::move(said)) {}

    std::optional<std::size_t> Show() {
        dialog = MakeDialog(host.audio, "VGames", "Games", kInner, MakeElements(), MakeClicks());
        dialog->stopsTime = true;
        if (lines.empty()) advice = "No games yet. Every game that you play is added here.";
        Fill();
        ShowDialog(host, dialog);
        return watched;
    }

  private:
    std::vector<DialogClick> MakeClicks() {
        std::vector<DialogClick> clicks = {{"PreviousPage", [this] { Choose(chosen < kRows ? 0 : chosen - kRows); }},
                                           {"NextPage", [this] { Choose(chosen + kRows); }},
                                           {"Watch", [this] { Watch(); }},
                                           {"CopyLink", [this] { Say(games.copyLink(chosen)); }},
                                           {"SaveAs", [this] { Say(games.save(chosen)); }},
                                           {"Delete", [this] { Delete(); }},
                                           {"Command1", [this] { dialog->Hide(); }}};
        for (std::size_t row = 0; row < kRows; ++row)
            clicks.push_back({kRowNames[row], [this, row] { Choose(FirstOnPage() + row); }});
        return clicks;
    }

    std::size_t FirstOnPage() const { return chosen / kRows * kRows; }

    void Choose(std::size_t game) {
        chosen = std::min(game, lines.empty() ? 0 : lines.size() - 1);
        Say({});
    }

    void Say(std::string words) {
        advice = std::move(words);
        mayDelete = false;
        Fill();
    }

    void Watch() {
        watched = chosen;
        dialog->Hide();
    }

    // Only the second press in a row deletes.
    void Delete() {
        if (!std::exchange(mayDelete, true)) {
            advice = "Press Delete again to delete this game.";
            return Fill();
        }
        const std::string words = games.remove(chosen);
        lines = games.list();
        Choose(chosen);
        Say(words);
    }

    void Fill() {
        for (std::size_t row = 0; row < kRows; ++row) FillRow(row);
        (*dialog)["Advice"].text = advice;
        const std::size_t pages = (lines.size() + kRows - 1) / kRows;
        (*dialog)["Page"].text = "Page " + std::to_string(chosen / kRows + 1) + " of " + std::to_string(pages);
        for (const std::string_view name : {"PreviousPage", "NextPage", "Page"}) (*dialog)[name].visible = pages > 1;
        for (const std::string_view name : kActions) (*dialog)[name].visible = !lines.empty();
    }

    void FillRow(std::size_t row) {
        const std::size_t game = FirstOnPage() + row;
        const bool isThere = game < lines.size();
        const GameLine line = isThere ? lines[game] : GameLine{};
        Element& mark = (*dialog)[kRowNames[row]];
        mark.visible = isThere;
        mark.text = line.when;
        mark.checked = game == chosen;
        for (const Column& column : kColumns) {
            Element& label = (*dialog)[column.names[row]];
            label.visible = isThere;
            label.text = line.*column.part;
        }
    }

    const DialogHost& host;
    const KeptGames& games;
    std::vector<GameLine> lines;
    std::string advice;
    std::unique_ptr<Window> dialog;
    std::size_t chosen = 0;
    std::optional<std::size_t> watched;
    bool mayDelete = false;
};

}  // namespace

std::optional<std::size_t> ShowGames(const DialogHost& host, const KeptGames& games, std::string advice) {
    return GamesDialog(host, games, std::move(advice)).Show();
}

}  // namespace prismfall
