// What the console cannot see of the shell: the pressed look of labels, the system information tool.

#include "platform/registry/Registry.h"
#include "shell/Dialog.h"
#include "shell/MenuRows.h"
#include "shell/frmAbout.h"
#include "shell/frmMainCode.h"
#include "tests/support/TemporaryShop.h"

#include <set>

namespace varnik {
namespace {

TEST(MainWindow, LabelsLookPressedWhileTheButtonIsHeld) {
    TemporaryShop shop;
    frmMainCode main(shop.services);
    for (forms::Label* label : {&main.lblFile, &main.lblTool, &main.lblHelp}) {
        EXPECT_FALSE(label->Border());
        label->onMouseDown();
        EXPECT_TRUE(label->Border());
        label->onMouseUp();
        EXPECT_FALSE(label->Border());
    }
}

TEST(MainWindow, MenuKeysAndScreensAreUnique) {
    std::set<std::string_view> keys, screens;
    int shown = 0;
    for (const MenuRow& row : MenuRows()) {
        if (row.caption.empty()) continue;
        ++shown;
        EXPECT_TRUE(keys.insert(row.key).second) << row.key;
        EXPECT_TRUE(row.parent.empty() || keys.contains(row.parent))
            << row.key << " stands before its branch";
        EXPECT_TRUE(row.screen.empty() || screens.insert(row.screen).second) << row.screen;
    }
    EXPECT_EQ(shown, 27);
    EXPECT_EQ(screens.size(), 23U);
}

TEST(MainWindow, ALeafWhoseScreenIsNotThereSaysSo) {
    TemporaryShop shop;
    shop.session.UserName = "varnik";
    shop.services.screens.clear();
    shop.desktop.Show(std::make_unique<frmMainCode>(shop.services));
    auto& main = shop.desktop.Find<frmMainCode>("frmMainCode");
    main.TV.NodeClick("L21");
    EXPECT_EQ(shop.desktop.Message(), "\"Cost History\" is not part of this program yet.");
    main.Menus().mnuFileBackup.onClick();
    EXPECT_EQ(shop.desktop.Message(), "\"Back Up\" is not part of this program yet.");
    main.TV.NodeClick("L");
    EXPECT_EQ(shop.desktop.Message(), "");
    EXPECT_EQ(shop.desktop.screens.size(), 1U);
}

TEST(Confirmation, EnterAndEscapeCloseIt) {
    TemporaryShop shop;
    for (const forms::KeyCode key : {forms::KeyCode::Enter, forms::KeyCode::Escape}) {
        shop.desktop.Show(std::make_unique<Dialog>(shop.services));
        shop.desktop.FindScreen("Dialog")->PressKey({.code = key});
        EXPECT_EQ(shop.desktop.FindScreen("Dialog"), nullptr);
    }
}

TEST(About, TheSystemInformationToolIsTakenFromEitherKey) {
    TemporaryShop shop;
    frmAbout about(shop.services);
    about.cmdSysInfo.onClick();
    EXPECT_EQ(shop.desktop.Message(), "System Information Is Unavailable At This Time");

    const std::string folder = shop.folder.Path().string();
    shop.registry.Set(R"(SOFTWARE\Microsoft\Shared Tools Location)", "MSINFO", folder);
    about.cmdSysInfo.onClick();
    EXPECT_EQ(shop.desktop.Message(), "System Information Is Unavailable At This Time");
    std::ofstream(shop.folder.Path() / "MSINFO32.EXE") << "tool";
    about.cmdSysInfo.onClick();
    shop.registry.Set(R"(SOFTWARE\Microsoft\Shared Tools\MSINFO)", "PATH", "/tools/info");
    about.cmdSysInfo.onClick();
    EXPECT_EQ(shop.desktop.shell, (std::vector<std::string>{folder + "\\MSINFO32.EXE", "/tools/info"}));
    EXPECT_EQ(shop.desktop.Message(), "");
}

} // namespace
} // namespace varnik
