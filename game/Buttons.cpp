#include "game/Buttons.h"

#include <array>
#include <string_view>

#include "game/GameControl.h"
#include "game/HighScores.h"
#include "game/PuzzleMenu.h"
#include "screens/About.h"
#include "screens/ButtonFaces.h"
#include "screens/Options.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

// In the order of a reset.
constexpr std::array<ButtonRow, 10> kButtons = {{
    {"CommandPuzzle", "PuzzleUp", "PuzzleDown", CommandPuzzle_Click},
    {"CommandArcade", "ArcadeUp", "ArcadeDown", CommandArcade_Click},
    {"CommandPrevious", "PreviousUp", "PreviousDown", CommandPrevious_Click},
    {"CommandNext", "NextUp", "NextDown", CommandNext_Click},
    {"CmdStart", "StartUp", "StartDown", CmdStart_Click},
    {"cmdPause", "PauseUp", "PauseDown", cmdPause_Click},
    {"CmdOptions", "OptionsUp", "OptionsDown", CmdOptions_Click},
    {"CmdScores", "ScoresUp", "ScoresDown", CmdScores_Click},
    {"CmdAbout", "AboutUp", "AboutDown", CmdAbout_Click},
    {"CommandExit", "ExitUp", "ExitDown", CommandExit_Click},
}};

// Faces that a button's tag puts in place of those of the table above.
struct TaggedFaces {
    std::string_view button;
    std::string_view tag;
    std::string_view up;
    std::string_view down;
};

constexpr std::array<TaggedFaces, 3> kTaggedFaces = {{
    {"CmdStart", "Restart", "RestartUp", "RestartDown"},
    {"CmdStart", "Takeover", "TakeoverUp", "TakeoverDown"},
    {"cmdPause", "Resume", "ResumeUp", "ResumeDown"},
}};

struct Faces {
    std::string_view up;
    std::string_view down;
};

Faces FacesOf(const ButtonRow& row, const Element& button) {
    for (const TaggedFaces& tagged : kTaggedFaces)
        if (tagged.button == button.name && tagged.tag == button.tag) return {tagged.up, tagged.down};
    return {row.up, row.down};
}

// Shows a dialog with a running game at rest, and puts the button's Up picture back.
void OpenDialog(VMain& main, void (*show)(VMain&), Element& button, std::string_view up) {
    const bool wasRunning = main.GameRunning;
    if (wasRunning) cmdPause_Click(main);
    show(main);
    button.picture = up;
    if (wasRunning) cmdPause_Click(main);
}

}  // namespace

void ResetButtons(VMain& main) {
    for (const ButtonRow& row : kButtons) {
        Element& button = main.window[row.button];
        button.picture = FacesOf(row, button).up;
    }
}

void Form_MouseMove(VMain& main, float X) {
    if (main.GameMode == kMainMenu || X > static_cast<float>(kRightWall)) ResetButtons(main);
}

void Button_MouseMove(Element& element) {
    if (const ButtonRow* row = FindRow(kButtons, element.name)) element.picture = FacesOf(*row, element).down;
}

void Button_Click(VMain& main, Element& element) {
    if (const ButtonRow* row = FindRow(kButtons, element.name)) row->click(main);
}

void CmdOptions_Click(VMain& main) { OpenDialog(main, ShowOptions, main.CmdOptions, "OptionsUp"); }

void CmdScores_Click(VMain& main) { OpenDialog(main, ShowHighScores, main.CmdScores, "ScoresUp"); }

void CmdAbout_Click(VMain& main) { OpenDialog(main, ShowAbout, main.CmdAbout, "AboutUp"); }

}  // namespace prismfall
