// Whole databases: creating, copying, restoring, checking.

#include "platform/ado/Errors.h"
#include "platform/ado/Session.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

namespace varnik::ado {
namespace {

const jet::Catalog NoCatalog;

void RemoveLogs(const std::filesystem::path& file) {
    std::error_code ignored;
    for (const char* tail : {"-journal", "-wal", "-shm"})
        std::filesystem::remove(file.string() + tail, ignored);
}

void RemoveWithLogs(const std::filesystem::path& file) {
    std::error_code ignored;
    std::filesystem::remove(file, ignored);
    RemoveLogs(file);
}

// Removes a half-made copy unless it was kept.
class HalfMade {
public:
    explicit HalfMade(std::filesystem::path file) : file_(std::move(file)) { RemoveWithLogs(file_); }
    ~HalfMade() { RemoveWithLogs(file_); }
    HalfMade(const HalfMade&) = delete;
    HalfMade& operator=(const HalfMade&) = delete;
    const std::filesystem::path& File() const { return file_; }

private:
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

// What is wrong with a file, or with its copy, in the file's own name.
std::string Complaint(const std::filesystem::path& file, const std::filesystem::path& copy) {
    try {
        const std::string found = Explained(file, NoCatalog, [&] { return CheckEngineFile(copy); });
        if (found.empty()) return {};
        return "The database \"" + file.filename().string() + "\" is damaged: " + found;
    } catch (const DataError& error) {
        return error.Description();
    }
}

void RequireSound(const std::filesystem::path& file, const std::filesystem::path& copy) {
    const std::string complaint = Complaint(file, copy);
    if (!complaint.empty()) throw DataError(EngineFault, complaint);
}

void RequireWritable(const std::filesystem::path& file, const std::string& name) {
    if (std::FILE* stream = std::fopen(file.string().c_str(), "wb")) {
        std::fclose(stream);
        return;
    }
    throw DataError(EngineFault, "The file " + name +
                                     " cannot be written: " + std::generic_category().message(errno) + ".");
}

} // namespace

void CreateDatabase(const std::filesystem::path& file) {
    ReleaseSessions(file);
    Explained(file, NoCatalog, [&] { CreateEngineFile(file); });
}

void CopyDatabase(const std::filesystem::path& from, const std::filesystem::path& to) {
    const std::string name = "\"" + to.filename().string() + "\"";
    std::error_code failure;
    if (std::filesystem::equivalent(from, to, failure) && !failure)
        throw DataError(EngineFault, "A database cannot be copied onto itself.");
    const HalfMade copy(to.string() + ".tmp");
    RequireWritable(copy.File(), name);
    try {
        CopyEngineFile(from, copy.File(), false);
    } catch (const EngineError& error) {
        // The copy alone is written to.
        if (error.fault == Fault::Full)
            throw DataError(EngineFault, "The disk is full: the file " + name + " was not written.");
        if (error.fault == Fault::Input)
            throw DataError(EngineFault, "Reading the database \"" + from.filename().string() +
                                             "\" or writing the file " + name + " failed: " + error.detail +
                                             ".");
        throw Explain(error, from, NoCatalog);
    }
    RequireSound(from, copy.File());
    ReleaseSessions(to);
    RemoveLogs(to); // those of a file that is replaced would be taken for the new one's
    std::filesystem::rename(copy.File(), to, failure);
    if (failure)
        throw DataError(EngineFault, "The file " + name + " cannot be written: " + failure.message() + ".");
    SyncFolder(to);
}

void RestoreDatabase(const std::filesystem::path& from, const std::filesystem::path& to) {
    RequireSound(from, from);
    Explained(to, NoCatalog, [&] { CopyEngineFile(from, to, true); });
    ReleaseSessions(to);
    NoteForeignWrite(to);
}

std::string CheckDatabase(const std::filesystem::path& file) { return Complaint(file, file); }

} // namespace varnik::ado
