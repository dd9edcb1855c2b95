#include "screens/MainElements.h"

namespace prismfall {

namespace {

constexpr std::array<std::string_view, kPreviewCount> kSolvedNames = {
    "LabelSolved0", "LabelSolved1", "LabelSolved2", "LabelSolved3", "LabelSolved4",
    "LabelSolved5", "LabelSolved6", "LabelSolved7", "LabelSolved8",
};

struct TutorialPicture {
    std::string_view name;
    int width;
    int height;
    std::string_view accessibleName;
};

constexpr std::array<TutorialPicture, kTutorialPictureCount> kTutorialPictures = {{
    {"PictTut1", 209, 114, "In puzzle mode the goal is to clear all beams before they reach the ground"},
    {"PictTut2", 216, 148, "Bend the red beam by clicking on the end"},
    {"PictTut3", 184, 89, "The yellow beam is stopped by the red"},
    {"PictTut4", 191, 165, "Start the blue non-moving beam by clicking on the end"},
    {"PictTut5", 197, 116, "The beam is reflected by the wall"},
    {"PictTut6", 186, 149, "When beams of the same color collide they are destroyed"},
    {"PictTut7", 213, 94, "Make the red beam go faster by right-clicking on the end"},
    {"PictTut8", 200, 109, "If the yellow beam reaches the ground the game is over!"},
}};

Element MakeSolvedMark(std::string_view name) {
    return {.name = name,
            .kind = ElementKind::Label,
            .width = 57,
            .height = 17,
            .visible = false,
            .text = "Solved",
            .colour = kRed,
            .ground = kBlack,
            .font = {.family = "MS Sans Serif", .points = 12}};
}

}  // namespace

MainElements::MainElements() {
    for (std::size_t i = 0; i < LabelSolved.size(); ++i) LabelSolved[i] = MakeSolvedMark(kSolvedNames[i]);
    for (std::size_t i = 0; i < PictTut.size(); ++i) {
        const TutorialPicture& picture = kTutorialPictures[i];
        PictTut[i] = MakePicture(picture.name, 0, 0, picture.width, picture.height);
        PictTut[i].kind = ElementKind::PressPicture;
        PictTut[i].accessibleName = picture.accessibleName;
        PictTut[i].visible = false;
    }
    CommandPrevious.fastPresses = CommandNext.fastPresses = true;  // to turn pages quickly
    CommandPrevious.shortcut = Key::PageUp;
    CommandNext.shortcut = Key::PageDown;
    CmdStart.shortcut = kStart.shortcut;
    cmdPause.shortcut = kPause.shortcut;
    ImagePrismfall.accessibleName = "Prismfall";
    LabelPuzzlePage.picture = {};
}

std::vector<Element*> MainElements::InStackingOrder() {
    std::vector<Element*> all = {&ImagePrismfall, &ImageA,          &CommandPuzzle, &CommandArcade, &CommandPrevious,
                                 &CommandNext,    &LabelPuzzlePage, &PictureScores, &VScore,        &VLevel,
                                 &VHighScore,     &PictureScores2,  &LabelPuzzleNr, &CmdStart,      &cmdPause,
                                 &CmdOptions,     &CmdScores,       &CmdAbout,      &CommandExit};
    for (Element& mark : LabelSolved) all.push_back(&mark);
    for (Element& picture : PictTut) all.push_back(&picture);
    all.push_back(&LabelMulti);
    all.push_back(&LabelPace);
    all.push_back(&LabelWay);
    return all;
}

}  // namespace prismfall
