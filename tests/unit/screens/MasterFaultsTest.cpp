// What no person can bring about on the master screens: rows that the database refuses to delete or to
// write, and the record moves that no button leads to. The rest is tested by the scenarios.

#include "common/Text.h"
#include "master/Master.h"
#include "master/fCustomer.h"
#include "platform/ado/Ado.h"
#include "tests/support/TemporaryShop.h"

namespace varnik {
namespace {

struct Screen {
    const char *key, *name, *table, *codeBox, *codeColumn, *insert, *confirm, *failed;
    bool reportsSave;
};

const Screen Screens[] = {
    {"F01", "fProduk", "Produk", "txtKode", "KodeBrg",
     "INSERT INTO Produk "
     "(KodeBrg,Jasa,QAwal,QJual,QBeli,HPPAwal,HPPAkhir,HPPRata,Pecahan,PecahanBeli,HargaBeli,"
     "PecahanJual,HargaJual,QCounter,QGudang,OnHand,OnOrder) VALUES "
     "('1',False,0,0,0,0,0,0,1,1,0,1,0,0,0,0,0)",
     "Are you sure record will be deleted  ?", "This Record can not be deleted, because this error. ", false},
    {"F02", "fCustomer", "Customer", "txtKode", "KodeCus",
     "INSERT INTO Customer (KodeCus,NamaCus,nDis,nwDis,nJTP,SaldoAwal,SaldoAkhir) VALUES ('1','x',0,0,0,0,0)",
     "Are you sure you want delete this record ?", "Item may not deleted, Error :", true},
    {"F03", "fSupplier", "Supplier", "txtKode", "KodeSup",
     "INSERT INTO Supplier (KodeSup,NamaSup,nDis,nwDis,nJTP,SaldoAwal,SaldoAkhir) VALUES ('1','x',0,0,0,0,0)",
     "Are you sure you want delete this record ?", "Unable to delete record ..., Error :", false},
    {"F04", "fBank", "Bank", "txtRekID", "RekID",
     "INSERT INTO Bank (RekID,NamaBank,SaldoAwal,SaldoAkhir,DefaultKas) VALUES ('1','x',0,0,False)",
     "re you sure you want to delete the selected record ?", "This item can not deleted. Error :", false},
    {"F06", "fJenisBiaya", "JenisBiaya", "txtKode", "KodeJenisBiaya",
     "INSERT INTO JenisBiaya (KodeJenisBiaya,JenisBiaya) VALUES ('1','x')",
     "Are you sure you want delete this record ?", "This item can not deleting, Error :", false},
    {"F07", "fBiaya", "Biaya", "txtKode", "KodeBiaya",
     "INSERT INTO Biaya (KodeBiaya,Diskripsi,KodeJenisBiaya) VALUES ('1','x','1')",
     "Item with this code is not found ?", "This item may not deleted, Error :", true},
    {"F08", "fAccJenisProduk", "JenisProduk", "txtKode", "KodeJenisProduk",
     "INSERT INTO JenisProduk (KodeJenisProduk) VALUES ('1')",
     "Are you sure you want to delete this record ?", "Unable to delete  record ..., Error :", false},
    {"F09", "frmJenisCustomer", "JenisCustomer", "txtKode", "KodeJenisCus",
     "INSERT INTO JenisCustomer (KodeJenisCus) VALUES ('1')", "Are you sure you want delele this record ?",
     "Unable to delete  record ..., Error :", false},
};

class MasterFaults : public testing::TestWithParam<Screen> {
protected:
    MasterFaults() {
        shop.session.RightTambah = shop.session.RightGanti = shop.session.RightHapus = true;
        RegisterMaster(shop.services);
        // The type that the cost detail stands under.
        if (std::string_view(GetParam().name) == "fBiaya")
            shop.Execute("INSERT INTO JenisBiaya (KodeJenisBiaya) VALUES ('1')");
        shop.Execute(GetParam().insert);
        OpenScreen(shop.services, GetParam().key, "");
        screen = shop.desktop.FindScreen(GetParam().name);
        EnterCode("1");
    }
    void Refuse(const char* what) {
        ado::Connection connection = shop.Connect();
        ado::ExecuteNative(connection, std::string("CREATE TRIGGER Refused BEFORE ") + what + " ON " +
                                           GetParam().table + " BEGIN SELECT RAISE(ABORT, 'refused'); END");
    }
    void EnterCode(const char* code) {
        auto& box = dynamic_cast<forms::TextBox&>(*screen->FindControl(GetParam().codeBox));
        screen->MoveFocus(box);
        box.Type(code);
        screen->MoveNext();
    }
    void Click(const char* button) { screen->Click(*screen->FindControl(button)); }
    std::string Code() const {
        return dynamic_cast<forms::TextBox&>(*screen->FindControl(GetParam().codeBox)).Text();
    }
    std::string Stored() {
        return shop.Table(std::string("SELECT ") + GetParam().codeColumn + " FROM " + GetParam().table);
    }

