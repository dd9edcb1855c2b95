// The elements of the main window, each in its position. The game reads and changes them by name.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "platform/Element.h"

namespace prismfall {

constexpr std::size_t kPreviewCount = 9;
constexpr std::size_t kTutorialPictureCount = 8;

inline Element MakePicture(std::string_view name, int left, int top, int width, int height) {
    return {.name = name,
            .left = static_cast<float>(left),
            .top = static_cast<float>(top),
            .width = width,
            .height = height,
            .picture = name};
}

inline Element MakeButton(std::string_view name, int left, int top, int width, int height, ButtonFaces faces,
                          std::string_view accessibleName) {
    Element button = MakePicture(name, left, top, width, height);
    button.kind = ElementKind::Button;
    button.faces = faces;
    button.picture = faces.up;
    button.accessibleName = accessibleName;
    return button;
}

// What a button with several meanings currently shows and does.
struct ButtonMeaning {
    ButtonFaces faces;
    std::string_view tag;
    std::string_view accessibleName;
    Key shortcut = Key::None;
};

inline constexpr ButtonMeaning kStart{{"StartUp", "StartDown"}, "", "Start", Key::R};
inline constexpr ButtonMeaning kRestart{{"RestartUp", "RestartDown"}, "Restart", "Restart", Key::R};
inline constexpr ButtonMeaning kTakeover{{"TakeoverUp", "TakeoverDown"}, "Takeover", "Take over"};
inline constexpr ButtonMeaning kPause{{"PauseUp", "PauseDown"}, "", "Pause", Key::P};
inline constexpr ButtonMeaning kResume{{"ResumeUp", "ResumeDown"}, "Resume", "Resume", Key::P};

inline void SetMeaning(Element& button, const ButtonMeaning& meaning) {
    button.faces = meaning.faces;
    button.picture = meaning.faces.up;
    button.tag = meaning.tag;
    button.accessibleName = meaning.accessibleName;
    button.shortcut = meaning.shortcut;
}

// A number in red on a panel's picture.
inline Element MakeNumber(std::string_view name, const Element& panel, int left, int top, int width, int height,
                          std::string_view accessibleName) {
    Element number = MakePicture(name, left, top, width, height);
    number.kind = ElementKind::Label;
    number.picture = {};
    number.accessibleName = accessibleName;
    number.colour = kRed;
    number.font = {.family = "Arial", .points = 14.25F};
    number.panel = &panel;
    return number;
}

struct MainElements {
    Element ImagePrismfall = MakePicture("ImagePrismfall", 46, 101, 586, 205);
    Element ImageA = MakePicture("ImageA", 544, 102, 84, 87);
    Element CommandPuzzle = MakeButton("CommandPuzzle", 160, 408, 133, 54, {"PuzzleUp", "PuzzleDown"}, "Puzzle");
    Element CommandArcade = MakeButton("CommandArcade", 400, 409, 151, 58, {"ArcadeUp", "ArcadeDown"}, "Arcade");
    Element CommandPrevious =
        MakeButton("CommandPrevious", 679, 27, 121, 37, {"PreviousUp", "PreviousDown"}, "Previous page");
    Element CommandNext = MakeButton("CommandNext", 693, 71, 97, 33, {"NextUp", "NextDown"}, "Next page");
    Element LabelPuzzlePage = MakePicture("LabelPuzzlePage", 680, 110, 129, 57);
    Element PictureScores = MakePicture("PictureScores", 682, -1, 120, 114);
    Element VScore = MakeNumber("VScore", PictureScores, 57, 22, 57, 23, "Score");
    Element VLevel = MakeNumber("VLevel", PictureScores, 57, 52, 56, 22, "Level");
    Element VHighScore = MakeNumber("VHighScore", PictureScores, 57, 80, 57, 23, "High score");
    Element PictureScores2 = MakePicture("PictureScores2", 682, -1, 120, 114);
    Element LabelPuzzleNr = MakeNumber("LabelPuzzleNr", PictureScores2, 76, 22, 23, 21, "Puzzle");
    Element CmdStart = MakeButton("CmdStart", 690, 223, 100, 54, {"StartUp", "StartDown"}, "Start");
    Element cmdPause = MakeButton("cmdPause", 695, 294, 89, 38, {"PauseUp", "PauseDown"}, "Pause");
    Element CmdOptions = MakeButton("CmdOptions", 696, 362, 97, 39, {"OptionsUp", "OptionsDown"}, "Options");
    Element CmdScores = MakeButton("CmdScores", 691, 428, 107, 34, {"ScoresUp", "ScoresDown"}, "Scores");
    Element CmdAbout = MakeButton("CmdAbout", 698, 479, 86, 44, {"AboutUp", "AboutDown"}, "About");
    Element CommandExit = MakeButton("CommandExit", 711, 540, 59, 37, {"ExitUp", "ExitDown"}, "Exit");
    Element LabelWay = {.name = "LabelWay",  // to the next level, below the level's number
                        .kind = ElementKind::Label,
                        .left = 57,
                        .top = 73,
                        .height = 2,
                        .visible = false,
                        .ground = 0xFFB48D,
                        .panel = &PictureScores};
    std::array<Element, kPreviewCount> LabelSolved;      // the marks of the puzzle menu's previews
    std::array<Element, kTutorialPictureCount> PictTut;  // PictTut1 to PictTut8
    Element LabelMulti = {.name = "LabelMulti",          // the score pop-up
                          .kind = ElementKind::Label,
                          .left = 703,
                          .top = 191,
                          .width = 41,
                          .height = 17,
                          .visible = false,
                          .font = {.family = "Felix Titling", .points = 9.75F}};

    Element LabelPace = {.name = "LabelPace",  // shown in the main menu when an Arcade game would be a slower one
                         .kind = ElementKind::Label,
                         .left = 345,
                         .top = 476,
                         .width = 300,
                         .height = 18,
                         .visible = false,
                         .colour = 0xC0FFFF,
                         .font = {.points = 9.75F}};

    MainElements();
    MainElements(const MainElements&) = delete;
    MainElements& operator=(const MainElements&) = delete;

    // All elements, the topmost last.
    std::vector<Element*> InStackingOrder();
};

}  // namespace prismfall
