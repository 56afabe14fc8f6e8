// Requests as the screens make them, on a shop's database.

#include "tests/support/TemporaryShop.h"
#include "tests/unit/reports/ReportCases.h"

#include <gmock/gmock.h>

using namespace varnik;
using namespace varnik::reports;
using testing::HasSubstr;
using testing::Not;

namespace {

class OpenedReport : public testing::Test {
protected:
    OpenedReport() {
        std::filesystem::create_directories(shop.folder.Path() / "Report");
        for (const char* file : {"BKM2.rpt", "Invoice.rpt", "persediaan.rpt"})
            std::filesystem::copy_file(std::filesystem::path("Report") / file,
                                       shop.folder.Path() / "Report" / file);
        for (const char* code : {"B1", "B2"})
            shop.Execute(
                "Insert Into Produk (KodeBrg,NamaBrg,JenisBrg,Satuan,Pecahan,PecahanBeli,PecahanJual,QGudang,"
                "QCounter,OnOrder,OnHand,HPPAwal,HPPAkhir,HPPRata,QAwal,QJual,QBeli,HargaBeli,HargaJual,Jasa)"
                " Values ('" +
                std::string(code) + "','Goods','001','PCS',1,1,1,5,0,0,5,0,0,2000,0,0,0,1500,2500,False)");
        shop.Execute("Insert Into Customer (KodeCus,NamaCus,nDIS,nwDis,nJTP,SaldoAkhir,SaldoAwal) Values "
                     "('C1','Ibu Sari',0,0,0,0,0)");
        for (const char* number : {"000000000100", "000000000200"}) {
            const std::string no = "'" + std::string(number) + "'";
            shop.Execute(
                "Insert Into Invoice (NoInvoice,TglInvoice,TglJtp,KodeCus,Bruto,Disc,Netto,Total,nPPN,PPN,"
                "Bayar,Saldo,NoUser,Terbilang) Values (" +
                no + ",#11/22/2026#,#12/22/2026#,'C1',5000,0,5000,5000,0,0,0,5000,'00','Five Thousand')");
            for (const char* code : {"B2", "B1"})
                shop.Execute(
                    "Insert Into InvoiceDetail "
                    "(NoInvoice,TglInvoice,KodeCus,KodeBrg,Diskripsi,Qty,Qty2,Satuan,Harga,"
                    "Bruto,Disc,Netto,nDIS,nPPN,PPN,Total,Jasa,QtyOrder,QtyRetur,HPP,HPPRATA) Values (" +
                    no + ",#11/22/2026#,'C1','" + code +
                    "','Goods',1,1,'PCS',2500,2500,0,2500,0,0,0,2500,False,0,0,0,0)");
        }
    }
    ReportRequest Request(const std::string& file, const std::string& sql = "") {
        ReportRequest request;
        request.ReportFileName = shop.folder.Path().string() + "\\Report\\" + file;
        request.SQLQuery = sql;
        request.WindowTitle = "Window";
        request.SetTitles(0, "Toko Sari", "first", "second", "third");
        return request;
    }
    std::string Text(const ReportRequest& request) { return OpenReport(request, shop.services)->Text(); }
    std::string Failure(const ReportRequest& request) {
        try {
            OpenReport(request, shop.services);
        } catch (const ado::DataError& fault) {
            return fault.Description();
        }
        return "no failure";
    }
    TemporaryShop shop;
};

} // namespace

TEST_F(OpenedReport, AListRunsOnItsStoredQuery) {
    const auto report = OpenReport(Request("persediaan.rpt"), shop.services);
    EXPECT_EQ(report->RowCount(), 2);
    EXPECT_EQ(report->WindowTitle(), "Window");
    EXPECT_EQ(report->About().connect, "DSN=VarNik");
    EXPECT_THAT(report->Text(), HasSubstr("Toko Sari"));
    EXPECT_THAT(report->Text(), testing::ContainsRegex("B1 +Goods +5 +PCS +1,500 +2,500"));
}

