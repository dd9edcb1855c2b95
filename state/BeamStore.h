// Owns all beams. Beams point at each other in circles, and one that has left the playfield is still walked through by
// those that it was joined with, so no beam can own another.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "state/CLine.h"

namespace prismfall {

class BeamStore {
  public:
    // A new beam, every field zero or empty. It lives until Clear, or until KeepReachable finds no way to it.
    CLine& Make();
    void Clear() { beams.clear(); }
    // Frees the beams that no beam of the two lists leads to through LinkedLines and StoppingLines. Does nothing until
    // enough may be won by it. Allocates nothing.
    void KeepReachable(const std::vector<CLine*>& first, const std::vector<CLine*>& second);
    std::size_t Count() const { return beams.size(); }

  private:
    std::vector<std::unique_ptr<CLine>> beams;
};

}  // namespace prismfall
