#include "recording/Recording.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

#include "platform/Numbers.h"
#include "recording/ScriptWords.h"

namespace prismfall {

namespace {

constexpr std::int64_t kFormat = 1;

// --- Events: one row for each kind, for reading and for writing.

struct EventWord {
    std::string_view word;
    InputKind kind;
    std::size_t words;  // after the name
};

constexpr auto kEventWords = std::to_array<EventWord>({
    {"press", InputKind::Press, 3},
    {"dblclick", InputKind::DoubleClick, 0},
    {"picture", InputKind::PressElement, 4},
    {"click", InputKind::Click, 1},
    {"key", InputKind::Key, 1},
    {"minimise", InputKind::Minimise, 0},
    {"restore", InputKind::Restore, 0},
    {"closebox", InputKind::CloseBox, 0},
});
constexpr std::string_view kRenewalWord = "goon";

constexpr std::string_view kPictureName = "PictTut";  // the tutorial's pictures are elements PictTut1, PictTut2 ...

// The shortest text that parses to the same number.
std::string Exact(float number) {
    std::array<char, 32> text{};
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), number, std::chars_format::fixed).ptr};
}

std::string ButtonAndPlace(MouseButton button, const std::string& x, const std::string& y) {
    return std::to_string(static_cast<int>(button)) + ' ' + x + ' ' + y;
}

std::string WordsOf(const InputEvent& event) {
    switch (event.kind) {
        case InputKind::Press:  // beams are hit in whole pixels
            return ButtonAndPlace(event.button, std::to_string(Rounded(event.x)), std::to_string(Rounded(event.y)));
        case InputKind::PressElement:
            return std::string(event.element->name.substr(kPictureName.size())) + ' ' +
                   ButtonAndPlace(event.button, Exact(event.x), Exact(event.y));
        case InputKind::Click:
            return std::string(event.element->name);
        case InputKind::Key:
            return std::to_string(event.code);
        default:
            return {};
    }
}

// --- Reading.

class Reader {
  public:
    Reader(std::string_view wholeText, Recording& result, bool needsEnd)
        : text(wholeText), recording(result), mustEnd(needsEnd) {}

    std::optional<RecordingFault> Read() {
        if (text.size() > kMostRecordedBytes) return RecordingFault{1, "the recording is too long"};
        recording.text = text;
        ReadHead();
        while (!fault && !recording.isWhole && (mustEnd || at < text.size())) ReadBody();
        if (!fault && at < text.size()) Fail("something follows the end");
        return fault;
    }

  private:
    // The words of the next line. There always is one: after an error, a line without words.
    Arguments NextLine() {
        ++line;
        const std::size_t end = text.find('\n', at);
        if (end == std::string_view::npos) {
            Fail(at == text.size() ? "the recording is cut off" : "the line does not end");
            at = text.size();
            return Arguments(Words(1));
        }
        const std::string_view words = text.substr(at, end - at);
        at = end + 1;
        if (words.find_first_not_of(kLetters) != std::string_view::npos) {
            Fail("there are characters that no recording has");
            return Arguments(Words(1));
        }
        Words split = SplitWords(words);
        if (split.empty()) Fail("the line is empty");
        if (split.empty()) split.emplace_back();
        return Arguments(std::move(split));
    }

    void Fail(const std::string& reason) {
        if (!fault) fault = RecordingFault{line, reason};
    }

    // A line with this name and exactly that many words after it.
    Arguments Expect(std::string_view name, std::size_t words) {
        Arguments arguments = NextLine();
        if (arguments.Name() == name && arguments.Left() == words) return arguments;
        Fail(std::string(name) + " was expected");
        return Arguments(Words(words + 1, "0"));
    }

    void Check(const Arguments& arguments) {
        if (!arguments.IsGood()) Fail(arguments.Fault());
    }

    std::int64_t Number(Arguments& arguments, std::int64_t lowest, std::int64_t highest) {
        const std::int64_t number = arguments.WholeNumber(lowest, highest);
        Check(arguments);
        return number;
    }

    // Moments never decrease.
    std::int64_t Moment(Arguments& arguments) {
        recording.length = Number(arguments, recording.length, kMostRecordedTime);
        return recording.length;
    }

    void ReadHead() {
        Arguments format = Expect("recording", 1);
        if (!fault && Number(format, 1, kMostNumber) != kFormat)
            Fail("this format needs a newer Prismfall than this one");
        recording.program = Expect("program", 1).Word();
        ReadStart(NextLine());
        for (Arguments next = NextLine(); !fault; next = NextLine()) {
            if (next.Name() != "timer") return ReadSeed(next);
            ReadTimer(next);
        }
    }

    void ReadStart(Arguments arguments) {
        recording.kind = arguments.Name();
        if (recording.kind != "arcade" && recording.kind != "puzzle" && recording.kind != "solution")
            Fail("no such game: " + recording.kind);
        if (arguments.Left() % 2 != 0) Fail("a number is missing");
        while (!fault && arguments.Left() > 0) {
            const std::string name = arguments.Word();
            recording.values.push_back({name, Number(arguments, -kMostNumber, kMostNumber)});
        }
    }

