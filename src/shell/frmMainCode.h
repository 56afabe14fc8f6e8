#pragma once
// The one long-lived window: the menu tree that opens every screen, three labels that drop down the menus
// of frmMain, the status bar. Closing it ends the program.

#include "platform/desktop/ProgramScreen.h"
#include "shell/ScrollingTitle.h"
#include "shell/frmMain.h"

#include <memory>
#include <optional>

namespace varnik {

class frmMainCode : public ProgramScreen {
public:
    explicit frmMainCode(Services& services);
    void Load() override;
    void Activate() override { ShowStatus(); }
    void Unload() override { Desk().Quit(); } // open screens go with it, without a question

    frmMain& Menus() { return menus_; }

    forms::Tree TV{*this, "TV"};
    forms::Label lblFile{*this, "lblFile", "&File"};
    forms::Label lblTool{*this, "lblTool", "&Tools"};
    forms::Label lblHelp{*this, "lblHelp", "&Help"};
    forms::Image Logo{*this, "Logo"};
    forms::Image imgTitleMaxRestore{*this, "imgTitleMaxRestore"};
    forms::StatusBar sbStatusBar{*this, "sbStatusBar", 5};
    forms::Timer Timer1{*this, "Timer1", 1000};
    forms::Timer Timer2{*this, "Timer2", 200};

private:
    void DropsDown(forms::Label& label, forms::Menu& menu);
    void BuildTree();
    void Dispatch(const std::string& key);
    void ShowTime();
    void ShowTitle();
    void ShowStatus();

    frmMain menus_;
    ScrollingTitle title_;
    std::optional<std::string> titled_; // the company that the title names
};

} // namespace varnik
