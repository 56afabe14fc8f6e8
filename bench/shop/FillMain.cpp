// varnik-fill FOLDER SALES: makes a program folder with a made-up shop of this many sales in it, to measure
// in and to look at.

#include "bench/shop/Fill.h"
#include "data/Bootstrap.h"
#include "data/DataSource.h"
#include "tests/support/TestDesktop.h"

#include <iostream>

int main(int count, char** words) {
    using namespace varnik;
    if (count != 3) {
        std::cerr << "varnik-fill FOLDER SALES\n";
        return 1;
    }
    try {
        TestDesktop desktop;
        desktop.folder = words[1];
        std::filesystem::create_directories(desktop.folder);
        const Regional regional;
        Session session;
        registry::Registry registry(desktop.folder / "Varnik.reg");
        const ado::Environment environment = data::MakeEnvironment(regional, registry);
        Services services{session, desktop, environment, regional, registry};
        data::BootstrapDatabase(services);
        ado::ReleaseDatabase(data::DatabaseFile(desktop.folder));
        bench::FillShop(data::DatabaseFile(desktop.folder), std::stol(words[2]));
    } catch (const std::exception& failure) {
        std::cerr << "varnik-fill: " << failure.what() << '\n';
        return 1;
    }
    return 0;
}
