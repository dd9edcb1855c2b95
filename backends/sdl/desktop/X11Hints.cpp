// X11 desktops, with Xlib: window properties, and the settings that a desktop publishes as resources and as XSETTINGS.
// On Wayland SDL does all that is possible.
#include "backends/sdl/desktop/DesktopHints.h"

#include <SDL.h>
#include <SDL_syswm.h>
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <dlfcn.h>
#include <array>

#include <algorithm>
#include <cmath>
#include <csignal>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <thread>
#include <utility>

#include "backends/sdl/desktop/SignalWatch.h"

struct wl_display;

namespace prismfall {

namespace {

constexpr float kPlainDotsPerInch = 96;
constexpr float kLargestScale = 4;
constexpr int kFirstPatchOverSdl3 = 50;  // the patch level; SDL2 itself has lower ones

// The Motif hints that window managers still follow.
constexpr unsigned long kMotifHasFunctions = 1;
constexpr unsigned long kMotifHasDecorations = 2;
constexpr unsigned long kMotifMove = 4;
constexpr unsigned long kMotifMinimise = 8;
constexpr unsigned long kMotifClose = 32;
constexpr unsigned long kMotifBorder = 2;
constexpr unsigned long kMotifTitle = 8;
constexpr unsigned long kMotifMenu = 16;
constexpr unsigned long kMotifMinimiseBox = 32;

struct X11Window {
    Display* display = nullptr;
    ::Window window = 0;
};

std::optional<X11Window> WindowOnX11(SDL_Window* window) {
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    if (SDL_GetWindowWMInfo(window, &info) == SDL_FALSE || info.subsystem != SDL_SYSWM_X11) return std::nullopt;
    return X11Window{info.info.x11.display, info.info.x11.window};
}

Atom AtomOf(const X11Window& x, const char* name) { return XInternAtom(x.display, name, False); }

void SetMotifHints(const X11Window& x, bool canMinimise) {
    const std::array<unsigned long, 5> hints = {
        kMotifHasFunctions | kMotifHasDecorations, kMotifMove | kMotifClose | (canMinimise ? kMotifMinimise : 0),
        kMotifBorder | kMotifTitle | kMotifMenu | (canMinimise ? kMotifMinimiseBox : 0), 0, 0};
    const Atom name = AtomOf(x, "_MOTIF_WM_HINTS");
    XChangeProperty(x.display, x.window, name, name, 32, PropModeReplace,
                    reinterpret_cast<const unsigned char*>(hints.data()), 5);
}

void SetAtoms(const X11Window& x, const char* property, const char* value, int mode) {
    const Atom atom = AtomOf(x, value);
    XChangeProperty(x.display, x.window, AtomOf(x, property), XA_ATOM, 32, mode,
                    reinterpret_cast<const unsigned char*>(&atom), 1);
}

// SDL2 on top of SDL3 takes the position meant for the frame as that of the inner area. The dialog has no frame yet,
// but its owner has one.
void PlaceByFrame(SDL_Window* dialog, SDL_Window* owner) {
    SDL_version linked;
    SDL_GetVersion(&linked);
    if (linked.patch < kFirstPatchOverSdl3 || owner == nullptr) return;
    int left = 0;
    int top = 0;
    int frameLeft = 0;
    int frameTop = 0;
    SDL_GetWindowPosition(dialog, &left, &top);
    SDL_GetWindowBordersSize(owner, &frameTop, &frameLeft, nullptr, nullptr);
    SDL_SetWindowPosition(dialog, left + frameLeft, top + frameTop);
}

// The integers in a desktop's XSETTINGS, by name.
class DesktopSettings {
  public:
    explicit DesktopSettings(std::string_view block) : bytes(block) {
        bigEndian = !bytes.empty() && bytes[0] != 0;
        at = 8;
        const std::uint32_t count = Number(4);
        for (std::uint32_t i = 0; i < count && at < bytes.size(); ++i) ReadOne();
    }

    std::optional<int> Find(const std::string& name) const {
        const auto found = numbers.find(name);
        if (found == numbers.end()) return std::nullopt;
        return found->second;
    }

  private:
    std::uint32_t Number(std::size_t length) {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < length; ++i) {
            const std::size_t place = at + (bigEndian ? i : length - 1 - i);
            value = value << 8 | (place < bytes.size() ? static_cast<unsigned char>(bytes[place]) : 0U);
        }
        at += length;
        return value;
    }

