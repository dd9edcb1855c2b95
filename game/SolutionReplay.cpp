#include "game/SolutionReplay.h"

#include "audio/SoundEffects.h"
#include "game/PuzzleCatalogue.h"
#include "simulation/BeamControl.h"
#include "simulation/BeamRemoval.h"
#include "simulation/BeamSpawning.h"
#include "simulation/Playfield.h"

namespace prismfall {

namespace {

struct ScriptStep {
    std::int16_t otherLineNr;
    bool speedUp;
    bool bendFirst;
};

std::optional<ScriptStep> StepFor(CatalogueEntry script, const CLine& beam) {
    std::optional<ScriptStep> found;
    ForEachRecord(script, solution::kFields, [&](CatalogueEntry step) {
        if (found || step[solution::kTriggerLineNr] != beam.PuzzleLineNr) return;
        if (step[solution::kTriggerYEnd] != beam.YEnd) return;
        found = {step[solution::kOtherLineNr], step[solution::kSpeedUp] != 0, step[solution::kBendFirst] != 0};
    });
    return found;
}

void SoundIfCleared(const VMain& main) {
    if (!AllLinesDeleted(main) || main.GameMode != kSolutionReplay) return;
    main.platform.LetEventsRun();
    PlaySound2(main, kSoundPuzzleCleared, true);
}

void ActOnTrigger(VMain& main, const ScriptStep& step, CLine& beam) {
    if (!step.speedUp) {
        SplitLine(main, beam);
        return;
    }
    SpeedUpLine(main, step.bendFirst ? SplitLine(main, beam) : beam, false);
    SoundIfCleared(main);
}

void ActOnOther(VMain& main, const ScriptStep& step, CLine& other) {
    CLine& moving = step.bendFirst ? SplitLine(main, other) : other;
    moving.RunMode = kGrowing;
    if (step.speedUp) SpeedUpLine(main, moving, false);
}

// The beams that these steps append are not acted on.
void ActOnOthers(VMain& main, const ScriptStep& step) {
    const std::size_t count = main.Lines.size();
    for (std::size_t i = 0; i < count; ++i)
        if (main.Lines[i]->PuzzleLineNr == step.otherLineNr) ActOnOther(main, step, *main.Lines[i]);
}

void Act(VMain& main, const ScriptStep& step, CLine& beam) {
    if (step.otherLineNr == 0) {
        ActOnTrigger(main, step, beam);
    } else {
        ActOnOthers(main, step);
    }
}

}  // namespace

void PlaySolutionStep(VMain& main) {
    const CatalogueEntry script = CurrentSolution(main);
    const std::size_t count = main.Lines.size();
    // A step can yield, and then beams may go.
    for (std::size_t i = 0; i < count && i < main.Lines.size(); ++i) {
        CLine& beam = *main.Lines[i];
        if (beam.RunMode != kGrowing) continue;
        if (const auto step = StepFor(script, beam)) Act(main, *step, beam);
    }
}

}  // namespace prismfall
