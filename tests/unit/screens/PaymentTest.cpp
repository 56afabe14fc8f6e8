// Payments to suppliers have no question at a failing statement: the failure shows and the entry is over.

#include "platform/forms/Controls.h"
#include "purchases/BayarFaktur.h"
#include "tests/support/TemporaryShop.h"

namespace varnik {
namespace {

TEST(PaymentFaults, AFailingPostingEndsTheEntrySoThatNothingIsWrittenTwice) {
    TemporaryShop shop;
    shop.session.NoUser = "00";
    shop.session.RightTambah = true;
    shop.session.DateMask = "mm/dd/yyyy";
    shop.session.PaymentMethod = {"", "CASH", "CHEQUE", "BG"};
    shop.Execute("INSERT INTO Supplier (KodeSup,NamaSup,nDis,nwDis,nJTP,SaldoAwal,SaldoAkhir) VALUES "
                 "('S1','PT Satu',0,0,0,0,500)");
    shop.Execute("INSERT INTO Bank (RekID,NamaBank,NoRek,SaldoAwal,SaldoAkhir,DefaultKas) VALUES "
                 "('901','Kas','',0,0,False)");
    shop.Execute("INSERT INTO Faktur (NoFaktur,TglFaktur,TglJTP,KodeSup,Bruto,Disc,Netto,Total,Bayar,Saldo) "
                 "VALUES ('000000000100',#11/22/2026#,#11/22/2026#,'S1',500,0,500,500,0,500)");
    shop.desktop.Show(std::make_unique<BayarFaktur>(shop.services));
    forms::Screen& screen = *shop.desktop.FindScreen("BayarFaktur");
    ReportFailures(screen, shop.desktop);
    const auto fill = [&](const char* name, const char* text) {
        auto& field = dynamic_cast<forms::TextControl&>(*screen.FindControl(name));
        screen.MoveFocus(field);
        field.Type(text);
        screen.MoveNext();
    };
    const auto click = [&](const char* name) { screen.Click(*screen.FindControl(name)); };
    const auto shown = [&](const char* name) { return screen.FindControl(name)->IsShown(); };

    shop.Refuse("INSERT", "FakturBayar");
    click("bttnNew");
    fill("TxtCaraBayar", "CASH");
    fill("TxtRekening", "901");
    fill("TxtNoFaktur", "000000000100");
    click("bttnAddLine");
    click("bttnSave");
    EXPECT_NE(shop.desktop.Message().find("the shelf is locked"), std::string::npos);
    EXPECT_EQ(shop.Table("Select Jumlah From BKK"), "500"); // as far as it was written
    EXPECT_EQ(shop.Table("Select Saldo From Faktur"), "500");
    EXPECT_TRUE(shown("bttnNew"));
    EXPECT_FALSE(shown("bttnSave"));
    EXPECT_FALSE(screen.FindControl("bttnAddLine")->Enabled());
}

} // namespace
} // namespace varnik
