// One beam: a straight diagonal from its tail to its head. What the player sees as one zigzag beam is a chain of these,
// linked through LinkedLines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace prismfall {

// Scripts of the headless driver use and print these numbers.
enum class Heading : std::int8_t { Leftwards = 1, Rightwards = 2 };
enum class BeamColor : std::int8_t { Blue, Green, Red, Yellow, Grey };  // no beam is grey; a lost game paints them grey
enum class Motion : std::int8_t {
    Stopped,
    Growing,
    Waiting,  // a puzzle's beam that the player has to start
};

constexpr Heading TurnedRound(Heading heading) {
    return heading == Heading::Leftwards ? Heading::Rightwards : Heading::Leftwards;
}

// Pixels in x for each pixel that a beam grows down: 1 rightwards, -1 leftwards.
constexpr int Sideways(Heading heading) { return heading == Heading::Rightwards ? 1 : -1; }

constexpr float kLiveThicknes = 5.0F;

// A beam without its links. It can be copied, for a look-ahead.
struct BeamBody {
    std::int16_t XStart = 0;  // the tail
    std::int16_t XEnd = 0;    // the head, the end that moves
    std::int16_t YStart = 0;
    std::int16_t YEnd = 0;
    Heading Direction = Heading::Rightwards;
    BeamColor Color = BeamColor::Blue;
    Motion RunMode = Motion::Stopped;
    float Thicknes = 0;              // 5 for a live beam, less for a dying one
    bool Deleted = false;            // it is being removed; it stays in Lines while it thins out
    bool DeletedByFastLine = false;  // struck by a beam that ran forward: out of play at once
    std::int16_t PuzzleLineNr = 0;   // how a puzzle's solution refers to the beam and its whole chain
};

// How far the removal of a chain has got at this beam (see DeleteLine).
struct RemovalWalk {
    struct CLine* cameFrom = nullptr;
    std::size_t nextLink = 0;
};

// A beam on the playfield, with its links to others.
struct CLine : BeamBody {
    std::vector<CLine*> LinkedLines;    // joined end to end with this beam, in both directions; removed with it
    std::vector<CLine*> StoppingLines;  // ran into this beam and wait until it is gone

    RemovalWalk removalWalk;
    bool isReached = false;        // for BeamStore
    CLine* nextToVisit = nullptr;  // for BeamStore
};

}  // namespace prismfall
