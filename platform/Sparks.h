// Effects laid over the playfield's pixels: a spark where beams destroy each other, and a glow on the ground below a
// beam's end that has come close to it.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "platform/PixelBox.h"
#include "platform/Window.h"

namespace prismfall {

class Sparks {
  public:
    // Takes the visible state of the beams at `now`, in milliseconds. Without `sparks` nothing is animated.
    void See(const std::vector<SeenBeam>& beams, double now, bool sparks);

    // Whether a spark is burning, so that the picture is about to change.
    bool AreBurning() const { return !burning.empty(); }
    bool IsEmpty() const { return burning.empty() && glows.empty(); }

    // Adds the boxes that have changed since the last call.
    void TakeDamage(std::vector<PixelBox>& boxes);
    // Paints on rows of pixels 0xAARRGGBB, `stride` pixels apart.
    void Paint(std::span<std::uint32_t> pixels, int stride) const;

  private:
    struct Spark {
        int x = 0;
        int y = 0;
        double began = 0;
        int age = 0;  // in steps

        bool operator==(const Spark&) const = default;
    };
    struct Glow {
        int x = 0;
        int height = 0;  // of the beam's end above the ground
        std::uint32_t pixel = 0;

        bool operator==(const Glow&) const = default;
    };

    void Kindle(const std::vector<SeenBeam>& beams, double now);
    static PixelBox BoxOf(const Spark& spark);
    static PixelBox BoxOf(const Glow& glow);

    std::vector<Spark> burning;
    std::vector<Glow> glows;
    std::vector<const void*> struck;  // the beams that were being destroyed at the last look
    std::vector<PixelBox> lost;
};

}  // namespace prismfall
