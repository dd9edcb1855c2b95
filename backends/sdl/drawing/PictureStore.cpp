// Reading pictures with libpng. On a larger display the double-size file serves if there is one.
#include "backends/sdl/drawing/PictureStore.h"

#include <png.h>

#include <bit>
#include <cmath>
#include <cstdio>

namespace prismfall {

namespace {

// The bytes of a pixel 0xAARRGGBB in memory.
constexpr png_uint_32 kPixelFormat = std::endian::native == std::endian::little ? PNG_FORMAT_BGRA : PNG_FORMAT_ARGB;

// Multiplies the colours by their opacity. Whether every pixel turns out opaque.
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

// Whatever kind of PNG the file is: libpng brings it to the form of our pixels.
std::optional<Image> ReadFile(const std::filesystem::path& path) {
    png_image file{};
    file.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&file, path.c_str()) == 0) return std::nullopt;
    file.format = kPixelFormat;
    Image image(static_cast<int>(file.width), static_cast<int>(file.height));
    if (png_image_finish_read(&file, nullptr, image.pixels.data(), 0, nullptr) == 0) return std::nullopt;
    image.opaque = Premultiply(image.pixels);
    return image;
}

}  // namespace

PictureStore::PictureStore(std::filesystem::path picturesFolder) : folder(std::move(picturesFolder)) {}

void PictureStore::ReadAhead(std::span<const std::string_view> names) {
    readAhead = std::async(std::launch::async, [path = folder, list = std::vector(names.begin(), names.end())] {
        Images read;
        for (const std::string_view name : list) {
            if (std::optional<Image> image = Load(path, 1, name)) read.emplace(name, std::move(image));
        }
        return read;
    });
}

void PictureStore::TakeReadAhead() {
    if (!readAhead.valid()) return;
    Images read = readAhead.get();
    if (scale == 1) images.merge(read);
}

void PictureStore::SetScale(float displayScale) {
    if (displayScale == scale) return;
    scale = displayScale;
    images.clear();
}

void PictureStore::Add(std::string_view name, Image image) {
    images.insert_or_assign(std::string(name), std::move(image));
}

const Image* PictureStore::Find(std::string_view name) {
    TakeReadAhead();
    auto found = images.find(name);
    if (found == images.end()) {
        found = images.emplace(std::string(name), Load(folder, scale, name)).first;
        if (!found->second && !reported) {
            reported = true;
            std::fprintf(stderr, "prismfall: the picture %s is missing in %s, its name stands in its place.\n",
                         found->first.c_str(), folder.c_str());
        }
    }
    return found->second ? &*found->second : nullptr;
}

std::optional<Image> PictureStore::Load(const std::filesystem::path& folder, float scale, std::string_view name) {
    const std::string file = std::string(name) + ".png";
    float fileScale = scale > 1 ? 2.0F : 1.0F;
    std::optional<Image> image = ReadFile(folder / (scale > 1 ? "2x" : "1x") / file);
    if (!image && scale > 1) {
        fileScale = 1;
        image = ReadFile(folder / "1x" / file);
    }
    if (!image || fileScale == scale) return image;
    const auto sized = [&](int size) {
        return std::max(1, static_cast<int>(std::lround(static_cast<float>(size) * scale / fileScale)));
    };
    return Scaled(*image, sized(image->width), sized(image->height));
}

}  // namespace prismfall
