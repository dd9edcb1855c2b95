// What becomes of presses, releases and moves: which handler they reach, and when two presses are a double click.
#include "platform/WindowInput.h"

#include <gtest/gtest.h>

#include <string>

namespace prismfall {
namespace {

class WindowInputTest : public ::testing::Test {
  protected:
    WindowInputTest() {
        window.Own({
            {.name = "panel", .left = 200, .top = 100, .width = 100, .height = 100},
            {.name = "button", .kind = ElementKind::Button, .left = 10, .top = 20, .width = 50, .height = 30},
            {.name = "off",
             .kind = ElementKind::Button,
             .left = 10,
             .top = 60,
             .width = 50,
             .height = 30,
             .enabled = false},
            {.name = "press", .kind = ElementKind::PressPicture, .left = 5, .top = 5, .width = 20, .height = 20},
        });
        window["press"].panel = &window["panel"];
        window.on.mouseMove = [this](float x, float y) { Note("move", x, y); };
        window.on.mouseDown = [this](MouseButton button, float x, float y) {
            Note(button == MouseButton::Left ? "left" : "right", x, y);
        };
        window.on.doubleClick = [this] { log += "double "; };
        window.on.elementMove = [this](Element& element) { log += "over-" + std::string(element.name) + " "; };
        window.on.elementDown = [this](Element& element, MouseButton, float x, float y) { Note(element.name, x, y); };
        window.on.elementClick = [this](Element& element) { log += "click-" + std::string(element.name) + " "; };
    }

    void Note(std::string_view what, float x, float y) {
        log += std::string(what) + "@" + std::to_string(static_cast<int>(x)) + "," +
               std::to_string(static_cast<int>(y)) + " ";
    }

    void PressAndRelease(MouseButton button, float x, float y, std::uint32_t time) {
        input.Press(button, x, y, time);
        input.Release(button, x, y);
    }

    Window window;
    WindowInput input{window, 500};
    std::string log;
};

TEST_F(WindowInputTest, PlacesAreThoseOfWhatIsMet) {
    input.Move(12, 22);
    input.Move(12, 62);
    input.Press(MouseButton::Left, 12, 22, 0);
    input.Press(MouseButton::Right, 207, 109, 0);
    input.Press(MouseButton::Right, 12, 62, 0);
    EXPECT_EQ(log, "over-button move@12,62 button@2,2 press@2,4 right@12,62 ");
}

TEST_F(WindowInputTest, AClickIsPressAndReleaseOnTheSameClickableElement) {
    struct Case {
        float fromX, fromY, toX, toY;
        bool clicks;
    };
    const Case cases[] = {{11, 21, 59, 49, true},        // within the button
                          {11, 21, 60, 49, false},       // let go just outside
                          {100, 21, 11, 21, false},      // pressed outside
                          {206, 106, 206, 106, false}};  // an element without a click
    for (const Case& c : cases) {
        log.clear();
        input.Press(MouseButton::Left, c.fromX, c.fromY, 0);
        input.Release(MouseButton::Left, c.toX, c.toY);
        EXPECT_EQ(log.find("click-") != std::string::npos, c.clicks) << log;
        input.Forget();
    }
    log.clear();
    PressAndRelease(MouseButton::Right, 11, 21, 0);
    window["button"].enabled = false;
    input.Release(MouseButton::Left, 11, 21);
    EXPECT_EQ(log, "button@1,1 ");
}

TEST_F(WindowInputTest, EverySecondFastPressAtThePlaceIsADoubleClick) {
    struct Case {
        float x;
        std::uint32_t time;
        const char* expected;
    };
    for (const Case& c : {Case{300, 500, "double "}, Case{300, 501, "left@300,50 "}, Case{304, 9, "double "},
                          Case{305, 9, "left@305,50 "}}) {
        log.clear();
        input.Forget();
        PressAndRelease(MouseButton::Left, 300, 50, 0);
        log.clear();
        PressAndRelease(MouseButton::Left, c.x, 50, c.time);
        EXPECT_EQ(log, c.expected);
    }
    log.clear();
    input.Forget();
    for (std::uint32_t time = 1000; time < 1400; time += 100) PressAndRelease(MouseButton::Left, 300, 50, time);
    for (std::uint32_t time = 2000; time < 2200; time += 100) PressAndRelease(MouseButton::Right, 300, 50, time);
    EXPECT_EQ(log, "left@300,50 double left@300,50 double right@300,50 right@300,50 ");
}

TEST_F(WindowInputTest, PressesOnAnElementAreNeverDoubleClicks) {
    PressAndRelease(MouseButton::Left, 11, 21, 0);
    PressAndRelease(MouseButton::Left, 11, 21, 100);
    EXPECT_EQ(log, "button@1,1 click-button button@1,1 click-button ");
}

}  // namespace
}  // namespace prismfall
