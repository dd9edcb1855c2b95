// Which input reaches a window's handlers: positions, clicks, double clicks, and what is kept from them.
#include "platform/WindowInput.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace prismfall {
namespace {

void Log(Window& window, std::string& log) {
    const auto note = [&](std::string_view what, float x, float y) {
        log += std::string(what) + "@" + std::to_string(static_cast<int>(x)) + "," +
               std::to_string(static_cast<int>(y)) + " ";
    };
    window.on.mouseMove = [note](float x, float y) { note("move", x, y); };
    window.on.mouseDown = [note](MouseButton button, float x, float y) {
        note(button == MouseButton::Left ? "left" : "right", x, y);
    };
    window.on.doubleClick = [&log] { log += "double "; };
    window.on.keyDown = [&log](std::int16_t code) { log += "key" + std::to_string(code) + " "; };
    window.on.elementMove = [&log](Element& element) { log += "over-" + std::string(element.name) + " "; };
    window.on.elementDown = [note](Element& element, MouseButton, float x, float y) { note(element.name, x, y); };
    window.on.elementClick = [&log](Element& element) { log += "click-" + std::string(element.name) + " "; };
}

class WindowInputTest : public ::testing::Test {
  protected:
    WindowInputTest() {
        const auto box = [](std::string_view name, ElementKind kind, float left, float top) {
            return Element{.name = name, .kind = kind, .left = left, .top = top, .width = 50, .height = 30};
        };
        window.Own({box("button", ElementKind::Button, 10, 20), box("check", ElementKind::CheckBox, 10, 60),
                    box("radio", ElementKind::RadioButton, 10, 100), box("next", ElementKind::Button, 10, 140),
                    box("panel", ElementKind::Picture, 200, 100), box("press", ElementKind::PressPicture, 5, 5),
                    box("label", ElementKind::Label, 10, 20), box("number", ElementKind::Label, 300, 200)});
        window["next"].fastPresses = true;
        window["press"].panel = &window["panel"];
        dialog.Own({box("ok", ElementKind::Button, 10, 20)});
        Log(window, log);
        Log(dialog, log);
        Open(window);
    }

    void Open(Window& opened) {
        opened.visible = true;
        input.Open(opened);
    }

    // A press and its release, with the window's inner area at (100, 100) on the desktop if that is known.
    std::string Press(Window& where, float x, float y, std::uint32_t milliseconds,
                      MouseButton button = MouseButton::Left) {
        log.clear();
        input.Press(where, button, {x, y, milliseconds, origin});
        input.Release(where, button, x, y);
        return log;
    }

