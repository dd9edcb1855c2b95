// How the painted layer is shown. The game's rules paint on a Surface and know nothing of this; whatever makes the
// picture easier to see or to use is applied to its pixels here, for all backends. Without any of it the pixels are the
// surface's own.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/Comfort.h"
#include "platform/PixelBox.h"
#include "platform/Sparks.h"
#include "platform/Surface.h"
#include "platform/Window.h"

namespace prismfall {

class Looks {
  public:
    // The surface must outlive this, and no one else may take its damage.
    explicit Looks(Surface& painted) : surface(painted) {}
    Looks(const Looks&) = delete;
    Looks& operator=(const Looks&) = delete;

    // From now on shows some colours of the surface as others.
    void Recolour(const std::vector<Recolouring>& wanted);

    // Marks the place that the player has chosen with keys, if it is on the surface and to be shown: the head of a beam
    // with a ring, anything else with a frame.
    void Mark(const KeyChoice& choice);

    // Marks, or no longer, that the game is paused: two bars in the free room of the panel beside the playfield.
    void MarkPause(bool isPaused);

    // Lays sparks and glows over the beams of the window as they are now, or over none. `now` is in milliseconds; where
    // the player wants nothing to move by itself there are no sparks.
    void Enliven(const Window* window, double now, bool isCalm);
    // Whether something moves by itself, so that there is something new to show in a moment.
    bool AreMoving() const { return sparks.AreBurning(); }

    // As in Surface.h, for what is shown. Rows are valid until the next call of TakeDamage.
    void TakeDamage(std::vector<PixelBox>& boxes);
    const std::uint32_t* Row(int y) const;

  private:
    bool ChangesPixels() const { return mark.isShown || isPauseMarked || !sparks.IsEmpty() || !colours.empty(); }
    std::uint32_t Shown(std::uint32_t pixel, int y) const;
    void CopyFrom(const PixelBox& box);
    void PaintMark();
    void PaintPause();
    void Set(int x, int y, std::uint32_t pixel);

    // The pixels of a Recolouring.
    struct Colours {
        std::uint32_t painted = 0;
        std::uint32_t shown = 0;
        std::uint32_t dim = 0;
        Pattern pattern = Pattern::Solid;
    };

    Surface& surface;
    std::vector<Colours> colours;
    KeyChoice mark;
    Sparks sparks;
    std::vector<SeenBeam> seen;
    bool isPauseMarked = false;
    std::vector<PixelBox> lost;         // what has changed its look since the last call of TakeDamage
    std::vector<std::uint32_t> pixels;  // empty while the surface's own are shown
};

}  // namespace prismfall