    std::string Text(std::size_t length) {
        std::string text(at < bytes.size() ? bytes.substr(at, length) : std::string_view());
        at += (length + 3) / 4 * 4;
        return text;
    }

    void ReadOne() {
        const std::uint32_t type = Number(1);
        at += 1;
        const std::string name = Text(Number(2));
        at += 4;  // the serial number of its last change
        if (type == 0) {
            numbers[name] = static_cast<int>(Number(4));
        } else if (type == 1) {
            Text(Number(4));
        } else {
            at += 8;  // a colour
        }
    }

    std::string_view bytes;
    bool bigEndian = false;
    std::size_t at = 0;
    std::map<std::string, int> numbers;
};

int IgnoreError(Display*, XErrorEvent*) { return 0; }

XErrorHandler otherErrors = nullptr;

// Windows disappear at any moment: a dialog that is closed, or the frame that the window manager gave it. Requests
// about them that SDL still has on the way, such as the event with which it interrupts its own wait, are answered with
// an error, which would end the program.
int IgnoreGoneWindow(Display* display, XErrorEvent* error) {
    if (error->error_code == BadWindow || error->error_code == BadDrawable) return 0;
    return otherErrors(display, error);
}

void IgnoreGoneWindows() { otherErrors = XSetErrorHandler(IgnoreGoneWindow); }

std::function<void()> endWithoutDisplay;
std::thread::id endingThread;

// SDL wakes its loop from other threads over a separate connection. A thread that finds it broken waits for the
// program's end.
int OnDisplayLost(Display*) {
    if (std::this_thread::get_id() != endingThread) AwaitEnd(SIGHUP);
    endWithoutDisplay();
    return 0;
}

// The block that the desktop's settings daemon publishes, if there is one. The daemon may exit at any moment, so errors
// from the X server are ignored here.
std::string ReadSettingsBlock(Display* display) {
    const std::string selection = "_XSETTINGS_S" + std::to_string(DefaultScreen(display));
    const ::Window owner = XGetSelectionOwner(display, XInternAtom(display, selection.c_str(), False));
    if (owner == 0) return {};
    const Atom name = XInternAtom(display, "_XSETTINGS_SETTINGS", False);
    Atom type = 0;
    int format = 0;
    unsigned long count = 0;
    unsigned long rest = 0;
    unsigned char* data = nullptr;
    const auto handler = XSetErrorHandler(IgnoreError);
    XGetWindowProperty(display, owner, name, 0, 0xFFFF, False, name, &type, &format, &count, &rest, &data);
    XSetErrorHandler(handler);
    std::string block;
    if (data != nullptr && format == 8) block.assign(reinterpret_cast<const char*>(data), count);
    if (data != nullptr) XFree(data);
    return block;
}

std::optional<float> ResourceDotsPerInch(Display* display) {
    const char* text = XGetDefault(display, "Xft", "dpi");
    if (text == nullptr) return std::nullopt;
    return std::strtof(text, nullptr);
}

// The kinds of desktop to try, without the dummy ones that nobody could see. The user's environment takes precedence.
// Where Wayland is impossible its library is left alone, since it complains on standard error.
const char* Desktops() { return std::getenv("XDG_RUNTIME_DIR") != nullptr ? "x11,wayland" : "x11"; }

bool IsDesktop(const char* name) {
    const char* driver = SDL_GetCurrentVideoDriver();
    return driver != nullptr && std::strcmp(driver, name) == 0;
}

void IgnoreMessage(const char*, int, const char*, int, const char*, ...) {}

// Without a sound device, ALSA complains at length on standard error. SDL has loaded the library; taking the function
// from there saves the game a dependency.
void SilenceAlsa() {
    using Handler = void (*)(const char*, int, const char*, int, const char*, ...);
    using SetHandler = int (*)(Handler);
    void* library = dlopen("libasound.so.2", RTLD_LAZY | RTLD_NOLOAD);
    if (library == nullptr) return;
    if (const auto setHandler = reinterpret_cast<SetHandler>(dlsym(library, "snd_lib_error_set_handler")))
        setHandler(IgnoreMessage);
    dlclose(library);
}

// SDL waits forever for a compositor that disappears while a window opens. A separate connection shows whether it is
// still there. SDL has loaded the library; taking its functions from there saves the game a dependency.
void EndWithWayland() {
    using Connect = wl_display* (*)(const char*);
    using GetConnection = int (*)(wl_display*);
    void* library = dlopen("libwayland-client.so.0", RTLD_LAZY | RTLD_NOLOAD);
    if (library == nullptr) return;
    const auto connect = reinterpret_cast<Connect>(dlsym(library, "wl_display_connect"));
    const auto connectionOf = reinterpret_cast<GetConnection>(dlsym(library, "wl_display_get_fd"));
    wl_display* const display = connect != nullptr && connectionOf != nullptr ? connect(nullptr) : nullptr;
    if (display != nullptr) EndWithConnection(connectionOf(display));
    dlclose(library);
}

// In quarters: desktops offer no finer steps, and dots per inch are seldom exact.
float ScaleOf(float dotsPerInch) {
    if (!(dotsPerInch > 0)) return 1;
    return std::clamp(std::round(dotsPerInch / kPlainDotsPerInch * 4) / 4, 1.0F, kLargestScale);
}

}  // namespace

