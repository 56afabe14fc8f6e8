// The file on disk: what opening, copying, replacing and losing it does.

#include "tests/unit/ado/Fixture.h"

#include <csignal>
#include <fstream>

#include <sys/wait.h>

namespace varnik::ado {
namespace {

namespace fs = std::filesystem;

class FileTest : public DatabaseTest {
protected:
    static std::string Bytes(const fs::path& path) {
        std::ifstream stream(path, std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    void Write(const fs::path& path, const std::string& bytes) {
        std::ofstream(path, std::ios::binary) << bytes;
    }
    std::string OpenFailure() {
        std::string text;
        EXPECT_EQ(FailureOf([&] { Open(); }, &text), EngineFault);
        return text;
    }
    // Runs the body as a user who may read and not write here.
    template <typename Body>
    void AsReader(Body body) {
        const bool root = geteuid() == 0;
        if (root) {
            ASSERT_EQ(seteuid(65534), 0);
        }
        body();
        if (root) {
            ASSERT_EQ(seteuid(0), 0);
        }
    }
};

TEST_F(FileTest, WhatIsNoDatabaseIsToldAndLeftAlone) {
    EXPECT_EQ(OpenFailure(), "The database \"Varnik.mdb\" was not found.");
    EXPECT_FALSE(fs::exists(file));
    const std::string foreign = "Standard" + std::string(5000, 'x'),
                      cut = "SQLite format 3" + std::string(100, '\0');
    for (const std::string& bytes : {std::string(), std::string("short"), foreign, cut}) {
        Write(file, bytes);
        EXPECT_EQ(OpenFailure(), "The file \"Varnik.mdb\" is not a database.");
        EXPECT_EQ(CheckDatabase(file), "The file \"Varnik.mdb\" is not a database.");
        EXPECT_EQ(Bytes(file), bytes);
        EXPECT_EQ(std::distance(fs::directory_iterator(folder), {}), 1);
    }
    fs::remove(file);
    fs::create_directory(file);
    EXPECT_EQ(OpenFailure(), "The file \"Varnik.mdb\" is not a database.");
}

TEST_F(FileTest, ACutOffFileIsToldFromASoundOne) {
    CreateAll();
    AddCustomer("A", "Adi");
    EXPECT_EQ(CheckDatabase(file), "");
    ReleaseDatabase(file);
    fs::resize_file(file, fs::file_size(file) / 2);
    EXPECT_EQ(OpenFailure(), "The database \"Varnik.mdb\" is damaged or cut off. Restore a backup.");
    EXPECT_NE(CheckDatabase(file), "");
    EXPECT_EQ(FailureOf([&] { CopyDatabase(file, folder / "copy.bck"); }), EngineFault);
    EXPECT_FALSE(fs::exists(folder / "copy.bck"));
}

TEST_F(FileTest, ReadOnlyIsToldWhenSomethingIsWritten) {
    CreateAll();
    ReleaseDatabase(file);
    fs::permissions(file, fs::perms(0444));
    fs::permissions(folder, fs::perms(0555));
    AsReader([&] {
        std::string text;
        EXPECT_EQ(FailureOf([&] { Run("Insert Into Biaya Values ('1','x')"); }, &text), EngineFault);
        EXPECT_EQ(text,
                  "The database \"Varnik.mdb\" cannot be written to: the file or its folder is read-only.");
        EXPECT_EQ(FailureOf([&] { CreateDatabase(folder / "new.mdb"); }, &text), EngineFault);
        EXPECT_EQ(text,
                  "The database \"new.mdb\" cannot be opened: there is no access to the file or its folder.");
        ReleaseDatabase(file);
    });
    fs::permissions(file, fs::perms::none);
    AsReader([&] {
        EXPECT_EQ(
            OpenFailure(),
            "The database \"Varnik.mdb\" cannot be opened: there is no access to the file or its folder.");
    });
}

TEST_F(FileTest, CreatesOnlyWhatIsNotThere) {
    CreateDatabase(file);
    std::string text;
    EXPECT_EQ(FailureOf([&] { CreateDatabase(file); }, &text), EngineFault);
    EXPECT_EQ(text, "The file \"Varnik.mdb\" exists already.");
    EXPECT_EQ(FailureOf([&] { CreateDatabase(folder / "no" / "such.mdb"); }), EngineFault);
    Write(folder / "empty.mdb", "");
    EXPECT_EQ(FailureOf([&] { CreateDatabase(folder / "empty.mdb"); }), EngineFault);
    EXPECT_EQ(Bytes(folder / "empty.mdb"), "");
}

TEST_F(FileTest, TwoWritersWaitForEachOther) {
    CreateAll();
    Connection holder = Open(), waiting = Open();
    ExecuteNative(holder, "BEGIN IMMEDIATE");
    std::string text;
    EXPECT_EQ(FailureOf([&] { waiting.Execute("Insert Into Biaya Values ('1','x')"); }, &text), EngineFault);
    EXPECT_EQ(text, "The database \"Varnik.mdb\" is in use by another workstation. Try again.");
    EXPECT_EQ(Ask("Select Count(*) From Biaya"), Value(0)); // reading goes on meanwhile
    ExecuteNative(holder, "COMMIT");
    waiting.Execute("Insert Into Biaya Values ('1','x')");

    // Two processes write as fast as they can, and none is turned away.
    environment.busyTimeoutMs = 20000;
    holder.Close();
    waiting.Close();
    ReleaseDatabase(file);
    constexpr int rows = 200;
    const auto work = [&](int who) {
        Connection connection = Open();
        for (int i = 0; i < rows; ++i)
            connection.Execute("Insert Into Persediaan (KodeBrg,Qty1,QtySisa) Values ('" +
                               std::to_string(who) + "',1,1)");
    };
    const pid_t child = fork();
    if (child == 0) {
        int failed = 0;
        try {
            work(2);
        } catch (...) {
            failed = 1;
        }
        _exit(failed);
    }
    work(1);
    int status = 1;
    waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(Ask("Select Count(*) From Persediaan"), Value(2 * rows));
}

// The log reaches the disk once, when a connection that wrote is closed, and not for one that only read.
TEST_F(FileTest, ClosingAfterWritingSyncsOnce) {
    CreateAll();
    Connection connection = Open();
    FileState& state = connection.Implementation().state->session->State();
    const std::int64_t before = state.syncs;
    connection.Execute("Select * From Customer");
    connection.Close();
    EXPECT_EQ(state.syncs, before);
    connection.Open("DSN=Varnik");
    for (int i = 0; i < 3; ++i)
        connection.Execute("Insert Into Biaya Values ('" + std::to_string(i) + "','x')");
    Connection reader = Open();
    reader.Close();
    EXPECT_EQ(state.syncs, before);
    connection.Close();
    EXPECT_EQ(state.syncs, before + 1);
    connection.Open("DSN=Varnik");
    connection.Execute("Delete From Biaya");
    SyncWritten(); // an action ended, its connection stays open
    EXPECT_EQ(state.syncs, before + 2);
    connection.Close();
    EXPECT_EQ(state.syncs, before + 2);
}

// Killed while it writes: every statement that had returned is there, and the file is sound.
TEST_F(FileTest, AKilledProcessLosesNothingItWrote) {
    CreateAll();
    ReleaseDatabase(file);
    for (const int statements : {1, 7, 60}) {
        int ends[2] = {};
        ASSERT_EQ(pipe(ends), 0);
        const pid_t child = fork();
        if (child == 0) {
            Connection connection = Open();
            for (int i = 0;; ++i) {
                connection.Execute("Insert Into Persediaan (KodeBrg,Qty1,QtySisa) Values ('K',1,1)");
                if (write(ends[1], "x", 1) != 1) _exit(1);
            }
        }
        close(ends[1]);
        char mark = 0;
        for (int i = 0; i < statements; ++i) ASSERT_EQ(read(ends[0], &mark, 1), 1);
        kill(child, SIGKILL);
        int written = statements;
        while (read(ends[0], &mark, 1) == 1) ++written;
        close(ends[0]);
        waitpid(child, nullptr, 0);
        const std::int64_t found = Ask("Select Count(*) From Persediaan").Integer();
        EXPECT_TRUE(found == written || found == written + 1) << found << " of " << written;
        EXPECT_EQ(CheckDatabase(file), "");
        Run("Delete From Persediaan");
        ReleaseDatabase(file);
    }
}

TEST_F(FileTest, AFullDiskIsToldAndNothingIsHalfWritten) {
    CreateAll();
    Connection connection = Open();
    ExecuteNative(connection, "PRAGMA max_page_count=40");
    const std::string text(50, 'x');
    std::string told;
    std::int64_t written = 0;
    while (FailureOf(
               [&] {
                   connection.Execute("Insert Into Biaya Values ('" + std::to_string(written) + "','" + text +
                                      "')");
               },
               &told) == 0)
        ++written;
    EXPECT_EQ(told, "The disk is full: nothing more can be written to the database \"Varnik.mdb\".");
    EXPECT_EQ(Ask("Select Count(*) From Biaya"), Value(written));
    ExecuteNative(connection, "PRAGMA max_page_count=100000");
    connection.Execute("Insert Into Biaya Values ('last','x')");
    EXPECT_EQ(CheckDatabase(file), "");
}

// On a network drive: a file that had a shared log is taken over, and several may use it.
TEST_F(FileTest, WithoutASharedLogAJournalServes) {
    CreateAll();
    AddCustomer("A", "Adi");
    ReleaseDatabase(file);
    const auto count = [](Engine& engine) {
        const std::unique_ptr<EngineStatement> statement = engine.Compile("SELECT count(*) FROM Customer");
        statement->Step();
        return statement->ReadInteger(0);
    };
    std::unique_ptr<Engine> first = OpenEngine(file, Journal::Rollback);
    EXPECT_EQ(Bytes(file)[18], 1); // the file's own mark of a journal, 2 for a log
    std::unique_ptr<Engine> second = OpenEngine(file, Journal::Rollback);
    first->Run("INSERT INTO Customer VALUES ('B', NULL, 0, 0, 0, 0)");
    second->Run("INSERT INTO Customer VALUES ('C', NULL, 0, 0, 0, 0)");
    EXPECT_EQ(count(*first), 3);
    EXPECT_FALSE(fs::exists(file.string() + "-wal"));
}

TEST_F(FileTest, NoticesThatAnotherFileTookItsPlace) {
    CreateAll();
    AddCustomer("A", "old");
    const fs::path other = folder / "other.mdb";
    CopyDatabase(file, other);
    AddCustomer("B", "later");
    EXPECT_EQ(Ask("Select Count(*) From Customer"), Value(2));
    ReleaseDatabase(file);
    fs::rename(other, file);
    EXPECT_EQ(Ask("Select Count(*) From Customer"), Value(1));
    fs::remove(file);
    EXPECT_EQ(OpenFailure(), "The database \"Varnik.mdb\" was not found.");
    CreateAll();
    EXPECT_EQ(Ask("Select Count(*) From Customer"), Value(0));
}

TEST_F(FileTest, CopiesAndRestoresWhileItIsInUse) {
    CreateAll();
    AddCustomer("A", "Adi");
    Connection connection = Open();
    Recordset rows("Select * From Customer", connection);
    const fs::path backup = folder / "shop.bck";
    CopyDatabase(file, backup);
    EXPECT_EQ(CheckDatabase(backup), "");
    for (const char* tail : {"-wal", "-shm", "-journal", ".tmp"})
        EXPECT_FALSE(fs::exists(backup.string() + tail)) << tail;
    connection.Execute("Insert Into Customer Values ('B','Budi',0,0,0,False)");
    CopyDatabase(file, backup); // over the older backup
    connection.Execute("Delete From Customer");
    rows.Requery();
    EXPECT_TRUE(rows.Empty());
    RestoreDatabase(backup, file);
    rows.Requery();
    EXPECT_EQ(rows.RecordCount(), 2);
    connection.Execute("Update Customer Set NamaCus = 'x' Where KodeCus = 'A'");
    EXPECT_EQ(Ask("Select NamaCus From Customer"), Value("x"));

    Write(folder / "foreign.bck", std::string(9000, 'x'));
    EXPECT_EQ(FailureOf([&] { RestoreDatabase(folder / "foreign.bck", file); }), EngineFault);
    EXPECT_EQ(FailureOf([&] { CopyDatabase(folder / "foreign.bck", folder / "copy.bck"); }), EngineFault);
    EXPECT_EQ(FailureOf([&] { CopyDatabase(file, folder / "no" / "copy.bck"); }), EngineFault);
    EXPECT_EQ(FailureOf([&] { CopyDatabase(file, file); }), EngineFault);
    EXPECT_FALSE(fs::exists(folder / "copy.bck") || fs::exists(folder / "copy.bck.tmp"));
    EXPECT_EQ(Ask("Select Count(*) From Customer"), Value(2));
}

} // namespace
} // namespace varnik::ado