    void ReadTimer(Arguments& arguments) {
        if (arguments.Left() < 2 || arguments.Left() > 3) return Fail("a timer has a name, an interval and a rest");
        const std::string name = arguments.Word();
        const auto row = std::ranges::find(kTimerNames, std::string_view(name), &TimerName::name);
        if (row == kTimerNames.end()) return Fail("no such timer: " + name);
        StartTimer timer;
        timer.timer = row->timer;
        timer.interval = static_cast<int>(Number(arguments, 0, kMostInterval));
        if (arguments.Left() > 0) timer.remaining = Number(arguments, 0, kMostInterval);
        recording.timers.push_back(timer);
    }

    void ReadSeed(Arguments& arguments) {
        if (arguments.Name() != "seed" || arguments.Left() != 1) return Fail("seed was expected");
        recording.seed = static_cast<std::uint64_t>(Number(arguments, 0, std::numeric_limits<std::int64_t>::max()));
        recording.headBytes = at;
    }

    void ReadBody() {
        Arguments arguments = NextLine();
        if (fault) return;
        if (arguments.Left() < 2) return Fail("too few words");
        if (arguments.Name() == "at") return ReadEvent(arguments);
        if (arguments.Name() != "check" && arguments.Name() != "end") return Fail("no such line: " + arguments.Name());
        // What follows these moments is compared as text when the game is played again.
        Moment(arguments);
        recording.isWhole = arguments.Name() == "end";
    }

    void ReadEvent(Arguments& arguments) {
        RecordedEvent event;
        event.moment = Moment(arguments);
        const std::string word = arguments.Word();
        if (word == kRenewalWord) {
            event.isRenewal = true;
            if (arguments.Left() > 0) Fail("too many words");
        } else {
            const auto row = std::ranges::find(kEventWords, std::string_view(word), &EventWord::word);
            if (row == kEventWords.end()) return Fail("nothing such happens: " + word);
            if (arguments.Left() != row->words) return Fail("wrong count of words");
            event.kind = row->kind;
            ReadInput(arguments, event);
        }
        Check(arguments);
        recording.events.push_back(std::move(event));
    }

    static void ReadInput(Arguments& arguments, RecordedEvent& event) {
        if (event.kind == InputKind::Click) event.element = arguments.Word();
        if (event.kind == InputKind::Key) event.code = arguments.ShortNumber();
        if (event.kind == InputKind::PressElement) event.element = std::string(kPictureName) + arguments.Word();
        if (event.kind != InputKind::Press && event.kind != InputKind::PressElement) return;
        event.button = static_cast<MouseButton>(arguments.WholeNumber(1, 2));
        event.x = Place(arguments);
        event.y = Place(arguments);
    }

    static float Place(Arguments& arguments) {
        const double place = arguments.DecimalNumber();
        if (place < -kFarthest || place > kFarthest) arguments.Fail("a place far outside");
        return static_cast<float>(std::clamp(place, -kFarthest, kFarthest));
    }

    static constexpr std::int64_t kMostNumber = 1'000'000;
    static constexpr std::int64_t kMostInterval = 3'600'000;
    static constexpr double kFarthest = 100'000;  // game pixels
    static constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 .-_+~";

    std::string_view text;
    Recording& recording;
    const bool mustEnd;
    std::size_t at = 0;
    int line = 0;
    std::optional<RecordingFault> fault;
};

}  // namespace

std::optional<RecordingFault> ReadRecording(std::string_view text, Recording& recording) {
    recording = {};
    return Reader(text, recording, true).Read();
}

std::optional<RecordingFault> ReadRecordingSoFar(std::string_view text, Recording& recording) {
    recording = {};
    return Reader(text, recording, false).Read();
}

std::string WithFewChecks(std::string_view text) {
    std::string kept;
    while (!text.empty()) {
        const std::string_view line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(line.size() + 1, text.size()));
        const bool isLast = text.starts_with(kCheckWord) || text.starts_with(kEndWord);
        if (!line.starts_with(kCheckWord) || isLast) kept.append(line) += '\n';
    }
    return kept;
}

std::string EventLine(std::int64_t moment, const InputEvent& event) {
    if (event.kind == InputKind::PressElement && !event.element->name.starts_with(kPictureName)) return {};
    const auto row = std::ranges::find(kEventWords, event.kind, &EventWord::kind);
    std::string line = "at " + std::to_string(moment) + ' ' + std::string(row->word);
    const std::string words = WordsOf(event);
    return words.empty() ? line : line + ' ' + words;
}

std::string RenewalLine(std::int64_t moment) {
    return "at " + std::to_string(moment) + ' ' + std::string(kRenewalWord);
}

}  // namespace prismfall
