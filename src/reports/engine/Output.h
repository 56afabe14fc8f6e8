#pragma once
// A file that is there whole or not at all: it is written under a name of its own beside the target and
// takes the target's name at the end.

#include <filesystem>
#include <string>

namespace varnik::reports {

class Output {
public:
    explicit Output(std::filesystem::path target);
    ~Output(); // removes what was not kept
    Output(const Output&) = delete;
    Output& operator=(const Output&) = delete;

    const std::filesystem::path& Path() const { return draft_; } // write here
    void Keep();                                          // DataError when the target cannot be replaced
    [[noreturn]] void Fail(const std::string& why) const; // DataError naming the target

private:
    std::filesystem::path target_, draft_;
};

} // namespace varnik::reports
