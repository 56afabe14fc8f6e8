// Backup and restore while another workstation writes: two processes on one database.

#include "shell/frmBackup.h"
#include "shell/fuser.h"
#include "tests/support/TemporaryShop.h"

#include <gmock/gmock.h>

#include <csignal>
#include <fstream>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/wait.h>

namespace varnik {
namespace {

namespace fs = std::filesystem;

// Another process that writes rows as fast as it can until it is told to stop.
class Workstation {
public:
    explicit Workstation(TemporaryShop& shop) {
        ado::ReleaseDatabase(data::DatabaseFile(shop.folder.Path())); // no handle crosses a fork
        int marks[2] = {}, stops[2] = {};
        if (pipe(marks) != 0 || pipe(stops) != 0) throw std::runtime_error("no pipe");
        child_ = fork();
        if (child_ == 0) {
            close(stops[1]);
            _exit(Work(shop, marks[1], stops[0]));
        }
        close(marks[1]);
        close(stops[0]);
        marks_ = marks[0];
        stop_ = stops[1];
        char mark = 0;
        EXPECT_EQ(read(marks_, &mark, 1), 1); // it is at work
    }
    // True when none of its statements failed.
    bool Stop() {
        close(stop_);
        int status = 1;
        waitpid(child_, &status, 0);
        close(marks_);
        return status == 0;
    }

private:
    static int Work(TemporaryShop& shop, int mark, int stop) {
        try {
            fcntl(stop, F_SETFL, O_NONBLOCK);
            char end = 0;
            for (int row = 0; read(stop, &end, 1) != 0; ++row) {
                shop.Execute("Insert Into SecurityUser (UserID,MenuID) Values ('99','" + std::to_string(row) +
                             "')");
                if (row == 20 && write(mark, "x", 1) != 1) return 2;
            }
            return 0;
        } catch (const std::exception& failure) {
            std::fprintf(stderr, "the other workstation: %s\n", failure.what());
            return 1;
        }
    }

    pid_t child_ = 0;
    int marks_ = 0, stop_ = 0;
};

class BackupTest : public testing::Test {
protected:
    BackupTest() { fs::current_path(shop.folder.Path() / "Data"); }
    ~BackupTest() override { fs::current_path(home_); }

    frmBackup& Open() {
        shop.desktop.Show(std::make_unique<frmBackup>(shop.services));
        return shop.desktop.Find<frmBackup>("frmBackup");
    }
    std::string BackUp(frmBackup& screen, const fs::path& to) {
        shop.desktop.texts.push_back(to.string());
        screen.cmdBackUp.onClick();
        return shop.desktop.Message();
    }
    std::string Restore(frmBackup& screen, const fs::path& from) {
        shop.desktop.texts.push_back(from.string());
        shop.desktop.answers.push_back(Answer::Yes);
        screen.cmdRestore.onClick();
        EXPECT_EQ(shop.desktop.Message(), "Are you sure you want to restore the database");
        return shop.desktop.Message();
    }
    static std::string Bytes(const fs::path& path) {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }

    TemporaryShop shop;
    const fs::path database = data::DatabaseFile(shop.folder.Path());
    const fs::path backup = shop.folder.Path() / "shop.bck";

private:
    const fs::path home_ = fs::current_path();
};

TEST_F(BackupTest, EveryBackupUnderLoadIsASoundDatabase) {
    Workstation other(shop);
    shop.desktop.Show(std::make_unique<fuser>(shop.services));
    frmBackup& screen = Open();
    std::int64_t before = 0;
    for (int round = 0; round < 5; ++round) {
        ASSERT_EQ(BackUp(screen, backup), "Backup Completed!!");
        EXPECT_EQ(ado::CheckDatabase(backup), "");
        EXPECT_EQ(data::CheckShopDatabase(shop.environment, backup), "");
        ado::Connection copy(shop.environment, "Data Source = " + backup.string());
        const std::int64_t rows =
            ado::Recordset("Select Count(*) From SecurityUser Where UserID = '99'", copy)[0]
                .Value()
                .Integer();
        EXPECT_GE(rows, before);
        before = rows;
    }
    EXPECT_GT(before, 20);
    EXPECT_TRUE(other.Stop());
}

TEST_F(BackupTest, ARestoreReachesOpenScreensAndTheOtherWorkstation) {
    frmBackup& screen = Open();
    ASSERT_EQ(BackUp(screen, backup), "Backup Completed!!");
    shop.Execute("Insert Into T_User Values ('later','07','',True,True,True,True)");
    shop.desktop.screens.clear();
    Workstation other(shop);
    shop.desktop.Show(std::make_unique<fuser>(shop.services));
    auto& users = shop.desktop.Find<fuser>("fuser");
    shop.desktop.texts.push_back("later");
    users.bttnFind.onClick();
    EXPECT_EQ(users.TxtNoUser.Text(), "07");

    EXPECT_EQ(Restore(Open(), backup), "Database has been fully restored!!");
    shop.desktop.texts.push_back("later");
    users.bttnFind.onClick();
    EXPECT_EQ(shop.desktop.Message(), "Could not find the user id later");
    shop.desktop.texts.push_back("varnik");
    users.bttnFind.onClick();
    EXPECT_EQ(users.TxtNoUser.Text(), "00");
    EXPECT_TRUE(other.Stop());
    EXPECT_EQ(ado::CheckDatabase(database), "");
    EXPECT_EQ(shop.Table("Select UserID From T_User"), "varnik");
}

TEST_F(BackupTest, AFullDiskOrAClosedFolderLeavesTheOldBackup) {
    frmBackup& screen = Open();
    ASSERT_EQ(BackUp(screen, backup), "Backup Completed!!");
    const std::string good = Bytes(backup);
    const fs::path folder = shop.folder.Path() / "closed";
    fs::create_directory(folder);
    fs::permissions(folder, fs::perms(0555));

    // In a process of its own: the limits hold for all that it writes.
    ado::ReleaseDatabase(database);
    const pid_t child = fork();
    if (child == 0) {
        signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{100000, 100000}; // bytes of a file, less than the database has
        bool told = setrlimit(RLIMIT_FSIZE, &limit) == 0;
        told = told && BackUp(screen, backup)
                           .starts_with("Reading the database \"Varnik.mdb\" or writing "
                                        "the file \"shop.bck\" failed: ");
        const fs::path fresh = shop.folder.Path() / "fresh.bck";
        told = told && BackUp(screen, fresh).find(" failed: ") != std::string::npos && !fs::exists(fresh);
        told = told && (geteuid() != 0 || seteuid(65534) == 0);
        told = told && BackUp(screen, folder / "shop.bck") ==
                           "The file \"shop.bck\" cannot be written: Permission denied.";
        _exit(told ? 0 : 1);
    }
    int status = 1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(Bytes(backup), good);
    EXPECT_FALSE(fs::exists(backup.string() + ".tmp"));
    EXPECT_TRUE(fs::is_empty(folder));
}

TEST_F(BackupTest, ADatabaseOfAnotherProgramIsRefused) {
    frmBackup& screen = Open();
    ASSERT_EQ(BackUp(screen, backup), "Backup Completed!!");
    {
        ado::Connection other(shop.environment, "Data Source = " + backup.string());
        ado::ExecuteNative(other, "DROP TABLE Bank");
    }
    ado::ReleaseDatabase(backup);
    const std::string before = Bytes(database);
    EXPECT_EQ(Restore(screen, backup).find("\"" + backup.string() + "\" is not a database of this program"),
              0U);
    EXPECT_EQ(Bytes(database), before);
    for (const auto& entry : fs::directory_iterator("."))
        EXPECT_TRUE(entry.path().filename().string().starts_with("Varnik.mdb")) << entry.path();
    EXPECT_FALSE(fs::exists("Varnik.mdb.restore"));
}

// A damaged database is often why there is a restore; it is kept as it stands.
TEST_F(BackupTest, ADamagedDatabaseIsReplaced) {
    frmBackup& screen = Open();
    ASSERT_EQ(BackUp(screen, backup), "Backup Completed!!");
    ado::ReleaseDatabase(database);
    for (const bool headToo : {false, true}) {
        std::string damaged = Bytes(database);
        damaged.replace(headToo ? 0 : 8192, 30000, 30000, 'x');
        std::ofstream(database, std::ios::binary) << damaged;
        // A backup of it would be none: the check tells, and no file stands under the name.
        const fs::path unsound = shop.folder.Path() / "unsound.bck";
        EXPECT_THAT(BackUp(screen, unsound), testing::AnyOf(testing::HasSubstr("is damaged"),
                                                            testing::HasSubstr("is not a database")));
        EXPECT_FALSE(fs::exists(unsound));
        EXPECT_EQ(Restore(screen, backup), "Database has been fully restored!!");
        EXPECT_EQ(ado::CheckDatabase(database), "");
        EXPECT_EQ(shop.Table("Select UserID From T_User"), "varnik");
        const std::string kept =
            std::string("Varnik before restore 2026-11-22 093000") + (headToo ? " (2).bck" : ".bck");
        EXPECT_TRUE(Bytes(kept) == damaged) << kept;
        ado::ReleaseDatabase(database);
    }
}

// Elsewhere it makes a file of its own and says that all went well.
TEST_F(BackupTest, ARestoreInAnotherFolderMakesAStrayFile) {
    frmBackup& screen = Open();
    ASSERT_EQ(BackUp(screen, backup), "Backup Completed!!");
    shop.Execute("Delete From MenuList");
    fs::create_directory(shop.folder.Path() / "elsewhere");
    fs::current_path(shop.folder.Path() / "elsewhere");
    EXPECT_EQ(Restore(screen, backup), "Database has been fully restored!!");
    EXPECT_EQ(data::CheckShopDatabase(shop.environment, "Varnik.MDB"), "");
    EXPECT_EQ(shop.Table("Select Count(*) From MenuList"), "0");
}

} // namespace
} // namespace varnik
