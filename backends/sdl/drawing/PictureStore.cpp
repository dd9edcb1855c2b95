// Reading pictures with libpng. On a larger display the double-size file is used if there is one.
#include "backends/sdl/drawing/PictureStore.h"

#include <png.h>

#include <algorithm>
#include <bit>
#include <cerrno>
#include <cmath>
#include <cstdio>
#include <memory>
#include <utility>

namespace prismfall {

namespace {

// The bytes of a pixel 0xAARRGGBB in memory.
constexpr png_uint_32 kPixelFormat = std::endian::native == std::endian::little ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;

// Premultiplies the colours by alpha. Returns whether every pixel is opaque.
bool Premultiply(std::vector<std::uint32_t>& pixels) {
    bool opaque = true;
    for (std::uint32_t& pixel : pixels) {
        const std::uint32_t alpha = pixel >> 24;
        if (alpha == 0xFF) continue;
        opaque = false;
        pixel = WithOpacity(pixel | 0xFF000000, alpha);
    }
    return opaque;
}

constexpr png_uint_32 kLargestSide = 4096;  // far beyond any picture of the game at double size

struct Reading {
    std::optional<Image> image = {};
    std::string fault = {};  // what is wrong with the file, if it yields no picture
};

// Whatever kind of PNG the file is, libpng converts it to our pixel format.
Reading ReadFile(const std::filesystem::path& path) {
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(std::fopen(path.string().c_str(), "rb"), std::fclose);
    if (!stream) return {.fault = errno == ENOENT ? "is missing" : "cannot be opened"};
    png_image file{};
    file.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_stdio(&file, stream.get()) == 0) return {.fault = "is damaged"};
    if (file.width > kLargestSide || file.height > kLargestSide) {
        png_image_free(&file);
        return {.fault = "is too large"};
    }
    file.format = kPixelFormat;
    Image image(static_cast<int>(file.width), static_cast<int>(file.height));
    if (png_image_finish_read(&file, nullptr, image.pixels.data(), 0, nullptr) == 0) return {.fault = "is damaged"};
    image.opaque = Premultiply(image.pixels);
    return {.image = std::move(image)};
}

Reading ReadScaled(const std::filesystem::path& folder, float scale, std::string_view name) {
    const std::string file = std::string(name) + ".png";
    float fileScale = scale > 1 ? 2.0F : 1.0F;
    Reading reading = ReadFile(folder / (scale > 1 ? "2x" : "1x") / file);
    if (!reading.image && scale > 1) {
        fileScale = 1;
        reading = ReadFile(folder / "1x" / file);
    }
    if (!reading.image || fileScale == scale) return reading;
    const auto sized = [&](int size) {
        return std::max(1, static_cast<int>(std::lround(static_cast<float>(size) * scale / fileScale)));
    };
    return {.image = Scaled(*reading.image, sized(reading.image->width), sized(reading.image->height))};
}

}  // namespace

PictureStore::PictureStore(std::filesystem::path picturesFolder) : folder(std::move(picturesFolder)) {}

void PictureStore::ReadAhead(std::span<const std::string_view> names) {
    // If the system cannot start a thread, they are read when the first picture is requested.
    constexpr std::launch policy = std::launch::async | std::launch::deferred;
    readAhead = std::async(policy, [path = folder, list = std::vector(names.begin(), names.end())] {
        Images read;
        for (const std::string_view name : list) {
            if (Reading reading = ReadScaled(path, 1, name); reading.image)
                read.emplace(name, std::move(reading.image));
        }
        return read;
    });
}

void PictureStore::CollectReadAhead() {
    if (!readAhead.valid()) return;
    Images read = readAhead.get();
    if (sizes[0].scale == 1) sizes[0].images.merge(read);
}

void PictureStore::SetScale(float displayScale) {
    if (displayScale == sizes[0].scale) return;
    std::swap(sizes[0], sizes[1]);
    if (displayScale != sizes[0].scale) sizes[0] = {displayScale, {}};
}

void PictureStore::Add(std::string_view name, std::function<Image(float scale)> draw) {
    drawn.insert_or_assign(std::string(name), std::move(draw));
}

const Image* PictureStore::Find(std::string_view name) {
    CollectReadAhead();
    Images& images = sizes[0].images;
    auto found = images.find(name);
    if (found == images.end()) found = images.emplace(std::string(name), Make(std::string(name))).first;
    return found->second ? &*found->second : nullptr;
}

std::optional<Image> PictureStore::Make(const std::string& name) {
    const float scale = sizes[0].scale;
    if (const auto found = drawn.find(name); found != drawn.end()) return found->second(scale);
    Reading reading = ReadScaled(folder, scale, name);
    if (!reading.image && !std::exchange(reported, true))
        std::fprintf(stderr, "prismfall: the picture %s in %s %s, its name is shown instead.\n", name.c_str(),
                     folder.string().c_str(), reading.fault.c_str());
    return std::move(reading.image);
}

}  // namespace prismfall
