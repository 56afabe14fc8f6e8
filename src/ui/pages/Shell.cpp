// Login, splash, main window, about, users, company,
// backup, data source.

#include "ui/pages/Page.h"

namespace varnik::ui {

namespace {

// A picture at the left, what it belongs to at the right.
Node Illustrated(Node picture, Node content) {
    return Row({std::move(picture), std::move(content).Share(1)});
}

Page Main() {
    Node bar = Bar(Row({Picture("imgTitleMaxRestore", 24, 24).Label("Varnik"), Field("lblFile"),
                        Field("lblTool"), Field("lblHelp"), Spring()}));
    Node welcome = Card(
        "",
        Column({Spring(), Picture("Logo", 200, 200).Label("Varnik").Centred(),
                Heading("Varnik Ledger Suite").Title().Centred(),
                Heading("Choose a screen in the menu: arrow keys and Enter, or a click").Quiet().Centred(),
                Spring()}));
    Node body = Row({Table("TV", 21).Label("Menu"), std::move(welcome).Share(2)}).Share(1).Padded();
    return {"frmMainCode", Family::Main,
            Column({std::move(bar), std::move(body), Field("sbStatusBar").Label("Status")})};
}

// Name, code, password and rights at the left, the menu at the right in its whole length.
Page Users() {
    Node tools = Row({Button("bttnAdd"), Button("bttnEdit"), Button("bttnDelete"), Button("bttnFind"),
                      Spring(), Button("bttnOK").Primary(), Button("bttnCancel"), Button("bttnClose")});
    Node user = Column(
        {Card("User", Form({{Field("txtUserId", 20)}, {Field("TxtNoUser", 6)}, {Field("txtPass", 20)}})),
         Card("Rights", Column({Field("Tambah"), Field("Lihat"), Field("Ganti"), Field("Hapus")})),
         Spring()});
    return {"fuser", Family::Master,
            Column({std::move(tools),
                    Row({std::move(user),
                         Card("Access", Table("grdCari", 17).Wide(410).Label("Access")).Share(1)})
                        .Share(1)})};
}

} // namespace

std::vector<Page> ShellPages() {
    Page login = DialogPage(
        "fLogin",
        Illustrated(Picture("ImgLogin", 112, 112).Label("Log in"),
                    Form({{Field("txtUserId", 24).By("Label1")}, {Field("txtPassword", 24).By("Label2")}})),
        {"cmdOK", "cmdBatal"});
    Page splash{"frmSplash", Family::Splash,
                Illustrated(Picture("imgLogo", 150, 150).Label("Varnik"),
                            Column({Spring(), Field("lblProductName").Title(), Field("Label1"),
                                    Field("Lblversi1").Quiet(), Field("LblVersi2").Quiet(), Spring()}))};
    Page about = DialogPage("frmAbout",
                            Illustrated(Picture("Image1", 112, 112).Label("Varnik"),
                                        Column({Field("Label1").Title(), Field("Lblversi1").Quiet(),
                                                Field("LblVersi2"), Field("lb_email"), Spring()})),
                            {"cmdOK", "cmdSysInfo"});
    Page dialog = DialogPage("Dialog", Spring(), {"OKButton", "CancelButton"});
    Page company = DialogPage("Company",
                              Card("Heads every report", Form({{Field("txtNama", 44)},
                                                               {Field("txtket", 44)},
                                                               {Field("TxtAlamat1", 44)},
                                                               {Field("TxtAlamat2", 44)}})),
                              {"Command1", "Command2"});
    Page backup = DialogPage(
        "frmBackup",
        Card("Back up and restore",
             Column({Heading("A backup is a copy of the whole database in one file.").Quiet(),
                     Heading("A restore puts such a copy in its place; the present one is kept beside it.")
                         .Quiet()})),
        {"cmdBackUp", "cmdRestore"});
    Page source = DialogPage(
        "f_CreateDSN",
        Column({Card("Database", Inside("Frame1", Form({{Row({Field("Text1", 34).By("Label1").Share(1),
                                                              Button("Command4")})}}))),
                Card("Kind of data source", Inside("Frame2", Row({Field("Option0(0)"), Field("Option0(1)"),
                                                                  Field("Option0(2)"), Spring()})))}),
        {"cmdCreate", "cmdModify", "cmdDelete", "cmdVerify", "cmdShowOM"});
    return {backup, source, Users(), company, Main(), login, splash, about, dialog};
}

} // namespace varnik::ui
