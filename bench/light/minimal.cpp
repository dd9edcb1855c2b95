// The least that an SDL2 program can do: it opens a window of the game's size without acceleration, fills it once and
// waits until it is closed. Whatever the game needs beyond this is its own cost.
#include <SDL.h>

#include <cstdio>

namespace {

constexpr int kWidth = 802;
constexpr int kHeight = 602;

int Fail(const char* what) {
    std::fprintf(stderr, "%s: %s\n", what, SDL_GetError());
    return 1;
}

}  // namespace

int main(int, char**) {
    SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    if (SDL_Init(SDL_INIT_VIDEO) != 0) return Fail("SDL_Init");
    SDL_Window* window =
        SDL_CreateWindow("Minimal", SDL_WINDOWPOS_UNDEFINED, SDL_WINDOWPOS_UNDEFINED, kWidth, kHeight, 0);
    if (window == nullptr) return Fail("SDL_CreateWindow");
    SDL_Surface* surface = SDL_GetWindowSurface(window);
    if (surface == nullptr) return Fail("SDL_GetWindowSurface");
    SDL_FillRect(surface, nullptr, SDL_MapRGB(surface->format, 0x20, 0x60, 0xA0));
    SDL_UpdateWindowSurface(window);
    SDL_Event event;
    while (SDL_WaitEvent(&event) == 1 && event.type != SDL_QUIT) {
        // Only the end matters here.
    }
    SDL_Quit();
    return 0;
}
