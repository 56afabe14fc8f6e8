#pragma once
// Everything that leaves the program: boxes, dialogs, windows, the printer, the shell, the clock. The
// desktop and the console implement it, tests queue answers.

#include "common/DateTime.h"
#include "platform/desktop/ReportRequest.h"
#include "platform/forms/Screen.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace varnik {

namespace forms {
class Menu;
class Control;
} // namespace forms

enum class Answer { Ok, Cancel, Yes, No, Abort, Retry, Ignore };
enum class Buttons { Ok, OkCancel, YesNo, YesNoCancel, AbortRetryIgnore };
enum class Icon { None, Information, Exclamation, Question, Critical };

struct Box {
    std::string text;
    std::string title = "Varnik"; // the application's title
    Icon icon = Icon::None;
    Buttons buttons = Buttons::Ok;
};

// Long work under way. It is asked now and then whether it is to go on.
class Waiting {
public:
    virtual ~Waiting() = default;
    virtual bool GoOn() { return true; } // false when the person stopped it
};

class Desktop {
public:
    virtual ~Desktop() = default;

    virtual Answer MessageBox(const Box& box) = 0;
    // Nothing when the person cancelled.
    virtual std::optional<std::string> InputBox(const std::string& prompt, const std::string& title) = 0;
    // Filter as "Backup files (*.bck)|*.bck"; nothing when cancelled. UTF-8 paths.
    virtual std::optional<std::string> OpenFile(const std::string& title, const std::string& filter) = 0;
    virtual std::optional<std::string> SaveFile(const std::string& title, const std::string& filter) = 0;
    virtual bool PrintDialog(const std::string& title) = 0;

    // Takes the screen, calls its Load, shows it, gives the focus to its first control. ShowModal keeps
    // the person on it; `then` runs after it closed. Neither waits.
    virtual void Show(std::unique_ptr<forms::Screen> screen) = 0;
    virtual void ShowModal(std::unique_ptr<forms::Screen> screen, std::function<void()> then) = 0;
    virtual forms::Screen* FindScreen(const std::string& name) = 0; // open ones; null when none
    virtual void BringToFront(forms::Screen& screen) = 0;
    virtual void Repaint(forms::Screen& screen) = 0; // at once, for a splash before long work
    virtual void PopUp(forms::Menu& menu, forms::Control& below) = 0;
    virtual void ArrangeWindows(int code) = 0; // 0 cascade, 1 and 2 tile, 3 icons
    virtual void DragMainWindow() = 0;         // follows the pressed mouse; nothing while maximised

    // For as long as it lives, work is under way that may take a while: after a moment the person sees what
    // is being done and can stop it. Nobody is asked where there is no person.
    virtual std::unique_ptr<Waiting> Wait(const std::string& doing);

    // Opens a preview. DataError when the definition is missing or a formula is broken.
    virtual void LaunchReport(const ReportRequest& request) = 0;

    virtual bool OpenWithShell(const std::string& target) = 0; // file, web page, mailto:
    virtual void Hourglass(bool on) = 0;
    virtual DateTime Now() = 0;
    virtual bool AnotherInstanceRuns() = 0;
    virtual std::filesystem::path ProgramFolder() = 0; // holds Data and Report
    virtual void Quit() = 0;                           // every screen goes, without a question
};

} // namespace varnik
