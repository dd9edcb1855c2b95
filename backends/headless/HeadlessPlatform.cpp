#include "backends/headless/HeadlessPlatform.h"

#include <algorithm>

#include "backends/headless/PrintFormat.h"
#include "platform/NominalFrame.h"

namespace prismfall {

namespace {

constexpr int kCannotOpen = 1;

constexpr Nanoseconds kLatest = Nanoseconds::max() / 2;  // for the clock: more years than any script runs

}  // namespace

void HeadlessPlatform::Run(std::int64_t milliseconds) {
    const Nanoseconds end = clock + std::min<Nanoseconds>(std::chrono::milliseconds(milliseconds), kLatest - clock);
    TickUntil(end);
    MoveClockTo(end);
}

void HeadlessPlatform::TickThrough(Nanoseconds moment) {
    while (!hasEnded) {
        const std::optional<Nanoseconds> due = timers.NextDue();
        if (!due || *due > moment) return;
        MoveClockTo(*due);
        timers.TickFirstAtItsTime();
    }
}

// If the script has no renewal here, the game has diverged from it, which its next check will show.
void HeadlessPlatform::RenewMoment() {
    if (script == nullptr) return timers.RenewMomentAt(clock);
    if (const std::optional<Nanoseconds> moment = script->TakeRenewal()) MoveClockTo(*moment);
    timers.RenewMomentAt(clock);
}

// Handlers that let events run may already have moved it further.
void HeadlessPlatform::MoveClockTo(Nanoseconds moment) { clock = std::max(clock, moment); }

void HeadlessPlatform::TickUntil(Nanoseconds moment) {
    while (!hasEnded) {
        const std::optional<Nanoseconds> due = timers.NextDue();
        if (!due || *due > moment) return;
        MoveClockTo(*due);
        timers.TickFirst();
    }
}

void HeadlessPlatform::PutSetting(const std::string& section, const std::string& key, const std::string& text) {
    store[{section, key}] = text;
}

void HeadlessPlatform::BeginRun() {
    timers.StopAll();
    input = WindowInput();
    surface.Clear();
    places.clear();
    hasEnded = false;
}

void HeadlessPlatform::Open(Window& window) {
    window.visible = true;
    input.Open(window);
}

// --- Surface.

void HeadlessPlatform::PrintStroke(const char* operation, int x1, int y1, int x2, int y2, Colour colour, int width) {
    if (!isPaintPrinted) return;
    out << operation << ' ' << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2 << ' ' << ColourName(colour) << ' ' << width
        << '\n';
}

void HeadlessPlatform::SurfaceLine(int x1, int y1, int x2, int y2, Colour colour, int width) {
    PrintStroke("line", x1, y1, x2, y2, colour, width);
    surface.Line(x1, y1, x2, y2, colour, width);
}

void HeadlessPlatform::SurfaceBox(int x1, int y1, int x2, int y2, Colour colour, int width) {
    PrintStroke("box", x1, y1, x2, y2, colour, width);
    surface.Box(x1, y1, x2, y2, colour, width);
}

void HeadlessPlatform::SurfaceRestore(int x1, int y1, int x2, int y2) {
    if (isPaintPrinted) out << "restore " << x1 << ' ' << y1 << ' ' << x2 << ' ' << y2 << '\n';
    surface.Restore(x1, y1, x2, y2);
}

void HeadlessPlatform::SurfaceClear() {
    if (isPaintPrinted) out << "clear\n";
    surface.Clear();
}

// --- Windows.

void HeadlessPlatform::AnswerDialog(Window& dialog) {
    while (dialog.visible && !queuedAnswers.empty()) {
        const std::string name = std::move(queuedAnswers.front());
        queuedAnswers.pop_front();
        if (Element* element = dialog.Find(name)) input.PressAndClick(dialog, *element);
    }
}

bool HeadlessPlatform::ShowModally(Window& dialog) {
    if (dialog.visible) return true;
    out << "dialog " << DialogTitle(dialog) << '\n';
    Open(dialog);
    if (dialog.on.activate) dialog.on.activate();
    if (script != nullptr) {
        while (input.IsOpen(dialog) && !hasEnded && script != nullptr && script->LetNextHappen()) {
        }
        RenewMoment();
    } else {
        AnswerDialog(dialog);
    }
    const bool wasHidden = !dialog.visible;
    dialog.visible = false;
    input.Close(dialog);
    return wasHidden;
}

Extent HeadlessPlatform::OuterSize(const Window& window) {
    return WithFrame({window.innerWidth, window.innerHeight}, kNominalFrame);
}

Extent HeadlessPlatform::InnerSize(const Window& window) { return {window.innerWidth, window.innerHeight}; }

Place HeadlessPlatform::Position(const Window& window) {
    const auto place = places.find(&window);
    return place == places.end() ? Place{} : place->second;
}

void HeadlessPlatform::SetOuterSize(Window& window, Extent size) {
    const Extent inner = WithoutNominalFrame(size);
    window.innerWidth = inner.width;
    window.innerHeight = inner.height;
}

void HeadlessPlatform::SetPosition(Window& window, Place place) { places[&window] = place; }

void HeadlessPlatform::ShowMessageBox(std::string_view text) { out << "messagebox " << text << '\n'; }

void HeadlessPlatform::EndProgram() {
    out << "end\n";
    hasEnded = true;
}

// --- Timers, time and chance.

// While a handler runs, a recording has nothing happen except what is due within a millisecond of its moment.
void HeadlessPlatform::LetEventsRun() {
    if (script != nullptr) {
        TickThrough(std::chrono::milliseconds(timers.MomentInMilliseconds() + 1));
        return RenewMoment();
    }
    MoveClockTo(clock + std::chrono::milliseconds(1));
    TickUntil(clock);
    timers.RenewMomentAt(clock);
}

std::int64_t HeadlessPlatform::Clock() { return std::chrono::duration_cast<std::chrono::milliseconds>(clock).count(); }

double HeadlessPlatform::Random() {
    if (!queuedRandoms.empty()) {
        const double number = queuedRandoms.front();
        queuedRandoms.pop_front();
        return number;
    }
    if (begunRandom) return begunRandom->Next();
    constexpr std::uint32_t kRange = 1U << 31U;
    generator = (generator * 1103515245U + 12345U) % kRange;
    return static_cast<double>(generator) / kRange;
}

void HeadlessPlatform::BeginRandom(std::uint64_t number) {
    begunRandom.emplace(number).Begin(number, Timers().MomentInMilliseconds());
}

void HeadlessPlatform::SeedRandomFromClock() {
    if (begunRandom) begunRandom->Seed(Timers().MomentInMilliseconds());
}

// --- Settings.

std::string HeadlessPlatform::ReadSetting(std::string_view, std::string_view section, std::string_view key,
                                          std::string_view fallback) {
    return FindSetting(store, section, key).value_or(std::string(fallback));
}

// The change sees an empty store, so each save writes all values to the script's store, whatever was in it.
bool HeadlessPlatform::ChangeSettings(std::string_view, const SettingsChange& change) {
    const auto empty = [](std::string_view, std::string_view) { return std::nullopt; };
    for (const SettingValue& value : change(empty)) PutSetting(value.section, value.key, value.text);
    return true;
}

// --- Sound and music.

void HeadlessPlatform::PlayWave(Wave wave, bool wait) {
    out << "sound " << wave.id - Wave::kFirstId + 1 << (wait ? " sync" : " async") << '\n';
}

void HeadlessPlatform::MusicClose() { out << "music close\n"; }

int HeadlessPlatform::MusicOpen(std::string_view name) {
    out << "music open \"" << name << "\"\n";
    return isMusicPresent ? 0 : kCannotOpen;
}

void HeadlessPlatform::MusicSetVolume(int volume) { out << "music volume " << volume << '\n'; }

void HeadlessPlatform::MusicPlayLooping() { out << "music play\n"; }

void HeadlessPlatform::MusicResume() { out << "music resume\n"; }

void HeadlessPlatform::MusicPause() { out << "music pause\n"; }

void HeadlessPlatform::MusicStop() { out << "music stop\n"; }

std::string HeadlessPlatform::MusicFailureText(int) { return "cannot open"; }

}  // namespace prismfall
