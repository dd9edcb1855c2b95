// Windows and events. A dialog's place is set before it is shown: moving a window afterwards is slow and, on many
// desktops, off by the frame.
#include "backends/sdl/desktop/SdlDesktop.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

#include "platform/KeyInput.h"

namespace prismfall {

namespace {

constexpr std::uint32_t kFrameMilliseconds = 100;  // how long a desktop may take to draw a frame

// SDL2 on top of SDL3 crashes on a drop event that a program pushes.
constexpr std::uint32_t kDroppedByProgram = SDL_USEREVENT;

constexpr int kCommandKeys = KMOD_CTRL | KMOD_ALT | KMOD_GUI;

struct KeyRow {
    SDL_Keycode code;
    Key key;
};

constexpr std::array<KeyRow, 13> kKeys = {{{SDLK_TAB, Key::Tab},
                                           {SDLK_RETURN, Key::Enter},
                                           {SDLK_KP_ENTER, Key::Enter},
                                           {SDLK_SPACE, Key::Space},
                                           {SDLK_ESCAPE, Key::Escape},
                                           {SDLK_PAGEUP, Key::PageUp},
                                           {SDLK_PAGEDOWN, Key::PageDown},
                                           {SDLK_LEFT, Key::Left},
                                           {SDLK_UP, Key::Up},
                                           {SDLK_RIGHT, Key::Right},
                                           {SDLK_DOWN, Key::Down},
                                           {SDLK_F1, Key::F1},
                                           {SDLK_F2, Key::F2}}};

// What a key is for the game. Keys pressed together with Ctrl, Alt and the like belong to the desktop.
Key KeyOf(const SDL_Keysym& pressed) {
    if ((pressed.mod & kCommandKeys) != 0) return Key::None;
    if (pressed.sym == SDLK_TAB && (pressed.mod & KMOD_SHIFT) != 0) return Key::ShiftTab;
    if (pressed.sym >= SDLK_a && pressed.sym <= SDLK_z) return static_cast<Key>(pressed.sym - SDLK_a + 'A');
    if (pressed.sym >= SDLK_0 && pressed.sym <= SDLK_9) return static_cast<Key>(pressed.sym);
    const auto row = std::ranges::find(kKeys, pressed.sym, &KeyRow::code);
    return row != kKeys.end() ? row->key : Key::None;
}

bool IsCloseKey(const SDL_KeyboardEvent& event) {
    return event.keysym.sym == SDLK_q && (event.keysym.mod & KMOD_CTRL) != 0;
}

bool IsAltEnter(const SDL_KeyboardEvent& event) {
    return event.keysym.sym == SDLK_RETURN && (event.keysym.mod & KMOD_ALT) != 0;
}

}  // namespace

SdlDesktop::SdlDesktop(PictureStore pictures, std::function<void()> whenEndAsked, std::function<void()> whenSoundLost)
    : endAsked(std::move(whenEndAsked)),
      soundLost(std::move(whenSoundLost)),
      facts(AskDesktop()),
      input(facts.doubleClickMilliseconds),
      display(std::move(pictures)) {
    SDL_AddEventWatch(NoteExposure, this);
}

SdlDesktop::~SdlDesktop() { SDL_DelEventWatch(NoteExposure, this); }

// Watching events instead of handling them lets a window be repainted while its input has to wait.
int SdlDesktop::NoteExposure(void* self, SDL_Event* event) {
    if (event->type != SDL_WINDOWEVENT || event->window.event != SDL_WINDOWEVENT_EXPOSED) return 0;
    if (Shown* shown = static_cast<SdlDesktop*>(self)->FindById(event->window.windowID); shown != nullptr)
        shown->real->Expose();
    return 0;
}

// The scale that the user wants, or less if the window would not fit on the display; in steps of a quarter unless it is
// below 1.
void SdlDesktop::ChooseScale(const Window& window) {
    scaleChosen = true;
    float scale = facts.scale;
    SDL_Rect usable;
    if (SDL_GetDisplayUsableBounds(0, &usable) == 0 && usable.w > 0 && usable.h > 0) {
        const auto share = [](int room, int frame, int size) {
            return static_cast<float>(room - frame) / static_cast<float>(size);
        };
        const float fits = std::min(share(usable.w, kNominalFrame.left + kNominalFrame.right, window.innerWidth),
                                    share(usable.h, kNominalFrame.top + kNominalFrame.bottom, window.innerHeight));
        if (fits < scale) scale = fits < 1 ? std::max(fits, 0.25F) : std::floor(fits * 4) / 4;
    }
    scaleToAskFor = scale;
    display.SetScale(scale);
}

float SdlDesktop::PointsPerGamePixel() const {
    return windows.empty() ? scaleToAskFor : windows.front().real->PointsPerGamePixel();
}

int SdlDesktop::Points(int gamePixels) const {
    return static_cast<int>(std::lround(static_cast<float>(gamePixels) * PointsPerGamePixel()));
}

int SdlDesktop::GamePixels(int points) const {
    return static_cast<int>(std::lround(static_cast<float>(points) / PointsPerGamePixel()));
}

const SdlDesktop::Shown* SdlDesktop::Find(const Window& window) const {
    const auto found = std::find_if(windows.begin(), windows.end(),
                                    [&](const Shown& shown) { return &shown.real->Data() == &window; });
    return found != windows.end() ? &*found : nullptr;
}

SdlDesktop::Shown* SdlDesktop::FindById(std::uint32_t id) {
    const auto found =
        std::find_if(windows.begin(), windows.end(), [&](const Shown& shown) { return shown.real->Id() == id; });
    return found != windows.end() ? &*found : nullptr;
}

bool SdlDesktop::Open(Window& window) {
    if (!scaleChosen) ChooseScale(window);
    SdlWindow::Options options;
    options.pointsPerGamePixel = PointsPerGamePixel();
    if (!window.isDialog) options.layer = &looks;
    if (window.isDialog && !windows.empty()) options.owner = windows.back().real->Real();
    if (const auto place = wantedPlaces.find(&window); place != wantedPlaces.end())
        options.frameCorner = Place{Points(place->second.left), Points(place->second.top)};
    auto real = std::make_unique<SdlWindow>(window, display, options);
    if (!real->IsReal()) return false;
    windows.push_back({std::move(real)});
    input.Open(window);
    if (!window.isDialog) KeepOnDisplay(window);
    return true;
}

// A small display holds the window and its frame, but some desktops centre the window without its frame, or put each
// new one further down.
void SdlDesktop::KeepOnDisplay(const Window& window) {
    SDL_Rect room;
    if (SDL_GetDisplayUsableBounds(0, &room) != 0 || room.h - Points(window.innerHeight) > 3 * kNominalFrame.top)
        return;
    const Extent size{Points(OuterSize(window).width), Points(OuterSize(window).height)};
    const Place corner = Position(window);
    const Place wanted{std::clamp(Points(corner.left), room.x, std::max(room.x, room.x + room.w - size.width)),
                       std::clamp(Points(corner.top), room.y, std::max(room.y, room.y + room.h - size.height))};
    const Place moved{GamePixels(wanted.left), GamePixels(wanted.top)};
    if (moved.left != corner.left || moved.top != corner.top) SetPosition(window, moved);
}

void SdlDesktop::Close(const Window& window) {
    std::erase_if(windows, [&](const Shown& shown) { return &shown.real->Data() == &window; });
    input.Close(window);
    wantedPlaces.erase(&window);
}

void SdlDesktop::SetComfort(const Comfort& comfort) {
    ringsAtPointer = comfort.ringsAtPointer;
    isLively = comfort.isLively;
    keys = comfort.keys;
    looks.Recolour(comfort.recolourings);
}

void SdlDesktop::MarkOn(Window& mainWindow) {
    looks.Mark(PlaceToMark(mainWindow, ringsAtPointer));
    looks.Enliven(isLively ? &mainWindow : nullptr, SDL_GetTicks(), facts.isCalm);
    looks.MarkPause(mainWindow.on.isPaused && mainWindow.on.isPaused());
}

void SdlDesktop::Refresh() {
    for (const Shown& shown : windows) FollowChoice(shown.real->Data());
    if (!windows.empty()) MarkOn(windows.front().real->Data());
    for (const Shown& shown : windows) shown.real->Refresh();
}

void SdlDesktop::HideAll() {
    std::for_each(windows.rbegin(), windows.rend(), [](const Shown& shown) { shown.real->HideNow(); });
}

bool SdlDesktop::AsksForEnd(const SDL_Event& event) const {
    if (event.type == SDL_QUIT) return true;
    if (windows.empty() || windows.back().real->Data().isDialog) return false;
    if (event.type == SDL_KEYDOWN) return IsCloseKey(event.key);
    return event.type == SDL_WINDOWEVENT && event.window.event == SDL_WINDOWEVENT_CLOSE &&
           event.window.windowID == windows.back().real->Id();
}

bool SdlDesktop::IsEndWaiting() {
    struct Search {
        const SdlDesktop& desktop;
        bool found = false;
    } search{*this};
    const auto look = [](void* found, SDL_Event* event) {
        auto& result = *static_cast<Search*>(found);
        if (result.desktop.AsksForEnd(*event)) result.found = true;
        return 1;  // keep it in the queue
    };
    SDL_FilterEvents(look, &search);
    return search.found;
}

void SdlDesktop::Handle(const SDL_Event& event) {
    if (AsksForEnd(event)) return endAsked();
    if (event.type == SDL_AUDIODEVICEREMOVED && event.adevice.iscapture == 0) return soundLost();
    if (event.type == SDL_DROPFILE || event.type == SDL_DROPTEXT) return HandleDrop(event.drop.file);
    if (event.type == kDroppedByProgram) return HandleDrop(static_cast<char*>(event.user.data1));
    if (windows.empty()) return;
    if (event.type == SDL_WINDOWEVENT) return HandleWindowEvent(event.window);
    // Keys go to the topmost window even if the desktop focuses none.
    SdlWindow& front = *windows.back().real;
    if (event.type == SDL_KEYDOWN && event.key.repeat == 0) return HandleKey(event.key);
    if (event.type == SDL_MOUSEMOTION && event.motion.windowID == front.Id()) {
        const GamePlace place = front.ToGame(event.motion.x, event.motion.y);
        NotePointer(front.Data(), place.x, place.y);
        return input.Move(front.Data(), place.x, place.y);
    }
    if (event.type == SDL_MOUSEBUTTONDOWN || event.type == SDL_MOUSEBUTTONUP) return HandleButton(event.button);
    Press(gamepads.KeyOf(event));
}

void SdlDesktop::Drop(const std::string& dropped) {
    SDL_Event event{};
    event.type = kDroppedByProgram;
    event.user.data1 = SDL_strdup(dropped.c_str());
    SDL_PushEvent(&event);
}

void SdlDesktop::HandleDrop(char* dropped) const {
    const std::unique_ptr<char, void (*)(void*)> owned(dropped, SDL_free);
    if (owned && whenDropped && windows.size() == 1 && windows.front().real->Data().takesInput)
        whenDropped(owned.get());
}

void SdlDesktop::HandleKey(const SDL_KeyboardEvent& event) {
    if (event.keysym.sym == SDLK_F11 || IsAltEnter(event)) return windows.front().real->ToggleFullScreen();
    const Key key = IsCloseKey(event) ? Key::Escape : KeyOf(event.keysym);
    Press(windows.back().real->Data().isDialog ? key : keys.Meaning(key));
}

// In a dialog Esc is its close box.
void SdlDesktop::Press(Key key) {
    Window& window = windows.back().real->Data();
    if (key == Key::None) return;
    if (key != Key::Escape) return PressKey(input, window, key);
    if (window.isDialog) return input.UseCloseBox(window);
    input.Key(window, kEscapeKey);
}

void SdlDesktop::HandleButton(const SDL_MouseButtonEvent& event) {
    SdlWindow& front = *windows.back().real;
    if (event.windowID != front.Id()) {
        if (event.type == SDL_MOUSEBUTTONDOWN) front.Raise();
        return;
    }
    const MouseButton button = event.button == SDL_BUTTON_LEFT ? MouseButton::Left : MouseButton::Right;
    const GamePlace place = front.ToGame(event.x, event.y);
    if (event.type == SDL_MOUSEBUTTONUP) {
        input.Release(front.Data(), button, place.x, place.y);
    } else if (front.IsOnPicture(place)) {
        input.Press(front.Data(), button, {place.x, place.y, event.timestamp, front.Origin()});
    }
}

void SdlDesktop::HandleWindowEvent(const SDL_WindowEvent& event) {
    Shown* shown = FindById(event.windowID);
    if (shown == nullptr) return;
    if (event.event == SDL_WINDOWEVENT_FOCUS_GAINED) HandleFocus(*shown);
    if (event.event == SDL_WINDOWEVENT_FOCUS_LOST) HandleFocusLoss(*shown);
    if (event.event == SDL_WINDOWEVENT_CLOSE) input.UseCloseBox(shown->real->Data());
}

void SdlDesktop::HandleFocus(Shown& shown) {
    if (std::exchange(shown.awaitsFirstFocus, false)) return;
    // A careless desktop may focus a window behind a dialog; the dialog is the one in front.
    if (&shown != &windows.back()) return;
    const Window& window = shown.real->Data();
    if (window.on.activate) window.on.activate();
}

// Not where the focus goes to a dialog of ours.
void SdlDesktop::HandleFocusLoss(const Shown& shown) {
    const Window& window = shown.real->Data();
    if (&shown == &windows.back() && window.takesInput && window.on.deactivate) window.on.deactivate();
}

bool SdlDesktop::DeliverMinimised() {
    if (windows.empty()) return false;
    const bool minimised = windows.front().real->IsMinimised();
    if (minimised == minimisedAsTold) return false;
    minimisedAsTold = minimised;
    input.Resize(windows.front().real->Data(), minimised);
    return true;
}

void SdlDesktop::AwaitFrame() {
    if (frameAwaited || windows.empty()) return;
    frameAwaited = true;
    const std::uint32_t begin = SDL_GetTicks();
    while (!windows.front().real->Borders() && SDL_GetTicks() - begin < kFrameMilliseconds) {
        SDL_Delay(1);
        SDL_PumpEvents();
    }
}

FrameBorders SdlDesktop::BordersOf(const Window& window) const {
    const Shown* shown = Find(window);
    // A dialog that is not shown yet will have a frame like the main window's.
    if (shown == nullptr && !windows.empty()) shown = &windows.front();
    return shown != nullptr ? shown->real->Borders().value_or(kNominalFrame) : kNominalFrame;
}

Extent SdlDesktop::OuterSize(const Window& window) {
    AwaitFrame();
    const FrameBorders borders = BordersOf(window);
    return {window.innerWidth + GamePixels(borders.left + borders.right),
            window.innerHeight + GamePixels(borders.top + borders.bottom)};
}

Place SdlDesktop::Position(const Window& window) {
    AwaitFrame();
    const Shown* shown = Find(window);
    if (shown == nullptr) {
        const auto place = wantedPlaces.find(&window);
        return place != wantedPlaces.end() ? place->second : Place{};
    }
    int left = 0;
    int top = 0;
    SDL_GetWindowPosition(shown->real->Real(), &left, &top);
    const FrameBorders borders = shown->real->Borders().value_or(FrameBorders{});
    const Place picture = shown->real->PictureCorner();
    return {GamePixels(left + picture.left - borders.left), GamePixels(top + picture.top - borders.top)};
}

void SdlDesktop::SetInnerSize(Window& window, Extent size) {
    window.innerWidth = size.width;
    window.innerHeight = size.height;
    const Shown* shown = Find(window);
    if (shown != nullptr) SDL_SetWindowSize(shown->real->Real(), Points(size.width), Points(size.height));
}

void SdlDesktop::SetPosition(const Window& window, Place place) {
    const Shown* shown = Find(window);
    if (shown == nullptr) {
        wantedPlaces[&window] = place;
        return;
    }
    const FrameBorders borders = BordersOf(window);
    const Place picture = shown->real->PictureCorner();
    SDL_SetWindowPosition(shown->real->Real(), Points(place.left) + borders.left - picture.left,
                          Points(place.top) + borders.top - picture.top);
}

}  // namespace prismfall
