// Plays recordings of games again and says whether they are genuine.
#pragma once

#include <string>
#include <string_view>

namespace prismfall {

struct Verdict {
    bool isTrue = false;
    // The game's result, as in "Arcade, 1230 points, level 4, 3:12"; or where it differs, or why the text is not a
    // recording.
    std::string words;
};

// Plays a recording to its end, without waiting. The text may come from anywhere.
Verdict VerifyRecording(std::string_view text);

}  // namespace prismfall
