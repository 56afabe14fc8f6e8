// A sale by keyboard and mouse, through real key events.

#include "tests/ui/Shop.h"

#include <QComboBox>
#include <QTableView>

namespace varnik::test {
namespace {

class Sale : public ShopTest {
protected:
    Sale() {
        Execute("INSERT INTO Customer VALUES ('0000000001','001','WARUNG BU TINI','Jl. Kenanga "
                "7','Cimahi','','Bandung',"
                "'','','','',0,0,14,'',0,0,'')");
        Execute("INSERT INTO Produk "
                "(KodeBrg,NamaBrg,Jasa,JenisBrg,QAwal,QJual,QBeli,HPPAwal,HPPAkhir,HPPRata,Pecahan,"
                "Satuan,PecahanBeli,SatuanBeli,HargaBeli,PecahanJual,SatuanJual,HargaJual,QCounter,QGudang,"
                "OnHand,"
                "OnOrder,KodeSup,KodeRef,Ket) VALUES ('0000000001','COFFEE 250 "
                "G',False,'001',10,0,0,42000,42000,42000,1,"
                "'PACK',24,'CARTON',42000,1,'PACK',55000,0,10,10,0,'','','')");
        Open("T01");
    }
    void EnterUpTo(const char* field) { ShopTest::EnterUpTo("Invoice", field); }
};

TEST_F(Sale, IsEnteredByKeyboardAlone) {
    auto* window = desktop.WindowOf("Invoice");
    QTest::keyClick(window->focusWidget(), Qt::Key_N, Qt::AltModifier);
    EXPECT_EQ(Focused("Invoice"), "TxtNoInvoice");
    EXPECT_EQ(Text("Invoice", "TxtNoInvoice"), "000000000100");
    EXPECT_TRUE(Find("Invoice", "bttnSave")->isVisible());
    EXPECT_FALSE(Find("Invoice", "bttnNew")->isVisible());
    EnterUpTo("TxtKodeCus");
    Type("Invoice", "TxtKodeCus", "0000000001", Qt::Key_Return);
    EXPECT_EQ(Text("Invoice", "TxtNamaCus"), "WARUNG BU TINI");

    EnterUpTo("txtKodeBrg"); // behind the address the entry line opens
    Type("Invoice", "txtKodeBrg", "0000000001", Qt::Key_Return);
    Type("Invoice", "txtQty", "2", Qt::Key_Return);
    EXPECT_EQ(Text("Invoice", "TxtHrgTot"), "110,000");
    EnterUpTo("bttnAddLine");
    QTest::keyClick(window->focusWidget(), Qt::Key_Return);
    EXPECT_EQ(Text("Invoice", "txtJumTotal"), "110,000");
    auto* lines = Find<QTableView>("Invoice", "OrderGrid");
    ASSERT_TRUE(Until([&] { return lines->model()->rowCount() == 2; }));
    EXPECT_EQ(lines->model()->index(0, 7).data().toString(), "110,000");

    QTest::keyClick(window->focusWidget(), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(Find("Invoice", "bttnNew")->isVisible());
    EXPECT_EQ(Rows("Select NoInvoice From Invoice Where Total = 110000"), 1);
}

TEST_F(Sale, CancelIsReachedThoughTheCustomerCallsTheFocusBack) {
    Click("Invoice", "bttnNew");
    EnterUpTo("TxtKodeCus");
    Type("Invoice", "TxtKodeCus", "NOBODY");
    Click("Invoice", "bttnCancel");
    EXPECT_TRUE(Find("Invoice", "bttnNew")->isVisible());
}

TEST_F(Sale, TheLookUpListOpensUnderItsField) {
    Click("Invoice", "bttnNew");
    EnterUpTo("TxtKodeCus");
    QTest::keyClick(Find("Invoice", "TxtKodeCus"), Qt::Key_F5);
    auto* list = Find<QTableView>("Invoice", "GridCari");
    ASSERT_TRUE(Until([&] { return list->isVisible() && list->model()->rowCount() == 1; }));
    const QWidget* field = Find("Invoice", "TxtKodeCus");
    EXPECT_EQ(list->mapToGlobal(QPoint(0, 0)).x(), field->mapToGlobal(QPoint(0, 0)).x());
    EXPECT_GE(list->mapToGlobal(QPoint(0, 0)).y(), field->mapToGlobal(QPoint(0, field->height())).y());
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_EQ(Text("Invoice", "TxtKodeCus"), "0000000001");
    EXPECT_FALSE(list->isVisible());
}

class Product : public ShopTest {
protected:
    Product() { Open("F01"); }
};

TEST_F(Product, IsAddedSavedAndFoundAgain) {
    Click("fProduk", "bttnAdd");
    EXPECT_EQ(Text("fProduk", "txtKode"), "0000000001");
    EXPECT_FALSE(Find("fProduk", "bttnPrint")->isEnabled());
    Type("fProduk", "txtKode", "", Qt::Key_Return);
    Type("fProduk", "Check1", "", Qt::Key_Tab);
    Type("fProduk", "txtNama", "Green tea", Qt::Key_Return);
    QTest::mouseClick(Find("fProduk", "TxtHargaJual"), Qt::LeftButton);
    Type("fProduk", "TxtHargaJual", "31500", Qt::Key_Return);
    EXPECT_EQ(Text("fProduk", "TxtHargaJual"), "31,500");
    Click("fProduk", "bttnOK");
    EXPECT_TRUE(Find("fProduk", "bttnPrint")->isEnabled());

    Click("fProduk", "bttnFind");
    ASSERT_TRUE(Find("fProduk", "frmCari")->isVisible());
    Click("fProduk", "cmdExecute");
    auto* found = Find<QTableView>("fProduk", "grdCari");
    ASSERT_TRUE(Until([&] { return found->model()->rowCount() == 1; }));
    Click("fProduk", "cmdTutup");
    EXPECT_EQ(Text("fProduk", "txtKode"), "0000000001");
    EXPECT_EQ(Text("fProduk", "TxtHargaJual"), "31,500");
}

TEST_F(Product, AServiceHidesStockFieldsWithTheirCaptions) {
    Click("fProduk", "bttnAdd");
    QTest::mouseClick(Find("fProduk", "Check1"), Qt::LeftButton, {}, QPoint(8, 10));
    EXPECT_FALSE(Find("fProduk", "TxtQAwal")->isVisible());
    EXPECT_FALSE(Find("fProduk", "TxtQAwal.label")->isVisible());
    EXPECT_TRUE(Find("fProduk", "TxtHargaJual")->isVisible());
}

} // namespace
} // namespace varnik::test
