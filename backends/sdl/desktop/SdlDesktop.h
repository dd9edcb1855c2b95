// The windows that are shown, the topmost last, and the way of every event to WindowInput, which knows the window that
// may have it. When events are taken and when timers tick belongs to the loop.
#pragma once

#include <SDL.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "backends/sdl/desktop/DesktopHints.h"
#include "backends/sdl/desktop/SdlWindow.h"
#include "backends/sdl/drawing/ElementPainter.h"
#include "platform/Surface.h"
#include "platform/WindowHost.h"
#include "platform/WindowInput.h"

namespace prismfall {

class SdlDesktop {
  public:
    // `endAsked` is called when the player or the system wants the program to end, `soundLost` when the sound device
    // has gone.
    SdlDesktop(PictureStore pictures, std::function<void()> endAsked, std::function<void()> soundLost);
    SdlDesktop(const SdlDesktop&) = delete;
    SdlDesktop& operator=(const SdlDesktop&) = delete;
    ~SdlDesktop();

    Surface& Layer() { return layer; }
    Display& Screen() { return display; }

    // Makes a window real, on top of the others. False if the desktop refuses.
    bool Open(Window& window);
    void Close(const Window& window);
    bool IsOpen(const Window& window) const { return Find(window) != nullptr; }
    // Whether the window's close box has been used; only a dialog lives on after that.
    bool CloseBoxUsed(const Window& window) const;
    void Refresh();
    // Takes the windows off the display at once, dialogs first.
    void HideAll();
    void Handle(const SDL_Event& event);
    // Whether an event is waiting by which the player or the system wants the program to end.
    bool IsEndWaiting();
    // Tells the main window whether it is minimised, if that has changed since it was told last. Whether it has.
    bool DeliverMinimised();

    Extent OuterSize(const Window& window);
    Place Position(const Window& window);
    void SetInnerSize(Window& window, Extent size);
    void SetPosition(const Window& window, Place place);

  private:
    struct Shown {
        std::unique_ptr<SdlWindow> real;
        bool awaitsFirstFocus = true;  // its showing counts as an activation, the focus that follows does not
        bool closeBoxUsed = false;
    };

    static int SDLCALL NoteExposure(void* self, SDL_Event* event);

    void ChooseScale(const Window& window);
    // Gives the desktop a moment, once, to tell of the frame it has drawn around the main window.
    void AwaitFrame();
    const Shown* Find(const Window& window) const;
    Shown* FindById(std::uint32_t id);
    void HandleWindowEvent(const SDL_WindowEvent& event);
    void HandleFocus(Shown& shown);
    void HandleCloseBox(Shown& shown);
    void HandleButton(const SDL_MouseButtonEvent& event);
    bool AsksForEnd(const SDL_Event& event) const;
    // What SDL has to be asked for, so that the frame of a new window has its corner at a place in game pixels.
    Place CornerToAskFor(Place place) const;
    // The nominal frame, where the desktop does not tell of a real one.
    FrameBorders BordersOf(const Window& window) const;
    // All windows have the scale that the desktop has given the main window.
    float PointsPerGamePixel() const;
    int Points(int gamePixels) const;
    int GamePixels(int points) const;

    std::function<void()> endAsked;
    std::function<void()> soundLost;
    DesktopFacts facts;
    WindowInput input;
    Display display;
    Surface layer;
    float scaleToAskFor = 1;  // points a game pixel, for the first window
    bool scaleChosen = false;
    bool frameAwaited = false;
    bool minimisedAsTold = false;
    std::vector<Shown> windows;
    std::map<const Window*, Place> wantedPlaces;  // of windows that are not shown, in game pixels
};

}  // namespace prismfall
