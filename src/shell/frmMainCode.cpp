#include "shell/frmMainCode.h"

#include "platform/desktop/Failure.h"
#include "shell/MenuRows.h"

namespace varnik {

namespace {

constexpr int TitlePanel = 1, TimePanel = 4, UserPanel = 5;

bool Granted(ado::Recordset& rights, std::string_view code) {
    if (rights.Empty()) return false;
    rights.MoveFirst();
    rights.Find("MenuID='" + std::string(code) + "'");
    return !rights.Eof();
}

} // namespace

frmMainCode::frmMainCode(Services& services)
    : ProgramScreen(services, "frmMainCode", "Varnik"), menus_(services, sbStatusBar) {
    DropsDown(lblFile, menus_.mnuFile);
    DropsDown(lblTool, menus_.mnuTools);
    DropsDown(lblHelp, menus_.mnuHelp);
    imgTitleMaxRestore.onMouseDown = [this] { Desk().DragMainWindow(); };
    TV.onNodeClick = [this](const std::string& key) { Dispatch(key); };
    Timer1.onTick = [this] { ShowTime(); };
    Timer2.onTick = [this] { ShowTitle(); };
}

void frmMainCode::DropsDown(forms::Label& label, forms::Menu& menu) {
    label.onClick = [this, &label, &menu] { Desk().PopUp(menu, label); };
    label.onMouseDown = [&label] { label.SetBorder(true); };
    label.onMouseUp = [&label] { label.SetBorder(false); };
}

void frmMainCode::Load() {
    SetCaption("Varnik - " + Trim(Sess().CompanyName));
    ShowStatus();
    // Without its menu the program cannot go on.
    if (!Reported(Desk(), [this] { BuildTree(); })) Desk().Quit();
}

// The rights are read once: a change takes effect at the user's next start.
void frmMainCode::BuildTree() {
    ado::Connection connection(services_.data, Sess().ConnectionString);
    ado::Recordset rights("Select UserId,MenuID From SecurityUser Where UserId ='" + Sess().NoUser +
                              "' Order By MenuID",
                          connection, ado::CursorType::Static);
    // The one name with a meaning of its own sees everything, whatever its rights say.
    const bool administrator = Upper(Trim(Sess().UserName)) == "VARNIK";
    for (const MenuRow& row : MenuRows()) {
        if (row.caption.empty()) continue;
        if (!row.right.empty() && !administrator && !Granted(rights, row.right)) continue;
        const bool branch = row.screen.empty();
        TV.Add({std::string(row.parent), std::string(row.key), std::string(row.caption), branch});
    }
}

void frmMainCode::Dispatch(const std::string& key) {
    const std::string wanted = Upper(Trim(key));
    for (const MenuRow& row : MenuRows())
        if (row.key == wanted && !row.screen.empty()) OpenScreen(services_, wanted, Trim(row.caption));
}

void frmMainCode::ShowTime() { sbStatusBar.SetPanel(TimePanel, FormatDate(Desk().Now(), "hh:mm:ss")); }

// A company with new texts shows in the status bar at once, in the window's caption at the next start.
void frmMainCode::ShowTitle() {
    if (titled_ != Sess().CompanyName) {
        titled_ = Sess().CompanyName;
        title_ = ScrollingTitle(*titled_);
    }
    sbStatusBar.SetPanel(TitlePanel, title_.Next());
}

void frmMainCode::ShowStatus() {
    ShowTime();
    sbStatusBar.SetPanel(UserPanel, "User  " + Upper(Trim(Sess().UserName)) + "(" + Sess().NoUser + ")");
}

} // namespace varnik
