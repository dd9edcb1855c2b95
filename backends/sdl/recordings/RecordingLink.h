// Recordings as links. The game is after the `#`, which browsers do not send, so no server ever sees it.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace prismfall {

// The link to a recording on the page at that address: the address, `#1.`, and the deflated text in base64url.
std::string LinkTo(std::string_view page, std::string_view text);

// Whether it is a link of this or of a later format: it has a `#`, a number and a full stop, whatever comes before
// them.
bool IsRecordingLink(std::string_view words);

struct LinkContents {
    std::string text = {};
    std::string fault = {};  // why there is none, in a sentence
};

// The unchecked text in such a link, which may come from anyone; at most `most` bytes of it.
LinkContents ReadRecordingLink(std::string_view link, std::size_t most);

}  // namespace prismfall