void PrepareDesktop() {
    if (!WatchEndSignals()) SDL_SetHintWithPriority(SDL_HINT_NO_SIGNAL_HANDLERS, "0", SDL_HINT_OVERRIDE);
}

bool OpenDisplay(std::string& failure) {
    SDL_SetHint(SDL_HINT_VIDEODRIVER, Desktops());
    // The game takes no text input. Without this, X11 reads its table of composed characters, which takes a quarter of
    // the time until the first picture is shown. Wayland's keyboards would complain about the empty table.
    if (std::getenv("DISPLAY") != nullptr) setenv("XCOMPOSEFILE", "/dev/null", 0);
    // Before SDL sets its own handler: that one calls this one, and restores it when the connections are closed.
    IgnoreGoneWindows();
    if (SDL_Init(SDL_INIT_VIDEO) != 0) {
        failure = std::string("No X11 or Wayland display can be opened (") + SDL_GetError() + ").";
        return false;
    }
    // On X11 the window's own pixels are by far the cheapest way; elsewhere this may not exist.
    if (IsDesktop("x11")) SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    if (IsDesktop("wayland")) EndWithWayland();
    DeliverEarlySignal();
    SilenceAlsa();
    return true;
}

void WhenSessionEnds(std::function<void()> end) {
    WhenItHangs(end);
    endWithoutDisplay = std::move(end);
    endingThread = std::this_thread::get_id();
    XSetIOErrorHandler(OnDisplayLost);
}

DesktopFacts AskDesktop() {
    DesktopFacts facts;
    if (!IsDesktop("x11")) return facts;
    Display* display = XOpenDisplay(nullptr);
    if (display == nullptr) return facts;
    const std::string block = ReadSettingsBlock(display);
    const DesktopSettings settings(block);
    std::optional<float> dotsPerInch = ResourceDotsPerInch(display);
    if (const auto dots = settings.Find("Xft/DPI"); !dotsPerInch && dots)
        dotsPerInch = static_cast<float>(*dots) / 1024;
    if (dotsPerInch) facts.scale = ScaleOf(*dotsPerInch);
    if (const auto time = settings.Find("Net/DoubleClickTime"); time && *time > 0)
        facts.doubleClickMilliseconds = *time;
    facts.isCalm = settings.Find("Gtk/EnableAnimations").value_or(1) == 0;
    XCloseDisplay(display);
    return facts;
}

void SetMainFrame(SDL_Window* window) {
    if (const auto x = WindowOnX11(window)) SetMotifHints(*x, true);
}

void SetDialogFrame(SDL_Window* dialog, SDL_Window* owner) {
    if (owner != nullptr) SDL_SetWindowModalFor(dialog, owner);
    const auto x = WindowOnX11(dialog);
    if (!x) return;
    PlaceByFrame(dialog, owner);
    SetMotifHints(*x, false);
    SetAtoms(*x, "_NET_WM_WINDOW_TYPE", "_NET_WM_WINDOW_TYPE_DIALOG", PropModeReplace);
    SetAtoms(*x, "_NET_WM_STATE", "_NET_WM_STATE_MODAL", PropModeAppend);
}

}  // namespace prismfall
