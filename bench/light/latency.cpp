// Measures the latency from mouse to pixel: it moves or clicks like a real mouse and watches one pixel in the virtual
// display's memory, which costs neither the display nor the game anything.
//
//     prismfall_bench_latency FRAMEBUFFER OFFSET COUNT click X Y
//     prismfall_bench_latency FRAMEBUFFER OFFSET COUNT hover X Y AWAY_X AWAY_Y
//
// FRAMEBUFFER is the file in which Xvfb keeps the display, OFFSET the pixel's place in it. Prints microseconds, one
// measurement per line.
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string_view>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

constexpr auto kLongest = 1s;   // a slower change counts as none
constexpr auto kLook = 20us;    // between two checks
constexpr auto kSettle = 30ms;  // between two measurements, plus up to kUneven, so that both go to sleep
constexpr int kUnevenMicroseconds = 20'000;

const volatile std::uint32_t* MapPixel(const char* path, std::size_t offset) {
    const int file = open(path, O_RDONLY);
    struct stat status {};
    if (file < 0 || fstat(file, &status) != 0) return nullptr;
    const auto size = static_cast<std::size_t>(status.st_size);
    void* memory = mmap(nullptr, size, PROT_READ, MAP_SHARED, file, 0);
    close(file);
    if (memory == MAP_FAILED || offset + 4 > size) return nullptr;
    return reinterpret_cast<const volatile std::uint32_t*>(static_cast<const char*>(memory) + offset);
}

void Move(Display* display, int x, int y) {
    XTestFakeMotionEvent(display, -1, x, y, CurrentTime);
    XFlush(display);
}

void Click(Display* display) {
    XTestFakeButtonEvent(display, 1, True, CurrentTime);
    XTestFakeButtonEvent(display, 1, False, CurrentTime);
    XFlush(display);
}

// Microseconds until the pixel changes, or -1.
template <typename Act>
long TimeToChange(const volatile std::uint32_t* pixel, const Act& act) {
    const std::uint32_t before = *pixel;
    const auto begin = Clock::now();
    act();
    auto now = begin;
    while (*pixel == before) {
        std::this_thread::sleep_for(kLook);  // a loop without pauses would take the processor from those it waits for
        now = Clock::now();
        if (now - begin > kLongest) return -1;
    }
    return static_cast<long>(std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - begin).count());
}

}  // namespace

int main(int count, char** arguments) {
    const std::vector<const char*> words(arguments, arguments + count);
    const bool hovers = count == 9 && std::string_view(words[4]) == "hover";
    if (!hovers && !(count == 7 && std::string_view(words[4]) == "click")) {
        std::fprintf(stderr, "usage: see the head of latency.cpp\n");
        return 2;
    }
    const volatile std::uint32_t* pixel = MapPixel(words[1], std::strtoul(words[2], nullptr, 10));
    Display* display = XOpenDisplay(nullptr);
    if (pixel == nullptr || display == nullptr) {
        std::fprintf(stderr, "no display, or no access to its memory\n");
        return 1;
    }
    const auto number = [&](std::size_t at) { return std::atoi(words[at]); };
    prctl(PR_SET_TIMERSLACK, 1UL);  // or each look would come 50 microseconds late
    std::mt19937 generator(1);
    std::uniform_int_distribution<int> uneven(0, kUnevenMicroseconds);
    Move(display, number(5), number(6));
    for (int i = 0; i < number(3); ++i) {
        if (hovers) Move(display, number(7), number(8));
        std::this_thread::sleep_for(kSettle + std::chrono::microseconds(uneven(generator)));
        const long taken = hovers ? TimeToChange(pixel, [&] { Move(display, number(5), number(6)); })
                                  : TimeToChange(pixel, [&] { Click(display); });
        if (taken < 0) {
            std::fprintf(stderr, "the pixel does not change\n");
            return 1;
        }
        std::printf("%ld\n", taken);
    }
    XCloseDisplay(display);
}
