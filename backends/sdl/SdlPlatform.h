// The desktop platform: windows, input, timers, sound and music with SDL2. This class passes every call to the class
// that handles it.
#pragma once

#include <SDL.h>

#include <atomic>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "backends/sdl/desktop/EventLoop.h"
#include "backends/sdl/desktop/SdlDesktop.h"
#include "backends/sdl/settings/SettingsFile.h"
#include "backends/sdl/sound/SdlAudio.h"
#include "platform/Platform.h"
#include "platform/RandomNumbers.h"

namespace prismfall {

class SdlPlatform final : public Platform {
  public:
    // Null if the desktop cannot be reached; `failure` then says why in one sentence. `pictures` is the folder with the
    // picture files.
    static std::unique_ptr<SdlPlatform> Create(const std::filesystem::path& pictures, std::string& failure);
    ~SdlPlatform() override;

    // Shows the main window and lets events run until the program ends.
    [[noreturn]] void Run(Window& main);

    // See SdlDesktop.h.
    void WhenDropped(std::function<void(const std::string& dropped)> act) { desktop.WhenDropped(std::move(act)); }
    static void Drop(const std::string& dropped) { SdlDesktop::Drop(dropped); }

    void SurfaceLine(int x1, int y1, int x2, int y2, Colour colour, int width) override;
    void SurfaceBox(int x1, int y1, int x2, int y2, Colour colour, int width) override;
    void SurfaceRestore(int x1, int y1, int x2, int y2) override;
    void SurfaceClear() override;

    WindowInput& Input() override { return desktop.Input(); }
    bool ShowModally(Window& dialog) override;
    Extent OuterSize(const Window& window) override;
    Extent InnerSize(const Window& window) override;
    Place Position(const Window& window) override;
    void SetOuterSize(Window& window, Extent size) override;
    void SetPosition(Window& window, Place place) override;
    void ShowMessageBox(std::string_view text) override;
    [[noreturn]] void EndProgram() override;

    TimerWheel& Timers() override { return loop.Timers(); }
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

    void SetComfort(const Comfort& comfort) override;
    void SetPace(int percent) override;

  private:
    explicit SdlPlatform(PictureStore pictures);

    // Records that a signal or the desktop wants the program to end.
    static int SDLCALL NoteEndBySystem(void* self, SDL_Event* event);
    void CloseProgram();
    void ReportUnsavedSettings(const std::string& failure);
    bool OpenDialog(Window& dialog);
    // Whether the dialog was already hidden.
    bool CloseDialog(Window& dialog);

    SdlDesktop desktop;
    EventLoop loop{desktop, [this] { CloseProgram(); }};
    SdlAudio audio;
    SettingsFile settings;
    RandomNumbers random;
    Window* main = nullptr;
    std::atomic<bool> isEndedBySystem = false;  // set on whichever thread the event comes from
    std::atomic<bool> isSaving = false;         // the end may come in the middle of a save
    bool isFailedSaveReported = false;
};

}  // namespace prismfall
