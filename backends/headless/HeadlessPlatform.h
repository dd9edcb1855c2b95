// A platform that exists only in memory: a virtual clock, a settings store that outlives the program, queued random
// numbers and clicks, and a line of text for everything the game does to the outside world. It runs the whole game
// without a window, the same way everywhere.
#pragma once

#include <array>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <utility>

#include "platform/Platform.h"
#include "platform/Printer.h"
#include "platform/RandomNumbers.h"
#include "platform/SettingsText.h"
#include "platform/Surface.h"
#include "platform/TimerWheel.h"
#include "platform/WindowInput.h"

namespace prismfall {

// What happens on the machine while a recording is played back, instead of queued answers.
class HeadlessScript {
  public:
    HeadlessScript() = default;
    HeadlessScript(const HeadlessScript&) = delete;
    HeadlessScript& operator=(const HeadlessScript&) = delete;
    virtual ~HeadlessScript() = default;

    // Lets time pass until the next thing that happens, and lets it happen. Returns false if there is none.
    virtual bool LetNextHappen() = 0;
    // The moment at which the running handler continues, if the script knows one.
    virtual std::optional<Nanoseconds> TakeRenewal() = 0;
};

class HeadlessPlatform : public Platform {
  public:
    HeadlessPlatform() : printer(std::make_unique<Printer>()) {}
    // Everything that happens is written to `events`, which must outlive the platform.
    explicit HeadlessPlatform(std::ostream& events) : printer(std::make_unique<StreamPrinter>(events)) {}

    // --- For the driver.

    // Advances the clock by `milliseconds`; handlers that let events run may move it further.
    void Run(std::int64_t milliseconds);
    // Like Run, but up to a moment, and each timer ticks at its own due time even if that has passed.
    void TickThrough(Nanoseconds moment);
    // May be null. With a script, a handler that lets events run, or opens a dialog, continues as on a real machine.
    void Follow(HeadlessScript* newScript) { script = newScript; }
    Nanoseconds Now() const { return clock; }
    // Does nothing if the clock is already past that.
    void MoveClockTo(Nanoseconds moment);
    // Calls a timer's handler now, as a running handler, and leaves its due time alone.
    void Fire(Timer timer) { timers.Fire(timer); }
    void QueueRandom(double number) { queuedRandoms.push_back(number); }
    void QueueAnswer(std::string element) { queuedAnswers.push_back(std::move(element)); }
    void SetMusicPresent(bool isPresent) { isMusicPresent = isPresent; }
    void SetPainting(bool isPrinted) { isPaintPrinted = isPrinted; }
    void PutSetting(const std::string& section, const std::string& key, const std::string& text);
    // Resets what belongs to one run of the program: timers, windows and surface. Keeps the clock, the generator, the
    // queues and the store.
    void BeginRun();
    // Opens a window in front of all others, without running its `activate`.
    void Open(Window& window);
    bool HasEnded() const { return hasEnded; }

    const SettingsValues& Store() const { return store; }
    Surface& Painted() { return surface; }

    // --- Platform.

    WindowInput& Input() override { return input; }
    TimerWheel& Timers() override { return timers; }

    void SurfaceLine(int x1, int y1, int x2, int y2, Colour colour, int width) override;
    void SurfaceBox(int x1, int y1, int x2, int y2, Colour colour, int width) override;
    void SurfaceRestore(int x1, int y1, int x2, int y2) override;
    void SurfaceClear() override;

    bool ShowModally(Window& dialog) override;
    Extent OuterSize(const Window& window) override;
    Extent InnerSize(const Window& window) override;
    Place Position(const Window& window) override;
    void SetOuterSize(Window& window, Extent size) override;
    void SetPosition(Window& window, Place place) override;
    void ShowMessageBox(std::string_view text) override;
    void EndProgram() override;

    void LetEventsRun() override;
    std::int64_t Clock() override;
    double Random() override;
    void BeginRandom(std::uint64_t number) override;
    void SeedRandomFromClock() override;

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

    // There is nothing to be seen, heard or waited for.
    void SetComfort(const Comfort&) override {}
    void SetPace(int) override {}

  private:
    void PrintStroke(const char* operation, int x1, int y1, int x2, int y2, Colour colour, int width);
    void TickUntil(Nanoseconds moment);
    void AnswerDialog(Window& dialog);
    void RenewMoment();

    std::unique_ptr<Printer> printer;
    Printer& out = *printer;
    Surface surface;
    Nanoseconds clock{0};
    GameTime time{[this] { return clock; }};
    TimerWheel timers{time};
    WindowInput input;
    std::deque<double> queuedRandoms;
    std::deque<std::string> queuedAnswers;
    std::uint32_t generator = 1;
    std::optional<RandomNumbers> begunRandom;  // replaces the generator once a game has begun with a number
    SettingsValues store;
    std::map<const Window*, Place> places;
    HeadlessScript* script = nullptr;
    bool isMusicPresent = true;
    bool isPaintPrinted = false;
    bool hasEnded = false;
};

}  // namespace prismfall
