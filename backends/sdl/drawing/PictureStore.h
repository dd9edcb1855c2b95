// The game's pictures by name, each read from its file when it is first shown and kept in the size in which the display
// shows it. The first one that cannot be had is reported with the reason.
#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <future>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "backends/sdl/drawing/Canvas.h"

namespace prismfall {

class PictureStore {
  public:
    // `folder` holds 1x/NAME.png, a file pixel to a game pixel, and 2x/NAME.png, twice as large.
    explicit PictureStore(std::filesystem::path folder);

    // Begins to read pictures in the background, in the size of a plain display. What is asked for meanwhile waits; on
    // a display of another scale they are read anew.
    void ReadAhead(std::span<const std::string_view> names);
    // How many pixels of the display a game pixel has. Pictures of this and of the scale before are kept: windows may
    // differ.
    void SetScale(float displayScale);
    // The picture, or nothing. The pointer holds until the scale changes.
    const Image* Find(std::string_view name);
    // Takes a picture that is not read from a file: `draw` gives it in its size on the display for a scale.
    void Add(std::string_view name, std::function<Image(float scale)> draw);

  private:
    using Images = std::map<std::string, std::optional<Image>, std::less<>>;
    struct Sized {
        float scale = 1;
        Images images;
    };

    void TakeReadAhead();
    std::optional<Image> Make(const std::string& name);

    std::filesystem::path folder;
    std::map<std::string, std::function<Image(float scale)>> drawn;
    std::array<Sized, 2> sizes;  // of the scale in use, and of the one before
    std::future<Images> readAhead;
    bool reported = false;
};

}  // namespace prismfall
