// Everything that the game asks of a machine: one surface (SurfacePainter.h), random numbers (Chance.h), settings
// (SettingsKeeper.h), windows, timers, a clock, sounds and music. Backends live in backends/; the game knows this
// interface alone, and a part of the game that needs one facet of it takes that one. Version 3.
//
// Everything happens on one thread. Places and widths are game pixels, times are milliseconds. No call fails in a way
// that the game has to handle: a backend that cannot do a thing does nothing, except opening music.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <span>
#include <string>
#include <string_view>

#include "platform/Chance.h"
#include "platform/Element.h"
#include "platform/SettingsKeeper.h"
#include "platform/SurfacePainter.h"
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

class Platform : public SurfacePainter, public Chance, public SettingsKeeper {
  public:
    // --- Windows. Their elements are plain data: a backend draws what has changed, the game never asks for it. The
    // main window is opened by whatever runs the backend; then its `activate` handler runs.

    // Shows a dialog that alone gets the input, runs its `activate`, and returns when a handler has hidden it or its
    // close box was used; timers go on meanwhile. True if it was hidden, false if it was closed. Returns true at once
    // if the dialog is already open.
    virtual bool ShowModally(Window& dialog) = 0;
    // The size with the desktop's frame, the size within it, and the place of the frame's corner on the desktop.
    // A dialog that is not shown yet answers with the frame that it is expected to have.
    virtual Extent OuterSize(const Window& window) = 0;
    virtual Extent InnerSize(const Window& window) = 0;
    virtual Place Position(const Window& window) = 0;
    virtual void SetOuterSize(Window& window, Extent size) = 0;
    virtual void SetPosition(Window& window, Place place) = 0;
    // An error box with an OK button; returns when the player has dismissed it. No timer ticks while it is open.
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

    // --- Time.

    // Lets pending events run: what has changed is painted, due timers tick, and from the second call in a handler on
    // input is handled.
    virtual void LetEventsRun() = 0;
    // Milliseconds of the machine's clock from some fixed moment; never runs backwards.
    virtual std::int64_t Clock() = 0;

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
