#pragma once
// Points the data source "Varnik" at another database file. The next connection uses it; the next start
// goes back to the program's own.

#include "platform/desktop/ProgramScreen.h"

namespace varnik {

class f_CreateDSN : public ProgramScreen {
public:
    explicit f_CreateDSN(Services& services);
    void Load() override;

    forms::Frame Frame1{*this, "Frame1", "Database"};
    forms::Label Label1{*this, "Label1", "Database &File"};
    forms::TextBox Text1{*this, "Text1"};
    forms::Button Command4{*this, "Command4", "&Browse..."};
    forms::Frame Frame2{*this, "Frame2", "Kind of data source"};
    forms::OptionButton Option0[3] = {{*this, "Option0(0)", "&User data source"},
                                      {*this, "Option0(1)", "&System data source"},
                                      {*this, "Option0(2)", "&Access file"}};
    forms::Button cmdCreate{*this, "cmdCreate", "&Create"};
    forms::Button cmdModify{*this, "cmdModify", "&Modify"};
    forms::Button cmdDelete{*this, "cmdDelete", "&Delete"};
    forms::Button cmdVerify{*this, "cmdVerify", "&Verify"};
    forms::Button cmdShowOM{*this, "cmdShowOM", "Data S&ources..."};

private:
    // The requests of clsOdbc for one user; those for the whole machine are three higher.
    enum class Work { Change = 2, Remove = 3 };
    void CreateClick();
    void BrowseClick();
    void VerifyClick();
    void ShowDataSources();
    void Configure(Work work);
};

} // namespace varnik
