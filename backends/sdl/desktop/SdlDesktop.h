// The open windows, the topmost last. Routes every event to WindowInput, which decides which window may receive it. The
// event loop decides when events are taken and when timers tick.
#pragma once

#include <SDL.h>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "backends/sdl/desktop/DesktopHints.h"
#include "backends/sdl/desktop/Gamepads.h"
#include "backends/sdl/desktop/SdlWindow.h"
#include "backends/sdl/drawing/ElementPainter.h"
#include "platform/Surface.h"
#include "platform/WindowHost.h"
#include "platform/WindowInput.h"

namespace prismfall {

class SdlDesktop {
  public:
    // `endAsked` is called when the player or the system wants to end the program, `soundLost` when the sound device
    // has disappeared.
    SdlDesktop(PictureStore pictures, std::function<void()> endAsked, std::function<void()> soundLost);
    // Called with the name of a file, or a text, that is dropped on the main window while that has input. From then on
    // the desktop shows that the window takes them.
    void WhenDropped(std::function<void(const std::string& dropped)> act) { whenDropped = std::move(act); }
    // Acts as if the player had dropped that, once the running handlers have returned.
    static void Drop(const std::string& dropped);
    SdlDesktop(const SdlDesktop&) = delete;
    SdlDesktop& operator=(const SdlDesktop&) = delete;
    ~SdlDesktop();

    void SetComfort(const Comfort& comfort);
    WindowInput& Input() { return input; }
    Surface& Layer() { return layer; }
    Display& Screen() { return display; }

    // Opens a real window on top of the others. Returns false if the desktop refuses.
    bool Open(Window& window);
    void Close(const Window& window);
    bool IsOpen(const Window& window) const { return Find(window) != nullptr; }
    void Refresh();
    // Removes the windows from the display at once, dialogs first.
    void HideAll();
    void Handle(const SDL_Event& event);
    // Whether an event is pending by which the player or the system wants to end the program.
    bool IsEndWaiting();
    // Tells the main window whether it is minimised, if that has changed since the last time. Returns whether it has.
    bool DeliverMinimised();
    // Whether there is something new to show in a moment, even if nothing happens.
    bool IsMoving() const { return looks.AreMoving(); }

    Extent OuterSize(const Window& window);
    Place Position(const Window& window);
    void SetInnerSize(Window& window, Extent size);
    void SetPosition(const Window& window, Place place);

  private:
    struct Shown {
        std::unique_ptr<SdlWindow> real;
        bool awaitsFirstFocus = true;  // showing it counts as an activation, the focus that follows does not
    };

    static int SDLCALL NoteExposure(void* self, SDL_Event* event);

    void ChooseScale(const Window& window);
    void KeepOnDisplay(const Window& window);
    void MarkOn(Window& mainWindow);
    // Gives the desktop a moment, once, to report the frame it has drawn around the main window.
    void AwaitFrame();
    const Shown* Find(const Window& window) const;
    Shown* FindById(std::uint32_t id);
    void HandleWindowEvent(const SDL_WindowEvent& event);
    void HandleFocus(Shown& shown);
    void HandleFocusLoss(const Shown& shown);
    void HandleDrop(char* dropped) const;
    void HandleButton(const SDL_MouseButtonEvent& event);
    void HandleKey(const SDL_KeyboardEvent& event);
    void Press(Key key);
    bool AsksForEnd(const SDL_Event& event) const;
    // The real frame, or the nominal one where the desktop does not report it.
    FrameBorders BordersOf(const Window& window) const;
    // All windows have the scale that the desktop gave the main window.
    float PointsPerGamePixel() const;
    int Points(int gamePixels) const;
    int GamePixels(int points) const;

    std::function<void()> endAsked;
    std::function<void()> soundLost;
    std::function<void(const std::string&)> whenDropped;
    DesktopFacts facts;
    WindowInput input;
    Gamepads gamepads;
    Display display;
    Surface layer;
    Looks looks{layer};
    bool ringsAtPointer = false;
    bool isLively = false;
    KeyMap keys;
    float scaleToAskFor = 1;  // points per game pixel, for the first window
    bool scaleChosen = false;
    bool frameAwaited = false;
    bool minimisedAsTold = false;
    std::vector<Shown> windows;
    std::map<const Window*, Place> wantedPlaces;  // of windows that are not shown, in game pixels
};

}  // namespace prismfall
