// Plays a recorded game again on a headless machine, as far as requested, and compares it with its recording on the
// way. To do so it records the game again: if the texts are the same, the games were the same.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

#include "backends/headless/HeadlessPlatform.h"
#include "game/GameLog.h"
#include "game/VMain.h"
#include "recording/Recorder.h"
#include "recording/Recording.h"

namespace prismfall {

// Where a game differs from its recording, or why it cannot be played.
struct ReplayFault {
    int line = 0;             // of the recording, from 1
    std::int64_t moment = 0;  // milliseconds since the game began
    std::string reason;       // empty for a difference
};

// "differs at 12.350 s", or the reason.
std::string WordsOf(const ReplayFault& fault);

class Replay final : private HeadlessScript, private HandlerListener, private GameLog {
  public:
    // `played` is a program that runs on the machine, in its main menu. All three must outlive this. A recording that
    // is not whole may grow between calls.
    Replay(HeadlessPlatform& playedOn, VMain& played, const Recording& recorded);
    ~Replay() override;

    // Continues until that moment of the game, in milliseconds since it began, or further if a dialog is open then, but
    // not beyond the game's end or a difference.
    void PlayUntil(std::int64_t moment);
    // To the end.
    void Play();
    // Whether the game played is compared with the recording. It is by default.
    void SetComparing(bool isOn) { isComparing = isOn; }

    std::int64_t Moment() const;
    bool IsOver() const { return isOver || fault; }
    const std::optional<ReplayFault>& Fault() const { return fault; }

    // Called as the game ends, before what comes after it is shown.
    std::function<void()> whenOver;

  private:
    bool LetNextHappen() override;
    std::optional<Nanoseconds> TakeRenewal() override;

    void BeforeTick(std::int64_t moment) override;
    void BeforeInput(const InputEvent& event) override;
    void MomentRenewed(std::int64_t moment) override;

    void Begins(VMain& begun, GameKind kind) override;
    void Ends(VMain& ended, GameEnding ending) override;

    Nanoseconds InMachineTime(std::int64_t moment) const { return start + std::chrono::milliseconds(moment); }
    void Do(const RecordedEvent& event);
    void Press(Window& window, const RecordedEvent& event);
    // There must be no event before that moment.
    void PassTimeUntil(std::int64_t moment);
    // Compares what has been recorded again since the last call.
    void Compare();
    void Stop(ReplayFault found);

    HeadlessPlatform& machine;
    VMain& main;
    const Recording& recording;
    Recorder recorder;
    Nanoseconds start{0};
    std::size_t next = 0;      // event
    std::size_t compared = 0;  // bytes of what has been recorded again
    std::size_t matched = 0;   // bytes of the recording
    std::int64_t work = 0;     // beams moved
    bool isOver = false;
    bool isComparing = true;
    std::optional<ReplayFault> fault;
};

}  // namespace prismfall
