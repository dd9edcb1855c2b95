#include "backends/web/WebPlatform.h"

#include <algorithm>
#include <utility>

#include "platform/KeyInput.h"
#include "platform/NominalFrame.h"

namespace prismfall {

namespace {

constexpr int kFullVolume = 1000;
constexpr double kYieldRest = 1;      // milliseconds
constexpr long kPixelsPerCall = 500;  // the cost of one more call to the page, in pixels
constexpr double kLongestWait = 60'000;
constexpr double kNextPicture = 40;          // milliseconds
constexpr double kMetFor = 600;              // milliseconds
constexpr double kStartNumbers = 1LL << 53;  // how many random numbers the page can give
constexpr std::size_t kRateAt = 28;          // in a wave file of plain samples: bytes per second
constexpr std::size_t kLengthAt = 40;        // and the length of the samples in bytes

Nanoseconds PageTime() { return Nanoseconds(static_cast<std::int64_t>(page::Now() * 1e6)); }

double Milliseconds(Nanoseconds time) { return static_cast<double>(time.count()) / 1e6; }

// From 0xAARRGGBB to red, green, blue and opacity in memory.
std::uint32_t PagePixel(std::uint32_t pixel) {
    return (pixel & 0xFF00FF00U) | (pixel & 0x00FF0000U) >> 16 | (pixel & 0x000000FFU) << 16;
}

std::uint32_t NumberAt(std::span<const std::byte> bytes, std::size_t at) {
    std::uint32_t number = 0;
    for (std::size_t i = 4; i-- > 0;) number = number << 8 | std::to_integer<std::uint32_t>(bytes[at + i]);
    return number;
}

// The page has the samples; the program has only the file's header, which tells how long they last.
double WaveMilliseconds(std::span<const std::byte> head) {
    if (head.size() < kLengthAt + 4) return 0;
    return 1000.0 * NumberAt(head, kLengthAt) / NumberAt(head, kRateAt);
}

// Merges boxes that are cheaper to send as one.
void Merge(std::vector<PixelBox>& boxes) {
    const auto kept = boxes.begin();
    auto end = kept;
    for (const PixelBox box : boxes) {
        const auto isNear = [&box](const PixelBox& other) {
            return Area(BoundingBox(other, box)) <= Area(other) + Area(box) + kPixelsPerCall;
        };
        if (const auto near = std::find_if(kept, end, isNear); near != end) {
            *near = BoundingBox(*near, box);
        } else {
            *end++ = box;
        }
    }
    boxes.erase(end, boxes.end());
}

page::SpotRecord RecordOf(const SurfaceSpot& spot) {
    return {.left = spot.x - spot.width / 2,
            .top = spot.y - spot.height / 2,
            .width = spot.width,
            .height = spot.height,
            .button = static_cast<std::int32_t>(MouseButton::Left),
            .accessibleName = std::string_view(spot.accessibleName)};
}

std::string StoredSettings() {
    std::string text(page::OpenSettings(), '\0');
    page::ReadSettings(text.data());
    return text;
}

}  // namespace

// --- The loop.

WebPlatform::WebPlatform()
    : time(PageTime), timers(time), random(static_cast<std::uint64_t>(page::Random() * kStartNumbers)) {}

void WebPlatform::Run(Window& mainWindow) {
    main = &mainWindow;
    Open(mainWindow, {});
    Present();
    timers.Handle([&mainWindow] {
        if (mainWindow.on.activate) mainWindow.on.activate();
    });
    while (!ended) {
        Work();
        timers.Handle([this] { DeliverMinimised(); });
        if (betweenHandlers && !ended) timers.Handle(betweenHandlers);
        Rest();
    }
}

void WebPlatform::Work() {
    NoteVisibility();
    timers.TickDue();
    HandleEvents();
}

// One event at a time: each may close the window that the next one was meant for.
bool WebPlatform::HandleEvents() {
    TellHidden();
    page::Event event;
    bool handled = false;
    while (!ended && page::TakeEvent(&event) != 0) {
        timers.Handle([&] { Handle(event); });
        handled = true;
    }
    return handled;
}

void WebPlatform::Handle(const page::Event& event) {
    if (event.kind == page::EventKind::Watch && !ended && whenWatching)
        return whenWatching(static_cast<page::WatchCommand>(event.number), event.x);
    if (ended || shown.empty() || event.window != static_cast<std::int32_t>(shown.size()) - 1) return;
    ShownWindow& front = *shown.back();
    Window& window = front.Content();
    switch (event.kind) {
        case page::EventKind::Move:
            NotePointer(window, event.x, event.y);
            return input.Move(window, event.x, event.y);
        case page::EventKind::Press:
            return Press(front, event);
        case page::EventKind::Release:
            return input.Release(window, static_cast<MouseButton>(event.number), event.x, event.y);
        case page::EventKind::Activate:
            return input.PressAndClick(window, *window.elements[static_cast<std::size_t>(event.number)]);
        case page::EventKind::Key:
            if (event.number == kEscapeKey) return input.Key(window, event.number);
            return PressKey(input, window, MeaningOf(window, event.number), KeyReach::Surface);
        case page::EventKind::Close:
            return input.UseCloseBox(window);
        case page::EventKind::Watch:
            return;
    }
}

// A finger covers what it touches, so the head that it meets is marked for a moment.
void WebPlatform::Press(ShownWindow& front, const page::Event& event) {
    Window& window = front.Content();
    const bool isFinger = event.number >= page::kByFinger;
    const auto button = static_cast<MouseButton>(isFinger ? event.number - page::kByFinger : event.number);
    if (isFinger) window.choice.isShown = false;
    if (isFinger && window.on.reached && window.ElementAt(event.x, event.y) == nullptr) {
        if (const std::optional<SurfaceSpot> head = window.on.reached(event.x, event.y)) {
            met = {.what = head->what, .isShown = true, .isOnSurface = true, .left = head->x, .top = head->y};
            metUntil = page::Now() + kMetFor;
        }
    }
    input.Press(window, button, {event.x, event.y, static_cast<std::uint32_t>(event.time), front.Origin()});
}

// The player may have changed what keys do in the main window; a gamepad's buttons stay.
Key WebPlatform::MeaningOf(const Window& window, std::int32_t number) const {
    if (number >= page::kByPad) return static_cast<Key>(number - page::kByPad);
    const auto key = static_cast<Key>(number);
    return window.isDialog ? key : comfort.keys.Meaning(key);
}

KeyChoice WebPlatform::PlaceToMarkNow() {
    return page::Now() < metUntil ? met : PlaceToMark(*main, comfort.ringsAtPointer);
}

void WebPlatform::Rest() {
    if (ended) return;
    const double now = page::Now();
    const std::optional<Nanoseconds> due = timers.NextDue();
    double rest = due ? Milliseconds(time.ByClock(*due - time.Now())) : kLongestWait;
    if (looks.AreMoving()) rest = std::min(rest, kNextPicture);
    if (now < metUntil) rest = std::min(rest, metUntil - now);
    page::Wait(now + std::min(rest, kLongestWait), 1);
}

void WebPlatform::LetEventsRun() {
    if (ended) return;
    NoteVisibility();
    const bool worked = timers.LetEventsRun([this] { return HandleEvents(); });
    if (!worked && !ended) page::Wait(page::Now() + kYieldRest, 1);
}

void WebPlatform::WaitFor(double length) {
    const GameTime::Freeze freeze(time);
    const double end = page::Now() + length;
    while (!ended && page::Now() < end) {
        page::Wait(end, 0);
        NoteVisibility();
    }
}

// A hidden page may never be shown again: everything is saved at that moment, whatever else is going on.
void WebPlatform::NoteVisibility() {
    const bool isHidden = page::IsHidden() != 0;
    if (isHidden == hidden) return;
    hidden = isHidden;
    if (hidden && main != nullptr && main->on.queryUnload) main->on.queryUnload();
}

void WebPlatform::TellHidden() {
    if (ended || hidden == wasHidden) return;
    wasHidden = hidden;
    if (hidden && whenHidden) timers.Handle(whenHidden);
}

void WebPlatform::DeliverMinimised() {
    if (ended || hidden == minimised) return;
    minimised = hidden;
    input.Resize(*main, minimised);
}

// --- The picture.

void WebPlatform::Present() {
    if (ended) return;
    SendSpots();
    SendSurface();
    for (const auto& window : shown) window->Refresh();
}

void WebPlatform::SendSpots() {
    SurfaceSpots spots;
    if (main->on.spots) main->on.spots(spots);
    const bool isSame = canChoose != spots.list.empty() && fieldHasKeys == spots.haveKeysAlone;
    canChoose = !spots.list.empty();
    fieldHasKeys = spots.haveKeysAlone;
    if (!isSame) page::GiveKeys(canChoose ? 1 : 0, fieldHasKeys ? 1 : 0);
    std::erase_if(spots.list, [](const SurfaceSpot& spot) { return spot.accessibleName.empty(); });
    if (spots.list == shownSpots) return;
    shownSpots = std::move(spots.list);
    std::vector<page::SpotRecord> records(shownSpots.size());
    std::ranges::transform(shownSpots, records.begin(), RecordOf);
    page::ShowSpots(records.data(), static_cast<std::int32_t>(records.size()));
}

void WebPlatform::SendSurface() {
    FollowChoice(*main, KeyReach::Surface);
    looks.Mark(PlaceToMarkNow());
    looks.Enliven(comfort.isLively ? main : nullptr, page::Now(), comfort.isLively && page::IsCalm() != 0);
    const bool paused = main->on.isPaused && main->on.isPaused();
    if (paused != isPausedAsTold) page::ShowPaused(paused ? 1 : 0);
    isPausedAsTold = paused;
    looks.MarkPause(paused);
    looks.TakeDamage(damage);
    Merge(damage);
    for (const PixelBox& box : damage) {
        const int width = box.right - box.left;
        pixels.clear();
        for (int y = box.top; y < box.bottom; ++y) {
            const std::uint32_t* row = looks.Row(y);
            std::transform(row + box.left, row + box.right, std::back_inserter(pixels), PagePixel);
        }
        page::ShowPixels(pixels.data(), box.left, box.top, width, box.bottom - box.top);
    }
}

void WebPlatform::SurfaceLine(int x1, int y1, int x2, int y2, Colour colour, int width) {
    layer.Line(x1, y1, x2, y2, colour, width);
}

void WebPlatform::SurfaceBox(int x1, int y1, int x2, int y2, Colour colour, int width) {
    layer.Box(x1, y1, x2, y2, colour, width);
}

void WebPlatform::SurfaceRestore(int x1, int y1, int x2, int y2) { layer.Restore(x1, y1, x2, y2); }

void WebPlatform::SurfaceClear() { layer.Clear(); }

// --- Windows.

void WebPlatform::Open(Window& window, Place place) {
    window.visible = true;
    shown.push_back(std::make_unique<ShownWindow>(window, static_cast<std::int32_t>(shown.size()), place));
    input.Open(window);
}

bool WebPlatform::ShowModally(Window& dialog) {
    if (dialog.visible) return true;
    if (ended) return false;
    Open(dialog, {dialogPlace.left - kNominalFrame.left, dialogPlace.top - kNominalFrame.top});
    if (dialog.on.activate) dialog.on.activate();
    std::optional<GameTime::Freeze> freeze;
    if (dialog.stopsTime) freeze.emplace(time);
    Present();  // a screen reader begins to read what is there
    for (Work(); !ended && input.IsOpen(dialog); Work()) Rest();
    if (!dialog.stopsTime) timers.RenewMoment();
    const bool wasHidden = !dialog.visible;
    if (!wasHidden && dialog.on.queryUnload) dialog.on.queryUnload();
    if (!wasHidden && dialog.on.unload) dialog.on.unload();
    dialog.visible = false;
    input.Close(dialog);
    shown.pop_back();
    return wasHidden;
}

Extent WebPlatform::OuterSize(const Window& window) { return WithFrame(InnerSize(window), kNominalFrame); }

Extent WebPlatform::InnerSize(const Window& window) { return {window.innerWidth, window.innerHeight}; }

// The main window's frame is at the corner of its own desktop.
Place WebPlatform::Position(const Window& window) { return window.isDialog ? dialogPlace : Place{}; }

void WebPlatform::SetOuterSize(Window& window, Extent size) {
    const Extent inner = WithoutNominalFrame(size);
    window.innerWidth = inner.width;
    window.innerHeight = inner.height;
}

void WebPlatform::SetPosition(Window& window, Place place) {
    if (window.isDialog) dialogPlace = place;
}

// On the page, a line below the picture replaces the message box.
void WebPlatform::ShowMessageBox(std::string_view text) {
    page::ShowNotice(text.data(), static_cast<std::uint32_t>(text.size()));
}

void WebPlatform::EndProgram() {
    Present();
    ended = true;
    timers.StopAll();
    page::EndProgram();
}

// --- Timers, time and chance.

std::int64_t WebPlatform::Clock() { return static_cast<std::int64_t>(page::Now()); }

// --- Settings. The page keeps them as one text, so either all of them are stored or none. Nothing can come between
// reading and writing. The application's name is left out: the text belongs to this application alone.

std::string WebPlatform::ReadSetting(std::string_view, std::string_view section, std::string_view key,
                                     std::string_view fallback) {
    if (!readValues) readValues = SettingsText(StoredSettings()).Values();
    return FindSetting(*readValues, section, key).value_or(std::string(fallback));
}

bool WebPlatform::ChangeSettings(std::string_view, const SettingsChange& change) {
    const std::string written = ChangedSettings(StoredSettings(), change);
    readValues.reset();
    const bool isWritten = page::WriteSettings(written.data(), static_cast<std::uint32_t>(written.size())) != 0;
    ReportSaving(isWritten);
    return isWritten;
}

// The line disappears when a save succeeds.
void WebPlatform::ReportSaving(bool isWritten) {
    if (isWritten && !isFailedSaveReported) return;
    isFailedSaveReported = !isWritten;
    constexpr std::string_view kNotice = "This browser does not let the game save settings and scores.";
    page::ShowNotice(kNotice.data(), isWritten ? 0 : static_cast<std::uint32_t>(kNotice.size()));
}

// --- Sound and music.

void WebPlatform::PlayWave(Wave wave, bool wait) {
    if (ended) return;
    page::PlaySound(wave.id);
    if (wait) WaitFor(WaveMilliseconds(wave.bytes));
}

void WebPlatform::MusicClose() { page::CloseMusic(); }

int WebPlatform::MusicOpen(std::string_view name) {
    page::OpenMusic(name.data(), static_cast<std::uint32_t>(name.size()));
    return 0;
}

void WebPlatform::MusicSetVolume(int volume) {
    musicVolume = std::clamp(volume, 0, kFullVolume);
    page::SetMusicVolume(static_cast<float>(musicVolume * comfort.musicPercent) / (kFullVolume * 100.0F));
}

void WebPlatform::SetComfort(const Comfort& wanted) {
    comfort = wanted;
    looks.Recolour(comfort.recolourings);
    MusicSetVolume(musicVolume);
    page::SetEffectsVolume(static_cast<float>(comfort.effectsPercent) / 100);
}

void WebPlatform::MusicPlayLooping() { page::PlayMusicLooping(); }

void WebPlatform::MusicResume() { page::ResumeMusic(); }

void WebPlatform::MusicPause() { page::PauseMusic(); }

void WebPlatform::MusicStop() { page::StopMusic(); }

std::string WebPlatform::MusicFailureText(int) { return {}; }

}  // namespace prismfall
