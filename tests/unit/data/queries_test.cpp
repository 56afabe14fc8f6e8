#include "data/Queries.h"

#include "common/Numbers.h"
#include "data/Numbering.h"
#include "platform/ado/Connection.h"
#include "tests/support/TemporaryShop.h"

namespace varnik {
namespace {

// What callers select by name, in the order of SELECT *.
const std::map<std::string, std::string> Columns = {
    {"QryBKK",
     "NoBKK TglBKK CaraBayar Keterangan RekID NamaBank NoCek Jumlah Penerima Terbilang TglJTP KodeBiaya "
     "JumlahBiaya Diskripsi NoRek NamaPemilik KodeJenisBiaya JenisBiaya"},
    {"QryBKM",
     "NoBKM TglBKM CaraBayar Keterangan NamaCus KodeCus Jumlah Terbilang NamaBank Debitur NoCek RekID "
     "Penyetor TglJTP NoRek"},
    {"QryCustomerReceive",
     "KodeCus NoBKM TglBKM Bayar RekID NamaBank Penerima TglJTP Debitur NoInvoice Jumlah "
     "TglInvoice Total Saldo CaraBayar Keterangan Terbilang Kasir NoCek NamaCus"},
    {"QryDaftarBiaya", "KodeBiaya Diskripsi JenisBiaya KodeJenisBiaya"},
    {"QryDaftarJenisBiaya", "KodeJenisBiaya JenisBiaya"},
    {"QryDaftarKasBank", "RekID NamaBank NoRek JenisRek NamaPemilik"},
    {"QryFakSupllier", "KodeSup NamaSup NoFaktur TglFaktur Bruto Disc Netto Total Bayar Faktur"},
    {"QryIdBKK", "NOUSER NoBukti"},
    {"qryIdBKM", "NOUSER NoBukti"},
    {"QryIdFaktur", "NOUSER ID"},
    {"QryIDInvoice", "NOUSER NOINV"},
    {"QryIDReceive", "NOUSER ID"},
    {"QryIDReturBeli", "NOUSER ID"},
    {"QryIDReturJual", "NOUSER NOINV"},
    {"QryInvCustomer", "KodeCus NamaCus NoInvoice TglInvoice Bruto Disc Netto PPN Total Bayar Saldo"},
    {"QryInvoice",
     "NoInvoice CusPO TglInvoice TglJtp Netto PPN Total Terbilang KodeBrg Qty Satuan Harga Total2 "
     "NamaCus Alamat_1 Alamat_2 Alamat_3 Kota NamaBrg Disc nPPN nDIS Jasa KodeCus"},
    {"QryInvoiceRetur",
     "ReturID TglRetur NoInvoice TglInvoice Netto PPN Total KodeBrg Qty Satuan Harga Total2 "
     "NamaCus Alamat_1 Alamat_2 Alamat_3 Kota NamaBrg Disc nPPN nDIS Jasa KodeCus Ket2"},
    {"QryInvSupplier", "KodeSup NamaSup NoFaktur TglFaktur Bruto Disc Netto Total Bayar Saldo"},
    {"QryJenisProduk", "KodeJenisProduk JenisProduk"},
    {"QryPembelianDetail",
     "KodeSup NoFaktur TglFaktur KodeBrg NamaBrg Qty QtySatuan Harga HargaSatuan SatuanSatuan "
     "Satuan Bruto Disc Netto Total Jasa JenisProduk JenisBrg NamaSup Qty2"},
    {"QryPenjualanDetail",
     "KodeCus NamaCus NoInvoice TglInvoice KodeBrg NamaBrg Qty QtySatuan Harga HargaSatuan SatuanSatuan "
     "Satuan Bruto "
     "Disc Netto PPN Total THPPRATA THPP HPPRATA MARGIN HPP Jasa JenisProduk JenisBrg KodeSup NamaSup"},
    {"QryPO",
     "NoFaktur NoFakSup TglFaktur TglJtp Netto KodeBrg Qty Satuan Harga Total NamaSup Alamat_1 Alamat_2 "
     "Alamat_3 Kota NamaBrg KodeSup Ket2"},
    {"QryPORetur",
     "NoFaktur NoPO TglPO TglFaktur Netto KodeBrg Qty Satuan Harga Total2 NamaSup Alamat_1 Alamat_2 "
     "Alamat_3 Kota NamaBrg KodeSup Ket2"},
    {"QrySupplierReceive",
     "KodeSup NoBKK TglBKK Bayar RekID NamaBank Penerima TglJTP NoFaktur Jumlah TglFaktur Total "
     "Saldo CaraBayar Keterangan Terbilang Kasir NoCek NamaSup NoFakSup"},
    {"QueryBank", "NamaBank RekID NoRek Tanggal NoBukti NoCek Debit Kredit Penerima"},
    {"QryBKKUNION", "NoBKK TglBKK CaraBayar RekID NamaBank Penerima TglJTP KodeBiaya JumlahBiaya Diskripsi "
                    "KodeJenisBiaya JenisBiaya"},
    {"QueryHutang", "Tanggal NoBukti KodeSup Debit Kredit"},
    {"QueryPiutang", "Tanggal NoBukti KodeCus Debit Kredit"},
    {"QueryStok", "Tanggal NoBukti KodeCus Debit Kredit"},
};

// A database with documents of every kind, written through the data layer; many of each where asked.
class Queries : public testing::Test {
protected:
    static std::string Number(int counter, const std::string& user = "00") {
        return NumberAfter(std::to_string(counter - 1), CounterReading::WholeNumber, user);
    }
    void Invoice(const std::string& number, const std::string& customer = "C1", double total = 100) {
        connection.Execute(
            "INSERT INTO Invoice (NoInvoice,TglInvoice,TglJtp,KodeCus,Bruto,Disc,Netto,Total,nPPN,PPN,Bayar,"
            "Saldo,NoUser) VALUES ('" +
            number + "','2026-01-05','2026-01-05','" + customer + "',1,0,1," + SqlNumber(total) +
            ",0,0,0,1,'00')");
    }
    void Line(const std::string& number, const std::string& product, double quantity, int base) {
        connection.Execute(
            "INSERT INTO InvoiceDetail (NoInvoice,TglInvoice,KodeBrg,Qty,Qty2,Harga,Bruto,Disc,Netto,nDIS,"
            "nPPN,PPN,Total,Jasa,QtyOrder,QtyRetur,HPP,HPPRATA) VALUES ('" +
            number + "','2026-01-05','" + product + "'," + SqlNumber(quantity) + "," + std::to_string(base) +
            ",60,120,0,120,0,0,0,120,false,0,0,72,48)");
    }
    void Receipt(const std::string& number, const std::string& way = "'CASH'") {
        connection.Execute(
            "INSERT INTO BKM "
            "(NoBKM,TglBKM,CaraBayar,RekID,Jumlah,Setor,Clear,TglJTP,TglSetor,TglClear) VALUES "
            "('" +
            number + "','2026-01-06'," + way +
            ",'K1',50,false,false,'2026-01-06','2026-01-06',"
            "'2026-01-06')");
    }
    void Paid(const std::string& receipt, const std::string& invoice, const std::string& customer,
              double amount) {
        connection.Execute("INSERT INTO InvoiceBayar (NoBKM,NoInvoice,TglBKM,KodeCus,Jumlah) VALUES ('" +
                           receipt + "','" + invoice + "','2026-01-06','" + customer + "'," +
                           SqlNumber(amount) + ")");
    }
    void Payment(const std::string& number, const std::string& cost) {
        connection.Execute(
            "INSERT INTO BKK (NoBKK,TglBKK,CaraBayar,RekID,Jumlah,TglJTP,KodeBiaya,JumlahBiaya) VALUES ('" +
            number + "','2026-01-07','CASH','K1',30,'2026-01-07'," + cost + ",30)");
    }
    void Faktur(const std::string& number) {
        connection.Execute(
            "INSERT INTO Faktur "
            "(NoFaktur,TglFaktur,TglJtp,KodeSup,Bruto,Netto,Disc,Total,Bayar,Saldo) VALUES ('" +
            number + "','2026-01-04','2026-01-04','S1',1,1,0,200,0,200)");
    }
    void PaidFaktur(const std::string& payment, const std::string& faktur) {
        connection.Execute(
            "INSERT INTO FakturBayar (NoBKK,TglBKK,NoFaktur,KodeSup,Jumlah,CaraBayar) VALUES ('" + payment +
            "','2026-01-07','" + faktur + "','S1',30,'BG')");
    }
    void Masters() {
        for (const char* sql :
             {"INSERT INTO Bank (RekID,NamaBank,SaldoAwal,SaldoAkhir,DefaultKas) VALUES "
              "('K1','Cash',0,0,true)",
              "INSERT INTO Customer (KodeCus,NamaCus,nDIS,nwDis,nJTP,SaldoAkhir,SaldoAwal) VALUES "
              "('C1','Ani',0,0,0,0,0)",
              "INSERT INTO Customer (KodeCus,NamaCus,nDIS,nwDis,nJTP,SaldoAkhir,SaldoAwal) VALUES "
              "('C2','Budi',0,0,0,0,0)",
              "INSERT INTO Supplier (KodeSup,NamaSup,nDIS,nwDis,nJTP,SaldoAwal,SaldoAkhir) VALUES "
              "('S1','Tani',0,0,0,0,0)",
              "INSERT INTO JenisProduk (KodeJenisProduk,JenisProduk) VALUES ('J1','Food')",
              "INSERT INTO JenisBiaya (KodeJenisBiaya,JenisBiaya) VALUES ('B','Rent')",
              "INSERT INTO Biaya (KodeBiaya,Diskripsi,KodeJenisBiaya) VALUES ('B1','Shop rent','B')",
              "INSERT INTO Produk "
              "(KodeBrg,NamaBrg,JenisBrg,Pecahan,PecahanBeli,PecahanJual,QGudang,QCounter,OnOrder,"
              "OnHand,HPPAwal,HPPAkhir,HPPRata,QAwal,QJual,QBeli,HargaBeli,HargaJual,Jasa) VALUES "
              "('P1','Rice','J1',1,1,1,0,0,0,0,0,0,0,0,0,0,0,0,false)"})
            connection.Execute(sql);
    }
    // Machine steps of the engine for a statement.
    std::int64_t Effort(const std::string& sql) {
        ado::Engine& engine = connection.Implementation().Open().Native();
        ado::Recordset(sql, connection, ado::CursorType::Static);
        const std::int64_t before = engine.Steps();
        ado::Recordset(sql, connection, ado::CursorType::Static);
        return engine.Steps() - before;
    }
    TemporaryShop shop;
    ado::Connection connection = shop.Connect(); // kept open: closing one that wrote waits for the disk
};

TEST_F(Queries, AllAnswerWithTheirColumns) {
    EXPECT_EQ(data::StoredQueries().size(), Columns.size());
    for (const auto& query : data::StoredQueries()) {
        ado::Recordset rows("Select * From " + query.name, connection, ado::CursorType::Static);
        std::string columns;
        for (int i = 0; i < rows.FieldCount(); ++i) columns += (i == 0 ? "" : " ") + rows.FieldName(i);
        EXPECT_EQ(columns, Columns.at(query.name)) << query.name;
        EXPECT_TRUE(rows.Empty()) << query.name;
    }
    EXPECT_EQ(data::StoredQueries()[24].name, "QueryBank"); // the last of the first batch
}

TEST_F(Queries, NumbersGoOnPerUserAndSeries) {
    EXPECT_EQ(data::NextNumber(shop.services, Document::Invoice), "000000000100");
    for (const auto& [counter, user] : {std::pair{1, "00"}, {41, "00"}, {7, "00"}, {900, "07"}, {3, "01"}})
        Invoice(Number(counter, user));
    EXPECT_EQ(data::NextNumber(shop.services, Document::Invoice), "000000004200");
    EXPECT_EQ(shop.Table("Select * From QryIDInvoice"), "00|0000000041\n01|0000000003\n07|0000000900");
    shop.session.NoUser = "07";
    EXPECT_EQ(data::NextNumber(shop.services, Document::Invoice), "000000090107");
    // The series ends at the comma for this screen, and goes on past it for the other reading.
    Invoice(Number(1000, "07"));
    EXPECT_EQ(data::NextNumber(shop.services, Document::Invoice), "000000000207");

    shop.session.NoUser = "00";
    Receipt(Number(5));
    for (const Document document : {Document::BayarInvoice, Document::Bayar, Document::OtherReceive})
        EXPECT_EQ(data::NextNumber(shop.services, document), "000000000600");
    Payment(Number(8), "Null");
    for (const Document document : {Document::BayarFaktur, Document::OtherPayment})
        EXPECT_EQ(data::NextNumber(shop.services, document), "000000000900");
    Faktur(Number(1000));
    EXPECT_EQ(data::NextNumber(shop.services, Document::Faktur), "000001,00100");
    for (const Document document : {Document::FakturRetur, Document::InvoiceRetur})
        EXPECT_EQ(data::NextNumber(shop.services, document), "000000000100");
}

TEST_F(Queries, OneVoucherOneUserOnePartyAreSeeks) {
    Masters();
    const std::map<std::string, std::string> asked = {
        {"QryIDInvoice", "NoUser ='00'"},
        {"qryIdBKM", "NoUser ='00'"},
        {"QryIDReceive", "NoUser ='00'"},
        {"QryIdBKK", "NoUser ='00'"},
        {"QryIdFaktur", "NoUser ='00'"},
        {"QryBKM", "NoBKM ='000000000300'"},
        {"QryBKK", "NoBKK ='000000000300'"},
        {"QryCustomerReceive", "NoBKM ='000000000300'"},
        {"QrySupplierReceive", "NoBKK ='000000000300'"},
        {"QryInvoice", "NoInvoice ='000000000300'"},
        {"QryPO", "NoFaktur ='000000000300'"},
        {"QryInvCustomer", "NoInvoice ='000000000300'"},
        {"QueryPiutang", "KodeCus ='C2'"},
        {"QueryBank", "RekID ='K2'"},
        {"QueryHutang", "KodeSup ='S2'"},
        {"QryPembelianDetail", "NoFaktur ='000000000300'"},
    };
    const auto grow = [&](int from, int to) {
        for (int i = from; i <= to; ++i) {
            Invoice(Number(i));
            Line(Number(i), "P1", 2, 12);
            Receipt(Number(i));
            Paid(Number(i), Number(i), "C1", 50);
            Payment(Number(i), "'B1'");
            Faktur(Number(i));
            PaidFaktur(Number(i), Number(i));
        }
    };
    std::map<std::string, std::int64_t> few;
    grow(1, 10);
    for (const auto& [query, condition] : asked)
        few[query] = Effort("Select * From " + query + " Where " + condition);
    grow(11, 300);
    for (const auto& [query, condition] : asked) {
        const std::string sql = "Select * From " + query + " Where " + condition;
        EXPECT_LE(Effort(sql), few[query] + 10) << query; // a walk would take thousands of steps
    }
}

// The statements of the ledger books: one party's month among many months of others and of its own.
TEST_F(Queries, AMonthOfOneAccountIsASeek) {
    Masters();
    const auto month = [](const std::string& table, const std::string& from) {
        return "SELECT " + from + " Where month(" + table + "Tanggal)= 3 And Year (" + table +
               "Tanggal) = 2026 And ";
    };
    const std::vector<std::string> statements = {
        month("", "NamaBank,NoBukti From QueryBank") + "RekID = 'K1'",
        month("QueryBank.", "Sum(QueryBank.Debit) as D From QueryBank") + "QueryBank.RekID = 'K1' ",
        month("QueryPiutang.", "NamaCus,QueryPiutang.Debit From Customer LEFT OUTER JOIN QueryPiutang ON    "
                               "Customer.KodeCus = QueryPiutang.KodeCus ") +
            "Customer.KodeCus = 'c1'  Order By QueryPiutang.Tanggal",
        month("QueryHutang.", "NamaSup,QueryHutang.Debit From Supplier LEFT OUTER JOIN QueryHutang ON    "
                              "Supplier.KodeSup = QueryHutang.KodeSup ") +
            "Supplier.KodeSup = 'S1'",
        "SELECT Sum(QueryPiutang.Debit) as D From QueryPiutang Where QueryPiutang.Tanggal < "
        "Datevalue('01/ 1/ 2026')  and QueryPiutang.KodeCus = 'C1'  ",
        "SELECT Sum(QueryBank.Debit) as D From QueryBank Where QueryBank.Tanggal < Datevalue('01/ 1/ "
        "2026')  and QueryBank.RekID = 'K1'  ",
    };
    const auto grow = [&](int from, int to) {
        for (int i = from; i <= to; ++i) {
            Invoice(Number(i));
            Receipt(Number(i));
            Paid(Number(i), Number(i), "C1", 50);
            Payment(Number(i), "'B1'");
            Faktur(Number(i));
            PaidFaktur(Number(i), Number(i));
        }
    };
    grow(1, 3);
    // Rows of the month itself come out of every one of them, whatever the letters of the code.
    for (const char* sql : {"Update Invoice Set TglInvoice = '3/31/2026' Where NoInvoice = '000000000100'",
                            "Update BKM Set TglBKM = '3/31/2026' Where NoBKM = '000000000100'",
                            "Update Faktur Set TglFaktur = '3/1/2026' Where NoFaktur = '000000000100'"})
        connection.Execute(sql);
    std::vector<std::int64_t> few;
    for (const std::string& sql : statements) {
        ado::Recordset rows(sql, connection, ado::CursorType::Static);
        EXPECT_EQ(rows.RecordCount(), 1) << sql;
        few.push_back(Effort(sql));
    }
    grow(4, 300);
    for (std::size_t i = 0; i < statements.size(); ++i)
        EXPECT_LE(Effort(statements[i]), few[i] + 10) << statements[i];
}

TEST_F(Queries, JoinsKeepAndDropTheRowsThatCallersExpect) {
    Masters();
    Invoice("000000000100", "C1");
    Invoice("000000000200", "C2");
    Line("000000000100", "P1", 2, 12);
    // Two payments of one customer are one row, a voucher of two customers two, one without any stays.
    for (const char* number : {"R1", "R2", "R3"}) Receipt(number);
    Receipt("R4", "Null");
    Paid("R1", "000000000100", "C1", 10);
    Paid("R1", "000000000300", "C1", 20);
    Paid("R2", "000000000100", "C1", 5);
    Paid("R2", "000000000200", "C2", 5);
    EXPECT_EQ(shop.Table("Select NoBKM,NamaCus From QryBKM Order By NoBKM,NamaCus"),
              "R1|Ani\nR2|Ani\nR2|Budi\nR3|\nR4|");
    EXPECT_EQ(shop.Table("Select NoBukti,Debit From QueryBank Where NoBukti Is Null"),
              "|50"); // no way of paying
    EXPECT_EQ(shop.Table("Select NoBukti From QueryBank Where NoBukti Like '%R3'"), "RECEIPT CASH ID - R3");

    Payment("V1", "'B1'");
    Payment("V2", "Null");
    Payment("V2", "Null"); // the same voucher twice: nothing forbids it
    Faktur("000000000100");
    PaidFaktur("V2", "000000000100");
    EXPECT_EQ(shop.Table("Select NoBKK,Diskripsi,JenisBiaya From QryBKK"), "V1|Shop rent|Rent");
    EXPECT_EQ(
        shop.Table(
            "Select NoBKK,Penerima,KodeBiaya,KodeJenisBiaya,JenisBiaya From QryBKKUNION Order By NoBKK"),
        "V1||B1|B|Rent\nV2|Tani|000000000100|999|PAYMENT");

    // Identical rows collapse in the receivables and stay in the payables.
    Paid("R3", "000000000100", "C1", 7);
    Paid("R3", "000000000100", "C1", 7);
    PaidFaktur("V2", "000000000100");
    EXPECT_EQ(shop.Table("Select NoBukti,Kredit From QueryPiutang Where NoBukti Like 'Receipt%R3%'"),
              "Receipt ID - R3 Invoice ID- 000000000100|7");
    EXPECT_EQ(shop.Rows("Select * From QueryHutang Where Kredit=30").size(), 2u);
    EXPECT_EQ(shop.Table("Select Sum(Debit),Sum(Kredit) From QueryPiutang Where KodeCus='C1'"), "100|42");

    EXPECT_EQ(shop.Table("Select Qty,QtySatuan,Harga,HPP,HPPRATA,THPP,MARGIN From QryPenjualanDetail"),
              "24|2|2.5|3|2|72|48");
    Line("000000000100", "P1", 0, 12);
    try {
        shop.Rows("Select * From QryPenjualanDetail");
        ADD_FAILURE() << "a line without quantity divides by zero";
    } catch (const ado::DataError& error) {
        EXPECT_EQ(error.Number(), ado::DivisionByZero);
    }
}

} // namespace
} // namespace varnik
