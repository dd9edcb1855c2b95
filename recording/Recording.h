// A recorded game, as a text with one command per line: how it began, what reached the handlers at which moment of the
// game, and how it ended. docs/RECORDINGS.md describes the format.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/HandlerListener.h"
#include "platform/Timer.h"

namespace prismfall {

constexpr std::int64_t kMostRecordedTime = 36'000'000;  // milliseconds
constexpr std::size_t kMostRecordedBytes = 2'000'000;

// One of the numbers that a game begins with, by its name in the text.
struct StartValue {
    std::string name;
    std::int64_t value = 0;
};

struct StartTimer {
    Timer timer{};
    int interval = 0;                       // milliseconds
    std::optional<std::int64_t> remaining;  // milliseconds until it is due, if it is on
};

struct RecordedEvent {
    std::int64_t moment = 0;  // milliseconds since the game began
    bool isRenewal = false;   // of the running handler's moment; otherwise an input:
    InputKind kind{};         //
    std::string element;      // its name, for PressElement and Click
    MouseButton button{};     //
    float x = 0;              // game pixels, in the window or in the element
    float y = 0;              //
    std::int16_t code = 0;    // of a key
};

struct Recording {
    std::string program;  // the version that wrote it
    std::string kind;     // how the game began, and its numbers
    std::vector<StartValue> values;
    std::vector<StartTimer> timers;
    std::uint64_t seed = 0;  // for all its randomness
    std::vector<RecordedEvent> events;
    std::int64_t length = 0;  // milliseconds
    std::string text;
    std::size_t headBytes = 0;  // of the text, up to and including the seed's line
    bool isWhole = false;       // its end has been read
};

// Why a text is not a recording, in words for people.
struct RecordingFault {
    int line = 0;  // from 1
    std::string reason;
};

// Parses a text, which may come from anywhere: whatever is wrong with it, the fault names the first bad line.
std::optional<RecordingFault> ReadRecording(std::string_view text, Recording& recording);
// The same for the beginning of a text, which has whole lines, at least up to the seed's.
std::optional<RecordingFault> ReadRecordingSoFar(std::string_view text, Recording& recording);

// The first words of two kinds of lines.
constexpr std::string_view kCheckWord = "check ";
constexpr std::string_view kEndWord = "end ";

// The same recording without the checks that are followed by events. The last check is enough to prove the game, and
// the link to it is shorter.
std::string WithFewChecks(std::string_view text);

// The line for an event, without its newline; empty for input that does not change a game, such as a press on a button,
// which counts only when it becomes a click.
std::string EventLine(std::int64_t moment, const InputEvent& event);
std::string RenewalLine(std::int64_t moment);

}  // namespace prismfall
