// The game's pictures by name, each read from its file when it is first shown and kept in the size in which the display
// shows it. What is not found is reported once and answered with nothing; what is drawn then belongs to others.
#pragma once

#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/sdl/Canvas.h"

namespace prismfall {

class PictureStore {
  public:
    // `folder` holds 1x/NAME.png, a file pixel to a game pixel, and 2x/NAME.png, twice as large.
    explicit PictureStore(std::filesystem::path folder);

    // How many pixels of the display a game pixel has. What was read before is read anew.
    void SetScale(float displayScale);
    // The picture, or nothing. The pointer holds until the scale changes.
    const Image* Find(std::string_view name);
    // Takes a picture that is not read from a file, in its size on the display.
    void Add(std::string_view name, Image image);

  private:
    std::optional<Image> Load(std::string_view name) const;

    std::filesystem::path folder;
    float scale = 1;
    std::map<std::string, std::optional<Image>, std::less<>> images;
    bool reported = false;
};

}  // namespace prismfall
