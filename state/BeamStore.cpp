#include "state/BeamStore.h"

#include <utility>

namespace prismfall {

namespace {

// So that a tick that stops one beam at another allocates nothing: more than ever stand against one in play.
constexpr std::size_t kStoppingAtFirst = 16;
constexpr std::size_t kLinkedAtFirst = 2;

constexpr std::size_t kFewBeams = 64;

// The beams still to be visited, strung together through nextToVisit.
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

CLine& BeamStore::Make() {
    CLine& beam = *beams.emplace_back(std::make_unique<CLine>());
    beam.LinkedLines.reserve(kLinkedAtFirst);
    beam.StoppingLines.reserve(kStoppingAtFirst);
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