TEST_F(OpenedReport, OneDefinitionServesAStatementWithOtherColumns) {
    const std::string text = Text(Request(
        "Persediaan.rpt",
        "SELECT  Produk.KodeBrg, Produk.NamaBrg, Produk.JenisBrg, Produk.Satuan, "
        "Produk.OnHand, Produk.HPPRata,    JenisProduk.JenisProduk  FROM  Produk Produk LEFT OUTER JOIN "
        "JenisProduk JenisProduk ON     Produk.JenisBrg = JenisProduk.KodeJenisProduk  Order By "
        "Produk.JenisBrg, Produk.KodeBrg "));
    EXPECT_THAT(text, testing::ContainsRegex("Total stock value +20,000\n"));
    EXPECT_THAT(text, Not(HasSubstr("Selling")));
}

// The statement as the invoice screen has it cannot be compiled; the paper is still the one on screen.
TEST_F(OpenedReport, AnInvoiceWhoseStatementCannotBeReadIsTheOneOnScreen) {
    const std::string sql =
        "   SELECT    QryInvoice.NoInvoice, QryInvoice.CusPO, QryInvoice.NamaBrg    "
        "QryInvoice.KodeBrgQryInvoiceInvoiceDetail.Qty, QryInvoice.Satuan, QryInvoice.Total,    From "
        "QryInvoice  Where Invoice.NoInvoice ='000000000200'   Order By   QryInvoice.KodeBrg Asc";
    const auto report = OpenReport(Request("Invoice.rpt", sql), shop.services);
    EXPECT_EQ(report->RowCount(), 2);
    EXPECT_THAT(report->About().statement, HasSubstr("NoInvoice = '000000000200'"));
    const std::string text = report->Text();
    EXPECT_THAT(text, HasSubstr("000000000200"));
    EXPECT_THAT(text, HasSubstr("Five Thousand"));
    EXPECT_LT(text.find("B1 "), text.find("B2 "));
    EXPECT_THAT(Failure(Request("Invoice.rpt", "SELECT From QryInvoice")), HasSubstr("NoInvoice"));
    EXPECT_THAT(Failure(Request("Invoice.rpt")), HasSubstr("prints one document"));
    EXPECT_THAT(Text(Request("Invoice.rpt", "SELECT , From x Where NoInvoice = ''")), HasSubstr("No data"));
}

TEST_F(OpenedReport, AMissingColumnIsEmptyAndTheFilterStays) {
    const auto report =
        OpenReport(Request("persediaan.rpt",
                           "Select KodeBrg, NamaBrg, HargaJual, KodeAcc From Produk Where KodeBrg = 'B2'"),
                   shop.services);
    EXPECT_EQ(report->RowCount(), 1);
    EXPECT_THAT(report->About().statement, HasSubstr("Null AS [KodeAcc]"));
}

// A voucher's request sets no title formulas; paid in cash it has no cheque, whatever stands for none.
TEST_F(OpenedReport, WithoutTitleFormulasTheCompanyStandsAsItIs) {
    shop.session.CompanyName = "Toko Jum'at";
    shop.session.CompanyLine3 = "Bandung";
    ReportRequest request = Request("BKM2.rpt");
    request.Formulas.clear();
    for (const char* none : {"'0'", "'-'", "Null", "''"}) {
        request.SQLQuery = "Select 'Ibu Sari' As Penyetor, " + std::string(none) + " As NoCek From Company";
        const std::string text = Text(request);
        EXPECT_THAT(text, testing::AllOf(HasSubstr("Toko Jum'at"), HasSubstr("Bandung"),
                                         HasSubstr("Ibu Sari"), Not(HasSubstr("Cheque no."))))
            << none;
    }
    request.SQLQuery = "Select 'C-70' As NoCek From Company";
    EXPECT_THAT(Text(request), testing::ContainsRegex("Cheque no. +C-70"));
}

TEST_F(OpenedReport, SaysWhatIsWrong) {
    EXPECT_THAT(Failure(Request("Nowhere.rpt")), HasSubstr("\"Nowhere.rpt\" is missing"));
    ReportRequest broken = Request("persediaan.rpt");
    broken.SetTitles(0, "Toko", "Jum'at", "", "");
    EXPECT_THAT(Failure(broken), HasSubstr("apostrophe"));
    // An apostrophe that somebody typed does not turn a filtered list into the whole one.
    EXPECT_NE(
        Failure(Request("persediaan.rpt", "Select * From Produk Where JenisBrg = 'O'1' Order By KodeBrg")),
        "no failure");
    ReportRequest elsewhere = Request("persediaan.rpt");
    elsewhere.Connect = "DSN=Nowhere";
    EXPECT_NE(Failure(elsewhere), "no failure");
}
