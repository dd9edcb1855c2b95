#include "game/SolutionReplay.h"

#include <algorithm>
#include <vector>

#include "audio/SoundEffects.h"
#include "game/RunForward.h"
#include "simulation/BeamRemoval.h"
#include "simulation/BeamSpawning.h"

namespace prismfall {

namespace {

const SolutionStep* StepFor(std::span<const SolutionStep> script, const CLine& beam) {
    const auto step = std::ranges::find_if(script, [&beam](const SolutionStep& candidate) {
        return candidate.TriggerLineNr == beam.PuzzleLineNr && candidate.TriggerYEnd == beam.YEnd;
    });
    return step == script.end() ? nullptr : &*step;
}

void SoundIfCleared(const VMain& main) {
    if (!AllLinesDeleted(main.field) || main.GameMode != Mode::SolutionReplay) return;
    main.platform.LetEventsRun();
    PlaySound2(main.audio, Sound::PuzzleCleared, true);
}

void ActOnTrigger(VMain& main, const SolutionStep& step, CLine& beam) {
    if (!step.SpeedUp) {
        SplitLine(main.field, beam);
        return;
    }
    RunForward(main, step.BendFirst ? SplitLine(main.field, beam) : beam);
    SoundIfCleared(main);
}

void ActOnOther(VMain& main, const SolutionStep& step, CLine& other) {
    CLine& moving = step.BendFirst ? SplitLine(main.field, other) : other;
    moving.RunMode = Motion::Growing;
    if (step.SpeedUp) RunForward(main, moving);
}

// Beams appended by these steps are not affected.
void ActOnOthers(VMain& main, const SolutionStep& step) {
    const std::vector<CLine*>& beams = main.field.Lines;
    const std::size_t count = beams.size();
    for (std::size_t i = 0; i < count; ++i)
        if (beams[i]->PuzzleLineNr == step.OtherLineNr) ActOnOther(main, step, *beams[i]);
}

void Act(VMain& main, const SolutionStep& step, CLine& beam) {
    if (step.OtherLineNr == 0) {
        ActOnTrigger(main, step, beam);
    } else {
        ActOnOthers(main, step);
    }
}

}  // namespace

void PlaySolutionStep(VMain& main, std::span<const SolutionStep> script) {
    const std::vector<CLine*>& beams = main.field.Lines;
    const std::size_t count = beams.size();
    // A step can let events run, in which beams may disappear.
    for (std::size_t i = 0; i < count && i < beams.size(); ++i) {
        CLine& beam = *beams[i];
        if (beam.RunMode != Motion::Growing) continue;
        if (const SolutionStep* step = StepFor(script, beam)) Act(main, *step, beam);
    }
}

}  // namespace prismfall
