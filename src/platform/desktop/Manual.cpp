#include "platform/desktop/Manual.h"

namespace varnik {

bool OpenManual(Desktop& desktop, const std::string& page) {
    if (desktop.OpenWithShell("help.exe")) return true;
    const std::string manual = (desktop.ProgramFolder() / "Help" / page).string();
    if (desktop.OpenWithShell(manual)) return true;
    desktop.MessageBox({.text = "The manual is not there: " + manual});
    return false;
}

} // namespace varnik
