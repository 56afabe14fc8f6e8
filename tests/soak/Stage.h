#pragma once
// What the soaks share: a script of business played on a program folder, processes of their own to play it
// in, folders that go when the soak ends, and the count of what was tried and what went wrong.

#include "console/ConsoleDesktop.h"

#include <chrono>
#include <filesystem>
#include <functional>
#include <optional>
#include <random>
#include <sstream>
#include <string>
#include <sys/types.h>
#include <vector>

namespace varnik::soak {

struct Options {
    std::filesystem::path scripts; // where the business is written down
    unsigned seed = 1;
    std::optional<std::chrono::steady_clock::time_point> until; // else so many rounds
    long rounds = 1;
    bool keep = false; // the folders of what went wrong
};

// One soak under way: its chance, its folder, its findings.
class Soak {
public:
    explicit Soak(const Options& options);
    ~Soak();
    Soak(const Soak&) = delete;
    Soak& operator=(const Soak&) = delete;

    bool GoesOn(); // asked before every round
    // A number from 0 to below `count`.
    long Chance(long count) { return std::uniform_int_distribution<long>(0, count - 1)(chance_); }
    bool Holds(bool good, const std::string& otherwise); // counts and prints a fault

    std::filesystem::path Folder(const std::string& name) const { return folder_ / name; }
    // The folder anew, with what stands in another.
    std::filesystem::path Copy(const std::string& from, const std::string& to) const;
    long Faults() const { return faults_; }

    const Options options;

private:
    std::filesystem::path folder_;
    std::mt19937 chance_;
    long round_ = 0, faults_ = 0;
};

std::filesystem::path Database(const std::filesystem::path& folder);

// A script as it plays on a program folder.
struct Play {
    std::filesystem::path script;
    std::vector<std::string> arguments;
    std::function<void(const std::string& line)> onLine = {}; // what it announces, as it happens
    std::function<Answer(const Box& box)> onFailure = {};     // answers abort, retry, ignore
    std::function<void(const Box& box)> onBox = {};           // sees all boxes
};
// In this process: 0 when nothing failed. What the script said that was no announcement is added to `said`.
int Run(const Play& play, const std::filesystem::path& folder, std::string& said);

// A process of its own; what it writes to its file descriptor is read here line by line.
class Child {
public:
    // The body's result is its exit status; an exception is 99.
    explicit Child(const std::function<int(int out)>& body);
    ~Child();
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    // Nothing at the end, or when the time is over; `timedOut` tells them apart.
    std::optional<std::string> Line(int timeoutMs = -1);
    bool TimedOut() const { return timedOut_; }
    // All that it says until its end: a line's first word, the words after it, the whole line.
    void Hear(const std::function<void(const std::string& first, std::istringstream& words,
                                       const std::string& line)>& said);
    void Kill();
    int Wait(); // exit status, -1 when it was killed

private:
    pid_t process_ = 0;
    int in_ = -1;
    std::string read_;
    bool timedOut_ = false;
};
void Tell(int out, const std::string& line);

// Plays in a process of its own to its end; the empty text when nothing failed, else what it said.
std::string PlayApart(const Play& play, const std::filesystem::path& folder);

long Kill(Soak& soak);
long Faults(Soak& soak);
long Workstations(Soak& soak);
long Files(Soak& soak);

} // namespace varnik::soak
