#pragma once
// What every screen is built with: who works here, the desktop, the data, the machine's settings, and the
// table of screens that app/ fills, so that the main window opens a screen without knowing it.

#include "common/Regional.h"
#include "common/Session.h"
#include "platform/ado/Ado.h"
#include "platform/desktop/Desktop.h"

#include <functional>
#include <map>
#include <memory>
#include <string>

namespace varnik {

struct Services;
namespace registry {
class Registry;
}

struct ScreenEntry {
    std::string name; // of the screen: "Invoice"
    std::function<std::unique_ptr<forms::Screen>(Services&)> make;
};

struct Services {
    Session& session;
    Desktop& desktop;
    const ado::Environment& data;
    const Regional& regional;
    registry::Registry& registry;
    std::map<std::string, ScreenEntry> screens{}; // by menu key ("T01") or menu item ("mnuToolUser")
};

// The rows of a list. One that takes long the person may stop: DataError Stopped.
ado::RowList ReadList(Services& services, const std::string& sql, ado::Connection& connection);

// Opens the screen of a key modeless, or brings the open one to the front. A key whose screen is not built
// says so in a message and does nothing else.
void OpenScreen(Services& services, const std::string& key, const std::string& caption);

} // namespace varnik
