#pragma once
// Copies the database to a file of the user's choice, and back.

#include "platform/desktop/ProgramScreen.h"

namespace varnik {

class frmBackup : public ProgramScreen {
public:
    explicit frmBackup(Services& services);

    forms::Button cmdBackUp{*this, "cmdBackUp", "&Back UP"};
    forms::Button cmdRestore{*this, "cmdRestore", "&Restore"};

private:
    void BackUpClick();
    void RestoreClick();
};

} // namespace varnik
