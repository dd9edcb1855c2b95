// Everything the program asks of the page: the functions it imports from the module `page`, and the records passed
// between the two. page/source/program.ts and records.ts are the other side: a change here needs a change there. When
// it starts, the page compares RecordSizes with its own sizes, and the browser checks the functions.
//
// Types are WebAssembly's own: 32-bit integers, `float`, `double`, and addresses in the program's memory, which the
// page reads before the call returns. Records are read field by field in the order given here, without gaps. Positions
// and sizes are in game pixels, times in milliseconds of the page's clock. A window is identified by a number that the
// program chooses, 0 for the main window; an element by its index in the window's list.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "platform/Element.h"

namespace prismfall::page {

// UTF-8, not terminated by a zero.
struct Text {
    Text() = default;
    Text(std::string_view text) : bytes(text.data()), length(static_cast<std::uint32_t>(text.size())) {}

    const char* bytes = nullptr;
    std::uint32_t length = 0;
};

struct WindowRecord {
    std::int32_t isDialog = 0;
    std::int32_t left = 0;  // of a dialog's frame, from the left edge of the main window's inner area
    std::int32_t top = 0;
    std::int32_t width = 0;  // of the inner area
    std::int32_t height = 0;
    Text title;
    Text background;  // a picture's name
};

// A place in an element that the player is prompted to press.
struct SpotRecord {
    float left = 0;  // in the element
    float top = 0;
    float width = 0;  // 0 for no spot
    float height = 0;
    std::int32_t button = 0;  // the MouseButton to press it with
    Text accessibleName;
};

struct ElementRecord {
    std::int32_t kind = 0;    // an ElementKind
    std::int32_t panel = -1;  // the element that contains it, -1 for none
    std::int32_t visible = 0;
    std::int32_t enabled = 0;
    std::int32_t checked = 0;
    float left = 0;  // in the window or in its panel
    float top = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
    std::uint32_t colour = 0;  // 0xBBGGRR
    std::uint32_t ground = 0;  // 0xBBGGRR, or kNoGround
    float points = 0;          // of the font
    std::int32_t bold = 0;
    std::int32_t italic = 0;
    std::int32_t wraps = 0;
    std::int32_t fitHeight = 0;
    std::int32_t row = 0;  // of the window's table, from 1; 0 for none
    std::int32_t column = 0;
    Text family;
    Text picture;
    Text accessibleName;
    Text text;
    Text group;
    SpotRecord spots[2];
};

constexpr std::uint32_t kNoGround = 0xFFFFFFFF;

// A game that is over.
struct GameRecord {
    std::int32_t kind = 0;    // 0 for Arcade, 1 for a puzzle, 2 for one taken over from a solution
    std::int32_t ending = 0;  // 0 for lost, 1 for solved, 2 for left
    std::int32_t puzzle = 0;
    std::int32_t score = 0;
    std::int32_t level = 0;
    std::int32_t length = 0;  // milliseconds
    Text recording;
};

struct ScoreRecord {
    std::int32_t score = 0;
    std::int32_t level = 0;  // at the end
};

// A recorded game as it is being watched. Times are milliseconds of that game.
struct WatchRecord {
    std::int32_t isWatching = 0;
    std::int32_t isPaused = 0;
    std::int32_t isOver = 0;  // it has come to its end, or to where it differs from its recording
    std::int32_t differs = 0;
    std::int32_t pace = 1;
    std::int32_t position = 0;
    std::int32_t length = 0;

