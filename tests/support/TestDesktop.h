#pragma once
// A desktop for unit tests: answers are queued, what leaves the program is kept. A question that nobody
// queued an answer for fails the test and is answered so that the routine ends. A failure that no handler
// meets reaches the test itself, unless it calls ReportFailures for the screen.

#include "platform/ado/Ado.h"
#include "platform/desktop/Desktop.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace varnik {

class TestDesktop : public Desktop {
public:
    ~TestDesktop() override {
        EXPECT_TRUE(answers.empty()) << answers.size() << " queued answers were not asked for";
        EXPECT_TRUE(texts.empty()) << texts.size() << " queued texts were not asked for";
        EXPECT_EQ(hourglass, 0) << "the hourglass was left on";
    }

    // --- What a test queues and sets ---
    std::deque<Answer> answers;                   // to boxes with more than OK
    std::deque<std::optional<std::string>> texts; // to input boxes and file dialogs, in one order
    bool prints = true;                           // what the print dialog answers
    DateTime now{20779, 34200};                   // 2026-11-22 09:30
    bool anotherInstance = false;
    std::filesystem::path folder;
    std::function<void()> meanwhile; // runs while a box with more than OK shows: the world may change
    std::string reportFailure;       // not empty: LaunchReport throws a DataError with it

    // --- What it keeps ---
    std::vector<Box> boxes; // all that were shown, oldest first
    std::vector<std::string> prompts;
    std::vector<ReportRequest> reports;
    std::vector<std::string> shell;
    std::vector<std::unique_ptr<forms::Screen>> screens; // open ones, the topmost last
    std::vector<int> arrangements;
    bool quit = false;
    int hourglass = 0; // 1 while it shows

    // The text of the oldest box not yet taken, "" when there is none.
    std::string Message() {
        if (taken_ == boxes.size()) return "";
        return boxes[taken_++].text;
    }
    template <typename T>
    T& Find(const std::string& name) {
        return dynamic_cast<T&>(*FindScreen(name));
    }

    Answer MessageBox(const Box& box) override {
        boxes.push_back(box);
        if (box.buttons == Buttons::Ok) return Answer::Ok;
        if (meanwhile) meanwhile();
        if (answers.empty()) {
            ADD_FAILURE() << "a box asks without a queued answer: " << box.text;
            return box.buttons == Buttons::AbortRetryIgnore ? Answer::Abort : Answer::Cancel;
        }
        const Answer answer = answers.front();
        answers.pop_front();
        return answer;
    }
    std::optional<std::string> InputBox(const std::string& prompt, const std::string&) override {
        return NextText(prompt);
    }
    std::optional<std::string> OpenFile(const std::string& title, const std::string&) override {
        return NextText(title);
    }
    std::optional<std::string> SaveFile(const std::string& title, const std::string&) override {
        return NextText(title);
    }
    bool PrintDialog(const std::string& title) override {
        prompts.push_back(title);
        return prints;
    }

    void Show(std::unique_ptr<forms::Screen> screen) override { ShowModal(std::move(screen), {}); }
    void ShowModal(std::unique_ptr<forms::Screen> screen, std::function<void()> then) override {
        forms::Screen& shown = *screen;
        screens.push_back(std::move(screen));
        shown.onCloseRequest = [this, &shown, then] {
            const auto at = std::ranges::find(screens, &shown, &std::unique_ptr<forms::Screen>::get);
            closed_.push_back(std::move(*at)); // lives on: the handler that closed it has not returned
            screens.erase(at);
            if (then) then();
        };
        shown.Present();
    }
    forms::Screen* FindScreen(const std::string& name) override {
        for (const auto& screen : screens)
            if (screen->Name() == name) return screen.get();
        return nullptr;
    }
    void BringToFront(forms::Screen& screen) override {
        const auto at = std::ranges::find(screens, &screen, &std::unique_ptr<forms::Screen>::get);
        std::rotate(at, at + 1, screens.end());
        screen.Act([&] { screen.Activate(); });
    }
    void Repaint(forms::Screen&) override {}
    void PopUp(forms::Menu&, forms::Control&) override {}
    void ArrangeWindows(int code) override { arrangements.push_back(code); }
    void DragMainWindow() override {}

    void LaunchReport(const ReportRequest& request) override {
        if (!reportFailure.empty()) throw ado::DataError(ado::EngineFault, reportFailure);
        reports.push_back(request);
    }
    bool OpenWithShell(const std::string& target) override {
        shell.push_back(target);
        return true;
    }
    void Hourglass(bool on) override { hourglass = on ? 1 : 0; }
    DateTime Now() override { return now; }
    bool AnotherInstanceRuns() override { return anotherInstance; }
    std::filesystem::path ProgramFolder() override { return folder; }
    void Quit() override { quit = true; }

private:
    std::optional<std::string> NextText(const std::string& prompt) {
        prompts.push_back(prompt);
        if (texts.empty()) {
            ADD_FAILURE() << "asked for a text without a queued one: " << prompt;
            return std::nullopt;
        }
        auto text = texts.front();
        texts.pop_front();
        return text;
    }

    std::vector<std::unique_ptr<forms::Screen>> closed_;
    std::size_t taken_ = 0;
};

} // namespace varnik
