#include "platform/regional/MachineRegional.h"
#include "platform/registry/Registry.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <unistd.h>

namespace varnik {
namespace {

TEST(MachineRegional, PatternsOfManyMachines) {
    struct Case {
        const char *date, *decimal, *group, *today;
        char decimalRead, groupRead;
    };
    const Case cases[] = {
        {"", "", "", "12/31/2000", '.', ','},
        {"%m/%d/%y", ".", "", "12/31/2000", '.', ','}, // no settings
        {"%d/%m/%y", ".", ",", "31/12/2000", '.', ','},
        {"%d.%m.%Y", ",", ".", "31.12.2000", ',', '.'},
        {"%-d. %-m. %Y", ",", "\u00A0", "31.12.2000", ',', ' '},
        {"%F", ",", "\u202F", "2000-12-31", ',', ' '},
        {"%e/%m/%Y", ".", "\u2019", "31/12/2000", '.', '\''},
        {"%Od.%Om.%Ey", ",", "", "31.12.2000", ',', '.'},
        {"%Y年%m月%d日", ".", ",", "12/31/2000", '.', ','}, // no separator of one character
    };
    for (const auto& c : cases) {
        const Regional read = regional::FromPatterns(c.date, c.decimal, c.group);
        EXPECT_EQ(ShortDate(*MakeDate(2000, 12, 31), read), c.today) << c.date;
        EXPECT_EQ(read.decimal, c.decimalRead) << c.date;
        EXPECT_EQ(read.group, c.groupRead) << c.date;
    }
}

TEST(MachineRegional, AnEnvironmentWithoutSettings) {
    for (const char* locale : {"C", "no_SUCH.place"}) {
        setenv("LC_ALL", locale, 1);
        const Regional read = regional::ReadMachine();
        EXPECT_EQ(DateMaskOfMachine(read), "mm/dd/yyyy") << locale;
        EXPECT_EQ(FormatNumber(1234.5, "#,##0.#0", read), "1,234.50") << locale;
    }
    unsetenv("LC_ALL");
}

class RegistryFile : public testing::Test {
protected:
    void SetUp() override {
        folder_ = std::filesystem::path(testing::TempDir()) / ("registry" + std::to_string(getpid()));
        std::filesystem::remove_all(folder_); // of a killed process of the same number
        std::filesystem::create_directories(folder_);
        file_ = folder_ / "registry.ini";
    }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    std::filesystem::path folder_, file_;
};

TEST_F(RegistryFile, KeepsWhatWasWrittenWithoutRegardToCase) {
    const std::string odd = "C:\\Data\\\"x\"\n\t\x01[a]=ü";
    {
        registry::Registry registry(file_);
        EXPECT_FALSE(registry.KeyExists("SOFTWARE"));
        EXPECT_TRUE(registry.Set("SOFTWARE\\ODBC\\ODBC.INI\\Varnik", "DBQ", odd));
        EXPECT_TRUE(registry.Set("SOFTWARE\\ODBC\\ODBC.INI\\Varnik", "DriverId", 25u));
        EXPECT_TRUE(registry.Set("software\\odbc\\odbc.ini\\VARNIK\\Engines", "odd=\"name\"", ""));
    }
    registry::Registry registry(file_);
    EXPECT_EQ(registry.QueryText("software\\ODBC\\ODBC.ini\\varnik", "dbq"), odd);
    EXPECT_EQ(registry.Query("SOFTWARE\\ODBC\\ODBC.INI\\Varnik", "DriverId"), registry::Data{25u});
    EXPECT_EQ(registry.QueryText("SOFTWARE\\ODBC\\ODBC.INI\\Varnik", "DriverId"), std::nullopt);
    EXPECT_EQ(registry.QueryText("SOFTWARE\\ODBC\\ODBC.INI\\Varnik\\Engines", "odd=\"name\""), "");
    EXPECT_TRUE(registry.KeyExists("SOFTWARE\\odbc"));
    EXPECT_FALSE(registry.KeyExists("SOFTWARE\\ODBC\\ODBC.INI\\Var"));

    EXPECT_TRUE(registry.DeleteKey("SOFTWARE\\ODBC\\ODBC.INI\\Varnik"));
    EXPECT_FALSE(registry.DeleteKey("SOFTWARE\\ODBC\\ODBC.INI\\Varnik"));
    EXPECT_FALSE(registry::Registry(file_).KeyExists("SOFTWARE"));
    // Nothing but the file itself is left behind.
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder_), {}), 1);
}

TEST_F(RegistryFile, DamageAndRefusal) {
    std::ofstream(file_)
        << "\"stray\"=1\n[Good]\r\n\"a\"=\"1\"\r\nnonsense\n\"open=1\n\"b\"=x1\n\"c\"=\"\\xzz\"\n\"d\"=4\n";
    registry::Registry registry(file_);
    EXPECT_EQ(registry.QueryText("Good", "a"), "1");
    EXPECT_EQ(registry.Query("Good", "d"), registry::Data{4u});
    EXPECT_FALSE(registry.Query("Good", "b") || registry.Query("Good", "c"));

    registry::Registry nowhere(folder_ / "missing" / "registry.ini");
    EXPECT_FALSE(nowhere.Set("A", "b", "c"));
    EXPECT_FALSE(nowhere.Set("A", "b", "c")); // still not written

    // What stands already is not written again, unless the file is gone.
    EXPECT_TRUE(registry.Set("Good", "a", "2"));
    const auto written = std::filesystem::last_write_time(file_);
    EXPECT_TRUE(registry.Set("good", "A", "2"));
    EXPECT_EQ(std::filesystem::last_write_time(file_), written);
    std::filesystem::remove(file_);
    EXPECT_TRUE(registry.Set("good", "A", "2"));
    EXPECT_EQ(registry::Registry(file_).QueryText("Good", "a"), "2");
}

} // namespace
} // namespace varnik
