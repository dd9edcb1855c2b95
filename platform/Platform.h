// Everything that the game needs from a platform, version 3. It is made up of facets, each a small interface in its own
// header; each part of the game takes only the facets it needs. Backends are in backends/; the game knows only this
// interface.
//
// Everything happens on one thread. Places and widths are game pixels, times are milliseconds. No call fails in a way
// that the game has to handle, except opening music: a backend that cannot do something does nothing.
#pragma once

#include <cstdint>

#include "platform/AudioPlayer.h"
#include "platform/Chance.h"
#include "platform/Comfort.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsKeeper.h"
#include "platform/SurfacePainter.h"
#include "platform/TimerControl.h"
#include "platform/WindowHost.h"

namespace prismfall {

class Platform : public SurfacePainter,
                 public WindowHost,
                 public MessageBoxes,
                 public TimerControl,
                 public Chance,
                 public SettingsKeeper,
                 public AudioPlayer,
                 public ComfortTaker {
  public:
    // A game begins: from now on, all random numbers follow from `number` and from the moments of seeds, counted from
    // the moment of the running handler. Keeping the number is enough to reproduce all randomness of that game; it can
    // be any number, for example one derived from Random().
    virtual void BeginRandom(std::uint64_t number) = 0;

    // Lets pending events run: changes are painted, due timers tick, and, from the second call in a handler on, input
    // is handled.
    virtual void LetEventsRun() = 0;
    // The machine's clock in milliseconds since some fixed moment; never runs backwards.
    virtual std::int64_t Clock() = 0;
    // Ends the program at once. It may return where a program cannot end its own process, as in a browser; no handler
    // is called after that, and the caller must return too.
    virtual void EndProgram() = 0;
};

}  // namespace prismfall
