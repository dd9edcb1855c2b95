#include "simulation/BeamStore.h"

#include <utility>

namespace prismfall {

namespace {

// Room for more beams than ever queue up behind one, so that a tick that stops a beam at another allocates nothing.
constexpr std::size_t kRoomForStopping = 16;
constexpr std::size_t kRoomForLinked = 2;

constexpr std::size_t kFewBeams = 64;

// The beams still to be visited, linked through nextToVisit.
class ToVisit {
  public:
    void Add(CLine* beam) {
        if (std::exchange(beam->isReached, true)) return;
        beam->nextToVisit = std::exchange(first, beam);
    }
    void Add(const std::vector<CLine*>& beams) {
        for (CLine* beam : beams) Add(beam);
    }
    CLine* Take() { return first == nullptr ? nullptr : std::exchange(first, first->nextToVisit); }

  private:
    CLine* first = nullptr;
};

}  // namespace

CLine& BeamStore::Make(const BeamBody& body) {
    CLine& beam = *beams.emplace_back(std::make_unique<CLine>());
    static_cast<BeamBody&>(beam) = body;
    beam.LinkedLines.reserve(kRoomForLinked);
    beam.StoppingLines.reserve(kRoomForStopping);
    return beam;
}

void BeamStore::KeepReachable(const std::vector<CLine*>& first, const std::vector<CLine*>& second) {
    if (beams.size() < kFewBeams + 2 * first.size()) return;
    ToVisit toVisit;
    toVisit.Add(first);
    toVisit.Add(second);
    while (CLine* beam = toVisit.Take()) {
        toVisit.Add(beam->LinkedLines);
        toVisit.Add(beam->StoppingLines);
    }
    std::erase_if(beams, [](const auto& beam) { return !std::exchange(beam->isReached, false); });
}

}  // namespace prismfall
