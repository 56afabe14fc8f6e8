#pragma once
// class_Elastic: one growth factor for a whole screen, taken from its size at load. Pure arithmetic on
// captured geometry; the desktop captures and applies it. Lengths are in the screen's own units.

#include <cstdint>
#include <span>
#include <vector>

namespace varnik {

// Six numbers of a control, each kept as a 16-bit integer. A line control holds X1, Y1, X2, Y2 in the
// first four; a property that a control lacks is 0.
struct ElasticControl {
    enum class Kind { Ordinary, Line, Image, Logo } kind = Kind::Ordinary;
    std::int16_t top = 0, left = 0, height = 0, width = 0, fontSize = 0, rightMargin = 0;
    bool operator==(const ElasticControl&) const = default;
};

struct ElasticSize {
    int height = 0, width = 0;
    bool operator==(const ElasticSize&) const = default;
};

class class_Elastic {
public:
    // Notes the form's size and its controls as they stand at load.
    void Init(ElasticSize form, std::vector<ElasticControl> controls);
    // The size the form may have: never below half of its size at load, each direction on its own.
    ElasticSize Clamp(ElasticSize present) const;
    // Where every control stands at this size of the form, in the order of Init.
    std::vector<ElasticControl> FormResize(ElasticSize present) const;

private:
    ElasticSize original_;
    std::vector<ElasticControl> controls_;
};

} // namespace varnik
