// Plays recordings of games again and says whether they are what happened.
#pragma once

#include <string>
#include <string_view>

namespace prismfall {

struct Verdict {
    bool isTrue = false;
    // What the game came to, as in "Arcade, 1230 points, level 4, 3:12"; or where it differs, or why the text is no
    // recording.
    std::string words;
};

// Plays a recording to its end, without waiting. The text may come from anywhere.
Verdict VerifyRecording(std::string_view text);

}  // namespace prismfall
