#include "platform/desktop/Machine.h"

#include <cstdlib>

#include <unistd.h>

namespace fs = std::filesystem;

namespace varnik {

fs::path ExecutableFolder() {
    std::error_code failure;
    const fs::path program = fs::read_symlink("/proc/self/exe", failure);
    return failure ? fs::current_path() : program.parent_path();
}

fs::path UserDataFolder() {
    if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data) return fs::path(data) / "varnik";
    const char* home = std::getenv("HOME");
    return fs::path(home && *home ? home : ".") / ".local/share/varnik";
}

bool CanWrite(const fs::path& folder) { return ::access(folder.c_str(), W_OK | X_OK) == 0; }

} // namespace varnik
