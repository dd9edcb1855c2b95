#include "platform/Sparks.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

#include "platform/Surface.h"

namespace prismfall {

namespace {

// In game pixels, except for times.
constexpr PixelBox kField{14, 16, 670, 586};
constexpr double kStep = 40;  // milliseconds
constexpr int kSteps = 10;
constexpr int kSparkReach = 4 + 2 * kSteps;
constexpr float kMeets = 8;      // how close a beam's end comes to the beam that it destroys
constexpr int kGlowsFrom = 120;  // above the ground
constexpr int kGlowHalf = 36;
constexpr int kGlowHeight = 9;

struct Ray {
    int x, y;
};
constexpr std::array<Ray, 8> kRays = {{{2, 0}, {1, 1}, {0, 2}, {-1, 1}, {-2, 0}, {-1, -1}, {0, -2}, {1, -1}}};

// Adds `share` 256ths of a colour to a pixel.
std::uint32_t Added(std::uint32_t below, std::uint32_t pixel, int share) {
    std::uint32_t sum = 0xFF000000;
    for (const int shift : {0, 8, 16}) {
        const auto part = [shift](std::uint32_t of) { return static_cast<int>(of >> shift & 0xFF); };
        sum |= static_cast<std::uint32_t>(std::min(255, part(below) + part(pixel) * share / 256)) << shift;
    }
    return sum;
}

// How far a beam's end is from another beam.
float Distance(const SeenBeam& ending, const SeenBeam& line) {
    const float along = std::clamp(ending.y, std::min(line.startY, line.y), std::max(line.startY, line.y));
    const float way = line.y == line.startY ? 0 : (along - line.startY) / (line.y - line.startY);
    return std::hypot(ending.x - line.startX - way * (line.x - line.startX), ending.y - along);
}

}  // namespace

PixelBox Sparks::BoxOf(const Spark& spark) {
    return Overlap(kField, {spark.x - kSparkReach - 1, spark.y - kSparkReach - 1, spark.x + kSparkReach + 2,
                            spark.y + kSparkReach + 2});
}

PixelBox Sparks::BoxOf(const Glow& glow) {
    return Overlap(kField, {glow.x - kGlowHalf, kField.bottom - kGlowHeight, glow.x + kGlowHalf, kField.bottom});
}

// Where the beam's end has met another beam that is now being destroyed with it.
void Sparks::Kindle(const std::vector<SeenBeam>& beams, double now) {
    const auto isNew = [this](const SeenBeam& beam) {
        return beam.isStruck && std::ranges::find(struck, beam.what) == struck.end();
    };
    for (const SeenBeam& beam : beams) {
        if (!isNew(beam)) continue;
        const bool meets = std::ranges::any_of(beams, [&](const SeenBeam& other) {
            return &other != &beam && isNew(other) && Distance(beam, other) <= kMeets;
        });
        if (meets) burning.push_back({static_cast<int>(beam.x), static_cast<int>(beam.y), now});
    }
}

void Sparks::See(const std::vector<SeenBeam>& beams, double now, bool sparks) {
    const std::vector<Spark> burnt = burning;
    const std::vector<Glow> glowed = glows;
    if (sparks) Kindle(beams, now);
    struck.clear();
    glows.clear();
    for (const SeenBeam& beam : beams) {
        if (beam.isStruck) struck.push_back(beam.what);
        const int height = kField.bottom - static_cast<int>(beam.y);
        if (beam.isGrowing && height < kGlowsFrom)
            glows.push_back({static_cast<int>(beam.x), height, PixelOf(beam.colour)});
    }
    for (Spark& spark : burning) spark.age = static_cast<int>((now - spark.began) / kStep);
    std::erase_if(burning, [&](const Spark& spark) { return spark.age >= kSteps || !sparks; });
    if (burning != burnt)
        for (const auto& list : {burnt, burning})
            for (const Spark& spark : list) lost.push_back(BoxOf(spark));
    if (glows != glowed)
        for (const auto& list : {glowed, glows})
            for (const Glow& glow : list) lost.push_back(BoxOf(glow));
}

void Sparks::TakeDamage(std::vector<PixelBox>& boxes) {
    boxes.insert(boxes.end(), lost.begin(), lost.end());
    lost.clear();
}

void Sparks::Paint(std::span<std::uint32_t> pixels, int stride) const {
    const auto add = [&](int x, int y, std::uint32_t pixel, int share) {
        if (x < kField.left || x >= kField.right || y < kField.top || y >= kField.bottom) return;
        std::uint32_t& place =
            pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(stride) + static_cast<std::size_t>(x)];
        place = Added(place, pixel, share);
    };
    for (const Glow& glow : glows) {
        const PixelBox box = BoxOf(glow);
        const int strength = 256 * (kGlowsFrom - glow.height) / kGlowsFrom;
        for (int y = box.top; y < box.bottom; ++y)
            for (int x = box.left; x < box.right; ++x) {
                const int across = kGlowHalf - std::abs(x - glow.x);
                const int down = kGlowHeight - (kField.bottom - 1 - y);
                add(x, y, glow.pixel, strength * across * down / (kGlowHalf * kGlowHeight));
            }
    }
    for (const Spark& spark : burning) {
        const int share = 256 * (kSteps - spark.age) / kSteps;
        for (const Ray& ray : kRays)
            for (int length = spark.age; length < spark.age + 4; ++length)
                for (const int wide : {0, 1})
                    add(spark.x + ray.x * length + wide, spark.y + ray.y * length, 0xFFFFFFFF, share);
    }
}

}  // namespace prismfall
