// The window frame that the game's sizes include. Whatever frame a desktop really draws, the inner area has the same
// size everywhere.
#pragma once

#include "platform/WindowHost.h"

namespace prismfall {

// The widths of a frame's four sides.
struct FrameBorders {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
};

constexpr FrameBorders kNominalFrame{2, 25, 2, 2};

constexpr Extent WithFrame(Extent inner, const FrameBorders& frame) {
    return {inner.width + frame.left + frame.right, inner.height + frame.top + frame.bottom};
}

constexpr Extent WithoutNominalFrame(Extent outer) {
    return {outer.width - kNominalFrame.left - kNominalFrame.right,
            outer.height - kNominalFrame.top - kNominalFrame.bottom};
}

}  // namespace prismfall
