// The smallest backend that implements the interface: it shows, plays and stores nothing, and time passes only in Run.
// Copy it to start a port to a new platform. What each function must do is documented in platform/, which also contains
// everything that backends share.
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <utility>

#include "platform/GameTime.h"
#include "platform/NominalFrame.h"
#include "platform/Platform.h"
#include "platform/RandomNumbers.h"
#include "platform/TimerWheel.h"
#include "platform/WindowInput.h"

namespace prismfall {

class NullPlatform : public Platform {
  public:
    // Opens the main window; call this first.
    void Open(Window& main) {
        main.visible = true;
        input.Open(main);
        timers.Handle([&main] { main.on.activate(); });
    }
    // Lets time pass.
    void Run(int milliseconds) {
        for (const Nanoseconds end = clock + std::chrono::milliseconds(milliseconds); clock < end && !hasEnded;) {
            clock += std::chrono::milliseconds(1);
            timers.TickDue();
        }
    }
    // Runs `act` as the player's input.
    void Do(const std::function<void(WindowInput& input)>& act) {
        timers.Handle([&] { act(input); });
    }
    bool HasEnded() const { return hasEnded; }

    // --- The surface. A real backend paints with a Surface and shows the boxes that it reports as damaged.

    void SurfaceLine(int, int, int, int, Colour, int) override {}
    void SurfaceBox(int, int, int, int, Colour, int) override {}
    void SurfaceRestore(int, int, int, int) override {}
    void SurfaceClear() override {}

    // --- Windows. A real backend opens the dialog and runs its event loop here until the dialog is hidden or closed.

    WindowInput& Input() override { return input; }
    bool ShowModally(Window& dialog) override {
        if (dialog.on.activate) dialog.on.activate();
        return false;  // closed at once by its close box
    }
    Extent OuterSize(const Window& window) override { return WithFrame(InnerSize(window), kNominalFrame); }
    Extent InnerSize(const Window& window) override { return {window.innerWidth, window.innerHeight}; }
    Place Position(const Window& window) override { return places[&window]; }
    void SetOuterSize(Window& window, Extent size) override {
        const Extent inner = WithoutNominalFrame(size);
        window.innerWidth = inner.width;
        window.innerHeight = inner.height;
    }
    void SetPosition(Window& window, Place place) override { places[&window] = place; }
    void ShowMessageBox(std::string_view) override {}
    void EndProgram() override { hasEnded = true; }

    // --- Time and chance.

    TimerWheel& Timers() override { return timers; }
    void LetEventsRun() override {
        clock += std::chrono::milliseconds(1);
        timers.LetEventsRun([] { return false; });  // a real backend handles its pending input here
    }
    std::int64_t Clock() override { return clock / std::chrono::milliseconds(1); }
    double Random() override { return random.Next(); }
    void BeginRandom(std::uint64_t number) override { random.Begin(number, timers.MomentInMilliseconds()); }
    void SeedRandomFromClock() override { random.Seed(timers.MomentInMilliseconds()); }

    // --- Settings, sound and music.

    std::string ReadSetting(std::string_view, std::string_view, std::string_view, std::string_view fallback) override {
        return std::string(fallback);
    }
    bool ChangeSettings(std::string_view, const SettingsChange&) override { return false; }
    void PlayWave(Wave, bool) override {}
    void MusicClose() override {}
    int MusicOpen(std::string_view) override { return 0; }
    void MusicSetVolume(int) override {}
    void MusicPlayLooping() override {}
    void MusicResume() override {}
    void MusicPause() override {}
    void MusicStop() override {}
    std::string MusicFailureText(int) override { return {}; }
    void SetComfort(const Comfort&) override {}
    void SetPace(int percent) override { time.SetPace(percent); }

  private:
    Nanoseconds clock{0};  // a real backend reads the machine's clock
    GameTime time{[this] { return clock; }};
    TimerWheel timers{time};
    WindowInput input;
    RandomNumbers random{1};
    std::map<const Window*, Place> places;
    bool hasEnded = false;
};

}  // namespace prismfall
