#include "platform/desktop/Machine.h"

#include <cstdint>
#include <cstdlib>
#include <string>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace varnik {

namespace {

// The lock file's name must not change between builds, as that of std::hash may.
std::string Fingerprint(const std::string& text) {
    std::uint64_t hash = 14695981039346656037ULL; // FNV-1a
    for (unsigned char byte : text) hash = (hash ^ byte) * 1099511628211ULL;
    return std::to_string(hash);
}

// Locks and files that the user's programs share lie in a folder of this machine alone.
fs::path LockFile(const fs::path& programFolder) {
    std::error_code failure;
    fs::path folder = fs::weakly_canonical(programFolder, failure);
    if (failure) folder = programFolder;
    return fs::temp_directory_path() / ("varnik-" + Fingerprint(folder.string()) + ".lock");
}

} // namespace

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

InstanceLock::InstanceLock(const fs::path& programFolder) {
    const fs::path name = LockFile(programFolder);
    file_ = ::open(name.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0666);
    if (file_ < 0) file_ = ::open(name.c_str(), O_RDONLY | O_CLOEXEC); // another user's
    // Where no file can be had at all, nothing is known of another program, and the user may work.
    held_ = file_ < 0 || ::flock(file_, LOCK_EX | LOCK_NB) == 0;
}

InstanceLock::~InstanceLock() {
    if (file_ >= 0) ::close(file_);
}

} // namespace varnik
