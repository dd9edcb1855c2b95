// Everything that the game asks of a machine, version 3. It is made of facets, each an interface in a header of its
// own; a part of the game that needs one facet takes that one. Backends live in backends/; the game knows nothing else
// of them.
//
// Everything happens on one thread. Places and widths are game pixels, times are milliseconds. No call fails in a way
// that the game has to handle, except opening music: a backend that cannot do a thing does nothing.
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
    // the moment of the running handler. Whoever keeps the number can bring back all the chance of that game; it can be
    // any number, such as one made of Random().
    virtual void BeginRandom(std::uint64_t number) = 0;

    // Lets pending events run: what has changed is painted, due timers tick, and from the second call in a handler on
    // input is handled.
    virtual void LetEventsRun() = 0;
    // Milliseconds of the machine's clock since some fixed moment; never runs backwards.
    virtual std::int64_t Clock() = 0;
    // Ends the program at once. It may return where a program cannot end its own process, as in a browser; no handler
    // is called after that, and the caller has to return as well.
    virtual void EndProgram() = 0;
};

}  // namespace prismfall
