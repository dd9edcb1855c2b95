#include "game/Buttons.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "game/GameControl.h"
#include "game/HighScores.h"
#include "game/Modes.h"
#include "game/PuzzleMenu.h"
#include "screens/About.h"
#include "screens/Options.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

struct ButtonClick {
    std::string_view button;
    void (*click)(VMain& main);
};

constexpr std::array<ButtonClick, 10> kClicks = {{
    {"CommandPuzzle", CommandPuzzle_Click},
    {"CommandArcade", CommandArcade_Click},
    {"CommandPrevious", CommandPrevious_Click},
    {"CommandNext", CommandNext_Click},
    {"CmdStart", CmdStart_Click},
    {"cmdPause", cmdPause_Click},
    {"CmdOptions", CmdOptions_Click},
    {"CmdScores", CmdScores_Click},
    {"CmdAbout", CmdAbout_Click},
    {"CommandExit", CommandExit_Click},
}};

// Opens a dialog, pausing a running game while it is open, and restores the button's Up picture.
template <typename Show>
void OpenDialog(VMain& main, Element& button, Show show) {
    const bool wasRunning = main.GameRunning;
    if (wasRunning) cmdPause_Click(main);
    show();
    button.picture = button.faces.up;
    if (wasRunning) cmdPause_Click(main);
}

}  // namespace

void Form_MouseMove(VMain& main, float X) {
    if (main.GameMode == Mode::MainMenu || X > static_cast<float>(kRightWall)) ResetFaces(main.window);
}

void Button_Click(VMain& main, const Element& element) {
    const auto row = std::ranges::find(kClicks, element.name, &ButtonClick::button);
    if (row != kClicks.end()) row->click(main);
}

void CmdOptions_Click(VMain& main) {
    OpenDialog(main, main.CmdOptions, [&main] {
        ShowOptions(main.dialogs, main.VOptions, main.settings, [&main](bool isOn) { SetMusic(main, isOn); });
    });
}

void CmdScores_Click(VMain& main) {
    OpenDialog(main, main.CmdScores, [&main] { ShowHighScores(main); });
}

void CmdAbout_Click(VMain& main) {
    OpenDialog(main, main.CmdAbout, [&main] { ShowAbout(main.dialogs, main.VAbout); });
}

}  // namespace prismfall
