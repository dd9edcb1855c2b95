// The Windows desktop: owners of dialogs, and the end of a session, which SDL ignores.
#include "backends/sdl/desktop/DesktopHints.h"

#include <SDL.h>
#include <SDL_syswm.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace prismfall {

namespace {

constexpr float kPlainDotsPerInch = 96;
constexpr float kLargestScale = 4;
constexpr const wchar_t* kFormerProcedure = L"PrismfallFormerProcedure";

std::function<void()> endOfSession;

HWND HandleOf(SDL_Window* window) {
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    return SDL_GetWindowWMInfo(window, &info) == SDL_TRUE ? info.info.win.window : nullptr;
}

LRESULT PassOn(HWND window, UINT message, WPARAM word, LPARAM value) {
    const auto former = reinterpret_cast<WNDPROC>(GetPropW(window, kFormerProcedure));
    return CallWindowProcW(former, window, message, word, value);
}

// Installs a procedure in front of SDL's, which it calls through PassOn.
void InstallInFront(HWND window, WNDPROC procedure) {
    SetPropW(window, kFormerProcedure, reinterpret_cast<HANDLE>(GetWindowLongPtrW(window, GWLP_WNDPROC)));
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
}

// Once this message is answered, Windows may end the process at any moment.
LRESULT CALLBACK MainProcedure(HWND window, UINT message, WPARAM word, LPARAM value) {
    if (message == WM_ENDSESSION && word != 0 && endOfSession) endOfSession();
    return PassOn(window, message, word, value);
}

// The owner of a modal dialog takes no input. It must be enabled again before the dialog is closed; otherwise the focus
// goes to another program.
LRESULT CALLBACK DialogProcedure(HWND window, UINT message, WPARAM word, LPARAM value) {
    if (message == WM_SHOWWINDOW && value == 0) EnableWindow(GetWindow(window, GW_OWNER), word == 0);
    // SDL would limit the whole window to the size it has with a plain frame.
    if (message == WM_GETMINMAXINFO) return DefWindowProcW(window, message, word, value);
    return PassOn(window, message, word, value);
}

// A small title bar without an icon. SDL assumes a plain frame when it computes the size of the whole window, and takes
// the position meant for the frame as that of the inner area.
void SetToolFrame(SDL_Window* dialog, HWND handle) {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    SDL_GetWindowPosition(dialog, &left, &top);
    SDL_GetWindowSize(dialog, &width, &height);
    SetWindowLongPtrW(handle, GWL_STYLE, GetWindowLongPtrW(handle, GWL_STYLE) & ~static_cast<LONG_PTR>(WS_MINIMIZEBOX));
    SetWindowLongPtrW(handle, GWL_EXSTYLE, GetWindowLongPtrW(handle, GWL_EXSTYLE) | WS_EX_TOOLWINDOW);
    constexpr UINT quietly = SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED;
    SetWindowPos(handle, nullptr, left, top, width, height, quietly);
    RECT inner{};
    GetClientRect(handle, &inner);
    SetWindowPos(handle, nullptr, left, top, 2 * width - inner.right, 2 * height - inner.bottom, quietly);
}

}  // namespace

// SDL turns none of the messages that Windows sends to a program with windows into SDL_QUIT; WhenSessionEnds handles
// them all.
void PrepareDesktop() {
    // Libraries are loaded from the program's folder or from Windows, never from the current folder or the path.
    SetDefaultDllDirectories(LOAD_LIBRARY_SEARCH_APPLICATION_DIR | LOAD_LIBRARY_SEARCH_SYSTEM32);
}

bool OpenDisplay(std::string& failure) {
    if (SDL_Init(SDL_INIT_VIDEO) == 0) return true;
    failure = std::string("No display can be opened (") + SDL_GetError() + ").";
    return false;
}

DesktopFacts AskDesktop() {
    DesktopFacts facts;
    float dotsPerInch = 0;
    if (SDL_GetDisplayDPI(0, &dotsPerInch, nullptr, nullptr) == 0)
        facts.scale = std::clamp(std::round(dotsPerInch / kPlainDotsPerInch * 4) / 4, 1.0F, kLargestScale);
    facts.doubleClickMilliseconds = static_cast<int>(GetDoubleClickTime());
    BOOL moves = TRUE;
    if (SystemParametersInfoW(SPI_GETCLIENTAREAANIMATION, 0, &moves, 0) != 0) facts.isCalm = moves == FALSE;
    return facts;
}

void WhenSessionEnds(std::function<void()> end) { endOfSession = std::move(end); }

void SetMainFrame(SDL_Window* window) {
    if (const HWND handle = HandleOf(window); handle != nullptr) InstallInFront(handle, MainProcedure);
}

void SetDialogFrame(SDL_Window* dialog, SDL_Window* owner) {
    const HWND handle = HandleOf(dialog);
    if (handle == nullptr) return;
    InstallInFront(handle, DialogProcedure);
    SetToolFrame(dialog, handle);
    if (owner != nullptr) SetWindowLongPtrW(handle, GWLP_HWNDPARENT, reinterpret_cast<LONG_PTR>(HandleOf(owner)));
}

}  // namespace prismfall
