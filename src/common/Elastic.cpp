#include "common/Elastic.h"

#include <algorithm>
#include <limits>

namespace varnik {
namespace {

// What a length becomes, cut to a whole number. Present size over original size as a fraction, so that
// no rounding of the growth itself takes a unit away.
struct Growth {
    std::int64_t present = 1, original = 1;
    std::int16_t operator()(std::int16_t length) const {
        using Limits = std::numeric_limits<std::int16_t>;
        return static_cast<std::int16_t>(
            std::clamp<std::int64_t>(length * present / original, Limits::min(), Limits::max()));
    }
};

} // namespace

void class_Elastic::Init(ElasticSize form, std::vector<ElasticControl> controls) {
    original_ = form;
    controls_ = std::move(controls);
}

ElasticSize class_Elastic::Clamp(ElasticSize present) const {
    return {std::max(present.height, original_.height / 2), std::max(present.width, original_.width / 2)};
}

std::vector<ElasticControl> class_Elastic::FormResize(ElasticSize present) const {
    const int dh = present.height - original_.height, dw = present.width - original_.width;
    // Larger in one direction only, or smaller: the layout of the load, unscaled.
    if (dh <= 0 || dw <= 0 || original_.height <= 0 || original_.width <= 0) return controls_;

    const bool byHeight =
        static_cast<std::int64_t>(dh) * original_.width <= static_cast<std::int64_t>(dw) * original_.height;
    const Growth grown =
        byHeight ? Growth{present.height, original_.height} : Growth{present.width, original_.width};
    std::vector<ElasticControl> scaled = controls_;
    for (ElasticControl& control : scaled) {
        if (control.kind == ElasticControl::Kind::Image) continue; // pictures are not stretched
        for (auto length : {&ElasticControl::top, &ElasticControl::left, &ElasticControl::height,
                            &ElasticControl::width, &ElasticControl::fontSize, &ElasticControl::rightMargin})
            control.*length = grown(control.*length);
    }
    return scaled;
}

} // namespace varnik
