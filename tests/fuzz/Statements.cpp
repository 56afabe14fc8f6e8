// Statements and criteria, as fields and screens join them.

#include "data/Schema.h"
#include "platform/ado/Ado.h"
#include "platform/jet/Translate.h"
#include "tests/fuzz/Targets.h"
#include "tests/walk/support/StatementWatch.h"

#include <unistd.h>

namespace varnik::fuzz {

namespace {

namespace fs = std::filesystem;

// Every table of the shop, without rows.
class EmptyTables {
public:
    EmptyTables() : folder_(fs::temp_directory_path() / ("varnik-fuzz-" + std::to_string(getpid()))) {
        walk::StatementWatch::Install();
        fs::remove_all(folder_); // of a killed process of the same number
        fs::create_directories(folder_);
        const fs::path file = folder_ / "x.mdb";
        fs::remove(file);
        ado::CreateDatabase(file);
        environment_.catalog = data::Catalog();
        environment_.regional = &regional_;
        environment_.resolve = [file](std::string_view) { return file; };
        connection = std::make_unique<ado::Connection>(environment_, "x");
        for (const jet::Table& table : data::Tables()) ado::CreateTable(*connection, table);
        for (const ado::Index& index : data::PrimaryIndexes()) ado::CreateIndex(*connection, index);
    }
    ~EmptyTables() {
        connection->Close();
        std::error_code ignored;
        fs::remove_all(folder_, ignored);
    }
    EmptyTables(const EmptyTables&) = delete;
    EmptyTables& operator=(const EmptyTables&) = delete;

    std::unique_ptr<ado::Connection> connection;

private:
    fs::path folder_;
    Regional regional_;
    ado::Environment environment_;
};

bool Selects(const std::string& sql) {
    return sql.size() >= 6 && std::equal(sql.begin(), sql.begin() + 6, "SELECT", [](char a, char b) {
               return std::toupper(static_cast<unsigned char>(a)) == b;
           });
}

} // namespace

// What the engine gets is one statement; nothing but a DataError comes out of it.
void FuzzStatement(std::string_view input) {
    static EmptyTables tables;
    const std::string sql(input);
    try {
        const jet::Statement statement = jet::Translate(sql, data::Catalog(), Regional{});
        for (std::size_t i = 0; i < statement.parameters.size(); ++i)
            Require(statement.sql.find("?" + std::to_string(i + 1)) != std::string::npos,
                    "a literal that went astray");
        Require(!statement.isSelect || Selects(statement.sql) || statement.sql.starts_with("("),
                "a select that is none");
    } catch (const jet::SyntaxError&) {
    }
    walk::StatementWatch::BeginAction();
    walk::StatementWatch::ForgetWritten();
    try {
        if (Selects(sql)) {
            ado::Recordset rows(sql, *tables.connection, ado::CursorType::Static);
            for (int row = 0; row < 3 && !rows.Eof(); ++row, rows.MoveNext())
                for (int column = 0; column < rows.FieldCount(); ++column) rows[column].Value();
        } else {
            tables.connection->Execute(sql);
        }
    } catch (const ado::DataError&) {
    }
    Require(walk::StatementWatch::Written().size() <= 1, "more than one statement has run");
    Require(!walk::StatementWatch::RanAway(), "a statement without end");
}

void FuzzCriterion(std::string_view input) {
    try {
        std::size_t parameter = 0;
        for (const jet::Term& term : jet::ParseCriterion(input, Regional{})) {
            const std::string condition = jet::ConditionOf(term, ++parameter);
            Require(condition.starts_with("\""), "a condition that does not begin with its column");
        }
    } catch (const jet::SyntaxError&) {
    }
    const std::size_t middle = input.size() / 2;
    const std::string_view pattern = input.substr(0, middle), text = input.substr(middle);
    jet::Like(pattern, text);
    Require(jet::Like("%", text), "a text that the widest pattern does not meet");
    Require(jet::Like("%" + std::string(text) + "%", text) ||
                text.find_first_of("%_") != std::string_view::npos,
            "a text that its own pattern does not meet");
}

} // namespace varnik::fuzz
