// Reading pictures with SDL_image. On a larger display the double-size file serves if there is one.
#include "platform/sdl/PictureStore.h"

#include <SDL.h>
#include <SDL_image.h>

#include <cmath>
#include <cstdio>
#include <memory>

namespace prismfall {

namespace {

struct FreeSurface {
    void operator()(SDL_Surface* surface) const { SDL_FreeSurface(surface); }
};
using SurfacePointer = std::unique_ptr<SDL_Surface, FreeSurface>;

std::uint32_t Premultiplied(std::uint32_t pixel) {
    const std::uint32_t alpha = pixel >> 24;
    const auto part = [&](int shift) { return (((pixel >> shift) & 0xFF) * alpha + 127) / 255 << shift; };
    return alpha << 24 | part(16) | part(8) | part(0);
}

std::optional<Image> ReadFile(const std::filesystem::path& path) {
    SDL_RWops* file = SDL_RWFromFile(path.c_str(), "rb");
    if (file == nullptr) return std::nullopt;
    const SurfacePointer read(IMG_LoadPNG_RW(file));
    SDL_RWclose(file);
    if (!read) return std::nullopt;
    const SurfacePointer surface(SDL_ConvertSurfaceFormat(read.get(), SDL_PIXELFORMAT_ARGB8888, 0));
    if (!surface) return std::nullopt;

    Image image(surface->w, surface->h);
    image.opaque = true;
    for (int y = 0; y < image.height; ++y) {
        const auto* bytes = static_cast<const std::uint8_t*>(surface->pixels) + y * surface->pitch;
        const auto* from = reinterpret_cast<const std::uint32_t*>(bytes);
        std::uint32_t* to = image.Row(y);
        for (int x = 0; x < image.width; ++x) {
            to[x] = Premultiplied(from[x]);
            if (to[x] >> 24 != 0xFF) image.opaque = false;
        }
    }
    return image;
}

}  // namespace

PictureStore::PictureStore(std::filesystem::path picturesFolder) : folder(std::move(picturesFolder)) {}

void PictureStore::SetScale(float displayScale) {
    scale = displayScale;
    images.clear();
}

void PictureStore::Add(std::string_view name, Image image) { images.insert_or_assign(std::string(name), image); }

const Image* PictureStore::Find(std::string_view name) {
    auto found = images.find(name);
    if (found == images.end()) {
        found = images.emplace(std::string(name), Load(name)).first;
        if (!found->second && !reported) {
            reported = true;
            std::fprintf(stderr, "prismfall: the picture %s is missing in %s, its name stands in its place.\n",
                         found->first.c_str(), folder.c_str());
        }
    }
    return found->second ? &*found->second : nullptr;
}

std::optional<Image> PictureStore::Load(std::string_view name) const {
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
