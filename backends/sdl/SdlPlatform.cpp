// Starting SDL, opening and closing windows, and passing every other call to the class that handles it.
#include "backends/sdl/SdlPlatform.h"

#include <SDL.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <random>

#include "backends/sdl/desktop/DesktopHints.h"
#include "backends/sdl/desktop/MessageBox.h"
#include "platform/NominalFrame.h"

namespace prismfall {

namespace {

struct Hint {
    const char* name;
    const char* value;
};

constexpr std::array<Hint, 7> kHints = {{
    {SDL_HINT_APP_NAME, "Prismfall"},
    {SDL_HINT_NO_SIGNAL_HANDLERS, "1"},
    {SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0"},
    // The click that brings the window to the front also counts in the game.
    {SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1"},
    // The desktop grabs the pointer from press to release anyway; requesting it would cost four more round trips per
    // click.
    {SDL_HINT_MOUSE_AUTO_CAPTURE, "0"},
    {SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1"},
    {SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0"},
}};

// The largest pictures of the first screen, read while the display is being opened.
constexpr std::array<std::string_view, 2> kEarlyPictures = {"Background", "ImagePrismfall"};

// A different number at each start of the program.
std::uint64_t DrawStartNumber() {
    std::random_device source;
    return std::uint64_t{source()} << 32 | source();
}

}  // namespace

std::unique_ptr<SdlPlatform> SdlPlatform::Create(const std::filesystem::path& pictures, std::string& failure) {
    PrepareDesktop();
    SDL_SetMainReady();
    for (const Hint& hint : kHints) SDL_SetHint(hint.name, hint.value);
    PictureStore early(pictures);
    early.ReadAhead(kEarlyPictures);
    if (!OpenDisplay(failure)) return nullptr;
    SDL_StopTextInput();
    return std::unique_ptr<SdlPlatform>(new SdlPlatform(std::move(early)));
}

SdlPlatform::SdlPlatform(PictureStore pictures)
    : desktop(
          std::move(pictures), [this] { CloseProgram(); }, [this] { audio.DeviceLost(); }),
      settings(SettingsFile::UsersFile()),
      random(DrawStartNumber()) {
    SDL_AddEventWatch(NoteEndBySystem, this);
    if (SDL_HasEvent(SDL_QUIT) == SDL_TRUE) isEndedBySystem = true;
    WhenSessionEnds([this] {
        if (isSaving) return;
        isEndedBySystem = true;
        if (main != nullptr && main->on.queryUnload) main->on.queryUnload();
        std::_Exit(EXIT_SUCCESS);
    });
}

SdlPlatform::~SdlPlatform() { SDL_DelEventWatch(NoteEndBySystem, this); }

// Never caused by the player, who ends the program with a key, a button or a window's close box.
int SdlPlatform::NoteEndBySystem(void* self, SDL_Event* event) {
    if (event->type == SDL_QUIT) static_cast<SdlPlatform*>(self)->isEndedBySystem = true;
    return 0;
}

void SdlPlatform::Run(Window& mainWindow) {
    main = &mainWindow;
    if (!desktop.Open(mainWindow)) {
        std::fprintf(stderr, "prismfall: no window can be opened: %s.\n", SDL_GetError());
        std::exit(EXIT_FAILURE);
    }
    mainWindow.visible = true;
    Gamepads::Begin();  // after the first picture, since it asks the system for all devices
    loop.Timers().Handle([&mainWindow] {
        if (mainWindow.on.activate) mainWindow.on.activate();
    });
    loop.Run();
}

void SdlPlatform::CloseProgram() {
    if (main != nullptr && main->on.queryUnload) main->on.queryUnload();
    if (main != nullptr && main->on.unload) main->on.unload();
    EndProgram();
}

// Handlers may be on the stack below this call, with data that must stay alive: the process ends here without returning
// through them.
void SdlPlatform::EndProgram() {
    desktop.HideAll();
    if (!audio.Finish()) std::_Exit(EXIT_SUCCESS);
    SDL_Quit();
    std::exit(EXIT_SUCCESS);
}

void SdlPlatform::SurfaceLine(int x1, int y1, int x2, int y2, Colour colour, int width) {
    desktop.Layer().Line(x1, y1, x2, y2, colour, width);
}

void SdlPlatform::SurfaceBox(int x1, int y1, int x2, int y2, Colour colour, int width) {
    desktop.Layer().Box(x1, y1, x2, y2, colour, width);
}

void SdlPlatform::SurfaceRestore(int x1, int y1, int x2, int y2) { desktop.Layer().Restore(x1, y1, x2, y2); }

void SdlPlatform::SurfaceClear() { desktop.Layer().Clear(); }

bool SdlPlatform::ShowModally(Window& dialog) {
    if (dialog.visible) return true;
    if (!OpenDialog(dialog)) return false;
    const auto isOpen = [&] { return Input().IsOpen(dialog); };
    if (dialog.stopsTime) {
        loop.FreezeWhile(isOpen);
    } else {
        loop.RunWhile(isOpen);
    }
    return CloseDialog(dialog);
}

bool SdlPlatform::OpenDialog(Window& dialog) {
    if (!desktop.Open(dialog)) return false;
    dialog.visible = true;
    if (dialog.on.activate) dialog.on.activate();
    return true;
}

bool SdlPlatform::CloseDialog(Window& dialog) {
    const bool wasHidden = !dialog.visible;
    if (!wasHidden && dialog.on.queryUnload) dialog.on.queryUnload();
    if (!wasHidden && dialog.on.unload) dialog.on.unload();
    dialog.visible = false;
    desktop.Close(dialog);
    return wasHidden;
}

// No timer ticks while an error box is open.
void SdlPlatform::ShowMessageBox(std::string_view text) {
    Window box;
    MakeMessageBox(box, text, desktop.Screen(), [&] { box.Hide(); });
    if (main != nullptr) {
        const Place corner = Position(*main);
        const Extent outer = OuterSize(*main);
        const Extent size = OuterSize(box);
        SetPosition(box, {corner.left + (outer.width - size.width) / 2, corner.top + (outer.height - size.height) / 2});
    }
    if (!OpenDialog(box)) return;
    loop.FreezeWhile([&] { return Input().IsOpen(box); });
    CloseDialog(box);
}

Extent SdlPlatform::OuterSize(const Window& window) { return desktop.OuterSize(window); }

Extent SdlPlatform::InnerSize(const Window& window) { return {window.innerWidth, window.innerHeight}; }

Place SdlPlatform::Position(const Window& window) { return desktop.Position(window); }

// The size includes the nominal frame: whatever frame the desktop draws, the inner area stays the same.
void SdlPlatform::SetOuterSize(Window& window, Extent size) { desktop.SetInnerSize(window, WithoutNominalFrame(size)); }

void SdlPlatform::SetPosition(Window& window, Place place) { desktop.SetPosition(window, place); }

void SdlPlatform::LetEventsRun() { loop.LetEventsRun(); }

std::int64_t SdlPlatform::Clock() {
    return std::chrono::duration_cast<std::chrono::milliseconds>(EventLoop::Now()).count();
}

double SdlPlatform::Random() { return random.Next(); }

void SdlPlatform::BeginRandom(std::uint64_t number) { random.Begin(number, loop.Timers().MomentInMilliseconds()); }

void SdlPlatform::SeedRandomFromClock() { random.Seed(loop.Timers().MomentInMilliseconds()); }

// The application's name is not stored: the file belongs to this application alone.
std::string SdlPlatform::ReadSetting(std::string_view, std::string_view section, std::string_view key,
                                     std::string_view fallback) {
    return settings.Read(section, key).value_or(std::string(fallback));
}

bool SdlPlatform::ChangeSettings(std::string_view, const SettingsChange& change) {
    isSaving = true;
    const std::string failure = settings.Change(change);
    isSaving = false;
    if (!failure.empty()) ReportUnsavedSettings(failure);
    return failure.empty();
}

// Shown once: a lasting failure need not be repeated. A box may wait for the player, but not when the system is ending
// the program.
void SdlPlatform::ReportUnsavedSettings(const std::string& failure) {
    if (std::exchange(isFailedSaveReported, true)) return;
    if (isEndedBySystem) {
        std::fprintf(stderr, "prismfall: %s\n", failure.c_str());
    } else {
        ShowMessageBox(failure);
    }
}

void SdlPlatform::PlayWave(Wave wave, bool wait) {
    audio.PlayWave(wave.bytes);
    if (wait) loop.PaintFor(WaveLength(wave.bytes));
}

void SdlPlatform::MusicClose() {
    audio.DoWithMusic([](SdlMusic& music) { music.Close(); });
}

// Tracks are in `music` in the current directory. If that no longer exists, the path cannot be opened, and the player
// is told so.
int SdlPlatform::MusicOpen(std::string_view name) {
    std::error_code ignored;
    return audio.MusicOpen((std::filesystem::current_path(ignored) / "music" / name).string());
}

void SdlPlatform::MusicSetVolume(int volume) {
    audio.DoWithMusic([volume](SdlMusic& music) { music.SetVolume(volume); });
}

void SdlPlatform::MusicPlayLooping() {
    audio.DoWithMusic([](SdlMusic& music) { music.PlayLooping(); });
}

void SdlPlatform::MusicResume() {
    audio.DoWithMusic([](SdlMusic& music) { music.Resume(); });
}

void SdlPlatform::MusicPause() {
    audio.DoWithMusic([](SdlMusic& music) { music.Pause(); });
}

void SdlPlatform::MusicStop() {
    audio.DoWithMusic([](SdlMusic& music) { music.Stop(); });
}

std::string SdlPlatform::MusicFailureText(int code) { return audio.MusicFailureText(code); }

void SdlPlatform::SetComfort(const Comfort& comfort) {
    desktop.SetComfort(comfort);
    audio.SetShares(comfort.musicPercent, comfort.effectsPercent);
}

void SdlPlatform::SetPace(int percent) { loop.SetPace(percent); }

}  // namespace prismfall
