// Owns all beams. Beams point at each other in cycles, and beams linked to one that has left the playfield still follow
// its links, so no beam can own another.
#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "simulation/CLine.h"

namespace prismfall {

class BeamStore {
  public:
    // Makes a new beam with that body and no links. It lives until Clear, or until KeepReachable cannot reach it.
    CLine& Make(const BeamBody& body = {});
    void Clear() { beams.clear(); }
    // Frees the beams that cannot be reached from the two lists through LinkedLines and StoppingLines. Does nothing
    // until it would free enough. Allocates nothing.
    void KeepReachable(const std::vector<CLine*>& first, const std::vector<CLine*>& second);
    std::size_t Count() const { return beams.size(); }

  private:
    std::vector<std::unique_ptr<CLine>> beams;
};

}  // namespace prismfall
