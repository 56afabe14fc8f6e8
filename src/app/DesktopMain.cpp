// varnik: the desktop program. It takes no words on its command line.

#include "app/Program.h"
#include "app/ProgramFolder.h"
#include "platform/regional/MachineRegional.h"
#include "ui/QtDesktop.h"
#include "ui/Style.h"

#include <QApplication>
#include <exception>
#include <iostream>

namespace {

// The toolkit would end the program with a page of its own words.
bool DisplayIsMissing() {
#ifdef Q_OS_LINUX
    return qEnvironmentVariableIsEmpty("DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") &&
           qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
#else
    return false;
#endif
}

int RunDesktop(QApplication& application) {
    using namespace varnik;
    const Regional machine = regional::ReadMachine();
    ui::ApplyStyle(application);
    ui::QtDesktop desktop(FindProgramFolder(), machine);
    Program program(desktop, machine);
    desktop.SetServices(program.Access());
    program.Start();
    if (!desktop.Ended()) QApplication::exec();
    desktop.DropScreens(); // they are built with the program's services
    return 0;
}

} // namespace

int main(int count, char** words) {
    if (DisplayIsMissing()) {
        std::cerr << "varnik: there is no display here (DISPLAY and WAYLAND_DISPLAY are not set).\n";
        return 1;
    }
    QApplication application(count, words);
    QApplication::setApplicationName(QStringLiteral("varnik"));
    QApplication::setDesktopFileName(QStringLiteral("varnik"));
    try {
        return RunDesktop(application);
    } catch (const std::exception& failure) {
        std::cerr << "varnik: " << failure.what() << '\n';
        return 1;
    }
}
