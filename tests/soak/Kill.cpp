// A day of business that dies in the middle: at a chosen operation on the files, half of a write done, or at
// a moment that the machine chooses. What is found afterwards must be a state that the undisturbed day went
// through: all that was finished, and of the document under way what was written and no more.

#include "tests/soak/Books.h"
#include "tests/soak/Stage.h"
#include "tests/soak/Storage.h"

#include <iostream>

namespace varnik::soak {
namespace {

constexpr int Documents = 14, KillsADay = 8;

// The undisturbed day.
struct Trail {
    std::vector<Books> states;         // at the start, and after every statement that wrote
    std::vector<std::size_t> finished; // the state at each "end", the start's first
    std::vector<std::size_t> before;   // by operation: the state that stands when it begins
    std::vector<std::string> kinds;    // of the documents, in their order
};

Trail Walk(Soak& soak, const Play& day) {
    const auto folder = soak.Copy("shop", "trail");
    Child child([&](int out) {
        Storage& storage = Storage::Install();
        BookReader reader(Database(folder));
        std::size_t state = 0;
        Tell(out, Written(reader.Read()));
        WatchWrites([&] {
            ++state;
            Tell(out, Written(reader.Read()));
        });
        storage.onCounted = [&](const Operation&) { Tell(out, "operation " + std::to_string(state)); };
        storage.Count(Fault::Kill);
        Play watched = day;
        watched.onLine = [&](const std::string& line) { Tell(out, line); };
        std::string said;
        const int status = Run(watched, folder, said);
        storage.Lift();
        if (status != 0) Tell(out, "said " + said);
        return status;
    });
    Trail trail;
    trail.finished.push_back(0);
    child.Hear([&](const std::string& first, std::istringstream& words, const std::string& line) {
        std::string name;
        std::size_t number = 0;
        if (first == "state")
            trail.states.push_back(Heard(words));
        else if (first == "operation" && words >> number)
            trail.before.push_back(number);
        else if (first == "begin" && words >> number >> name)
            trail.kinds.push_back(name);
        else if (first == "end")
            trail.finished.push_back(trail.states.size() - 1);
        else
            soak.Holds(false, "the undisturbed day: " + line);
    });
    soak.Holds(child.Wait() == 0, "the undisturbed day failed");
    return trail;
}

struct Killed {
    std::size_t finished = 0; // documents whose end was heard
    long operation = 0;       // that was cut off; 0 when the moment was the machine's
    bool inside = false;
};

Killed RunAndKill(Soak& soak, const Play& day, const Trail& trail, const std::filesystem::path& folder) {
    Killed killed;
    const bool chosen = soak.Chance(3) > 0;
    if (chosen) killed.operation = 1 + soak.Chance(static_cast<long>(trail.before.size()));
    const long lines = soak.Chance(static_cast<long>(2 * trail.kinds.size()));
    const int delay = static_cast<int>(soak.Chance(12));
    Child child([&](int out) {
        if (chosen) Storage::Install().Arm(Fault::Kill, killed.operation);
        Play watched = day;
        watched.onLine = [&](const std::string& line) { Tell(out, line); };
        std::string said;
        const int status = Run(watched, folder, said);
        if (status != 0) Tell(out, "said " + said);
        return status;
    });
    long heard = 0;
    bool waiting = false;
    const auto hear = [&](const std::string& line) {
        if (line.starts_with("end")) ++killed.finished;
        killed.inside = line.starts_with("begin");
        if (line.starts_with("said")) soak.Holds(false, line);
    };
    while (const auto line = child.Line(waiting ? delay : -1)) {
        hear(*line);
        waiting = !chosen && heard++ >= lines;
        if (waiting && delay == 0) break;
    }
    child.Kill();
    while (const auto line = child.Line()) hear(*line); // what it still said before it died
    child.Wait();
    return killed;
}

} // namespace

long Kill(Soak& soak) {
    Play day{soak.options.scripts / "day.lua", {"1", "0", "first"}};
    std::filesystem::create_directories(soak.Folder("shop"));
    const std::string failed = PlayApart(day, soak.Folder("shop"));
    if (!soak.Holds(failed.empty(), "the shop cannot be opened: " + failed)) return 1;

    Trail trail;
    std::map<std::string, long> inside;
    long kills = 0, states = 0;
    while (soak.GoesOn()) {
        if (kills % KillsADay == 0) {
            day.arguments = {std::to_string(soak.Chance(1000000)), std::to_string(Documents)};
            trail = Walk(soak, day);
            // A day that writes nothing leaves nothing to kill.
            if (!soak.Holds(!trail.before.empty() && !trail.kinds.empty(),
                            "the undisturbed day " + day.arguments[0] + " writes nothing"))
                return soak.Faults();
            states += static_cast<long>(trail.states.size());
        }
        const auto folder = soak.Copy("shop", "killed");
        const Killed killed = RunAndKill(soak, day, trail, folder);
        ++kills;
        if (killed.inside && killed.finished < trail.kinds.size()) ++inside[trail.kinds[killed.finished]];
        const std::string where =
            "day " + day.arguments[0] + ", kill " + std::to_string(kills) +
            (killed.operation ? ", operation " + std::to_string(killed.operation) : "") + ", " +
            std::to_string(killed.finished) + " finished: ";

        // Looked at in a copy: the program itself has to find its way back from what the death left.
        const auto copy = soak.Copy("killed", "copy");
        {
            BookReader reader(Database(copy));
            const std::string integrity = reader.Integrity();
            soak.Holds(integrity == "ok", where + integrity);
            const Books books = reader.Read();
            std::size_t from = trail.finished[killed.finished];
            std::size_t to = killed.finished + 1 < trail.finished.size() ? trail.finished[killed.finished + 1]
                                                                         : trail.states.size() - 1;
            if (killed.operation) from = to = trail.before[static_cast<std::size_t>(killed.operation - 1)];
            bool found = false;
            for (std::size_t state = from; state <= to; ++state)
                found = found || trail.states[state] == books;
            soak.Holds(found, where + "not a state from " + std::to_string(from) + " to " +
                                  std::to_string(to) + "; against the first of them differ " +
                                  Differences(trail.states[from], books));
        }
        Play next = day;
        next.arguments = {std::to_string(soak.Chance(1000000)), "3"};
        const std::string said = PlayApart(next, folder);
        soak.Holds(said.empty(), where + "the program does not work on: " + said);
        const std::string integrity = BookReader(Database(folder)).Integrity();
        soak.Holds(integrity == "ok", where + "after working on: " + integrity);
    }
    std::cout << kills << " kills on " << states << " states of undisturbed days; inside a document:";
    for (const auto& [kind, count] : inside) std::cout << ' ' << kind << ' ' << count;
    std::cout << "; " << soak.Faults() << " faults\n";
    return soak.Faults();
}

} // namespace varnik::soak
