// Creating, showing and presenting a window with SDL. The picture is composed directly in the pixels that go to the
// desktop.
#include "backends/sdl/desktop/SdlWindow.h"

#include <array>
#include <cmath>
#include <cstring>
#include <string>
#include <utility>

#include "backends/sdl/desktop/DesktopHints.h"

namespace prismfall {

SdlWindow::SdlWindow(Window& data, Display& target, const Options& wanted)
    : window(data), display(target), options(wanted), composer(data, wanted.layer, target) {
    fit.scale = wanted.pointsPerGamePixel;
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
    // The desktop expects colours that are not premultiplied by alpha.
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

void SdlWindow::Expose() {
    composer.ForgetAll();
    marginsLost = true;
}

// Only now does the desktop say what size the window has, and how many pixels a point has.
void SdlWindow::FitTo(const SDL_Surface& shown) {
    if (shown.w == shownSize.width && shown.h == shownSize.height) return;
    shownSize = {shown.w, shown.h};
    int width = 0;
    int height = 0;
    SDL_GetWindowSize(Real(), &width, &height);
    pixelsPerPoint = width > 0 ? static_cast<float>(shown.w) / static_cast<float>(width) : 1;
    fit = FitPicture({window.innerWidth, window.innerHeight}, shownSize, options.pointsPerGamePixel * pixelsPerPoint);
    Expose();
}

void SdlWindow::BlackenMargins(SDL_Surface& shown) {
    const PixelBox& box = fit.box;
    const std::array<SDL_Rect, 4> margins = {{{0, 0, shown.w, box.top},
                                              {0, box.bottom, shown.w, shown.h - box.bottom},
                                              {0, box.top, box.left, box.bottom - box.top},
                                              {box.right, box.top, shown.w - box.right, box.bottom - box.top}}};
    for (const SDL_Rect& margin : margins) {
        if (SDL_RectEmpty(&margin)) continue;
        SDL_FillRect(&shown, &margin, SDL_MapRGB(shown.format, 0, 0, 0));
        presented.push_back(margin);
    }
}

void SdlWindow::RefreshMargins(SDL_Surface& shown, SDL_Surface& drawn) {
    if (marginsLost) BlackenMargins(shown);
    const PixelBox box = note.Update(window, shownSize, fit, display, std::exchange(marginsLost, false));
    if (box.IsEmpty()) return;
    Canvas canvas(static_cast<std::uint32_t*>(drawn.pixels), drawn.w, drawn.h, drawn.pitch / 4);
    canvas.SetClip(box);
    canvas.Fill(box, PixelOf(kBlack));
    note.Draw(canvas, display);
    Present(box, shown, drawn);
}

void SdlWindow::Present(const PixelBox& box, SDL_Surface& shown, SDL_Surface& drawn) {
    SDL_Rect area{box.left, box.top, box.right - box.left, box.bottom - box.top};
    if (&drawn != &shown) SDL_BlitSurface(&drawn, &area, &shown, &area);
    presented.push_back(area);
}

void SdlWindow::ToggleFullScreen() {
    const bool isFull = (SDL_GetWindowFlags(Real()) & SDL_WINDOW_FULLSCREEN_DESKTOP) == SDL_WINDOW_FULLSCREEN_DESKTOP;
    SDL_SetWindowFullscreen(Real(), isFull ? 0 : SDL_WINDOW_FULLSCREEN_DESKTOP);
    Expose();
}

void SdlWindow::Refresh() {
    SDL_Surface* shown = SDL_GetWindowSurface(Real());
    if (shown == nullptr) return;
    FitTo(*shown);
    display.SetScale(fit.scale);
    SDL_Surface* drawn = DrawingSurface(shown);
    if (drawn == nullptr) return;

    presented.clear();
    RefreshMargins(*shown, *drawn);
    const int width = fit.box.right - fit.box.left;
    const int height = fit.box.bottom - fit.box.top;
    const std::ptrdiff_t stride = drawn->pitch / 4;
    auto* const corner = static_cast<std::uint32_t*>(drawn->pixels) + fit.box.top * stride + fit.box.left;
    Canvas canvas(corner, width, height, static_cast<int>(stride));
    for (const PixelBox& box : composer.TakeChanges(width, height)) {
        composer.Compose(canvas, box);
        Present({fit.box.left + box.left, fit.box.top + box.top, fit.box.left + box.right, fit.box.top + box.bottom},
                *shown, *drawn);
    }
    if (presented.empty()) return;
    SDL_UpdateWindowSurfaceRects(Real(), presented.data(), static_cast<int>(presented.size()));
}

Place SdlWindow::PictureCorner() const {
    const auto points = [&](int pixels) {
        return static_cast<int>(std::lround(static_cast<float>(pixels) / pixelsPerPoint));
    };
    return {points(fit.box.left), points(fit.box.top)};
}

GamePlace SdlWindow::ToGame(int x, int y) const {
    return {(static_cast<float>(x) * pixelsPerPoint - static_cast<float>(fit.box.left)) / fit.scale,
            (static_cast<float>(y) * pixelsPerPoint - static_cast<float>(fit.box.top)) / fit.scale};
}

bool SdlWindow::IsOnPicture(const GamePlace& place) const {
    return place.x >= 0 && place.x < static_cast<float>(window.innerWidth) && place.y >= 0 &&
           place.y < static_cast<float>(window.innerHeight);
}

std::optional<Place> SdlWindow::Origin() const {
    const char* driver = SDL_GetCurrentVideoDriver();
    if (driver != nullptr && std::strcmp(driver, "wayland") == 0) return std::nullopt;
    int left = 0;
    int top = 0;
    SDL_GetWindowPosition(Real(), &left, &top);
    const GamePlace corner = ToGame(-left, -top);  // of the desktop, relative to the picture
    return Place{static_cast<int>(std::lround(-corner.x)), static_cast<int>(std::lround(-corner.y))};
}

std::optional<FrameBorders> SdlWindow::Borders() const {
    FrameBorders borders;
    if (SDL_GetWindowBordersSize(Real(), &borders.top, &borders.left, &borders.bottom, &borders.right) != 0)
        return std::nullopt;
    if (borders.top == 0 && borders.left == 0) return std::nullopt;
    return borders;
}

}  // namespace prismfall
