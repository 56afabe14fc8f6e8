#pragma once
// The desktop without a display: boxes take queued answers, screens stand in a pile, what would leave the
// program is kept for the script to ask about.

#include "console/Keyboard.h"
#include "platform/desktop/Desktop.h"

#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace varnik::console {

class ConsoleDesktop : public Desktop {
public:
    explicit ConsoleDesktop(std::filesystem::path programFolder);
    ~ConsoleDesktop() override;

    // --- For the words of a script ---
    struct QueuedAnswer {
        enum class Kind { Button, Text, File } kind = Kind::Button;
        Answer button = Answer::Ok;
        std::string text;
    };
    std::deque<QueuedAnswer> answers;
    std::deque<Box> boxes; // shown and not yet asked for, oldest first
    std::vector<std::string> prompts;
    std::vector<std::string> shell;
    std::optional<DateTime> clock; // nothing: the machine's
    bool anotherInstance = false;
    std::function<void(const ReportRequest&)> launch; // opens a preview; a DataError goes to the asker

    std::vector<forms::Screen*> Screens() const; // open ones, the topmost last
    forms::Screen* Top() const { return pile_.empty() ? nullptr : pile_.back().screen.get(); }
    bool Running() const { return running_; }
    void SetRunning() { running_ = true; }
    // By a person; throws ScriptError when a modal screen keeps it from being used.
    void ComeForward(forms::Screen& screen);
    // Between two words: what waited for a screen to close runs, and closed screens go.
    void Settle();
    Keyboard& Keys() { return keyboard_; }
    forms::Menu* TakePoppedUp() { return std::exchange(poppedUp_, nullptr); }

    // --- Desktop ---
    Answer MessageBox(const Box& box) override;
    std::optional<std::string> InputBox(const std::string& prompt, const std::string& title) override;
    std::optional<std::string> OpenFile(const std::string& title, const std::string& filter) override;
    std::optional<std::string> SaveFile(const std::string& title, const std::string& filter) override;
    bool PrintDialog(const std::string& title) override;
    void Show(std::unique_ptr<forms::Screen> screen) override;
    void ShowModal(std::unique_ptr<forms::Screen> screen, std::function<void()> then) override;
    forms::Screen* FindScreen(const std::string& name) override;
    void BringToFront(forms::Screen& screen) override;
    void Repaint(forms::Screen&) override {}
    void PopUp(forms::Menu& menu, forms::Control&) override { poppedUp_ = &menu; }
    void ArrangeWindows(int) override {}
    void DragMainWindow() override {}
    void LaunchReport(const ReportRequest& request) override;
    bool OpenWithShell(const std::string& target) override;
    void Hourglass(bool) override {}
    DateTime Now() override;
    bool AnotherInstanceRuns() override { return anotherInstance; }
    std::filesystem::path ProgramFolder() override { return folder_; }
    void Quit() override;

private:
    struct Shown {
        std::unique_ptr<forms::Screen> screen;
        bool modal = false;
        std::function<void()> then;
    };
    void Place(Shown shown);
    void TakeAway(forms::Screen& screen);
    void TellFront();
    // The next queued answer, which has to be of this kind or the button "cancel".
    QueuedAnswer NextAnswer(QueuedAnswer::Kind kind, const std::string& question);
    std::optional<std::string> AskText(QueuedAnswer::Kind kind, const std::string& question);

    std::filesystem::path folder_;
    Keyboard keyboard_;
    std::vector<Shown> pile_;
    std::vector<std::unique_ptr<forms::Screen>> closed_; // until the handler that closed them has returned
    std::deque<std::function<void()>> waiting_;
    forms::Menu* poppedUp_ = nullptr;
    forms::Screen* front_ = nullptr; // that heard last of being there
    bool running_ = false;
};

std::optional<Answer> AnswerNamed(std::string_view word); // "yes"; nothing for a word that is none
std::string NameOf(Answer answer);
std::string NameOf(Icon icon);
std::string NameOf(Buttons buttons); // "yes no"

} // namespace varnik::console
