// Whole databases: creating, copying, restoring, checking.

#include "platform/ado/Errors.h"
#include "platform/ado/Session.h"

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

namespace varnik::ado {
namespace {

const jet::Catalog NoCatalog;

// Removes a half-made copy unless it was kept.
class HalfMade {
public:
    explicit HalfMade(std::filesystem::path file) : file_(std::move(file)) { Remove(); }
    ~HalfMade() { Remove(); }
    HalfMade(const HalfMade&) = delete;
    HalfMade& operator=(const HalfMade&) = delete;
    const std::filesystem::path& File() const { return file_; }

private:
    void Remove() const {
        std::error_code ignored;
        for (const char* tail : {"", "-journal", "-wal", "-shm"})
            std::filesystem::remove(file_.string() + tail, ignored);
    }
    std::filesystem::path file_;
};

// A renamed file has its new name for good once its folder is synced.
void SyncFolder([[maybe_unused]] const std::filesystem::path& file) {
#ifndef _WIN32
    const std::filesystem::path folder = file.has_parent_path() ? file.parent_path() : ".";
    const int handle = open(folder.c_str(), O_RDONLY | O_CLOEXEC);
    if (handle < 0) return;
    fsync(handle);
    close(handle);
#endif
}

void RequireSound(const std::filesystem::path& file) {
    const std::string complaint = CheckDatabase(file);
    if (!complaint.empty()) throw DataError(EngineFault, complaint);
}

} // namespace

void CreateDatabase(const std::filesystem::path& file) {
    ReleaseSessions(file);
    Explained(file, NoCatalog, [&] { CreateEngineFile(file); });
}

void CopyDatabase(const std::filesystem::path& from, const std::filesystem::path& to) {
    std::error_code failure;
    if (std::filesystem::equivalent(from, to, failure) && !failure)
        throw DataError(EngineFault, "A database cannot be copied onto itself.");
    const HalfMade copy(to.string() + ".tmp");
    Explained(from, NoCatalog, [&] { CopyEngineFile(from, copy.File(), false); });
    RequireSound(copy.File());
    ReleaseSessions(to);
    std::filesystem::rename(copy.File(), to, failure);
    if (failure)
        throw DataError(EngineFault, "The file \"" + to.filename().string() +
                                         "\" cannot be written: " + failure.message() + ".");
    SyncFolder(to);
}

void RestoreDatabase(const std::filesystem::path& from, const std::filesystem::path& to) {
    RequireSound(from);
    Explained(to, NoCatalog, [&] { CopyEngineFile(from, to, true); });
    ReleaseSessions(to);
    NoteForeignWrite(to);
}

std::string CheckDatabase(const std::filesystem::path& file) {
    try {
        const std::string found = Explained(file, NoCatalog, [&] { return CheckEngineFile(file); });
        if (found.empty()) return {};
        return "The database \"" + file.filename().string() + "\" is damaged: " + found;
    } catch (const DataError& error) {
        return error.Description();
    }
}

} // namespace varnik::ado