    TemporaryShop shop;
    forms::Screen* screen = nullptr;
};

TEST_P(MasterFaults, ARowThatCannotBeDeletedStaysAndSaysWhy) {
    Refuse("DELETE");
    shop.desktop.answers = {Answer::Yes};
    Click("bttnDelete");
    EXPECT_EQ(shop.desktop.Message(), GetParam().confirm);
    const std::string failure = shop.desktop.Message();
    EXPECT_EQ(Left(failure, Len(GetParam().failed) + 2), GetParam().failed + std::string(CrLf));
    EXPECT_NE(failure.find("refused"), std::string::npos) << failure;
    EXPECT_EQ(shop.desktop.Message(), "");
    EXPECT_EQ(Stored(), "1");
    EXPECT_FALSE(screen->FindControl("bttnOK")->Enabled());
    // The row can be deleted once nothing refuses it.
    ado::Connection connection = shop.Connect();
    ado::ExecuteNative(connection, "DROP TRIGGER Refused");
    EnterCode("1");
    shop.desktop.answers = {Answer::Yes};
    Click("bttnDelete");
    EXPECT_EQ(shop.desktop.Message(), GetParam().confirm);
    EXPECT_EQ(shop.desktop.Message(), "");
    EXPECT_EQ(Stored(), "");
}

TEST_P(MasterFaults, ASaveThatTheDatabaseRefusesLeavesTheRowAndComesToRest) {
    Refuse("UPDATE");
    Click("bttnEdit");
    Click("bttnOK");
    EXPECT_EQ(shop.desktop.Message().find("refused") != std::string::npos, GetParam().reportsSave);
    EXPECT_EQ(shop.desktop.Message(), "");
    EXPECT_EQ(Stored(), "1");
    EXPECT_EQ(Code(), "1");
    EXPECT_FALSE(screen->FindControl("bttnOK")->Enabled());
}

INSTANTIATE_TEST_SUITE_P(Screens, MasterFaults, testing::ValuesIn(Screens),
                         [](const auto& screen) { return screen.param.name; });

TEST(MasterMoves, StayOnTheFirstAndOnTheLastRow) {
    TemporaryShop shop;
    for (const char* code : {"B", "A", "C"})
        shop.Execute(
            std::string("INSERT INTO Customer (KodeCus,nDis,nwDis,nJTP,SaldoAwal,SaldoAkhir) VALUES ('") +
            code + "',0,0,0,0,0)");
    shop.desktop.Show(std::make_unique<fCustomer>(shop.services));
    auto& customer = shop.desktop.Find<fCustomer>("fCustomer");
    using Move = MasterScreen::Move;
    for (const auto& [move, code] : {std::pair{Move::Last, "C"},
                                     {Move::Next, "C"},
                                     {Move::Previous, "A"},
                                     {Move::First, "B"},
                                     {Move::Previous, "B"},
                                     {Move::Next, "A"}}) {
        customer.MoveRecord(move);
        EXPECT_EQ(customer.txtKode.Text(), code);
        EXPECT_TRUE(customer.txtNama.Locked());
    }
}

} // namespace
} // namespace varnik
