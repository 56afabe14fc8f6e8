// The fuzzer's entry: VARNIK_FUZZ_TARGET names the reader that gets its inputs.

#include "tests/fuzz/Targets.h"

#include <cstdint>
#include <cstdlib>
#include <iostream>

namespace {

const varnik::fuzz::Target& Chosen() {
    const char* const name = std::getenv("VARNIK_FUZZ_TARGET");
    for (const varnik::fuzz::Target& target : varnik::fuzz::Targets())
        if (name && std::string_view(target.name) == name) return target;
    std::cerr << "VARNIK_FUZZ_TARGET names no reader; there are:";
    for (const varnik::fuzz::Target& target : varnik::fuzz::Targets()) std::cerr << ' ' << target.name;
    std::cerr << '\n';
    std::exit(2);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const varnik::fuzz::Target& target = Chosen();
    target.run({reinterpret_cast<const char*>(bytes), size});
    return 0;
}
