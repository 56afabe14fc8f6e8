#include "platform/desktop/Services.h"

namespace varnik {

std::unique_ptr<Waiting> Desktop::Wait(const std::string&) { return std::make_unique<Waiting>(); }

ado::RowList ReadList(Services& services, const std::string& sql, ado::Connection& connection) {
    const std::unique_ptr<Waiting> waiting = services.desktop.Wait("Looking for rows ...");
    return {sql, connection, [&] { return waiting->GoOn(); }};
}

void OpenScreen(Services& services, const std::string& key, const std::string& caption) {
    const auto entry = services.screens.find(key);
    if (entry == services.screens.end() || !entry->second.make) {
        services.desktop.MessageBox(
            {.text = "\"" + caption + "\" is not part of this program yet.", .icon = Icon::Information});
        return;
    }
    if (forms::Screen* open = services.desktop.FindScreen(entry->second.name))
        services.desktop.BringToFront(*open);
    else
        services.desktop.Show(entry->second.make(services));
}

} // namespace varnik
