#pragma once
// Asks who works here. A good password fills the session with the user's name, number and four rights;
// the fourth failure ends the program without a word.

#include "platform/desktop/ProgramScreen.h"

namespace varnik {

class fLogin : public ProgramScreen {
public:
    explicit fLogin(Services& services);
    void Load() override;

    forms::Image ImgLogin{*this, "ImgLogin"};
    forms::Label Label1{*this, "Label1", "&User Name"};
    forms::TextBox txtUserId{*this, "txtUserId"};
    forms::Label Label2{*this, "Label2", "&Password"};
    forms::TextBox txtPassword{*this, "txtPassword"};
    forms::Button cmdOK{*this, "cmdOK", "OK"};
    forms::Button cmdBatal{*this, "cmdBatal", "Cancel"};

private:
    void OkClick();
    void CancelClick();
    void Admit(ado::Recordset& user);
    void Refuse(const std::string& text, forms::TextBox& field);

    ado::Connection connection_;
    ado::Recordset users_; // opened with the screen; nothing reads it
    int attempts_ = 0;
};

} // namespace varnik
