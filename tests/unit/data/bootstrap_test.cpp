#include "common/Files.h"
#include "common/Text.h"
#include "data/Queries.h"
#include "data/Schema.h"
#include "tests/support/TemporaryShop.h"

#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <fstream>

namespace varnik {
namespace {

std::string ReadFile(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(Bootstrap, AFirstStartMakesTheWholeDatabase) {
    TemporaryShop shop;
    EXPECT_TRUE(shop.desktop.boxes.empty());
    EXPECT_EQ(data::Tables().size(), 32u);
    EXPECT_EQ(data::StoredQueries().size(), 29u);
    EXPECT_EQ(data::CheckShopDatabase(shop.environment, data::DatabaseFile(shop.folder.Path())), "");
    // Nothing but the database and what the engine keeps beside an open one.
    for (const auto& entry : std::filesystem::directory_iterator(shop.folder.Path() / "Data"))
        EXPECT_EQ(PathText(entry.path().filename()).find("Varnik.mdb.new"), std::string::npos)
            << entry.path();

    EXPECT_EQ(shop.Table("Select UserID,NoUser,Tambah,Ganti,Hapus,Lihat From T_User"),
              "varnik|00|True|True|True|True");
    EXPECT_EQ(TransformPassword(shop.Rows("Select Password From T_User")[0][0].Text()), "kemiri");
    EXPECT_EQ(shop.Table("Select * From Company"),
              "Varnik Small Business|True Varnik Ledger Suite|Sendara-Indonesia|" + Repeat(41, '='));
    const auto menus = shop.Rows("Select * From MenuList");
    ASSERT_EQ(menus.size(), 22u);
    EXPECT_EQ(menus[19], (std::vector<Value>{"F08", "Products Type", ""}));
    const auto rights = shop.Rows("Select UserID,MenuID From SecurityUser");
    ASSERT_EQ(rights.size(), 43u);
    EXPECT_EQ(rights[24], (std::vector<Value>{"00", "T09"}));
    EXPECT_EQ(rights[42], (std::vector<Value>{"00", "F07"}));
    for (const jet::Table& table : data::Tables())
        shop.Rows("Select * From [" + std::string(table.name) + "]");
}

TEST(Bootstrap, ALaterStartChangesNothingAndPointsTheDataSourceBack) {
    TemporaryShop shop;
    shop.Execute("Update Company Set Ket1='Ours'");
    shop.Execute("Delete From MenuList");
    shop.registry.Set("SOFTWARE\\ODBC\\ODBC.INI\\Varnik", "DBQ", "elsewhere.mdb");
    data::BootstrapDatabase(shop.services);
    EXPECT_EQ(shop.Table("Select Ket1 From Company"), "Ours");
    EXPECT_TRUE(shop.Rows("Select * From MenuList").empty());

    // A deleted database comes back fresh.
    ado::ReleaseDatabase(data::DatabaseFile(shop.folder.Path()));
    std::filesystem::remove_all(shop.folder.Path() / "Data");
    data::BootstrapDatabase(shop.services);
    EXPECT_EQ(shop.Rows("Select * From MenuList").size(), 22u);
    EXPECT_TRUE(shop.desktop.boxes.empty());
}

// Of a program that was killed: the log that it left is not the new database's.
TEST(Bootstrap, ALogWithoutItsDatabaseIsKeptAside) {
    TemporaryShop shop;
    const std::filesystem::path file = data::DatabaseFile(shop.folder.Path()), log = file.string() + "-wal";
    const std::filesystem::path killed = shop.folder.Path() / "killed";
    {
        ado::Connection open = shop.Connect();
        open.Execute("Insert Into MenuList (MenuID) Values ('OLD')");
        std::filesystem::copy_file(log, killed); // as the file stands while it is in use
    }
    const std::string content = ReadFile(killed);
    ASSERT_FALSE(content.empty());
    ado::ReleaseDatabase(file);
    std::filesystem::remove(file);
    std::filesystem::rename(killed, log);
    data::BootstrapDatabase(shop.services);
    EXPECT_EQ(shop.Rows("Select * From MenuList").size(), 22u);
    EXPECT_EQ(ReadFile(log.string() + ".old"), content);
}

TEST(Bootstrap, ADatabaseFromAnotherMachineIsFoundInAnyCase) {
    EmptyShop shop;
    {
        TemporaryShop other;
        ado::CopyDatabase(data::DatabaseFile(other.folder.Path()), shop.folder.Path() / "copy");
        std::filesystem::create_directories(shop.folder.Path() / "DATA");
        std::filesystem::rename(shop.folder.Path() / "copy", shop.folder.Path() / "DATA" / "VARNIK.MDB");
    }
    data::BootstrapDatabase(shop.services);
    EXPECT_FALSE(std::filesystem::exists(shop.folder.Path() / "Data"));
    EXPECT_EQ(shop.Rows("Select * From SecurityUser").size(), 43u);
}

TEST(Bootstrap, WhatIsNoDatabaseOfThisProgramIsNamedAndLeftAlone) {
    const auto foreign = [](const std::filesystem::path& file) { // sound, with other tables
        ado::CreateDatabase(file);
        ado::ReleaseDatabase(file);
    };
    const auto text = [](std::string content) {
        return [content](const std::filesystem::path& file) { std::ofstream(file) << content; };
    };
    const auto lacking = [](const std::string& statement) { // a shop's own, from which something is taken
        return [statement](const std::filesystem::path& file) {
            TemporaryShop whole;
            {
                ado::Connection connection = whole.Connect();
                ado::ExecuteNative(connection, statement);
            }
            ado::CopyDatabase(data::DatabaseFile(whole.folder.Path()), file);
            ado::Connection(whole.environment, "Data Source = " + file.string()).Close(); // it has had a log
            ado::ReleaseDatabase(file);
        };
    };
    const std::string other = "is not a database of this program: ", useless = "cannot be used: ";
    const struct {
        const char* name;
        std::function<void(const std::filesystem::path&)> make;
        std::string told;
    } cases[] = {
        {"foreign", foreign, other},
        {"text", text("a shopping list of some length, no database"), useless},
        {"empty", text(""), useless},
        {"no table", lacking("DROP TABLE Bank"), other + "There is no table or query named \"Bank\"."},
        {"no column", lacking("ALTER TABLE Company DROP COLUMN Ket3"),
         other + "The table Company has no column \"Ket3\"."},
        {"no key", lacking("DROP INDEX \"Invoice.NoTO\""), other + "The table Invoice has no key \"NoTO\"."},
        {"no query", lacking("DROP VIEW QryBKM"), other + "There is no stored query named \"QryBKM\"."}};
    for (const auto& [name, make, told] : cases) {
        EmptyShop shop;
        const auto file = shop.folder.Path() / "Data" / "Varnik.mdb";
        std::filesystem::create_directories(file.parent_path());
        make(file);
        const std::string before = ReadFile(file);
        try {
            data::BootstrapDatabase(shop.services);
            ADD_FAILURE() << name;
        } catch (const ado::DataError& error) {
            EXPECT_NE(error.Description().find("Varnik.mdb\" " + told), std::string::npos)
                << error.Description();
        }
        EXPECT_EQ(ReadFile(file), before) << name;
        EXPECT_FALSE(shop.registry.KeyExists("SOFTWARE\\ODBC\\ODBC.INI")) << name;
    }
}

TEST(Bootstrap, AFolderThatTakesNoFileLeavesNothingBehind) {
    EmptyShop shop;
    std::ofstream(shop.folder.Path() / "Data") << "a file where the folder should be";
    try {
        data::BootstrapDatabase(shop.services);
        ADD_FAILURE();
    } catch (const ado::DataError& error) {
        EXPECT_NE(error.Description().find("cannot be created"), std::string::npos) << error.Description();
    }
    EXPECT_TRUE(shop.desktop.boxes.empty());

    // What a start that was cut off left is in nobody's way, and goes when it is old.
    EmptyShop cut;
    const std::filesystem::path folder = cut.folder.Path() / "Data";
    std::filesystem::create_directories(folder);
    for (const char* name : {"Varnik.mdb.new", "Varnik.mdb.new7-wal", "Varnik.mdb.new8"})
        std::ofstream(folder / name) << "half";
    for (const char* name : {"Varnik.mdb.new", "Varnik.mdb.new7-wal"})
        std::filesystem::last_write_time(folder / name, std::filesystem::file_time_type::clock::now() -
                                                            std::chrono::hours(25));
    data::BootstrapDatabase(cut.services);
    EXPECT_EQ(cut.Rows("Select * From SecurityUser").size(), 43u);
    EXPECT_FALSE(std::filesystem::exists(folder / "Varnik.mdb.new"));
    EXPECT_FALSE(std::filesystem::exists(folder / "Varnik.mdb.new7-wal"));
    EXPECT_TRUE(std::filesystem::exists(folder / "Varnik.mdb.new8")); // another's, at work now
}

// Each writes as soon as it has started: nobody's database takes the place of another's.
TEST(Bootstrap, WorkstationsThatStartAtOnceShareOneDatabase) {
    EmptyShop shop;
    constexpr int Stations = 4;
    pid_t children[Stations] = {};
    for (int station = 0; station < Stations; ++station) {
        children[station] = fork();
        if (children[station] != 0) continue;
        try {
            data::BootstrapDatabase(shop.services);
            shop.Execute("Insert Into MenuList (MenuID) Values ('S" + std::to_string(station) + "')");
            _exit(shop.desktop.boxes.empty() ? 0 : 1);
        } catch (const std::exception& failure) {
            std::fprintf(stderr, "%s\n", failure.what());
            _exit(1);
        }
    }
    for (const pid_t child : children) {
        int status = -1;
        waitpid(child, &status, 0);
        EXPECT_EQ(status, 0);
    }
    data::BootstrapDatabase(shop.services);
    EXPECT_EQ(shop.Rows("Select * From MenuList").size(), 22u + Stations);
    EXPECT_EQ(shop.Rows("Select * From SecurityUser").size(), 43u);
    EXPECT_EQ(ado::CheckDatabase(data::DatabaseFile(shop.folder.Path())), "");
}

TEST(Schema, TheFileRefusesWhatItsColumnsAndKeysForbid) {
    TemporaryShop shop;
    const std::string bkm =
        "INSERT INTO BKM (NoBKM,TglBKM,Jumlah,Setor,Clear,TglJTP,TglSetor,TglClear) VALUES "
        "('000000000100','2026-01-01',1,false,false,'2026-01-01','2026-01-01','2026-01-01')";
    const std::string bkk = "INSERT INTO BKK (NoBKK,TglBKK,Jumlah,TglJTP,JumlahBiaya) VALUES "
                            "('000000000100','2026-01-01',1,'2026-01-01',0)";
    shop.Execute(bkm);
    shop.Execute(bkk);
    shop.Execute(bkk); // payments have no key
    const std::string line =
        "TglInvoice,Qty,Qty2,Harga,Bruto,Disc,Netto,nDIS,nPPN,PPN,Total,Jasa,QtyOrder,QtyRetur,"
        "HPP,HPPRATA) VALUES ('2026-01-01',1,1,1,1,0,1,0,0,0,1,false,0,0,0,0)";
    shop.Execute("INSERT INTO InvoiceDetail (" + line); // its number may be missing
    const std::string refused[] = {
        bkm,
        "INSERT INTO Company (NamaPerusahaan,Ket1,Ket2) VALUES ('a','b','c')",
        "INSERT INTO JenisCustomer (KodeJenisCus) VALUES ('1234')",
        "INSERT INTO Biaya (Diskripsi) VALUES ('no code for a primary key')",
        "INSERT INTO T_User (UserID,NoUser,[Password],Tambah,Ganti,Hapus,Lihat) VALUES "
        "('VARNIK','01','',true,true,true,true)", // compared without case
    };
    for (const std::string& sql : refused) {
        try {
            shop.Execute(sql);
            ADD_FAILURE() << sql;
        } catch (const ado::DataError& error) {
            EXPECT_EQ(error.Number(), ado::ConstraintFault) << sql << ": " << error.Description();
        }
    }
    shop.Execute("INSERT INTO JenisBiaya (JenisBiaya) VALUES ('a unique key takes empty codes')");
    shop.Execute("INSERT INTO JenisBiaya (JenisBiaya,KodeAcc) VALUES ('more than one','1101')");
}

} // namespace
} // namespace varnik
