#pragma once
// A file layer under the embedded engine that counts what the engine does to its files and, when told, lets
// it fail or lets the process die in the middle of it. It stands between the engine and the machine's own
// layer, so that the program under test is the one that is shipped.

#include <functional>
#include <string_view>

namespace varnik::soak {

enum class Fault {
    None,
    Full,     // no room for what is written
    Input,    // the disk fails in writing, syncing, cutting or removing
    ReadOnly, // the file may not be written any more
    Busy,     // another workstation holds the lock
    Kill,     // the process dies, half of what it was writing is on the disk
};

struct Operation {
    enum Kind { Write, Sync, Cut, Remove, Lock } kind;
    enum Place { Database, Log, Journal } place;
};

class Storage {
public:
    // From now on the engine's files of this process go through here.
    static Storage& Install();

    // The first operation counts 1 from here on. Full meets writes, Input and Kill all but locks, ReadOnly
    // and Busy locks; others pass uncounted.
    void Count(Fault fault);
    // The n-th counted operation from here on fails, and so does every later one, until Lift. A kill does not
    // come back.
    void Arm(Fault fault, long operation);
    void Lift();
    long Counted() const { return counted_; }
    bool Struck() const { return struck_; }
    Operation StruckAt() const { return at_; }

    // Called for every operation that is counted, before it is done.
    std::function<void(const Operation&)> onCounted;
    // Without the memory that processes share there is no common log: the engine keeps a journal per file, as
    // on a network drive. To be set before a file is opened.
    bool sharedMemory = true;

    // For the layer itself: whether the operation goes wrong now.
    bool Strikes(const Operation& operation);
    Fault Armed() const { return fault_; }

private:
    Fault fault_ = Fault::None;
    long counted_ = 0, from_ = 0;
    bool struck_ = false;
    Operation at_{};
};

} // namespace varnik::soak
