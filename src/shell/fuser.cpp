#include "shell/fuser.h"

#include "platform/desktop/Failure.h"

namespace varnik {

namespace {

constexpr int MenuColumn = 0, GrantedColumn = 3;
constexpr const char* AllUsers = "SELECT * FROM t_user";
constexpr const char* AllMenus = "Select MenuID,NamaMenu,Ket From MenuList order by menuid ";

} // namespace

fuser::fuser(Services& services)
    : ProgramScreen(services, "fuser", "Setup User"), connection_(services.data) {
    grdCari.SetCaption("Access");
    grdCari.SetColumns({{"Menu", forms::Align::Left, 6},
                        {"Name", forms::Align::Left, 28},
                        {"Remark", forms::Align::Left, 10},
                        {"Access", forms::Align::Center, 7}});
    grdCari.SetCheckColumn(GrantedColumn);
    txtUserId.onChange = [this] {
        if (editing_) RefreshRights();
    };
    bttnAdd.onClick = [this] { AddClick(); };
    bttnEdit.onClick = [this] { EditClick(); };
    bttnDelete.onClick = [this] { DeleteClick(); };
    bttnFind.onClick = [this] { FindClick(); };
    bttnOK.onClick = [this] { OkClick(); };
    bttnCancel.onClick = [this] { CancelClick(); };
    bttnClose.onClick = [this] { Close(); };
    SetCancel(&bttnCancel);
}

void fuser::Load() {
    connection_.Open(Sess().ConnectionString);
    users_.Open(AllUsers, connection_, ado::CursorType::Static);
    menus_.Open(AllMenus, connection_, ado::CursorType::Static);
    Browse();
    // Until a user is shown every menu shows as granted: wanted.
    FillGrid([](const std::string&) { return true; });
}

void fuser::Browse() {
    editing_ = false;
    for (forms::Button* button : {&bttnAdd, &bttnEdit, &bttnDelete, &bttnFind, &bttnClose})
        button->SetVisible(true);
    if (Focused()) SetFocus(bttnAdd);
    for (forms::Button* button : {&bttnOK, &bttnCancel}) button->SetVisible(false);
    EnableFields(false);
}

void fuser::Edit() {
    editing_ = true;
    for (forms::Button* button : {&bttnOK, &bttnCancel}) button->SetVisible(true);
    EnableFields(true);
    SetFocus(txtUserId);
    for (forms::Button* button : {&bttnAdd, &bttnEdit, &bttnDelete, &bttnFind, &bttnClose})
        button->SetVisible(false);
}

void fuser::EnableFields(bool enabled) {
    for (forms::Control* field : std::initializer_list<forms::Control*>{
             &txtUserId, &TxtNoUser, &txtPass, &Tambah, &Lihat, &Ganti, &Hapus, &grdCari})
        field->SetEnabled(enabled);
}

void fuser::ClearFields() {
    TxtNoUser.SetText("");
    txtPass.SetText("");
    for (forms::CheckBox* box : {&Tambah, &Lihat, &Ganti, &Hapus}) box->SetChecked(false);
}

void fuser::ShowUser() {
    if (users_.Eof()) {
        shown_.reset();
        txtUserId.SetText("");
        ClearFields();
    } else {
        shown_ = TextOf(users_["NoUser"]);
        txtUserId.SetText(TextOf(users_["UserID"]));
        ShowFields(users_);
    }
}

void fuser::ShowFields(ado::Recordset& user) {
    const auto right = [&](const char* column) { return user[column].Value() == Value(true); };
    TxtNoUser.SetText(TextOf(user["NoUser"]));
    txtPass.SetText(RevealPassword(TextOf(user["Password"])));
    Tambah.SetChecked(right("Tambah"));
    Lihat.SetChecked(right("Lihat"));
    Ganti.SetChecked(right("Ganti"));
    Hapus.SetChecked(right("Hapus"));
}

// Whoever has the name in the field, which may hold wildcards, with the menus granted to him.
void fuser::RefreshRights() {
    menus_.Requery();
    // A name that breaks the statement is nobody's.
    const bool found = Resume([this] {
        ado::Recordset user("Select * from T_User Where UserID Like '" + txtUserId.Text() + "'", connection_);
        if (user.Eof())
            ClearFields();
        else
            ShowFields(user);
    });
    if (!found) ClearFields();
    FillGrid([this](const std::string& menu) {
        bool granted = false;
        Resume([&] {
            const ado::Recordset right("Select  *  from SecurityUser  Where MenuID = '" + menu +
                                           "'  and UserID =  '" + TxtNoUser.Text() + "'",
                                       connection_);
            granted = !right.Eof();
        });
        return granted;
    });
}

void fuser::FillGrid(const std::function<bool(const std::string& menu)>& granted) {
    std::vector<std::string> rows;
    for (menus_.MoveFirst(); !menus_.Eof(); menus_.MoveNext()) {
        const std::string menu = TextOf(menus_["MenuID"]);
        rows.push_back(menu + "\t" + TextOf(menus_["NamaMenu"]) + "\t" + TextOf(menus_["Ket"]) + "\t" +
                       (granted(menu) ? "-1" : "0"));
    }
    grdCari.SetItems(std::move(rows));
}

void fuser::FindCode(const std::string& code) {
    users_.MoveFirst();
    users_.Find("NoUser = '" + code + "'");
}

// What shows is the current row: a refused save and a search in vain have moved on.
void fuser::BackToShown() {
    if (shown_)
        FindCode(*shown_);
    else
        users_.MoveFirst();
}

void fuser::SaveUser() {
    const std::string code = TxtNoUser.Text();
    FindCode(code);
    const std::string password = TransformPassword(Trim(txtPass.Text()));
    if (users_.Eof()) users_.AddNew();
    try {
        users_["UserID"] = txtUserId.Text();
        users_["NoUser"] = code;
        users_["Password"] = password;
        users_["Tambah"] = Tambah.Checked();
        users_["Lihat"] = Lihat.Checked();
        users_["Ganti"] = Ganti.Checked();
        users_["Hapus"] = Hapus.Checked();
        users_.Update();
    } catch (const ado::DataError&) {
        users_.CancelUpdate();
        throw;
    }
    connection_.Execute("DELETE FROM SecurityUser Where UserID = '" + code + "'");
    for (int row = 0; row < grdCari.Rows(); ++row)
        if (grdCari.Cell(row, GrantedColumn) == "-1")
            connection_.Execute("INSERT INTO SecurityUser (UserID,MenuID) Values  ('" + code + "','" +
                                grdCari.Cell(row, MenuColumn) + "')");
    users_.Requery();
    FindCode(code);
    ado::SyncWritten();
}

void fuser::AddClick() {
    Edit();
    txtUserId.SetText("");
    ClearFields();
    RefreshRights();
}

void fuser::EditClick() {
    RefreshRights();
    Edit();
}

// What was refused stays on screen to be put right.
void fuser::OkClick() {
    if (!Reported(Desk(), [this] { SaveUser(); })) return;
    Browse();
    ShowUser();
    RefreshRights();
}

void fuser::CancelClick() {
    Browse();
    Resume([this] { BackToShown(); });
    ShowUser();
    RefreshRights();
}

// The account in use and the last one go like any other, and before a user is shown the first: wanted.
void fuser::DeleteClick() {
    if (!Ask("Are you sure you want delete this user ?")) return;
    std::string failure;
    const bool deleted = Resume(
        [this] {
            const std::string code = TextOf(users_["NoUser"]);
            connection_.Execute("DELETE FROM SecurityUser Where UserID = '" + code + "' ");
            connection_.Execute("DELETE FROM T_User Where NoUser = '" + code + "' ");
            users_.Requery();
            ado::SyncWritten();
        },
        &failure);
    if (!deleted) Say("Unable to delete record ..., Error :" + std::string(CrLf) + failure, Icon::Critical);
    ShowUser();
    EnableFields(false);
    RefreshRights();
}

void fuser::FindClick() {
    const auto name = Desk().InputBox("Enter User Name", "Varnik");
    if (!name || name->empty()) return;
    Reported(Desk(), [&] {
        users_.Requery();
        users_.MoveFirst();
        users_.Find("UserId LIKE '" + *name + "'");
        if (users_.Eof()) {
            Say("Could not find the user id " + *name);
            BackToShown();
            return;
        }
        ShowUser();
        RefreshRights();
    });
}

} // namespace varnik
