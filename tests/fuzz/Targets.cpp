#include "tests/fuzz/Targets.h"

namespace varnik::fuzz {

std::span<const Target> Targets() {
    static constexpr Target targets[] = {
        {"statement", FuzzStatement}, {"criterion", FuzzCriterion}, {"number", FuzzNumber},
        {"words", FuzzWords},         {"date", FuzzDate},           {"text", FuzzText},
        {"barcode", FuzzBarcode},     {"formula", FuzzFormula},     {"definition", FuzzDefinition},
        {"registry", FuzzRegistry},
    };
    return targets;
}

} // namespace varnik::fuzz
