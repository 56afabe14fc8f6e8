#pragma once
// The desktop of the program in windows: what Desktop promises, by Qt.

#include "common/Regional.h"
#include "platform/desktop/Desktop.h"

#include <QObject>
#include <QPointer>
#include <filesystem>
#include <functional>
#include <memory>
#include <vector>

class QLockFile;
class QWidget;

namespace varnik {
struct Services;
}

namespace varnik::ui {

class ScreenWindow;

class QtDesktop : public Desktop {
public:
    QtDesktop(std::filesystem::path programFolder, const Regional& regional);
    ~QtDesktop() override;

    Answer MessageBox(const Box& box) override;
    std::optional<std::string> InputBox(const std::string& prompt, const std::string& title) override;
    std::optional<std::string> OpenFile(const std::string& title, const std::string& filter) override;
    std::optional<std::string> SaveFile(const std::string& title, const std::string& filter) override;
    bool PrintDialog(const std::string& title) override;

    void Show(std::unique_ptr<forms::Screen> screen) override;
    void ShowModal(std::unique_ptr<forms::Screen> screen, std::function<void()> then) override;
    forms::Screen* FindScreen(const std::string& name) override;
    void BringToFront(forms::Screen& screen) override;
    void Repaint(forms::Screen& screen) override;
    void PopUp(forms::Menu& menu, forms::Control& below) override;
    void ArrangeWindows(int code) override;
    void DragMainWindow() override;

    std::unique_ptr<Waiting> Wait(const std::string& doing) override;
    void LaunchReport(const ReportRequest& request) override;
    bool OpenWithShell(const std::string& target) override;
    void Hourglass(bool on) override;
    DateTime Now() override;
    bool AnotherInstanceRuns() override;
    std::filesystem::path ProgramFolder() override { return programFolder_; }
    void Quit() override;

    // What reports are opened with; until it is set a report is a DataError.
    void SetServices(Services& services) { services_ = &services; }
    // Takes all windows away, as before what their screens were built with goes.
    void DropScreens();
    // Whether the program was told to end, perhaps before its event loop began.
    bool Ended() const { return ended_; }
    ScreenWindow* WindowOf(const forms::Screen& screen) const;
    ScreenWindow* WindowOf(const std::string& screenName) const;

private:
    void Open(std::unique_ptr<forms::Screen> screen, bool modal, std::function<void()> then);
    void Closed(ScreenWindow& window, std::function<void()> then);
    std::vector<ScreenWindow*> Windows() const; // in the order of opening
    QWidget* Front() const;                     // what a box belongs to

    std::filesystem::path programFolder_;
    const Regional& regional_;
    std::vector<QPointer<ScreenWindow>> windows_;
    std::vector<QPointer<QWidget>> previews_;
    std::unique_ptr<QLockFile> lock_;
    Services* services_ = nullptr;
    QObject later_; // what is queued goes with it
    int pending_ = 0;
    bool hourglass_ = false;
    bool ended_ = false;
};

} // namespace varnik::ui
