#include "master/Master.h"

#include "master/fProduk.h"

namespace varnik {

namespace {

template <typename Screen>
void Register(Services& services, const char* key, const char* name) {
    services.screens[key] = {name, [](Services& s) { return std::make_unique<Screen>(s); }};
}

} // namespace

void RegisterMaster(Services& services) { Register<fProduk>(services, "F01", "fProduk"); }

} // namespace varnik
