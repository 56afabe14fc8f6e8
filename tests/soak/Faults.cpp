// Every posting and every way back meets a fault of the storage at each of its writes in turn. The failure
// shows in the shape of its routine; what was written before stands, and nothing else; once the fault is
// lifted Retry ends in the books of the undisturbed posting; and the screens go on with the next document.

#include "tests/soak/Books.h"
#include "tests/soak/Stage.h"
#include "tests/soak/Storage.h"

#include <algorithm>
#include <iostream>
#include <numeric>

namespace varnik::soak {
namespace {

// How a routine meets a failing statement.
enum class Shape { Guarded, Described, Resumed, Reported };
struct Posting {
    const char* name;
    Shape shape;
};
constexpr Posting Postings[] = {
    {"sale", Shape::Guarded},         {"sale_to_a_stranger", Shape::Guarded},
    {"sale_deleted", Shape::Guarded}, {"cash", Shape::Guarded},
    {"receipt", Shape::Guarded},      {"receipt_deleted", Shape::Guarded},
    {"take_back", Shape::Guarded},    {"take_back_deleted", Shape::Guarded},
    {"purchase", Shape::Described},   {"purchase_deleted", Shape::Resumed},
    {"send_back", Shape::Described},  {"send_back_deleted", Shape::Described},
    {"payment", Shape::Reported},     {"payment_deleted", Shape::Reported},
    {"income", Shape::Guarded},       {"income_deleted", Shape::Guarded},
    {"expense", Shape::Guarded},      {"expense_deleted", Shape::Guarded},
};

struct Trouble {
    Fault fault;
    const char *name, *told;
};
constexpr Trouble Troubles[] = {
    {Fault::Full, "full", "The disk is full"},
    {Fault::Input, "input", "Reading or writing the database"},
    {Fault::ReadOnly, "read-only", "cannot be written to"},
    {Fault::Busy, "busy", "is in use by another workstation"},
};

// With the log that all processes share, with one that is carried over to the database after every commit,
// and with a journal per file as on a network drive.
enum class Journal { Log, SmallLog, File };
constexpr Journal Journals[] = {Journal::Log, Journal::SmallLog, Journal::File};
constexpr const char* JournalNames[] = {"log", "small log", "journal"};

enum class Way { Retry, Abort, Ignore };
constexpr Way Ways[] = {Way::Retry, Way::Abort, Way::Ignore};
constexpr const char* WayNames[] = {"retry", "abort", "ignore"};

// The undisturbed posting as one kind of trouble sees it.
struct Trail {
    std::vector<Books> states{};       // before it, and after every statement that wrote
    std::vector<std::size_t> before{}; // by operation: the state that stands when it begins
    std::vector<bool> decides{};       // by operation: the statement fails with it
};

struct Case {
    const Posting* posting;
    const Trouble* trouble;
    Journal journal;
    Trail trail;
    std::string Name() const {
        return std::string(posting->name) + ", " + trouble->name + ", " +
               JournalNames[static_cast<int>(journal)];
    }
};
struct Point {
    std::size_t operation;
    Way way;
};

void Prepare(Journal journal) {
    Storage& storage = Storage::Install();
    storage.sharedMemory = journal != Journal::File;
    if (journal == Journal::SmallLog) CarryOverAlways();
}

// A statement fails with what it writes into the log or the journal; what is carried over afterwards is tried
// again another time. The log is synced when the action has ended.
bool Decides(const Operation& operation, Journal journal) {
    if (journal == Journal::File) return true;
    return operation.kind == Operation::Lock ||
           (operation.place == Operation::Log && operation.kind == Operation::Write);
}

// Calls back at the beginning of the write that the script has announced as "armed", and at "over".
std::function<void(const std::string&)> Between(std::function<void()> from, std::function<void()> to) {
    return [from, to, armed = false](const std::string& line) mutable {
        if (line == "armed") armed = true;
        if (line == "over") to();
        if (!armed || !line.starts_with("begin")) return;
        armed = false;
        from();
    };
}

Play ScriptOf(const Soak& soak, const Case& each) {
    return {soak.options.scripts / "posting.lua", {each.posting->name}};
}
std::string ShopOf(const Case& each) {
    return std::string(each.posting->name) + (each.journal == Journal::File ? " journal" : "");
}

Trail Walk(Soak& soak, const Case& each) {
    const auto folder = soak.Copy(ShopOf(each), "trail");
    Child child([&](int out) {
        Prepare(each.journal);
        Storage& storage = Storage::Install();
        BookReader reader(Database(folder));
        bool between = false;
        const auto tell = [&] {
            if (between) Tell(out, Written(reader.Read()));
        };
        WatchWrites(tell);
        storage.onCounted = [&](const Operation& operation) {
            Tell(out, Decides(operation, each.journal) ? "operation" : "beside");
        };
        Play play = ScriptOf(soak, each);
        play.onLine = Between(
            [&] {
                between = true;
                tell();
                storage.Count(each.trouble->fault);
            },
            [&] { storage.Lift(), between = false; });
        std::string said;
        const int status = Run(play, folder, said);
        if (status != 0) Tell(out, "said " + said);
        return status;
    });
    Trail trail;
    child.Hear([&](const std::string& first, std::istringstream& words, const std::string& line) {
        if (first == "state")
            trail.states.push_back(Heard(words));
        else if (first == "operation" || first == "beside") {
            trail.before.push_back(trail.states.size() - 1);
            trail.decides.push_back(first == "operation");
        } else
            soak.Holds(false, each.Name() + ", undisturbed: " + line);
    });
    soak.Holds(child.Wait() == 0, each.Name() + ", undisturbed: failed");
    return trail;
}

struct Outcome {
    bool struck = false;
    long asked = 0, told = 0;
    std::vector<std::string> texts{};
    Books atBox{}, atEnd{};
    std::string said{};
};

Outcome Disturb(Soak& soak, const Case& each, const Point& point, const std::filesystem::path& folder) {
    Child child([&](int out) {
        Prepare(each.journal);
        Storage& storage = Storage::Install();
        Play play = ScriptOf(soak, each);
        bool between = false;
        const auto state = [&](const char* when) {
            Tell(out, when + Written(BookReader(Database(folder)).Read()));
        };
        play.onLine = Between(
            [&] {
                between = true;
                storage.Arm(each.trouble->fault, static_cast<long>(point.operation + 1));
            },
            [&] {
                if (storage.Struck()) Tell(out, "struck");
                storage.Lift();
                between = false;
                state("end ");
            });
        play.onBox = [&](const Box& box) {
            if (!between || (box.icon != Icon::Critical && box.buttons != Buttons::AbortRetryIgnore)) return;
            std::string text = box.text;
            std::replace_if(
                text.begin(), text.end(), [](char c) { return c == '\r' || c == '\n'; }, ' ');
            Tell(out, (box.buttons == Buttons::AbortRetryIgnore ? "asked " : "told ") + text);
        };
        bool first = true;
        play.onFailure = [&](const Box&) {
            if (first) state("box ");
            first = false;
            if (point.way == Way::Ignore) return Answer::Ignore;
            storage.Lift();
            return point.way == Way::Retry ? Answer::Retry : Answer::Abort;
        };
        std::string said;
        const int status = Run(play, folder, said);
        if (status != 0) Tell(out, "said " + said);
        return status;
    });
    Outcome outcome;
    child.Hear([&](const std::string& first, std::istringstream& words, const std::string& line) {
        std::string second;
        if (first == "struck")
            outcome.struck = true;
        else if (first == "asked" || first == "told") {
            ++(first == "asked" ? outcome.asked : outcome.told);
            outcome.texts.push_back(line.substr(first.size() + 1));
        } else if (first == "box" && words >> second)
            outcome.atBox = Heard(words);
        else if (first == "end" && words >> second)
            outcome.atEnd = Heard(words);
        else
            outcome.said += line + "\n";
    });
    const int status = child.Wait();
    if (status != 0 && outcome.said.empty()) outcome.said = "exit status " + std::to_string(status);
    return outcome;
}

void Judge(Soak& soak, const Case& each, const Point& point, const Outcome& outcome,
           const std::string& integrity) {
    const std::string where = each.Name() + ", operation " + std::to_string(point.operation + 1) + " of " +
                              std::to_string(each.trail.before.size()) + ", " +
                              WayNames[static_cast<int>(point.way)] + ": ";
    soak.Holds(outcome.struck, where + "the fault did not strike");
    soak.Holds(outcome.said.empty(), where + outcome.said);
    soak.Holds(integrity == "ok", where + integrity);

    // The first statement that fails, if any does; the fault lasts until it is lifted.
    std::size_t failing = point.operation;
    while (failing < each.trail.decides.size() && !each.trail.decides[failing]) ++failing;
    const bool fails = failing < each.trail.decides.size();
    const Books& whole = each.trail.states.back();
    const Books& until = fails ? each.trail.states[each.trail.before[failing]] : whole;
    const Shape shape = each.posting->shape;
    const bool guarded = shape == Shape::Guarded || shape == Shape::Described;
    const Books& expected = guarded && point.way == Way::Retry ? whole : until;
    const std::string differ = Differences(expected, outcome.atEnd);
    soak.Holds(differ.empty(), where + "the books differ from what is expected in " + differ);

    if (guarded && fails) {
        soak.Holds(point.way == Way::Ignore ? outcome.asked >= 1 : outcome.asked == 1,
                   where + std::to_string(outcome.asked) + " questions");
        const std::string early = Differences(until, outcome.atBox);
        soak.Holds(early.empty(), where + "while the box shows the books differ in " + early);
    } else if (each.journal !=
               Journal::File) // else the screen's reload cannot read what cannot be rolled back
        soak.Holds(outcome.asked == 0, where + "it asks");
    if (shape == Shape::Reported && fails) soak.Holds(outcome.told >= 1, where + "no report");
    if (shape == Shape::Resumed && fails && point.way != Way::Ignore)
        soak.Holds(outcome.told <= 1, where + std::to_string(outcome.told) + " boxes");
    if (outcome.texts.empty()) return;
    const std::string& text = outcome.texts.front();
    soak.Holds(text.find(each.trouble->told) != std::string::npos, where + "the box says " + text);
    if (shape == Shape::Guarded && fails)
        soak.Holds(text.starts_with("Err No "), where + "the box says " + text);
    else if (guarded || outcome.asked == 0)
        soak.Holds(!text.starts_with("Err No "), where + "the box says " + text);
}

std::vector<Case> Cases() {
    std::vector<Case> cases;
    for (const Posting& posting : Postings)
        for (const Trouble& trouble : Troubles)
            for (const Journal journal : Journals)
                cases.push_back({.posting = &posting, .trouble = &trouble, .journal = journal, .trail = {}});
    return cases;
}

// The folder in which the posting can be made.
void PrepareShop(Soak& soak, const Case& each) {
    const std::string name = ShopOf(each);
    if (std::filesystem::exists(soak.Folder(name))) return;
    const auto folder = soak.Copy("shop", name);
    Play play = ScriptOf(soak, each);
    play.arguments.push_back("prepare");
    Child child([&](int) {
        const bool file = each.journal == Journal::File;
        Prepare(file ? Journal::File : Journal::Log);
        if (file) LeaveTheLog(Database(folder));
        std::string said;
        return Run(play, folder, said);
    });
    soak.Holds(child.Wait() == 0, name + " cannot be prepared");
}

} // namespace

long Faults(Soak& soak) {
    std::filesystem::create_directories(soak.Folder("shop"));
    const std::string failed =
        PlayApart({soak.options.scripts / "day.lua", {"1", "0", "first"}}, soak.Folder("shop"));
    if (!soak.Holds(failed.empty(), "the shop cannot be opened: " + failed)) return 1;
    std::vector<Case> cases = Cases();
    std::vector<std::vector<Point>> left(cases.size()); // by case, once it is walked
    std::vector<std::size_t> open(cases.size());        // cases that have points left, or are not walked yet
    std::iota(open.begin(), open.end(), 0);
    std::map<std::string, long> tried;
    long all = 0, struck = 0, walked = 0;
    constexpr std::size_t PerPosting = std::size(Troubles) * std::size(Journals);
    for (std::size_t round = 0; !open.empty() && soak.GoesOn(); ++round) {
        // Each posting once, then whatever chance brings.
        const auto at =
            round < std::size(Postings)
                ? std::ranges::find(open, round * PerPosting + static_cast<std::size_t>(soak.Chance(
                                                                   static_cast<long>(PerPosting))))
                : open.begin() + soak.Chance(static_cast<long>(open.size()));
        Case& each = cases[*at];
        std::vector<Point>& points = left[*at];
        if (each.trail.states.empty()) {
            PrepareShop(soak, each);
            each.trail = Walk(soak, each);
            soak.Holds(each.trail.states.size() > 1 && !each.trail.before.empty(),
                       each.Name() + ", undisturbed: writes nothing");
            for (std::size_t operation = 0; operation < each.trail.before.size(); ++operation)
                for (const Way way : Ways) points.push_back({operation, way});
            all += static_cast<long>(points.size());
            ++walked;
        }
        if (!points.empty()) {
            std::swap(points[static_cast<std::size_t>(soak.Chance(static_cast<long>(points.size())))],
                      points.back());
            const Point point = points.back();
            points.pop_back();
            const auto folder = soak.Copy(ShopOf(each), "struck");
            const Outcome outcome = Disturb(soak, each, point, folder);
            Judge(soak, each, point, outcome, BookReader(Database(folder)).Integrity());
            ++tried[each.trouble->name];
            if (outcome.struck) ++struck;
        }
        if (points.empty()) open.erase(at);
    }
    std::cout << struck << " faults struck of " << all << " points in " << walked << " of " << cases.size()
              << " cases;";
    for (const auto& [name, count] : tried) std::cout << ' ' << name << ' ' << count;
    std::cout << "; " << soak.Faults() << " findings\n";
    return soak.Faults();
}

} // namespace varnik::soak
