#include "app/ProgramFolder.h"

#include "platform/desktop/Machine.h"

namespace fs = std::filesystem;

namespace varnik {

namespace {

void BringShipped(const fs::path& folder, std::initializer_list<const char*> parts,
                  fs::copy_options existing) {
    const fs::path installation = ExecutableFolder();
    for (const char* part : parts)
        if (fs::exists(installation / part) && !fs::equivalent(installation, folder))
            fs::copy(installation / part, folder / part, fs::copy_options::recursive | existing);
}

} // namespace

fs::path FindProgramFolder() {
    const fs::path installation = ExecutableFolder();
    if (CanWrite(installation)) return installation;
    const fs::path own = UserDataFolder();
    fs::create_directories(own);
    BringShipped(own, {"Report", "Help"}, fs::copy_options::update_existing);
    return own;
}

fs::path PrepareProgramFolder(const fs::path& folder) {
    const fs::path whole = fs::absolute(folder).lexically_normal();
    fs::create_directories(whole);
    BringShipped(whole, {"Report"}, fs::copy_options::skip_existing);
    return whole;
}

} // namespace varnik
