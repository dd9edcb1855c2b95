// The base of each interface in this folder. A facet is passed by reference and is never copied.
#pragma once

namespace prismfall {

class Facet {
  public:
    Facet() = default;
    Facet(const Facet&) = delete;
    Facet& operator=(const Facet&) = delete;
    virtual ~Facet() = default;
};

}  // namespace prismfall
