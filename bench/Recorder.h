#pragma once
// What the program asks of the engine while it does something, written down and done again by a bare loop:
// the same statements on the same connection, prepared beforehand, every cell of every row read. So each
// reading action of the program stands beside the least that it could cost.

#include <sqlite3.h>

#include <functional>
#include <string>
#include <vector>

namespace varnik::bench {

struct Asked {
    sqlite3* connection = nullptr;
    std::string sql; // with its values in it
    long rows = 0;   // that were read
};

// Before the first connection is opened.
void ListenToConnections();
// The reading statements that the work runs, in their order.
std::vector<Asked> StatementsOf(const std::function<void()>& work);

class Replay {
public:
    explicit Replay(const std::vector<Asked>& asked);
    ~Replay();
    Replay(const Replay&) = delete;
    Replay& operator=(const Replay&) = delete;

    long Run(); // the cells that were read

private:
    struct Step {
        sqlite3_stmt* statement;
        long rows;
    };
    std::vector<Step> steps_;
};

} // namespace varnik::bench
