#pragma once
// Watches every statement that this process runs on the engine, whichever connection it comes from: how many
// there are, which of them write, and whether an action goes on without end. It counts statements and the
// engine's steps, never time.

#include <string>
#include <vector>

namespace varnik::walk {

class StatementWatch {
public:
    static void Install();     // for databases opened from now on; once is enough
    static void BeginAction(); // the action's bounds start anew
    static bool RanAway();     // since BeginAction; its statements then fail as interrupted
    static long Statements();  // of the whole process
    // The texts of writing statements since ForgetWritten.
    static const std::vector<std::string>& Written();
    static void ForgetWritten();
};

} // namespace varnik::walk
