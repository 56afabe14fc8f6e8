#include "console/ConsoleDesktop.h"

#include "console/Script.h"
#include "platform/desktop/Failure.h"
#include "platform/forms/Controls.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <ctime>
#include <system_error>

namespace varnik::console {

namespace {

constexpr std::array<std::pair<Answer, std::string_view>, 7> answerNames = {{{Answer::Ok, "ok"},
                                                                             {Answer::Cancel, "cancel"},
                                                                             {Answer::Yes, "yes"},
                                                                             {Answer::No, "no"},
                                                                             {Answer::Abort, "abort"},
                                                                             {Answer::Retry, "retry"},
                                                                             {Answer::Ignore, "ignore"}}};

std::vector<Answer> ButtonsOf(Buttons buttons) {
    switch (buttons) {
    case Buttons::Ok:
        return {Answer::Ok};
    case Buttons::OkCancel:
        return {Answer::Ok, Answer::Cancel};
    case Buttons::YesNo:
        return {Answer::Yes, Answer::No};
    case Buttons::YesNoCancel:
        return {Answer::Yes, Answer::No, Answer::Cancel};
    case Buttons::AbortRetryIgnore:
        return {Answer::Abort, Answer::Retry, Answer::Ignore};
    }
    return {};
}

} // namespace

std::optional<Answer> AnswerNamed(std::string_view word) {
    for (const auto& [answer, name] : answerNames)
        if (name == word) return answer;
    return std::nullopt;
}

std::string NameOf(Answer answer) {
    for (const auto& [known, name] : answerNames)
        if (known == answer) return std::string(name);
    return "";
}

std::string NameOf(Icon icon) {
    switch (icon) {
    case Icon::None:
        break;
    case Icon::Information:
        return "information";
    case Icon::Exclamation:
        return "exclamation";
    case Icon::Question:
        return "question";
    case Icon::Critical:
        return "critical";
    }
    return "none";
}

std::string NameOf(Buttons buttons) {
    std::string names;
    for (Answer answer : ButtonsOf(buttons)) names += (names.empty() ? "" : " ") + NameOf(answer);
    return names;
}

ConsoleDesktop::ConsoleDesktop(std::filesystem::path programFolder) : folder_(std::move(programFolder)) {}

ConsoleDesktop::~ConsoleDesktop() = default;

// ---- Screens ----

std::vector<forms::Screen*> ConsoleDesktop::Screens() const {
    std::vector<forms::Screen*> screens;
    for (const Shown& shown : pile_) screens.push_back(shown.screen.get());
    return screens;
}

void ConsoleDesktop::Show(std::unique_ptr<forms::Screen> screen) {
    Place({.screen = std::move(screen), .modal = false, .then = {}});
}

void ConsoleDesktop::ShowModal(std::unique_ptr<forms::Screen> screen, std::function<void()> then) {
    Place({.screen = std::move(screen), .modal = true, .then = std::move(then)});
}

void ConsoleDesktop::Place(Shown shown) {
    forms::Screen& screen = *shown.screen;
    pile_.push_back(std::move(shown));
    ReportFailures(screen, *this);
    screen.onCloseRequest = [this, &screen] { TakeAway(screen); };
    screen.onFocusChanged = [this, &screen] { keyboard_.FocusMoved(screen); };
    for (forms::Control* control : screen.Controls())
        if (auto* field = dynamic_cast<forms::TextControl*>(control))
            field->selectAll = [this, field] { keyboard_.SelectAll(*field); };
    screen.Present();
    TellFront();
}

// The screen that has come to the front hears of it once.
void ConsoleDesktop::TellFront() {
    forms::Screen* const top = Top();
    if (top == front_) return;
    front_ = top;
    if (top) top->Act([top] { top->Activate(); });
}

void ConsoleDesktop::TakeAway(forms::Screen& screen) {
    const auto at = std::ranges::find_if(pile_, [&](const Shown& s) { return s.screen.get() == &screen; });
    if (at == pile_.end()) return;
    keyboard_.ScreenGone(screen);
    if (front_ == &screen) front_ = nullptr;
    closed_.push_back(std::move(at->screen));
    if (at->then) waiting_.push_back(std::move(at->then));
    pile_.erase(at);
}

forms::Screen* ConsoleDesktop::FindScreen(const std::string& name) {
    for (const Shown& shown : pile_)
        if (shown.screen->Name() == name) return shown.screen.get();
    return nullptr;
}

void ConsoleDesktop::BringToFront(forms::Screen& screen) {
    const auto at = std::ranges::find_if(pile_, [&](const Shown& s) { return s.screen.get() == &screen; });
    if (at == pile_.end() || at + 1 == pile_.end()) return;
    std::rotate(at, at + 1, pile_.end());
    TellFront();
}

void ConsoleDesktop::ComeForward(forms::Screen& screen) {
    // The newest modal screen keeps the person on it.
    for (auto shown = pile_.rbegin(); shown != pile_.rend(); ++shown) {
        if (!shown->modal) continue;
        if (shown->screen.get() != &screen)
            throw ScriptError{screen.Name() + " waits until " + shown->screen->Name() + " is closed"};
        break;
    }
    BringToFront(screen);
}

void ConsoleDesktop::Settle() {
    while (!waiting_.empty()) {
        const std::function<void()> next = std::move(waiting_.front());
        waiting_.pop_front();
        std::string failure;
        if (!Resume(next, &failure)) MessageBox({.text = failure, .icon = Icon::Critical});
    }
    if (!running_) {
        for (Shown& shown : pile_) closed_.push_back(std::move(shown.screen));
        pile_.clear();
    }
    for (const auto& screen : closed_) keyboard_.ScreenGone(*screen);
    while (!closed_.empty()) closed_.pop_back(); // the newest first: an older one may have opened it
    poppedUp_ = nullptr;
    TellFront();
}

void ConsoleDesktop::Quit() {
    running_ = false;
    waiting_.clear();
}

// ---- Boxes and dialogs ----

ConsoleDesktop::QueuedAnswer ConsoleDesktop::NextAnswer(QueuedAnswer::Kind kind,
                                                        const std::string& question) {
    if (answers.empty()) throw ScriptError{"a box asks and no answer is queued: \"" + question + "\""};
    QueuedAnswer answer = std::move(answers.front());
    answers.pop_front();
    const bool cancelled = answer.kind == QueuedAnswer::Kind::Button && answer.button == Answer::Cancel;
    if (answer.kind != kind && !cancelled)
        throw ScriptError{"the answer queued next does not fit this question: \"" + question + "\""};
    return answer;
}

Answer ConsoleDesktop::MessageBox(const Box& box) {
    boxes.push_back(box);
    if (box.buttons == Buttons::Ok) return Answer::Ok;
    const Answer answer = NextAnswer(QueuedAnswer::Kind::Button, box.text).button;
    const std::vector<Answer> buttons = ButtonsOf(box.buttons);
    if (std::ranges::find(buttons, answer) == buttons.end())
        throw ScriptError{"the box has no button \"" + NameOf(answer) + "\": \"" + box.text + "\""};
    return answer;
}

std::optional<std::string> ConsoleDesktop::AskText(QueuedAnswer::Kind kind, const std::string& question) {
    prompts.push_back(question);
    const QueuedAnswer answer = NextAnswer(kind, question);
    if (answer.kind == QueuedAnswer::Kind::Button) return std::nullopt;
    return answer.text;
}

std::optional<std::string> ConsoleDesktop::InputBox(const std::string& prompt, const std::string&) {
    return AskText(QueuedAnswer::Kind::Text, prompt);
}

std::optional<std::string> ConsoleDesktop::OpenFile(const std::string& title, const std::string&) {
    return AskText(QueuedAnswer::Kind::File, title);
}

std::optional<std::string> ConsoleDesktop::SaveFile(const std::string& title, const std::string&) {
    return AskText(QueuedAnswer::Kind::File, title);
}

bool ConsoleDesktop::PrintDialog(const std::string& title) {
    prompts.push_back(title);
    return NextAnswer(QueuedAnswer::Kind::Button, title).button == Answer::Ok;
}

// ---- What leaves the program ----

void ConsoleDesktop::LaunchReport(const ReportRequest& request) {
    if (launch) launch(request);
}

// As a shell does: web pages and mail go out, a file only when it is there, beside the program or anywhere.
bool ConsoleDesktop::OpenWithShell(const std::string& target) {
    const bool link = target.find("://") != std::string::npos || target.starts_with("mailto:");
    std::error_code ignored;
    if (!link && !std::filesystem::exists(folder_ / target, ignored)) return false;
    shell.push_back(target);
    return true;
}

DateTime ConsoleDesktop::Now() {
    if (clock) return *clock;
    const std::time_t seconds = std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
    const std::tm local = *std::localtime(&seconds);
    return MakeDate(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
                    local.tm_hour * 3600 + local.tm_min * 60 + std::min(local.tm_sec, 59))
        .value();
}

} // namespace varnik::console
