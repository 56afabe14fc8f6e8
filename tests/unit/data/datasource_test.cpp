#include "common/Files.h"
#include "tests/support/TemporaryShop.h"

#include <fstream>

namespace varnik {
namespace {

const std::string Driver = "SOFTWARE\\ODBC\\ODBCINST.INI\\Microsoft Access Driver (*.mdb)";
const std::string Source = "SOFTWARE\\ODBC\\ODBC.INI\\Varnik";

TEST(DataSource, IsWrittenAsTheDriverManagerReadsIt) {
    TemporaryShop shop;
    const registry::Registry written(shop.folder.Path() / "registry.ini");
    EXPECT_EQ(written.QueryText(Source, "DBQ"), PathText(shop.folder.Path() / "Data" / "Varnik.mdb"));
    const std::string engine = Source + "\\Engines\\Jet";
    for (const auto& [key, name, value] :
         std::initializer_list<std::tuple<std::string, std::string, registry::Data>>{
             {Source, "UID", ""},
             {Source, "FIL", "MS Access;"},
             {Source, "DriverId", 25u},
             {Source, "SafeTransactions", 0u},
             {engine, "ImplicitCommitSync", ""},
             {engine, "UserCommitSync", "Yes"},
             {engine, "MaxBufferSize", 2048u},
             {engine, "PageTimeout", 5u},
             {engine, "Threads", 3u}})
        EXPECT_EQ(written.Query(key, name), value) << name;
    EXPECT_EQ(written.QueryText("SOFTWARE\\ODBC\\ODBC.INI\\ODBC Data Sources", "Varnik"),
              "Microsoft Access Driver (*.mdb)");
    EXPECT_EQ(written.QueryText(Source, "Driver"), written.QueryText(Driver, "Driver"));
}

TEST(DataSource, WithoutADriverItSaysSoAtEachStart) {
    TemporaryShop shop;
    shop.registry.DeleteKey(Driver);
    shop.desktop.answers = {Answer::Ok, Answer::Cancel};
    data::BootstrapDatabase(shop.services);
    EXPECT_FALSE(data::CreateDataSource(shop.services));
    EXPECT_EQ(shop.desktop.Message(), "You must Install Access ODBC Drivers before use this program.");
    EXPECT_EQ(shop.desktop.Message(), "You must Install Access ODBC Drivers before use this program.");
    EXPECT_EQ(shop.desktop.boxes[0].icon, Icon::Critical);

    shop.registry.Set(Driver, "Driver", "   ");
    EXPECT_FALSE(data::CreateDataSource(shop.services));
    EXPECT_EQ(shop.desktop.Message(), "Can't find access ODBC driver.");

    EmptyShop unwritable;
    registry::Registry nowhere(unwritable.folder.Path() / "missing" / "registry.ini");
    data::RegisterBuiltInDriver(nowhere);
    Services services{unwritable.session, unwritable.desktop, unwritable.environment, unwritable.regional,
                      nowhere};
    EXPECT_FALSE(data::CreateDataSource(services));
    EXPECT_EQ(unwritable.desktop.Message(), "Can't create database ODBC.");
}

TEST(DataSource, ConnectionStringsLeadToFiles) {
    TemporaryShop shop;
    const auto file = shop.folder.Path() / "Data" / "Varnik.mdb";
    const auto resolve = [&](const std::string& text) {
        return data::ResolveConnection(shop.registry, text);
    };
    const std::string provider = "Provider=Microsoft.jet.oledb.4.0; Data Source = ";
    for (const std::string text : {"DSN=VarNik", " dsn = VARNIK ;UID=;PWD=", "UID=sa;DSN=varnik"})
        EXPECT_EQ(resolve(text), file) << text;
    EXPECT_EQ(resolve(provider + PathText(file)), file);
    std::string backslashes = PathText(file);
    std::replace(backslashes.begin(), backslashes.end(), '/', '\\');
    EXPECT_EQ(resolve(provider + backslashes), file);
    EXPECT_EQ(resolve(provider + PathText(shop.folder.Path()) + "\\DATA\\varnik.MDB"), file);
    const auto odd = shop.folder.Path() / "a;b=c.mdb";
    EXPECT_EQ(resolve(provider + PathText(odd)), odd);
    for (const std::string text : {"DSN=Other", "", "nonsense", "DSN="})
        EXPECT_THROW(resolve(text), ado::DataError) << text;
}

TEST(DataSource, RequestsAddChangeAndRemove) {
    TemporaryShop shop;
    data::clsOdbc odbc(shop.services);
    const std::string invalid = "Error: \r\nInvalid attributes\r\n";
    EXPECT_EQ(odbc.ExecuteDSN(0), "Invalid DSN type");
    EXPECT_EQ(odbc.ExecuteDSN(7, 1, "DSN=a"), "Invalid DSN type");
    EXPECT_EQ(odbc.ExecuteDSN(1), "You need first initialize ODBC_DRIVER_NAME");
    EXPECT_EQ(odbc.ExecuteDSN(1, 3), "You need specific a correct driver\r\nUnknow Driver");
    EXPECT_EQ(odbc.ExecuteDSN(1, 1), "You need first initialize ODBC_ATTRIBUTES");

    const std::string copy = "DSN=Copy" + std::string(1, '\0') +
                             "DBQ=" + PathText(shop.folder.Path() / "b.mdb") + std::string(1, '\0') +
                             "DESCRIPTION=x";
    EXPECT_EQ(odbc.ExecuteDSN(2, 1, copy), invalid); // nothing to change yet
    EXPECT_EQ(odbc.ExecuteDSN(4), "");               // driver and attributes are kept
    EXPECT_EQ(data::ResolveConnection(shop.registry, "DSN=copy"), shop.folder.Path() / "b.mdb");
    EXPECT_EQ(odbc.ExecuteDSN(5, 1, "DSN=Copy|DBQ=c.mdb"), "");
    EXPECT_EQ(shop.registry.QueryText("SOFTWARE\\ODBC\\ODBC.INI\\Copy", "DBQ"), "c.mdb");
    EXPECT_EQ(odbc.ExecuteDSN(1, 2, "DSN=Server"), invalid); // no driver of a server
    EXPECT_EQ(odbc.ExecuteDSN(1, 1, "FIL=MS Access|DBQ=c.mdb|UID=sa"), invalid);
    EXPECT_EQ(odbc.ExecuteDSN(6, 1, "DSN=Copy"), "");
    EXPECT_EQ(odbc.ExecuteDSN(6), invalid);
    EXPECT_THROW(data::ResolveConnection(shop.registry, "DSN=copy"), ado::DataError);
    EXPECT_TRUE(shop.registry.KeyExists(Source));
}

TEST(Files, NamesAreMatchedWithoutCase) {
    TemporaryFolder folder;
    std::filesystem::create_directories(folder.Path() / "Räport");
    std::ofstream(folder.Path() / "Räport" / "Stok.rpt") << "x";
    const std::string base = PathText(folder.Path());
    EXPECT_EQ(MatchPath(base + "\\RÄPORT\\stok.RPT"), folder.Path() / "Räport" / "Stok.rpt");
    EXPECT_EQ(MatchPath(base + "/räport/New.rpt"), folder.Path() / "Räport" / "New.rpt");
    EXPECT_EQ(MatchPath("no\\such"), std::filesystem::path("no") / "such");
    EXPECT_EQ(MatchPath(""), std::filesystem::path());
}

} // namespace
} // namespace varnik
