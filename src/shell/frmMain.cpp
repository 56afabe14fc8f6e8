#include "shell/frmMain.h"

#include "platform/desktop/Manual.h"

namespace varnik {

frmMain::frmMain(Services& services, forms::StatusBar& statusBar)
    : ProgramScreen(services, "frmMain", "Varnik"), statusBar_(statusBar) {
    Opens(mnuFileBackup);
    Opens(mnuSetupPerusahaan);
    Opens(mnuToolUser);
    Opens(mnuConnect);
    Opens(mnuHelpAbout);
    // No screen of this program is a text document, so after the dialog there is nothing left to print.
    mnuFilePageSetup.onClick = [this] { Desk().PrintDialog("Print"); };
    mnuFileExit.onClick = [this] { Desk().Quit(); };

    mnuViewStatusBar.SetCheckable(true);
    mnuViewStatusBar.SetChecked(true);
    mnuViewStatusBar.onClick = [this] { ToggleStatusBar(); };
    mnuHelpContents.onClick = [this] { OpenManual(Desk()); };
    mnuHelpvisit.onClick = [this] { Desk().OpenWithShell("https://varnik.example/"); };

    forms::MenuItem* const arrangements[] = {&mnuWindowCascade, &mnuWindowTileHorizontal,
                                             &mnuWindowTileVertical, &mnuWindowArrangeIcons};
    for (int code = 0; code < 4; ++code)
        arrangements[code]->onClick = [this, code] { Desk().ArrangeWindows(code); };

    for (forms::MenuItem* caption : {&mnuToolKonstanta, &mnuToolPeriode}) caption->SetEnabled(false);
    for (const forms::Menu* menu : {&mnuMaster, &mnuLaporan})
        for (forms::MenuItem* caption : menu->Items()) caption->SetEnabled(false);
}

void frmMain::Opens(forms::MenuItem& item) {
    item.onClick = [this, &item] {
        OpenScreen(services_, item.Name(), Trim(ReplaceText(item.Caption(), "&", "")));
    };
}

void frmMain::ToggleStatusBar() {
    mnuViewStatusBar.SetChecked(!mnuViewStatusBar.Checked());
    statusBar_.SetVisible(mnuViewStatusBar.Checked());
}

} // namespace varnik
