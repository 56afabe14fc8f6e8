#pragma once
// A program's folder of its own with everything a screen is built with, gone when the test ends.

#include "data/Bootstrap.h"
#include "data/DataSource.h"
#include "tests/support/TestDesktop.h"

#include <atomic>
#include <unistd.h>

namespace varnik {

class TemporaryFolder {
public:
    TemporaryFolder() {
        static std::atomic<int> count = 0;
        path_ = std::filesystem::path(testing::TempDir()) /
                ("varnik-" + std::to_string(getpid()) + "-" + std::to_string(++count));
        std::filesystem::remove_all(path_);
        std::filesystem::create_directories(path_);
    }
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::filesystem::path& Path() const { return path_; }

private:
    std::filesystem::path path_;
};

// The folder, without a database yet.
class EmptyShop {
public:
    EmptyShop() { desktop.folder = folder.Path(); }
    // What a later test reads through the screens' own statements.
    ado::Connection Connect() { return {environment, session.ConnectionString}; }
    std::vector<std::vector<Value>> Rows(const std::string& sql) {
        ado::Connection connection = Connect();
        std::vector<std::vector<Value>> rows;
        for (ado::Recordset found(sql, connection, ado::CursorType::Static); !found.Eof(); found.MoveNext()) {
            rows.emplace_back();
            for (int column = 0; column < found.FieldCount(); ++column)
                rows.back().push_back(found[column].Value());
        }
        return rows;
    }
    // The rows as one text: cells joined by "|", rows by line breaks.
    std::string Table(const std::string& sql) {
        std::string text;
        for (const auto& row : Rows(sql)) {
            if (!text.empty()) text += "\n";
            for (std::size_t i = 0; i < row.size(); ++i)
                text += (i == 0 ? "" : "|") + ShowValue(row[i], regional);
        }
        return text;
    }
    void Execute(const std::string& sql) { Connect().Execute(sql); }
    // Every such write ("INSERT", "Invoice") fails as on a locked shelf, until Allow.
    void Refuse(const std::string& doing, const std::string& table) {
        ado::Connection connection = Connect();
        ado::ExecuteNative(connection, "CREATE TRIGGER Locked BEFORE " + doing + " ON " + table +
                                           " BEGIN SELECT RAISE(ABORT, 'the shelf is locked'); END");
    }
    void Allow() {
        ado::Connection connection = Connect();
        ado::ExecuteNative(connection, "DROP TRIGGER IF EXISTS Locked");
    }

    TemporaryFolder folder;
    Regional regional;
    Session session = [] {
        Session fresh;
        fresh.ConnectionString = "DSN=VarNik";
        return fresh;
    }();
    TestDesktop desktop;
    registry::Registry registry{folder.Path() / "registry.ini"};
    ado::Environment environment = data::MakeEnvironment(regional, registry);
    Services services{session, desktop, environment, regional, registry};
};

// The folder with a fresh database, as after the first start.
class TemporaryShop : public EmptyShop {
public:
    TemporaryShop() { data::BootstrapDatabase(services); }
};

} // namespace varnik
