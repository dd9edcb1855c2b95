// The game's pictures by name, each read from its file when it is first shown and kept at its display size. The first
// that cannot be loaded is reported with the reason.
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
    // `folder` contains 1x/NAME.png, one file pixel per game pixel, and 2x/NAME.png, twice as large.
    explicit PictureStore(std::filesystem::path folder);

    // Starts reading pictures in the background, at the size for a standard display. Requests wait until that is done;
    // on a display with another scale they are read again.
    void ReadAhead(std::span<const std::string_view> names);
    // Display pixels per game pixel. Pictures for this and for the previous scale are kept: windows may differ.
    void SetScale(float displayScale);
    // The picture, or null. The pointer is valid until the scale changes.
    const Image* Find(std::string_view name);
    // Adds a picture that does not come from a file: `draw` returns it at its display size for a scale.
    void Add(std::string_view name, std::function<Image(float scale)> draw);

  private:
    using Images = std::map<std::string, std::optional<Image>, std::less<>>;
    struct Sized {
        float scale = 1;
        Images images;
    };

    void CollectReadAhead();
    std::optional<Image> Make(const std::string& name);

    std::filesystem::path folder;
    std::map<std::string, std::function<Image(float scale)>> drawn;
    std::array<Sized, 2> sizes;  // for the current and the previous scale
    std::future<Images> readAhead;
    bool reported = false;
};

}  // namespace prismfall