    Window window, dialog;
    WindowInput input{500};
    std::optional<Place> origin = Place{100, 100};
    std::string log;
};

TEST_F(WindowInputTest, PlacesAreRelativeToWhatIsHitAndLabelsAreNotHit) {
    for (const float x : {12.0F, 302.0F}) input.Move(window, x, 202 - (x < 300 ? 180 : 0));
    EXPECT_EQ(log, "over-button move@302,202 ");
    EXPECT_EQ(Press(window, 12, 22, 0), "button@2,2 click-button ");
    EXPECT_EQ(Press(window, 207, 109, 0, MouseButton::Right), "press@2,4 ");
    EXPECT_EQ(Press(window, 302, 202, 1000, MouseButton::Right), "right@302,202 ");
    window["button"].enabled = false;
    EXPECT_EQ(Press(window, 12, 22, 2000), "left@12,22 ");
}

TEST_F(WindowInputTest, AClickIsPressAndReleaseOnTheSameClickableElement) {
    std::uint32_t milliseconds = 0;
    // Within the button; released just outside; pressed outside; an element that cannot be clicked.
    for (const auto& [from, to, clicks] : {std::tuple{Place{11, 21}, Place{59, 49}, true},
                                           {{11, 21}, {60, 49}, false},
                                           {{100, 21}, {11, 21}, false},
                                           {{206, 106}, {206, 106}, false}}) {
        log.clear();
        const auto x = static_cast<float>(from.left), y = static_cast<float>(from.top);
        input.Press(window, MouseButton::Left, {x, y, milliseconds += 1000, origin});
        input.Release(window, MouseButton::Left, static_cast<float>(to.left), static_cast<float>(to.top));
        EXPECT_EQ(log.find("click-") != std::string::npos, clicks) << log;
    }
    EXPECT_EQ(Press(window, 11, 21, 9000, MouseButton::Right), "button@1,1 ");
    input.Press(window, MouseButton::Left, {11, 21, 10000, origin});
    Open(dialog);
    input.Close(dialog);
    log.clear();
    input.Release(window, MouseButton::Left, 11, 21);
    EXPECT_EQ(log, "") << "a dialog has opened in between";
}

TEST_F(WindowInputTest, SecondPressesAreDoubleClicksOnlyOnTheSameSurface) {
    struct Case {
        float firstX, firstY;
        std::uint32_t later;
        float x, y;
        const char* second;
    };
    std::uint32_t milliseconds = 0;
    for (const Case& c : {Case{400, 50, 500, 404, 54, "double "},
                          {400, 50, 501, 400, 50, "left@400,50 "},
                          {400, 50, 9, 405, 50, "left@405,50 "},
                          {400, 50, 9, 400, 55, "left@400,55 "},
                          {11, 21, 99, 11, 21, ""},
                          {206, 106, 99, 206, 106, ""},
                          {11, 21, 99, 8, 21, ""},
                          {8, 21, 99, 11, 21, ""},
                          {11, 61, 99, 11, 61, "check@1,1 click-check "},
                          {11, 101, 99, 11, 101, "radio@1,1 click-radio "},
                          {11, 141, 99, 11, 141, "next@1,1 click-next "},
                          {11, 141, 99, 8, 141, ""}}) {
        Press(window, c.firstX, c.firstY, milliseconds += 10000);
        EXPECT_EQ(Press(window, c.x, c.y, milliseconds + c.later), c.second) << c.firstX << ' ' << c.x;
    }
    std::string presses;
    for (int i = 0; i < 4; ++i) presses += Press(window, 400, 50, milliseconds += 1000 - 900 * (i > 0));
    for (int i = 0; i < 2; ++i) presses += Press(window, 400, 50, milliseconds, MouseButton::Right);
    EXPECT_EQ(presses, "left@400,50 double left@400,50 double right@400,50 right@400,50 ");
}

TEST_F(WindowInputTest, ASecondPressInAnotherWindowReachesNothing) {
    for (const bool isTold : {true, false}) {
        Press(window, 300, 300, 10000);
        Open(dialog);
        origin = isTold ? std::optional<Place>({390, 380}) : std::nullopt;
        EXPECT_EQ(Press(dialog, 11, 21, 10400), "") << "it is (1, 1) from the first on the desktop";
        EXPECT_EQ(Press(dialog, 11, 21, 10401), "ok@1,1 click-ok ");
        input.Close(dialog);
        origin = isTold ? std::optional<Place>({100, 100}) : std::nullopt;
        EXPECT_EQ(Press(window, 300, 300, 10500), "");
        Press(window, 600, 300, 20000);
        Open(dialog);
        EXPECT_EQ(Press(dialog, 11, 21, 20001), isTold ? "ok@1,1 click-ok " : "") << "far away";
        input.Close(dialog);
        origin = Place{100, 100};
    }
}

TEST_F(WindowInputTest, OnlyTheFrontWindowGetsInputWhileItIsShownAndTakesIt) {
    std::uint32_t presses = 0;
    const auto all = [&](Window& where) {
        ++presses;
        std::string reached = Press(where, 11, 21, 1000 * presses) + Press(where, 400, 50, 1000 * presses);
        log.clear();
        input.Move(where, 400, 50);
        input.Key(where, 27);
        input.DoubleClickSurface(where);
        input.PressAndClick(where, *where.elements[0]);
        return reached + log;
    };
    EXPECT_EQ(all(window), "button@1,1 click-button left@400,50 move@400,50 key27 double button@0,0 click-button ");
    Open(dialog);
    EXPECT_EQ(all(window), "");
    EXPECT_NE(all(dialog), "");
    dialog.isDialog = true;
    input.UseCloseBox(dialog);
    EXPECT_EQ(all(dialog), "") << "closed, but still there";
    input.Close(dialog);
    Open(dialog);
    dialog.visible = false;
    EXPECT_EQ(all(window) + all(dialog), "") << "hidden, but not closed yet";
    input.Close(dialog);
    window.takesInput = false;
    EXPECT_EQ(all(window), "");
    window.takesInput = true;
    EXPECT_NE(all(window), "");
    input.Key(window, 1 << 30);
    input.PressAndClick(window, window["panel"]);
    EXPECT_EQ(log.find("panel"), std::string::npos);
}

}  // namespace
}  // namespace prismfall
