// Reads a script, a command a line, and runs the whole game by it on a headless platform. What happens is printed; a
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

    // Executes one line. Returns why it cannot be executed, or nothing; what was printed before stays.
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
    void Click(Arguments& words);
    void PressPicture(Arguments& words);
    void Close();

    void FireTimer(Arguments& words);
    void SetMember(Arguments& words);
    void AddBeam(Arguments& words);
    void StartPuzzle(Arguments& words, bool isSolution);

    std::ostream& out;
    HeadlessPlatform platform;
    std::unique_ptr<VMain> main;  // nothing while the program does not run
};

// Runs a whole script. The exit status: 0, or 2 after a line that `errors` then tells.
int RunScript(std::istream& script, std::ostream& output, std::ostream& errors);

}  // namespace prismfall
