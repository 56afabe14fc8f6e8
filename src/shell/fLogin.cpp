#include "shell/fLogin.h"

#include "platform/desktop/Failure.h"

namespace varnik {

namespace {

constexpr int MaximumAttempts = 3;

// Letters, digits, the full stop and the blank; the backspace never comes this way.
bool Taken(char32_t c) {
    const bool letter = (c >= U'A' && c <= U'Z') || (c >= U'a' && c <= U'z');
    return letter || (c >= U'0' && c <= U'9') || c == U'.' || c == U' ';
}

void TakesPlainText(forms::TextBox& field) {
    field.onKeyPress = [](forms::KeyPress& press) {
        if (!Taken(press.character)) press.Discard();
    };
    // What the mouse drops there comes by no key. The name goes into a statement as it stands.
    field.onChange = [&field] {
        std::string text = field.Text();
        std::erase_if(text, [](char c) { return !Taken(static_cast<unsigned char>(c)); });
        field.SetText(std::move(text));
    };
}

} // namespace

fLogin::fLogin(Services& services)
    : ProgramScreen(services, "fLogin", "Varnik - Login"), connection_(services.data) {
    txtPassword.SetMasked(true);
    TakesPlainText(txtUserId);
    TakesPlainText(txtPassword);
    txtUserId.onKeyDown = [this](forms::Key& key) {
        if (!key.Is(forms::KeyCode::Enter)) return;
        key.handled = true;
        SetFocus(txtPassword);
        txtPassword.SelectAll();
    };
    // From the first key in the password on, Enter submits.
    txtPassword.onKeyDown = [this](forms::Key& key) {
        if (key.code != forms::KeyCode::Backspace && key.character != U'.') SetDefault(&cmdOK);
    };
    cmdOK.onClick = [this] { OkClick(); };
    cmdBatal.onClick = [this] { CancelClick(); };
    SetCancel(&cmdBatal);
}

void fLogin::Load() {
    connection_.Open(Sess().ConnectionString);
    users_.Open("SELECT * FROM t_user", connection_);
}

void fLogin::OkClick() {
    ++attempts_;
    const std::string typed = TransformPassword(Trim(txtPassword.Text()));
    Reported(Desk(), [&] {
        ado::Connection connection(services_.data, Sess().ConnectionString);
        ado::Recordset user("Select * from T_user  Where userid='" + txtUserId.Text() + "'", connection);
        if (user.Eof()) {
            Refuse("Your user id is invalid " + std::string(CrLf) + "Please Enter The Correct user id ...",
                   txtUserId);
        } else if (Upper(Trim(TextOf(user["Password"]))) == Upper(Trim(typed))) {
            // Upper case after the transform is wanted: the case of a password counts only in part.
            Admit(user);
        } else {
            if (attempts_ <= MaximumAttempts) {
                services_.session.UserName.clear();
                services_.session.NoUser.clear();
                services_.session.LoggedIn = false;
            }
            Refuse("Your Password is Invalid " + std::string(CrLf) + "Please Enter The Correct Password ...",
                   txtPassword);
        }
    });
}

void fLogin::Admit(ado::Recordset& user) {
    Session& session = services_.session;
    const auto right = [&](const char* column) { return user[column].Value() == Value(true); };
    session.UserName = TextOf(user["UserID"]);
    session.NoUser = TextOf(user["NoUser"]);
    session.RightTambah = right("Tambah");
    session.RightLihat = right("Lihat");
    session.RightGanti = right("Ganti");
    session.RightHapus = right("Hapus");
    session.LoggedIn = true;
    Close();
}

// Wrong names and wrong passwords share one count; the one after the third ends the program at once.
void fLogin::Refuse(const std::string& text, forms::TextBox& field) {
    if (attempts_ > MaximumAttempts) {
        Desk().Quit();
        return;
    }
    Say(text, Icon::Critical, "Access Denied ");
    SetFocus(field);
    field.SelectAll();
}

void fLogin::CancelClick() {
    services_.session.UserName.clear();
    services_.session.NoUser.clear();
    services_.session.LoggedIn = false;
    Desk().Quit();
}

} // namespace varnik
