#include "bench/DesktopRun.h"

#include "app/Program.h"
#include "bench/Table.h"
#include "platform/forms/Controls.h"
#include "ui/QtDesktop.h"
#include "ui/ScreenWindow.h"
#include "ui/Style.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QPaintEvent>

#include <chrono>
#include <cstdio>
#include <fstream>
#include <string>

namespace varnik::bench {

double MonotonicNow() {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

namespace {

// Lets the toolkit lay out and paint until nothing is left to do.
void Settle() {
    for (int i = 0; i < 3; ++i) {
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    }
}

double MegabytesOf(const char* field) {
    std::ifstream status("/proc/self/status");
    std::string word;
    while (status >> word)
        if (word == field) {
            double kilobytes = 0;
            status >> kilobytes;
            return kilobytes / 1024;
        }
    return 0;
}

void Open(Program& program, const std::string& key) {
    OpenScreen(program.Access(), key, "Screen");
    Settle();
}

} // namespace

namespace {

// Runs the program up to its login screen, then what is measured, logged in.
int RunProgram(const std::filesystem::path& folder, const std::function<void()>& started,
               const std::function<void(Program&, ui::QtDesktop&)>& work) {
    int count = 1;
    char name[] = "varnik";
    char* words[] = {name, nullptr};
    QApplication application(count, words);
    const Regional regional;
    ui::ApplyStyle(application);
    ui::QtDesktop desktop(folder, regional);
    Program program(desktop, regional);
    desktop.SetServices(program.Access());
    program.Start();
    forms::Screen* login = nullptr;
    while (!(login = desktop.FindScreen("fLogin")) || !desktop.WindowOf(*login)->isVisible())
        QApplication::processEvents(QEventLoop::AllEvents, 5);
    Settle();
    started();
    dynamic_cast<forms::TextControl&>(*login->FindControl("txtUserId")).SetText("varnik");
    dynamic_cast<forms::TextControl&>(*login->FindControl("txtPassword")).SetText("kemiri");
    login->Click(*login->FindControl("cmdOK"));
    Settle();
    work(program, desktop);
    desktop.DropScreens();
    return 0;
}

void PrintMemory() { std::printf("memory %f\nown %f\n", MegabytesOf("VmRSS:"), MegabytesOf("RssAnon:")); }

} // namespace

int RunDesktop(const std::filesystem::path& folder, double startedAt) {
    const auto started = [&] { std::printf("start %f\n", MonotonicNow() - startedAt); };
    return RunProgram(folder, started, [](Program& program, ui::QtDesktop& desktop) {
        for (const auto& [key, entry] : program.Access().screens) {
            if (key.starts_with("mnu")) continue;
            for (const bool first : {true, false}) {
                const double seconds = Seconds([&, of = key] { Open(program, of); });
                if (!first) std::printf("open %s %f\n", entry.name.c_str(), seconds);
                if (forms::Screen* open = desktop.FindScreen(entry.name)) open->Close();
                Settle();
            }
        }
    });
}

int RunAtRest(const std::filesystem::path& folder) {
    return RunProgram(
        folder, [] {},
        [](Program& program, ui::QtDesktop&) {
            for (const char* key : {"T01", "T02", "T04", "F01", "F02"}) Open(program, key);
            PrintMemory();
        });
}

int RunEmptyWindow(double startedAt) {
    int count = 1;
    char name[] = "empty";
    char* words[] = {name, nullptr};
    QApplication application(count, words);
    QLabel label(QStringLiteral("empty"));
    label.show();
    Settle();
    std::printf("start %f\n", MonotonicNow() - startedAt);
    PrintMemory();
    return 0;
}

} // namespace varnik::bench
