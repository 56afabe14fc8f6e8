#include "bench/shop/Fill.h"

#include "data/Bootstrap.h"
#include "data/DataSource.h"
#include "tests/support/TestDesktop.h"

namespace varnik::bench {

void MakeShop(const std::filesystem::path& folder, long sales) {
    TestDesktop desktop;
    desktop.folder = folder;
    std::filesystem::create_directories(folder);
    const Regional regional;
    Session session;
    registry::Registry registry(folder / "Varnik.reg");
    const ado::Environment environment = data::MakeEnvironment(regional, registry);
    Services services{session, desktop, environment, regional, registry};
    data::BootstrapDatabase(services);
    const std::filesystem::path database = data::DatabaseFile(folder);
    ado::ReleaseDatabase(database);
    if (sales > 0) FillShop(database, sales);
}

} // namespace varnik::bench
