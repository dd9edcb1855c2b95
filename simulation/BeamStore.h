// Owns all beams. Beams point at each other in circles, and one that has left the playfield is still walked through by
// those it was joined with, so no beam can own another.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "simulation/CLine.h"

namespace prismfall {

class BeamStore {
  public:
    // A new beam with that body, tied to no other. It lives until Clear, or until KeepReachable finds no way to it.
    CLine& Make(const BeamBody& body = {});
    void Clear() { beams.clear(); }
    // Frees the beams that no beam of the two lists leads to through LinkedLines and StoppingLines. Does nothing until
    // it would free enough. Allocates nothing.
    void KeepReachable(const std::vector<CLine*>& first, const std::vector<CLine*>& second);
    std::size_t Count() const { return beams.size(); }

  private:
    std::vector<std::unique_ptr<CLine>> beams;
};

}  // namespace prismfall
