#pragma once
// Runs a Lua script against the program's screens, without a display: the language of the scenario tests,
// of imports and of unattended printing. Each word does what a person does, and what a person could not do
// is an error of the script.

#include "console/ConsoleDesktop.h"
#include "platform/desktop/Services.h"
#include "reports/engine/Report.h"

#include <filesystem>
#include <functional>
#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

namespace varnik::console {

// The program that the words work on.
struct Host {
    Services& services;
    Regional& regional;          // the settings that the services refer to; a script may set them
    std::function<void()> start; // start-up, until a screen waits for the user
    // Writes all pages of a report; a program without the desktop has none.
    std::function<void(const reports::Report&, const std::filesystem::path&)> writePdf{};
};

class Console {
public:
    Console(Host host, ConsoleDesktop& desktop, std::ostream& out);
    ~Console();
    Console(const Console&) = delete;
    Console& operator=(const Console&) = delete;

    // The exit status: 0 when the script ended and nothing failed, else 1. The last line written is
    // "N passed, N failed", where a broken script counts as one failure.
    int Run(const std::filesystem::path& script, const std::vector<std::string>& arguments);

    struct Impl;

private:
    std::unique_ptr<Impl> impl_;
};

} // namespace varnik::console
