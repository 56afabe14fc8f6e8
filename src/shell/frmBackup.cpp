#include "shell/frmBackup.h"

#include "common/Files.h"
#include "data/Backup.h"
#include "platform/desktop/Failure.h"

namespace varnik {

namespace {

constexpr const char* Filter = "Backup files (*.bck) |*.bck|";

// The hourglass for the time of a copy.
class HourglassShown {
public:
    explicit HourglassShown(Desktop& desktop) : desktop_(desktop) { desktop_.Hourglass(true); }
    ~HourglassShown() { desktop_.Hourglass(false); }
    HourglassShown(const HourglassShown&) = delete;
    HourglassShown& operator=(const HourglassShown&) = delete;

private:
    Desktop& desktop_;
};

} // namespace

frmBackup::frmBackup(Services& services) : ProgramScreen(services, "frmBackup", "Back Up and Restore Files") {
    cmdBackUp.onClick = [this] { BackUpClick(); };
    cmdRestore.onClick = [this] { RestoreClick(); };
}

void frmBackup::BackUpClick() {
    const auto name = Desk().SaveFile("Back Up", Filter);
    if (!name) return;
    const bool copied = Reported(Desk(), [&] {
        const HourglassShown waiting(Desk());
        data::BackUp(services_, MatchPath(*name));
    });
    if (copied) Say("Backup Completed!!");
}

void frmBackup::RestoreClick() {
    const auto name = Desk().OpenFile("Restore", Filter);
    if (!name || !Ask("Are you sure you want to restore the database")) return;
    const bool restored = Reported(Desk(), [&] {
        const HourglassShown waiting(Desk());
        data::Restore(services_, MatchPath(*name));
    });
    if (restored) Say("Database has been fully restored!!");
}

} // namespace varnik
