#pragma once
// The desktop of a walk: whoever sits in front of it answers by chance. It keeps what a person should never
// get to see: a failure of the program itself in place of one of the data.

#include "console/ConsoleDesktop.h"
#include "platform/desktop/Services.h"
#include "tests/walk/support/Texts.h"

#include <functional>
#include <map>
#include <set>
#include <string>

namespace varnik::walk {

// An action that asks without end; no std::exception, so that no handler takes it for a failing statement.
struct AsksWithoutEnd {};

class WalkDesktop : public console::ConsoleDesktop {
public:
    WalkDesktop(std::filesystem::path programFolder, Chance& chance, Texts& texts)
        : ConsoleDesktop(std::move(programFolder)), chance_(chance), texts_(texts) {}

    Services* services = nullptr; // for reports
    std::function<void(const std::string&)> onFinding;
    std::map<std::string, long> unmet; // failures of the data that no handler met, by screen and text
    long asked = 0, launched = 0;
    void BeginAction() { askedInAction_ = 0; }
    // No more yes and no by chance: every question is answered no, or yes.
    void DeclineAll() { always_ = Always::No; }
    void AgreeToAll() { always_ = Always::Yes; }

    Answer MessageBox(const Box& box) override;
    std::optional<std::string> InputBox(const std::string& prompt, const std::string& title) override;
    std::optional<std::string> OpenFile(const std::string& title, const std::string& filter) override;
    std::optional<std::string> SaveFile(const std::string& title, const std::string& filter) override;
    bool PrintDialog(const std::string& title) override;
    void LaunchReport(const ReportRequest& request) override;
    bool OpenWithShell(const std::string& target) override;

private:
    void CountQuestion();
    void LookAtFailure(const Box& box);
    std::string FileName();

    Chance& chance_;
    Texts& texts_;
    int askedInAction_ = 0;
    enum class Always { ByChance, No, Yes } always_ = Always::ByChance;
};

} // namespace varnik::walk
