#pragma once
// The three shapes in which a failing statement is met: resumed, reported, guarded.

#include "platform/ado/Ado.h"
#include "platform/desktop/Desktop.h"

#include <functional>
#include <string>

namespace varnik {

// Resumed: a failing statement is skipped. True when it went through; the description of the last
// failure is kept in `failure` when one is given, and stays as it was on success.
bool Resume(const std::function<void()>& statement, std::string* failure = nullptr);

// Reported: normal pointer, the description alone in a box, and the routine ends. True when it ran through.
bool Reported(Desktop& desktop, const std::function<void()>& routine);

// Guarded: statement by statement. A failing one shows prefix + number + line break + text with Abort,
// Retry and Ignore: Abort leaves the routine, Retry repeats the statement, Ignore goes on with the next.
class Guard {
public:
    Guard(Desktop& desktop, std::string prefix) : desktop_(desktop), prefix_(std::move(prefix)) {}

    // Runs the routine; inside it every statement is one step: guard.Step([&] { ... }). False on Abort.
    bool Run(const std::function<void(Guard&)>& routine);
    void Step(const std::function<void()>& statement);
    // The same with the description alone in the box, where a routine shows it so.
    void ShowDescriptionAlone() { descriptionAlone_ = true; }

private:
    struct Aborted {};
    Desktop& desktop_;
    std::string prefix_;
    bool descriptionAlone_ = false;
};

} // namespace varnik
