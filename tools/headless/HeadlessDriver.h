// Reads a script, one command per line, and runs the whole game from it on a headless platform. Prints what happens; a
// line that cannot be executed ends the run.
#pragma once

#include <istream>
#include <memory>
#include <optional>
#include <ostream>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "backends/headless/HeadlessPlatform.h"
#include "game/VMain.h"
#include "recording/Recording.h"
#include "recording/ScriptWords.h"
#include "tools/replay/Replay.h"

namespace prismfall {

class HeadlessDriver {
  public:
    explicit HeadlessDriver(std::ostream& output) : out(output), platform(output) {}

    // Executes one line. Returns why it cannot be executed, or nothing; whatever was printed before that stays.
    std::string Execute(std::string_view line);
    // The script has ended: a recorded game that was cut off is played as far as it goes. Returns as Execute does.
    std::string Finish() { return PlayRecording(); }
    // The number of the line, from 1, that was to blame when the last call returned a reason.
    int LineOfFault() const { return lineOfFault; }

  private:
    struct Command;

    // A recorded game, from its line `recording` to its `end`. Handlers can need lines that follow, so the lines are
    // collected, and played when another command comes or the end.
    struct RecordedGame {
        Recording recording;
        std::string text;
        std::vector<int> numbers;  // of its lines in the script
        std::optional<Replay> replay;
        bool hasHead = false;
    };

    static std::span<const Command> Commands();

    bool IsRunning() const { return main != nullptr; }
    bool IsOfRecording(std::string_view command) const;
    std::string ExecuteCommand(const Words& words);
    std::string Blame(int line, std::string reason);
    void EndRun();
    void AddToRecording(const Words& words);
    std::string PlayRecording();

    void Load(Arguments& words);
    void BeginRecording(Arguments& words);
    void PutSetting(Arguments& words);
    void QueueRandoms(Arguments& words);
    void QueueAnswers(Arguments& words);
    void ChooseMusic(Arguments& words);
    void ChoosePainting(Arguments& words);

    void Move(Arguments& words);
    void Press(Arguments& words);
    void PressKeyOf(Arguments& words);
    void Click(Arguments& words);
    void PressPicture(Arguments& words);
    void Close();

    void FireTimer(Arguments& words);
    void SetMember(Arguments& words);
    void AddBeam(Arguments& words);
    void StartPuzzle(Arguments& words, bool isSolution);

    std::ostream& out;
    HeadlessPlatform platform;
    std::unique_ptr<VMain> main;         // null while the program is not running
    std::unique_ptr<RecordedGame> game;  // null while no line of one has come
    int number = 0;                      // of the line
    int lineOfFault = 0;
};

// Runs a whole script. Returns the exit status: 0, or 2 after a bad line, which is reported on `errors`.
int RunScript(std::istream& script, std::ostream& output, std::ostream& errors);

}  // namespace prismfall
