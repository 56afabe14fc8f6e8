#pragma once
// Who may log in, with which four rights and which leaves of the menu. Whoever can open the menu reaches
// it, and its buttons ask for no right: wanted.
//
// The user's code, not the name, decides between a new and an existing user, and it is the code that
// SecurityUser keeps in its column UserID.

#include "platform/desktop/ProgramScreen.h"

#include <optional>

namespace varnik {

class fuser : public ProgramScreen {
public:
    explicit fuser(Services& services);
    void Load() override;

    forms::TextBox txtUserId{*this, "txtUserId", "&User Name"};
    forms::TextBox TxtNoUser{*this, "TxtNoUser", "User C&ode"};
    forms::TextBox txtPass{*this, "txtPass", "&Password"};
    forms::CheckBox Tambah{*this, "Tambah", "Add"};
    forms::CheckBox Lihat{*this, "Lihat", "View"};
    forms::CheckBox Ganti{*this, "Ganti", "Edit"};
    forms::CheckBox Hapus{*this, "Hapus", "Delete"};
    forms::ListGrid grdCari{*this, "grdCari"};
    forms::Button bttnAdd{*this, "bttnAdd", "&Add"};
    forms::Button bttnEdit{*this, "bttnEdit", "&Edit"};
    forms::Button bttnDelete{*this, "bttnDelete", "&Delete"};
    forms::Button bttnFind{*this, "bttnFind", "&Find"};
    forms::Button bttnOK{*this, "bttnOK", "Sa&ve"};
    forms::Button bttnCancel{*this, "bttnCancel", "&Cancel"};
    forms::Button bttnClose{*this, "bttnClose", "C&lose"};

private:
    void Browse();
    void Edit();
    void EnableFields(bool enabled);
    void ClearFields();
    void ShowUser();
    void ShowFields(ado::Recordset& user);
    void RefreshRights();
    void FillGrid(const std::function<bool(const std::string& menu)>& granted);
    void FindCode(const std::string& code);
    void BackToShown();
    void SaveUser();
    void AddClick();
    void EditClick();
    void OkClick();
    void CancelClick();
    void DeleteClick();
    void FindClick();

    ado::Connection connection_;
    ado::Recordset users_, menus_;
    std::optional<std::string> shown_; // the code of the user on screen
    bool editing_ = false;
};

} // namespace varnik
