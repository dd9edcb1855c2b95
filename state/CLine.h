// The record of one beam: a straight diagonal from its tail to its head. What the player sees as one zig-zag beam is a
// chain of these, joined through LinkedLines.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "state/Numbers.h"

namespace prismfall {

constexpr std::int32_t kLeftwards = 1;
constexpr std::int32_t kRightwards = 2;

constexpr std::int32_t TurnedRound(std::int32_t direction) {
    return direction == kLeftwards ? kRightwards : kLeftwards;
}

constexpr std::int32_t kStopped = 0;  // RunMode
constexpr std::int32_t kGrowing = 1;
constexpr std::int32_t kWaiting = 2;  // a puzzle's beam that the player has to start

constexpr float kLiveThicknes = 5.0F;

// Where the removal of a chain stands, for the routine that walks it (see DeleteLine).
struct RemovalWalk {
    struct CLine* cameFrom = nullptr;
    std::size_t nextLink = 0;
};

struct CLine {
    std::int16_t XStart = 0;  // the tail
    std::int16_t XEnd = 0;    // the head, the end that moves
    std::int16_t YStart = 0;
    std::int16_t YEnd = 0;
    std::int32_t Direction = 0;
    std::int32_t Color = 0;                 // an index into LineColors, 0 to 3
    std::vector<CLine*> LinkedLines;        // joined end to end with this beam, both ways; removed with it
    std::vector<CLine*> StoppingLines;      // ran into this beam and stand still until it is gone
    float Thicknes = 0;                     // 5 for a live beam, less for a dying one
    Boolean Deleted;                        // it is being removed, and thins out in Lines meanwhile
    std::optional<std::int16_t> XStartOrg;  // the spawn column of a random beam
    std::int32_t RunMode = kStopped;
    Boolean DoubleSpeed;            // carried along; nothing sets it
    std::int16_t PuzzleLineNr = 0;  // the number by which a puzzle's script names the beam
    Boolean DeletedByFastLine;      // struck by a speeded beam just now: out of play at once

    RemovalWalk removalWalk;
    bool isReached = false;        // for BeamStore
    CLine* nextToVisit = nullptr;  // for BeamStore

    // Takes everything from `oLine` but LinkedLines, StoppingLines and PuzzleLineNr, which stay as they are.
    void Copy(const CLine& oLine);
};

}  // namespace prismfall
