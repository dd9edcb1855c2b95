// A web page as the platform. The program runs in its own loop, as on a desktop: it takes input from the page, lets due
// timers tick, and is suspended in the one call that waits. The page asks once a frame what has changed, however many
// timers have ticked since the last frame.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "backends/web/Imports.h"
#include "backends/web/ShownWindow.h"
#include "platform/Looks.h"
#include "platform/Platform.h"
#include "platform/RandomNumbers.h"
#include "platform/SettingsText.h"
#include "platform/Surface.h"
#include "platform/TimerWheel.h"
#include "platform/WindowInput.h"

namespace prismfall {

class WebPlatform final : public Platform {
  public:
    WebPlatform();

    // Shows the main window and lets events run until the program ends.
    void Run(Window& main);

    // Called with what the player wants of a game that is being watched.
    std::function<void(page::WatchCommand command, float value)> whenWatching;
    // Called again and again as a handler of its own, but never while another one is running.
    std::function<void()> betweenHandlers;
    // Called when the page has been hidden, perhaps for good, as a handler of its own or within one that lets events
    // run.
    std::function<void()> whenHidden;

    // Sends the page what has changed in the picture since the last call. May be called while the program waits.
    void Present();

    void SurfaceLine(int x1, int y1, int x2, int y2, Colour colour, int width) override;
    void SurfaceBox(int x1, int y1, int x2, int y2, Colour colour, int width) override;
    void SurfaceRestore(int x1, int y1, int x2, int y2) override;
    void SurfaceClear() override;

    WindowInput& Input() override { return input; }
    bool ShowModally(Window& dialog) override;
    Extent OuterSize(const Window& window) override;
    Extent InnerSize(const Window& window) override;
    Place Position(const Window& window) override;
    void SetOuterSize(Window& window, Extent size) override;
    void SetPosition(Window& window, Place place) override;
    void ShowMessageBox(std::string_view text) override;
    void EndProgram() override;

    TimerWheel& Timers() override { return timers; }
    void LetEventsRun() override;
    std::int64_t Clock() override;
    double Random() override { return random.Next(); }
    void BeginRandom(std::uint64_t number) override { random.Begin(number, timers.MomentInMilliseconds()); }
    void SeedRandomFromClock() override { random.Seed(timers.MomentInMilliseconds()); }

    std::string ReadSetting(std::string_view application, std::string_view section, std::string_view key,
                            std::string_view fallback) override;
    bool ChangeSettings(std::string_view application, const SettingsChange& change) override;

    void PlayWave(Wave wave, bool wait) override;

    void MusicClose() override;
    int MusicOpen(std::string_view name) override;
    void MusicSetVolume(int volume) override;
    void MusicPlayLooping() override;
    void MusicResume() override;
    void MusicPause() override;
    void MusicStop() override;
    std::string MusicFailureText(int code) override;

    void SetComfort(const Comfort& wanted) override;
    void SetPace(int percent) override { time.SetPace(percent); }

  private:
    void Work();
    bool HandleEvents();  // whether there were any
    void Handle(const page::Event& event);
    void Rest();
    void WaitFor(double length);
    void NoteVisibility();
    void TellHidden();
    void DeliverMinimised();
    void Open(Window& window, Place place);
    void SendSurface();
    void SendSpots();
    void ReportSaving(bool isWritten);
    void Press(ShownWindow& front, const page::Event& event);
    KeyChoice PlaceToMarkNow();
    Key MeaningOf(const Window& window, std::int32_t number) const;

    Surface layer;
    Looks looks{layer};
    Comfort comfort;
    int musicVolume = 0;  // as set by the game
    std::vector<PixelBox> damage;
    std::vector<std::uint32_t> pixels;  // a box of the layer, in the page's format

    Window* main = nullptr;
    std::vector<std::unique_ptr<ShownWindow>> shown;  // the main window, then dialogs in the order they were opened
    Place dialogPlace;                                // where the next dialog's frame will be

    WindowInput input;
    GameTime time;
    TimerWheel timers;
    RandomNumbers random;
    std::optional<SettingsValues> readValues;  // from the store, until it changes
    bool isFailedSaveReported = false;
    bool ended = false;
    std::vector<SurfaceSpot> shownSpots;
    KeyChoice met;              // the head that a finger has touched
    double metUntil = 0;        // on the page's clock
    bool canChoose = false;     // on the surface, as the page was last told
    bool fieldHasKeys = false;  // likewise
    bool isPausedAsTold = false;
    bool hidden = false;     // as last seen on the page
    bool wasHidden = false;  // as `whenHidden` was last told
    bool minimised = false;  // as the main window was last told
};

}  // namespace prismfall