    bool operator==(const WatchRecord&) const = default;
};

enum class WatchCommand : std::int32_t {
    Begin,  // the recording that the page has ready; whatever is being played is left
    Pause,
    GoOn,
    Pace,  // x: how many times as fast
    GoTo,  // x: seconds since the game began
    PlayOn,
    Leave,
};

enum class EventKind : std::int32_t {
    Move,      // the pointer moves: x, y
    Press,     // a button is pressed: number is a MouseButton, plus kByFinger for a finger; x, y
    Release,   // a button is released: number is a MouseButton, x, y
    Activate,  // an element is clicked without a pointer, by a key or a screen reader: number is the element
    Key,       // a key is pressed: number is 27 for Esc, or a Key, plus kByPad for one that a gamepad stands for
    Close,     // the close box of a dialog
    Watch,     // the page's controls for watching: number is a WatchCommand, x
};

constexpr std::int32_t kByFinger = 16;
constexpr std::int32_t kByPad = 1024;

struct Event {
    double time = 0;
    EventKind kind{};
    std::int32_t window = 0;
    std::int32_t number = 0;
    float x = 0;  // in the window's inner area, or outside it
    float y = 0;
};

// What the page must agree on: sizes in bytes, and how many kinds there are.
struct RecordSizes {
    std::int32_t window = sizeof(WindowRecord);
    std::int32_t element = sizeof(ElementRecord);
    std::int32_t game = sizeof(GameRecord);
    std::int32_t watch = sizeof(WatchRecord);
    std::int32_t event = offsetof(Event, y) + sizeof(Event::y);
    std::int32_t elementKinds = static_cast<std::int32_t>(ElementKind::Outline) + 1;
    std::int32_t eventKinds = static_cast<std::int32_t>(EventKind::Watch) + 1;
    std::int32_t watchCommands = static_cast<std::int32_t>(WatchCommand::Leave) + 1;
};

#ifdef __wasm__
#define PAGE_IMPORT(name) __attribute__((import_module("page"), import_name(name)))
#else
#define PAGE_IMPORT(name)  // for tools that read the header on another machine
#endif

extern "C" {

// --- Time. Waiting is the one call in which the program is suspended while the page keeps running.

// Milliseconds since some fixed moment; never runs backwards.
PAGE_IMPORT("now") double Now();
// Returns when the clock has reached `until`, when the page was hidden or shown again, and, if `forInput` is not 0, as
// soon as there is an event to take. The page gets a turn even if there is nothing to wait for. Before its next frame,
// or at once if it is hidden, the page calls the program's `present`, which sends what has changed in the picture.
PAGE_IMPORT("wait") void Wait(double until, std::int32_t forInput);
// Takes the oldest pending event. Returns 0 if there is none.
PAGE_IMPORT("takeEvent") std::int32_t TakeEvent(Event* event);
// Whether the page is hidden.
PAGE_IMPORT("isHidden") std::int32_t IsHidden();
// From 0 up to but not including 1, different at each start of the program.
PAGE_IMPORT("random") double Random();

// --- Windows.

PAGE_IMPORT("openWindow") void OpenWindow(std::int32_t window, const WindowRecord* record);
PAGE_IMPORT("closeWindow") void CloseWindow(std::int32_t window);
// What an element looks like from now on. The elements of a window come in stacking order.
PAGE_IMPORT("showElement") void ShowElement(std::int32_t window, std::int32_t element, const ElementRecord* record);
// Puts pixels on the surface: rows without gaps, four bytes a pixel, red, green, blue and opacity.
PAGE_IMPORT("showPixels")
void ShowPixels(const std::uint32_t* pixels, std::int32_t left, std::int32_t top, std::int32_t width,
                std::int32_t height);
// Replaces the places on the surface that can be pressed, with their names.
PAGE_IMPORT("showSpots") void ShowSpots(const SpotRecord* spots, std::int32_t count);
// Whether there is anything on the surface to choose with the keys, and whether a game is being played, in which case
// Tab and the arrow keys choose beams rather than the page's controls.
PAGE_IMPORT("giveKeys") void GiveKeys(std::int32_t canChoose, std::int32_t toField);
// Whether the player wants nothing to move by itself.
PAGE_IMPORT("isCalm") std::int32_t IsCalm();
// Whether a game has been begun and stands still, which the page says as well.
PAGE_IMPORT("showPaused") void ShowPaused(std::int32_t isPaused);
// Shows one line below the picture, usually about saving. An empty text removes it.
PAGE_IMPORT("showNotice") void ShowNotice(const char* text, std::uint32_t length);
// The program has ended: the page dims the picture and offers to start again.
PAGE_IMPORT("endProgram") void EndProgram();

// --- Settings: one text for all of them.

// Returns the length of the stored text in bytes; the page keeps the text for ReadSettings.
PAGE_IMPORT("openSettings") std::uint32_t OpenSettings();
PAGE_IMPORT("readSettings") void ReadSettings(char* text);
// Returns 0 if it could not be stored; what was stored before is then unchanged.
PAGE_IMPORT("writeSettings") std::int32_t WriteSettings(const char* text, std::uint32_t length);

// --- Games.

// Keeps a game, together with the last ones and those of the score table, of which there are `rows`. The page stores it
// when it can; if it cannot, the recording is lost.
PAGE_IMPORT("keepGame") void KeepGame(const GameRecord* game, const ScoreRecord* table, std::int32_t rows);
// Keeps a game that may never be finished, since the page has been hidden or the program has failed. The page stores it
// at once, in case it is being closed, drops it when a game is kept, and lists it if it starts again before that.
PAGE_IMPORT("keepUnfinished") void KeepUnfinished(const GameRecord* game);
// The length in bytes of the recording that is to be watched, which may be any text; 0 for none.
PAGE_IMPORT("openRecording") std::uint32_t OpenRecording();
PAGE_IMPORT("readRecording") void ReadRecording(char* text);
// That recording cannot be watched: its first bad line, from 1, and what is wrong with it.
PAGE_IMPORT("refuseRecording") void RefuseRecording(std::int32_t line, const char* reason, std::uint32_t length);
// Whether the page has kept an Arcade game with that result; if so, it soon asks the program to show it.
PAGE_IMPORT("watchScore") std::int32_t WatchScore(std::int32_t score, std::int32_t level);
PAGE_IMPORT("showWatching") void ShowWatching(const WatchRecord* record);

// --- Sound and music. The page finds the files by itself; one that cannot be loaded is silent.

PAGE_IMPORT("playSound") void PlaySound(std::int32_t id);
PAGE_IMPORT("setEffectsVolume") void SetEffectsVolume(float share);  // 0 to 1
PAGE_IMPORT("openMusic") void OpenMusic(const char* name, std::uint32_t length);
PAGE_IMPORT("closeMusic") void CloseMusic();
PAGE_IMPORT("setMusicVolume") void SetMusicVolume(float share);  // 0 to 1
PAGE_IMPORT("playMusicLooping") void PlayMusicLooping();
PAGE_IMPORT("resumeMusic") void ResumeMusic();
PAGE_IMPORT("pauseMusic") void PauseMusic();
PAGE_IMPORT("stopMusic") void StopMusic();

}  // extern "C"

#undef PAGE_IMPORT

constexpr std::int32_t kMainWindow = 0;

}  // namespace prismfall::page
