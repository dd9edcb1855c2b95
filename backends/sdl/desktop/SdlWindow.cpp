// Making, showing and presenting a window with SDL. The picture is composed in the very pixels that go to the desktop.
#include "backends/sdl/desktop/SdlWindow.h"

#include <cmath>
#include <string>

#include "backends/sdl/desktop/DesktopHints.h"

namespace prismfall {

SdlWindow::SdlWindow(Window& data, Display& target, const Options& wanted)
    : window(data),
      display(target),
      options(wanted),
      composer(data, wanted.layer, target),
      input(data, wanted.doubleClickMilliseconds) {
    Create();
    if (!IsReal()) return;
    if (window.isDialog) {
        SetDialogFrame(Real(), options.owner);
    } else {
        SetMainFrame(Real());
    }
    if (window.hasIcon) SetIcon();
    SDL_ShowWindow(Real());
    Refresh();
}

void SdlWindow::Create() {
    const auto points = [&](int gamePixels) {
        return static_cast<int>(std::lround(static_cast<float>(gamePixels) * options.pointsPerGamePixel));
    };
    int left = SDL_WINDOWPOS_UNDEFINED;
    int top = SDL_WINDOWPOS_UNDEFINED;
    if (options.frameCorner) {
        left = options.frameCorner->left;
        top = options.frameCorner->top;
    }
    const std::string title(window.title);
    real.reset(SDL_CreateWindow(title.c_str(), left, top, points(window.innerWidth), points(window.innerHeight),
                                SDL_WINDOW_HIDDEN | SDL_WINDOW_ALLOW_HIGHDPI));
}

void SdlWindow::SetIcon() {
    const Image* image = display.pictures.Find("Icon");
    if (image == nullptr) return;
    // The desktop wants colours that are not multiplied by their opacity.
    Image plain = *image;
    for (std::uint32_t& pixel : plain.pixels) {
        const std::uint32_t alpha = pixel >> 24;
        if (alpha == 0) continue;
        const auto part = [&](int shift) { return ((pixel >> shift & 0xFF) * 255 + alpha / 2) / alpha << shift; };
        pixel = alpha << 24 | part(16) | part(8) | part(0);
    }
    SDL_Surface* icon = SDL_CreateRGBSurfaceWithFormatFrom(plain.pixels.data(), plain.width, plain.height, 32,
                                                           plain.width * 4, SDL_PIXELFORMAT_ARGB8888);
    if (icon == nullptr) return;
    SDL_SetWindowIcon(Real(), icon);
    SDL_FreeSurface(icon);
}

SDL_Surface* SdlWindow::DrawingSurface(SDL_Surface* shown) {
    const std::uint32_t format = shown->format->format;
    if (format == SDL_PIXELFORMAT_RGB888 || format == SDL_PIXELFORMAT_ARGB8888) return shown;
    if (!converted || converted->w != shown->w || converted->h != shown->h) {
        converted.reset(SDL_CreateRGBSurfaceWithFormat(0, shown->w, shown->h, 32, SDL_PIXELFORMAT_RGB888));
        Expose();
    }
    return converted.get();
}

void SdlWindow::Refresh() {
    SDL_Surface* shown = SDL_GetWindowSurface(Real());
    if (shown == nullptr) return;
    if (shown->w != shownWidth) {
        shownWidth = shown->w;
        // A desktop may tell only now how many pixels its unit of size has.
        const float scale = static_cast<float>(shown->w) / static_cast<float>(window.innerWidth);
        if (!window.isDialog && std::abs(scale - display.scale) > 1.0F / static_cast<float>(window.innerWidth))
            display.SetScale(scale);
        Expose();
    }
    SDL_Surface* drawn = DrawingSurface(shown);
    if (drawn == nullptr) return;
    const std::vector<PixelBox>& changes = composer.TakeChanges(drawn->w, drawn->h);
    if (changes.empty()) return;

    Canvas canvas(static_cast<std::uint32_t*>(drawn->pixels), drawn->w, drawn->h, drawn->pitch / 4);
    presented.clear();
    for (const PixelBox& box : changes) {
        composer.Compose(canvas, box);
        SDL_Rect area{box.left, box.top, box.right - box.left, box.bottom - box.top};
        if (drawn != shown) SDL_BlitSurface(drawn, &area, shown, &area);
        presented.push_back(area);
    }
    SDL_UpdateWindowSurfaceRects(Real(), presented.data(), static_cast<int>(presented.size()));
}

std::optional<FrameBorders> SdlWindow::Borders() const {
    FrameBorders borders;
    if (SDL_GetWindowBordersSize(Real(), &borders.top, &borders.left, &borders.bottom, &borders.right) != 0)
        return std::nullopt;
    if (borders.top == 0 && borders.left == 0) return std::nullopt;
    return borders;
}

}  // namespace prismfall
