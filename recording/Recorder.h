// Records a game while it is played: everything that reaches a handler, with its moment, and every five seconds a
// fingerprint of the game's state and of all lines before it. Playing the lines again records the same text, on any
// machine; where two texts differ, the games differ.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/HandlerListener.h"
#include "platform/Printer.h"
#include "platform/TimerWheel.h"

namespace prismfall {

// A 32-bit fingerprint (FNV-1a) of everything printed to it.
class Fingerprint final : public Printer {
  public:
    void Print(std::string_view text) override;
    std::uint32_t Value() const { return value; }
    void Begin(std::uint32_t from = kBasis) { value = from; }

  private:
    static constexpr std::uint32_t kBasis = 2166136261U;
    std::uint32_t value = kBasis;
};

class Recorder final : public HandlerListener {
  public:
    // `dump` prints the state of the game. The wheel provides the moments, and must outlive this.
    Recorder(const TimerWheel& timers, std::function<void(Printer&)> dump)
        : wheel(timers), printState(std::move(dump)) {}

    // A game begins at the moment of the running handler. `head` contains the lines that describe its start, each
    // ending in a newline.
    void Begin(std::string_view head);
    // The game ends at that moment: writes the last check, and a line `end MOMENT how`. What comes after that is not
    // recorded.
    void End(std::string_view how);
    // The text as it would be if the game ended now; recording goes on.
    std::string EndedNow(std::string_view how) const;
    // Forgets what has been recorded.
    void Drop();

    bool IsRecording() const { return isRecording; }
    // The text so far, or that of the last game, if it has ended.
    const std::string& Text() const { return text; }
    // Milliseconds since the game began.
    std::int64_t Moment() const { return wheel.MomentInMilliseconds() - origin; }

    void BeforeTick(std::int64_t moment) override;
    void BeforeInput(const InputEvent& event) override;
    void MomentRenewed(std::int64_t moment) override;

  private:
    void CheckBefore(std::int64_t moment);
    void WriteCheck(std::int64_t moment);
    void AppendCheck(std::string& lines, std::int64_t moment) const;
    void Write(std::string_view line);

    const TimerWheel& wheel;
    std::function<void(Printer&)> printState;
    std::string text;
    Fingerprint ofLines;
    std::int64_t origin = 0;
    std::int64_t nextCheck = 0;
    std::int64_t lastRenewal = 0;
    bool isRecording = false;
};

}  // namespace prismfall
