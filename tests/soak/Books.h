#pragma once
// What stands in a database, as one fingerprint a table, and the trail of it: the fingerprints after every
// statement that wrote. A run that was cut short must end in a state of the trail of the run that was not.

#include <cstdint>
#include <filesystem>
#include <functional>
#include <istream>
#include <map>
#include <string>
#include <vector>

struct sqlite3;

namespace varnik::soak {

using Books = std::map<std::string, std::uint64_t>;

// Reads files past the counted layer. Throws std::runtime_error on what cannot be read.
class BookReader {
public:
    explicit BookReader(const std::filesystem::path& database);
    ~BookReader();
    BookReader(const BookReader&) = delete;
    BookReader& operator=(const BookReader&) = delete;
    Books Read();
    std::string Integrity(); // "ok", or what is wrong
    // Whole numbers of a query's rows and columns, row by row.
    std::vector<std::vector<std::string>> Rows(const std::string& sql);

private:
    sqlite3* database_ = nullptr;
};

// A state as a line from one process to another, "state Invoice 123 ...", and what is heard of it after its
// first word.
std::string Written(const Books& books);
Books Heard(std::istream& words);

// The tables in which two states differ: "Invoice, Customer".
std::string Differences(const Books& a, const Books& b);

// From now on `wrote` is called after every statement of this process that wrote to a database, once it
// stands.
void WatchWrites(std::function<void()> wrote);
// The log of every connection of this process is carried over into the database after each commit.
void CarryOverAlways();
// A database that had a log gets on without.
void LeaveTheLog(const std::filesystem::path& database);

} // namespace varnik::soak
