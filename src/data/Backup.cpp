#include "data/Backup.h"

#include "common/Files.h"
#include "common/Text.h"
#include "data/Bootstrap.h"
#include "data/DataSource.h"

namespace varnik::data {
namespace {

namespace fs = std::filesystem;

constexpr const char* LogTails[] = {"", "-wal", "-shm", "-journal"};

// A copy for the time of the check, gone afterwards.
class Candidate {
public:
    explicit Candidate(fs::path file) : file_(std::move(file)) { Remove(); }
    ~Candidate() { Remove(); }
    Candidate(const Candidate&) = delete;
    Candidate& operator=(const Candidate&) = delete;
    const fs::path& File() const { return file_; }

private:
    void Remove() const {
        ado::ReleaseDatabase(file_);
        std::error_code ignored;
        for (const char* tail : LogTails) fs::remove(file_.string() + tail, ignored);
    }
    fs::path file_;
};

// "Varnik before restore 2026-11-22 093000.bck", with a number when there is one already.
fs::path NameForTheOld(const fs::path& target, DateTime now) {
    const std::string name =
        PathText(target.stem()) + " before restore " + FormatDate(now, "yyyy-mm-dd hhmmss");
    const auto numbered = [&](int number) {
        const std::string tail = number == 1 ? "" : " (" + std::to_string(number) + ")";
        return target.parent_path() / MatchPath(name + tail + ".bck");
    };
    int number = 1;
    std::error_code ignored;
    while (fs::exists(numbered(number), ignored)) ++number;
    return numbered(number);
}

// A damaged database, which may be why there is a restore, is kept as it stands.
void KeepAside(const fs::path& target, const fs::path& aside) {
    try {
        ado::CopyDatabase(target, aside);
    } catch (const ado::DataError&) {
        if (ado::CheckDatabase(target).empty()) throw;
        std::error_code missing; // most have no log beside them
        fs::copy_file(target, aside);
        fs::copy_file(target.string() + "-wal", aside.string() + "-wal", missing);
    }
}

} // namespace

void BackUp(const Services& services, const fs::path& to) {
    ado::CopyDatabase(DatabaseFile(services.desktop.ProgramFolder()), to);
}

void Restore(const Services& services, const fs::path& from) {
    const fs::path target = fs::absolute(MatchPath("Varnik.MDB"));
    std::error_code none;
    if (fs::equivalent(from, target, none) && !none)
        throw ado::DataError(ado::EngineFault, "A database cannot be restored from itself.");

    // The check opens a copy, so that the backup stays as it is, on a read-only medium too.
    const Candidate candidate(target.string() + ".restore");
    ado::CopyDatabase(from, candidate.File());
    if (const std::string fault = WhatIsMissing(services.data, candidate.File()); !fault.empty())
        throw ado::DataError(ado::EngineFault,
                             "\"" + PathText(from) + "\" is not a database of this program: " + fault);
    ado::ReleaseDatabase(candidate.File());

    if (!fs::exists(target)) {
        ado::CopyDatabase(candidate.File(), target);
        return;
    }
    const fs::path aside = NameForTheOld(target, services.desktop.Now());
    KeepAside(target, aside);
    try {
        ado::RestoreDatabase(candidate.File(), target);
    } catch (const ado::DataError&) {
        if (ado::CheckDatabase(target).empty()) { // it is as it was
            fs::remove(aside, none);
            throw;
        }
        // Damaged too badly to take the content: the whole file is replaced.
        ado::CopyDatabase(candidate.File(), target);
    }
}

} // namespace varnik::data
