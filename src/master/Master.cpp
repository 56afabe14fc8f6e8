#include "master/Master.h"

#include "master/fAccJenisProduk.h"
#include "master/fBank.h"
#include "master/fBiaya.h"
#include "master/fCustomer.h"
#include "master/fJenisBiaya.h"
#include "master/fProduk.h"
#include "master/fSupplier.h"
#include "master/frmJenisCustomer.h"

namespace varnik {

namespace {

template <typename Screen>
void Register(Services& services, const char* key, const char* name) {
    services.screens[key] = {name, [](Services& s) { return std::make_unique<Screen>(s); }};
}

} // namespace

void RegisterMaster(Services& services) {
    Register<fProduk>(services, "F01", "fProduk");
    Register<fCustomer>(services, "F02", "fCustomer");
    Register<fSupplier>(services, "F03", "fSupplier");
    Register<fBank>(services, "F04", "fBank");
    Register<fJenisBiaya>(services, "F06", "fJenisBiaya");
    Register<fBiaya>(services, "F07", "fBiaya");
    Register<fAccJenisProduk>(services, "F08", "fAccJenisProduk");
    Register<frmJenisCustomer>(services, "F09", "frmJenisCustomer");
}

} // namespace varnik
