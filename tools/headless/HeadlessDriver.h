// Reads a script, one command per line, and runs the whole game from it on a headless platform. Prints what happens; a
// line that cannot be executed ends the run.
#pragma once

#include <istream>
#include <memory>
#include <ostream>
#include <span>
#include <string>
#include <string_view>

#include "backends/headless/HeadlessPlatform.h"
#include "game/VMain.h"
#include "recording/ScriptWords.h"

namespace prismfall {

class HeadlessDriver {
  public:
    explicit HeadlessDriver(std::ostream& output) : out(output), platform(output) {}

    // Executes one line. Returns why it cannot be executed, or nothing; whatever was printed before that stays.
    std::string Execute(std::string_view line);

  private:
    struct Command;
    static std::span<const Command> Commands();

    bool IsRunning() const { return main != nullptr; }

    void Load(Arguments& words);
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
    std::unique_ptr<VMain> main;  // null while the program is not running
};

// Runs a whole script. Returns the exit status: 0, or 2 after a bad line, which is reported on `errors`.
int RunScript(std::istream& script, std::ostream& output, std::ostream& errors);

}  // namespace prismfall
