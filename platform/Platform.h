// Everything that the game asks of a machine: one surface, windows, timers, a clock, random numbers, settings, sounds
// and music. Backends live in backends/; the game knows this interface alone. Version 2.
//
// Everything happens on one thread. Places and widths are game pixels, times are milliseconds. No call fails in a way
// that the game has to handle: a backend that cannot do a thing does nothing, but for the opening of music.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Element.h"
#include "platform/Window.h"

namespace prismfall {

// The timers, in the order in which those that fall due at the same moment fire.
enum class Timer { LineDeleter, LineExtender, LineCreator, TimerMulti, TimerA, TimerPlayIntro };
constexpr std::size_t kTimerCount = 6;

struct Extent {
    int width = 0;
    int height = 0;
};

struct Place {
    int left = 0;
    int top = 0;
};

// A complete RIFF WAVE file and the number under which the program carries it.
struct Wave {
    int id = 0;
    std::span<const std::byte> bytes;
};

struct SettingValue {
    std::string section;
    std::string key;
    std::string text;
};

// The text that a store holds, or nothing.
using SettingsReader = std::function<std::optional<std::string>(std::string_view section, std::string_view key)>;
using SettingsChange = std::function<std::vector<SettingValue>(const SettingsReader& stored)>;

class Platform {
  public:
    Platform() = default;
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;
    virtual ~Platform() = default;

    // --- The surface of the main window. What is painted stays until painted over, and lies over the background.

    // Paints an opaque line: every pixel whose centre lies within half of `width` of the segment, ends round.
    // Places outside the surface are cut off.
    virtual void SurfaceLine(int x1, int y1, int x2, int y2, Colour colour, int width) = 0;
    // Paints the outline of the rectangle between two corners.
    virtual void SurfaceBox(int x1, int y1, int x2, int y2, Colour colour, int width) = 0;
    // Brings the background back from (x1, y1) to (x2, y2), the second corner excluded.
    virtual void SurfaceRestore(int x1, int y1, int x2, int y2) = 0;
    // Brings the whole background back.
    virtual void SurfaceClear() = 0;

    // --- Windows. Their elements are plain data: a backend draws what has changed, the game never asks for it. The
    // main window is opened by whatever runs the backend; then its `activate` handler runs.

    // Shows a dialog that alone gets the input, runs its `activate`, and returns when a handler has hidden it or its
    // close box was used; timers go on meanwhile. True if it was hidden, false if it was closed. True at once for a
    // dialog that stands already.
    virtual bool ShowModally(Window& dialog) = 0;
    // The size with the desktop's frame, the size within it, and the place of the frame's corner on the desktop.
    // A dialog that is not shown yet answers with the frame that it is expected to have.
    virtual Extent OuterSize(const Window& window) = 0;
    virtual Extent InnerSize(const Window& window) = 0;
    virtual Place Position(const Window& window) = 0;
    virtual void SetOuterSize(Window& window, Extent size) = 0;
    virtual void SetPosition(Window& window, Place place) = 0;
    // An error box with an OK button; returns when the player has dismissed it. No timer ticks while it stands.
    virtual void ShowMessageBox(std::string_view text) = 0;
    // Ends the program at once. It may return where a program cannot end its own process, as in a browser; no handler
    // is called after that, and the caller has to return as well.
    virtual void EndProgram() = 0;

    // --- Timers: repeating, each calling the one tick handler with its name.

    virtual void SetTickHandler(std::function<void(Timer)> handler) = 0;
    // "From now" is from the moment of the handler that is running: what it starts together falls due together.
    // platform/TimerWheel.h tells which moment that is, and what becomes of ticks that are late.

    // Starting a running timer changes nothing; a stopped one is due one interval from now.
    virtual void StartTimer(Timer timer) = 0;
    virtual void StopTimer(Timer timer) = 0;
    // Another interval makes a running timer due one new interval from now; the same one changes nothing. A timer of
    // interval 0 never ticks.
    virtual void SetTimerInterval(Timer timer, int milliseconds) = 0;

    // --- Time and chance.

    // Lets pending events run: what has changed is painted, due timers tick, and from the second call in a handler on
    // input is handled.
    virtual void LetEventsRun() = 0;
    // Milliseconds of the machine's clock from some fixed moment; never runs backwards.
    virtual std::int64_t Clock() = 0;
    // Uniform from 0 up to but not including 1.
    virtual double Random() = 0;
    virtual void SeedRandomFromClock() = 0;

    // --- Settings: texts by application, section and key, for this user, that outlast the run.

    virtual std::string ReadSetting(std::string_view application, std::string_view section, std::string_view key,
                                    std::string_view fallback) = 0;
    // Changes the store in one step that no other run of the program can come between: `change` is handed a way to read
    // what the store holds now, whoever wrote it, and returns the values to write. All of them are stored or none:
    // whatever happens meanwhile, the old store or the new one is found afterwards. False if nothing could be stored;
    // the backend tells the player.
    virtual bool ChangeSettings(std::string_view application, const SettingsChange& change) = 0;

    // --- Sound: one at a time, a new one cuts off the old. The bytes stay valid for the whole run.

    // Plays a sound. With `wait` the call returns when its length has passed, heard or not, and nothing else happens
    // meanwhile but painting.
    virtual void PlayWave(Wave wave, bool wait) = 0;

    // --- Music: one player with one file. Calls without an open file do nothing.

    virtual void MusicClose() = 0;
    // Opens a track by the name of its MP3 file; where tracks lie is the backend's business. 0, or a code that
    // MusicFailureText turns into a sentence.
    virtual int MusicOpen(std::string_view name) = 0;
    virtual void MusicSetVolume(int volume) = 0;  // 0 to 1000
    virtual void MusicPlayLooping() = 0;
    virtual void MusicResume() = 0;  // plays on to the track's end, once
    virtual void MusicPause() = 0;
    virtual void MusicStop() = 0;
    virtual std::string MusicFailureText(int code) = 0;
};

}  // namespace prismfall
