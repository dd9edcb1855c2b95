// Sizes and positions of windows, in game pixels.
#pragma once

namespace prismfall {

struct Extent {
    int width = 0;
    int height = 0;
};

struct Place {
    int left = 0;
    int top = 0;
};

}  // namespace prismfall
