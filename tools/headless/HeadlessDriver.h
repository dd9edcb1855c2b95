// Reads a script, a command a line, and runs the whole game by it on a headless platform. What happens is printed; a
// line that cannot be carried out ends the run.
#pragma once

#include <istream>
#include <memory>
#include <ostream>
#include <string_view>

#include "backends/headless/HeadlessPlatform.h"
#include "state/VMain.h"
#include "tools/headless/ScriptWords.h"

namespace prismfall {

class HeadlessDriver {
  public:
    explicit HeadlessDriver(std::ostream& output) : out(output), platform(output) {}

    // Carries out one line; throws ScriptError, with what was printed before still standing.
    void Execute(std::string_view line);

  private:
    struct Command;
    static std::span<const Command> Commands();

    bool IsRunning() const { return main != nullptr; }

    void Load();
    void PutSetting(const Words& words);
    void QueueRandoms(const Words& words);
    void QueueAnswers(const Words& words);
    void ChooseMusic(const Words& words);
    void ChoosePainting(const Words& words);

    void Move(const Words& words);
    void Press(const Words& words);
    void Click(const Words& words);
    void PressPicture(const Words& words);
    void Close();

    void FireTimer(const Words& words);
    void SetMember(const Words& words);
    void AddBeam(const Words& words);
    void StartPuzzle(const Words& words, bool isSolution);

    std::ostream& out;
    HeadlessPlatform platform;
    std::unique_ptr<VMain> main;  // nothing while the program does not run
};

// Runs a whole script. The exit status: 0, or 2 after a line that `errors` then tells.
int RunScript(std::istream& script, std::ostream& output, std::ostream& errors);

}  // namespace prismfall
