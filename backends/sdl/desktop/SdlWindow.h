// One real window on the desktop, while it is shown: creates it from a Window's data and presents what has changed.
// Whatever size the desktop gives it, the whole picture is shown. WindowInput handles the input.
#pragma once

#include <SDL.h>

#include <memory>
#include <optional>

#include "backends/sdl/desktop/MarginNote.h"
#include "backends/sdl/drawing/Composer.h"
#include "backends/sdl/drawing/PictureFit.h"
#include "platform/NominalFrame.h"
#include "platform/WindowHost.h"

namespace prismfall {

// A place in game pixels.
struct GamePlace {
    float x = 0;
    float y = 0;
};

class SdlWindow {
  public:
    struct Options {
        Looks* layer = nullptr;            // of the main window
        SDL_Window* owner = nullptr;       // of a dialog
        std::optional<Place> frameCorner;  // in points of the desktop; if unset, the desktop chooses
        float pointsPerGamePixel = 1;      // the scale to request; points are the desktop's unit of length
    };

    // Creates the window and shows it. If the desktop refuses, IsReal is false and SDL_GetError says why.
    SdlWindow(Window& data, Display& target, const Options& wanted);

    bool IsReal() const { return real != nullptr; }
    SDL_Window* Real() const { return real.get(); }
    std::uint32_t Id() const { return SDL_GetWindowID(real.get()); }
    Window& Data() { return window; }
    const Window& Data() const { return window; }

    // Presents what has changed since the last call.
    void Refresh();
    // Makes the next call present everything: the desktop has lost the window's contents.
    void Expose();
    void HideNow() { SDL_HideWindow(real.get()); }
    // Switches between the whole display and the window's own size.
    void ToggleFullScreen();
    void Raise() { SDL_RaiseWindow(real.get()); }
    bool IsMinimised() const { return (SDL_GetWindowFlags(real.get()) & SDL_WINDOW_MINIMIZED) != 0; }
    // The frame in the desktop's points, or nothing if the desktop does not report one.
    std::optional<FrameBorders> Borders() const;
    // The scale chosen by the desktop.
    float PointsPerGamePixel() const { return fit.scale / pixelsPerPoint; }
    // The top left corner of the picture inside the window, in points.
    Place PictureCorner() const;
    // Converts a position in the window, in points, to one in its picture, or outside it on the black border.
    GamePlace ToGame(int x, int y) const;
    bool IsOnPicture(const GamePlace& place) const;
    // The picture's top left corner on the desktop, in game pixels; nothing if the desktop does not say.
    std::optional<Place> Origin() const;

  private:
    struct Destroy {
        void operator()(SDL_Window* sdlWindow) const { SDL_DestroyWindow(sdlWindow); }
    };
    struct Free {
        void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
    };

    void Create();
    void SetIcon();
    void FitTo(const SDL_Surface& shown);
    void BlackenMargins(SDL_Surface& shown);
    void RefreshMargins(SDL_Surface& shown, SDL_Surface& drawn);
    void Present(const PixelBox& box, SDL_Surface& shown, SDL_Surface& drawn);
    SDL_Surface* DrawingSurface(SDL_Surface* shown);

    Window& window;
    Display& display;
    Options options;
    Composer composer;
    std::unique_ptr<SDL_Window, Destroy> real;
    std::unique_ptr<SDL_Surface, Free> converted;  // only where the desktop's pixels are not 32-bit RGB
    std::vector<SDL_Rect> presented;
    Extent shownSize;  // in pixels of the display
    float pixelsPerPoint = 1;
    PictureFit fit;
    bool marginsLost = true;
    MarginNote note;
};

}  // namespace prismfall
