#pragma once
// What the words of a script work on, and the tables in which they stand.

#include "console/Call.h"
#include "console/Console.h"
#include "console/ConsoleDesktop.h"

#include <iosfwd>
#include <span>
#include <string>

namespace varnik::console {

// An open preview. Its number tells it from others of the same report.
struct Preview {
    int number;
    std::unique_ptr<reports::Report> report;
};
inline constexpr const char* previewMetatable = "varnik.preview";

struct Stage {
    Host host;
    ConsoleDesktop& desktop;
    std::ostream& out;
    std::filesystem::path folder;    // where the script was started: its relative paths count from here
    std::vector<Preview> previews{}; // the newest last
    int previewCount = 0;
    int passed = 0, failed = 0;

    void Pass() { ++passed; }
    void Fail(const std::string& text); // counts and prints

    // The screen that has the person's attention, an open one by name; ScriptError when there is none.
    forms::Screen& Current() const;
    forms::Screen& ScreenNamed(const std::string& name) const;
    // "TxtKodeCus" of the current screen, "Invoice.TxtKodeCus" of another open one.
    forms::Control& Find(const std::string& name) const;
    // The same to act on: its screen comes to the front, and a person must be able to use it.
    forms::Control& Use(const std::string& name) const;
    // The same with the focus on it; ScriptError when the focus stays away.
    forms::Control& Reach(const std::string& name) const;
    std::filesystem::path PathOf(const std::string& given) const { return folder / given; }
};

struct Word {
    const char* name;
    void (*run)(Stage&, Call&);
};
std::span<const Word> ProgramWords(); // clock, start-up, screens, boxes, data
std::span<const Word> ControlWords(); // hands on controls
std::span<const Word> ReadingWords(); // what controls show
std::span<const Word> ReportWords();  // open previews
std::span<const Word> PreviewMethods();
std::span<const Word> ExpectWords(); // expectations

} // namespace varnik::console
