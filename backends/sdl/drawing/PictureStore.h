// The game's pictures by name, each read from its file when it is first shown and kept in the size in which the display
// shows it. What is not found is reported once and answered with nothing; what is drawn then belongs to others.
#pragma once

#include <filesystem>
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
    // How many pixels of the display a game pixel has. What was read before is read anew.
    void SetScale(float displayScale);
    // The picture, or nothing. The pointer holds until the scale changes.
    const Image* Find(std::string_view name);
    // Takes a picture that is not read from a file, in its size on the display.
    void Add(std::string_view name, Image image);

  private:
    using Images = std::map<std::string, std::optional<Image>, std::less<>>;

    static std::optional<Image> Load(const std::filesystem::path& folder, float scale, std::string_view name);
    void TakeReadAhead();

    std::filesystem::path folder;
    float scale = 1;
    Images images;
    std::future<Images> readAhead;
    bool reported = false;
};

}  // namespace prismfall
