#pragma once
// What both programs ask of the operating system: where they stand, where they may write, and whether
// another one runs. The one file here that differs from system to system.

#include <filesystem>
#include <memory>

namespace varnik {

// The folder that the running program was started from.
std::filesystem::path ExecutableFolder();
// The user's own data folder for this program ("~/.local/share/varnik"); not made here.
std::filesystem::path UserDataFolder();
// Whether this user can make files in a folder that exists.
bool CanWrite(const std::filesystem::path& folder);

// Held by the first program of a folder on this machine as long as its process lives, however it ends.
// Programs of other machines on a shared folder do not count: they wait for each other in the data.
class InstanceLock {
public:
    explicit InstanceLock(const std::filesystem::path& programFolder);
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;
    bool Held() const { return held_; } // false: another program of this folder runs

private:
    int file_ = -1;
    bool held_ = false;
};

} // namespace varnik
