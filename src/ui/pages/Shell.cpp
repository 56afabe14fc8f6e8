// Login, splash, main window, about.

#include "ui/pages/Page.h"

namespace varnik::ui {

std::vector<Page> ShellPages() {
    Page login = DialogPage(
        "fLogin",
        Row({Picture("ImgLogin", 112, 112),
             Form({{Field("txtUserId", 24).By("Label1")}, {Field("txtPassword", 24).By("Label2")}})}),
        {"cmdOK", "cmdBatal"});

    Page splash{"frmSplash", Family::Splash,
                Row({Picture("imgLogo", 150, 150), Column({Spring(), Field("lblProductName"), Field("Label1"),
                                                           Field("Lblversi1"), Field("LblVersi2"), Spring()})
                                                       .Share(1)})};

    Page main{
        "frmMainCode", Family::Main,
        Column({Row({Field("lblFile"), Field("lblTool"), Field("lblHelp"), Spring(),
                     Picture("imgTitleMaxRestore", 20, 20)}),
                Row({Table("TV", 18),
                     Card("", Column({Spring(), Picture("Logo", 320, 300).Centred(), Spring()})).Share(1)})
                    .Share(1),
                Field("sbStatusBar")})};

    Page about = DialogPage(
        "frmAbout",
        Row({Picture("Image1", 112, 112),
             Column({Field("Label1"), Field("Lblversi1"), Field("LblVersi2"), Field("lb_email"), Spring()})
                 .Share(1)}),
        {"cmdOK", "cmdSysInfo"});

    Page dialog = DialogPage("Dialog", Spring(), {"OKButton", "CancelButton"});
    return {login, splash, main, about, dialog};
}

} // namespace varnik::ui
