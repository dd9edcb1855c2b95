#include "game/HighScores.h"

#include <array>
#include <functional>
#include <string>
#include <utility>

#include "game/Modes.h"
#include "game/PuzzleMenu.h"

namespace prismfall {

namespace {

constexpr std::array<int, kScoreRows> kRowY = {56, 88, 120, 152, 184, 216, 248, 280, 312, 344};
constexpr std::array<int, kScoreRows> kLevelRowY = {56, 89, 122, 155, 187, 216, 248, 280, 312, 344};
constexpr int kRowHeight = 25;

constexpr std::array<std::string_view, kScoreRows> kNumberNames = {"Label1", "Label2", "Label3", "Label4", "Label5",
                                                                   "Label6", "Label7", "Label8", "Label9", "Label10"};
constexpr std::array<std::string_view, kScoreRows> kScoreNames = {
    "LabelScore0", "LabelScore1", "LabelScore2", "LabelScore3", "LabelScore4",
    "LabelScore5", "LabelScore6", "LabelScore7", "LabelScore8", "LabelScore9"};
constexpr std::array<std::string_view, kScoreRows> kLevelNames = {
    "LabelLevel0", "LabelLevel1", "LabelLevel2", "LabelLevel3", "LabelLevel4",
    "LabelLevel5", "LabelLevel6", "LabelLevel7", "LabelLevel8", "LabelLevel9"};
constexpr std::array<std::string_view, kScoreRows> kEndLevelNames = {
    "LabelEndLevel0", "LabelEndLevel1", "LabelEndLevel2", "LabelEndLevel3", "LabelEndLevel4",
    "LabelEndLevel5", "LabelEndLevel6", "LabelEndLevel7", "LabelEndLevel8", "LabelEndLevel9"};

Element MakeLabel(std::string_view name, int left, int top, int width, int height) {
    return {.name = name,
            .kind = ElementKind::Label,
            .left = static_cast<float>(left),
            .top = static_cast<float>(top),
            .width = width,
            .height = height,
            .colour = kPaleYellow,
            .font = {.points = 12}};
}

Element InCell(Element label, std::size_t row, int column) {
    label.cell = {.row = static_cast<int>(row), .column = column};
    return label;
}

Element MakeHeading(std::string_view name, int left, int top, int width, int height, std::string text) {
    Element heading = MakeLabel(name, left, top, width, height);
    heading.text = std::move(text);
    heading.font.bold = true;
    heading.wraps = true;
    return heading;
}

void AddRow(std::vector<Element>& table, std::size_t row) {
    const std::string number = std::to_string(row + 1);
    const std::size_t line = row + 2;  // below the headings
    table.push_back(InCell(MakeHeading(kNumberNames[row], 24, kRowY[row], 33, kRowHeight, number), line, 1));
    table.push_back(InCell(MakeLabel(kScoreNames[row], 96, kRowY[row], 105, kRowHeight), line, 2));
    table.push_back(InCell(MakeLabel(kLevelNames[row], 208, kLevelRowY[row], 49, kRowHeight), line, 3));
    table.push_back(InCell(MakeLabel(kEndLevelNames[row], 272, kLevelRowY[row], 49, kRowHeight), line, 4));
}

std::vector<Element> MakeElements() {
    std::vector<Element> table = {InCell(MakeHeading("Label11", 96, 16, 81, 17, "Score"), 1, 2),
                                  InCell(MakeHeading("Label12", 200, 4, 60, 37, "Start Level"), 1, 3),
                                  InCell(MakeHeading("Label13", 264, 5, 50, 36, "End Level"), 1, 4)};
    for (std::size_t row = 0; row < kScoreRows; ++row) AddRow(table, row);
    table.push_back(MakeButton("Command3", 22, 374, 191, 40, {"ClearPuzzleProgressUp", "ClearPuzzleProgressDown"},
                               "Clear puzzle progress"));
    table.push_back(MakeButton("Command1", 82, 412, 123, 36, {"ClearScoresUp", "ClearScoresDown"}, "Clear scores"));
    table.push_back(MakeOkButton("Command2", 244, 402, 70, 47, {"OKScoresUp", "OKScoresDown"}));
    return table;
}

void MakeHighScores(VMain& main) {
    main.VHighScore2 = MakeDialog(main.audio, "VHighScore2", "Highscore", {327, 455}, MakeElements(),
                                  {{"Command1", [&main] { ClearScores(main); }},
                                   {"Command3", [&main] { ClearPuzzleProgress(main); }},
                                   {"Command2", [&main] { main.VHighScore2->Hide(); }}});
    main.VHighScore2->hasIcon = true;
}

// Not while a game is in progress, since that would be abandoned.
bool MayWatch(const VMain& main) {
    return main.watchScore && (!RowOf(main.GameMode).isGame || !main.window.takesInput);
}

// A press on a row.
void WatchRow(VMain& main, float y) {
    for (std::size_t row = 0; row < kScoreRows; ++row) {
        const float below = y - static_cast<float>(kRowY[row]);
        if (below < 0 || below >= kRowHeight || !main.watchScore(main.settings.Scores[row])) continue;
        main.VHighScore2->Hide();
    }
}

void FillRows(Window& dialog, const ScoreTable& scores) {
    for (std::size_t row = 0; row < kScoreRows; ++row) {
        ShowNumber(dialog[kScoreNames[row]], scores[row].score);
        ShowNumber(dialog[kLevelNames[row]], scores[row].startLevel);
        ShowNumber(dialog[kEndLevelNames[row]], scores[row].endLevel);
    }
}

}  // namespace

void SaveScore(VMain& main) {
    if (main.IsPlayedOn) return;
    if (main.EntersTable) return EnterGame(main.settings, {main.Score, main.GameStartLevel, main.Level});
    main.HighScore = main.settings.Scores.front().score;
    ShowNumber(main.VHighScore, main.HighScore);
}

void ShowHighScores(VMain& main) {
    if (!main.VHighScore2) MakeHighScores(main);
    FillRows(*main.VHighScore2, main.settings.Scores);
    std::function<void(MouseButton, float, float)> press;
    if (MayWatch(main)) press = [&main](MouseButton, float, float y) { WatchRow(main, y); };
    main.VHighScore2->on.mouseDown = press;
    ShowDialog(main.dialogs, main.VHighScore2);
}

void ClearScores(VMain& main) {
    ForgetScores(main.settings);
    if (main.VHighScore2) FillRows(*main.VHighScore2, main.settings.Scores);
    main.HighScore = 0;
    ShowNumber(main.VHighScore, 0);
}

void ClearPuzzleProgress(VMain& main) {
    main.settings.SolvedPuzzles.fill(false);
    if (main.GameMode == Mode::PuzzleMenu) ShowPuzzleMenu(main);
}

}  // namespace prismfall
