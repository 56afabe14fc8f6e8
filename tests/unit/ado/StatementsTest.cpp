// Every shape of statement that screens and reports join together, against the shop's own tables and stored
// queries: it must be read, compiled and run.

#include "data/Queries.h"
#include "data/Schema.h"

#include "tests/unit/ado/Fixture.h"

#include <random>

namespace varnik::ado {
namespace {

constexpr const char* Statements[] = {
    "Select Max(KodeSup) as Kode From Supplier",
    "Select Max (KodeCus) as Kode From Customer ",
    "Select max(RekId) as Kode From Bank ",
    "Select KodeSup,NamaSup,Alamat_1 + ' '+ Alamat_2 as Alamat ,SaldoAkhir From Supplier Where Alamat_1 "
    "+Alamat_2+Alamat_3+Kota  Like '%A%' Order By NamaSup",
    "Select KodeCus,NamaCus,Alamat_1 + ' '+ Alamat_2 as Alamat ,SaldoAkhir From Customer Where SaldoAkhir = "
    "12.5 Order By "
    "NamaCus",
    "Select KodeBrg,NamaBrg,Onhand,Satuan From Produk  Where  NamaBrg Like '%A%' Order By NamaBrg ",
    "SELECT * FROM Produk Order By KodeBrg",
    "Select Satuan    From Produk Group By  Satuan ",
    "Select  a.*, b.NamaSup From Produk a Left Join Supplier b on  a.KodeSup = b.KodeSup Where a.KodeBrg = "
    "'A'",
    "Delete from Supplier Where KodeSup = '1'",
    "INSERT INTO BANK (RekID,NamaBank,NoRek,JenisRek,NamaPemilik,SaldoAwal,SaldoAkhir,Keterangan,DefaultKas "
    ") Values "
    "('001','KAS','1','K','P',100,200,'k',True)",
    "INSERT INTO  JenisProduk (KodeJenisProduk, JenisProduk) Values ('001','Food')",
    "Update  JenisProduk  Set  JenisProduk = 'Drink' Where KodeJenisProduk = '001'",
    "DELETE FROM JenisProduk Where  KodeJenisProduk = '001'",
    "Select KodeJenisProduk, JenisProduk From QryJenisProduk Group By KodeJenisProduk, JenisProduk",
    "Select KodejenisBiaya,JenisBiaya,KodeBiaya,Diskripsi From QryDaftarBiaya Order By KodeBiaya",
    "INSERT INTO BIAYA (KodeBiaya,Diskripsi,KodeJenisBiaya,KodeAcc) VALUES ('1','N','','' )",
    "UPDATE BIAYA set Diskripsi ='N',KodeJenisBiaya ='1',KodeAcc ='2' Where KodeBiaya ='1'",
    "INSERT INTO T_USER (USERID,NOUSER,PASSWORD,TAMBAH,LIHAT,GANTI, HAPUS) VALUES "
    "('varnik','00','x',true,true,true,true)",
    "INSERT INTO COMPANY (NamaPerusahaan,Ket1,Ket2,Ket3) VALUES ('Varnik','L','I', '=')",
    "INSERT INTO MenuList (MenuID, NamaMenu, Ket) VALUES ('F01', 'Products', '')",
    "Select UserId,MenuID From SecurityUser Where UserId ='00' Order By MenuID",
    "Select * from T_User Where UserID Like 'varnik'",
    "Select  *  from SecurityUser  Where MenuID = 'F01'  and UserID =  '00'",
    "Insert Into Customer  ( KodeCus ,NamaCus ,Alamat_1,Alamat_2 ,Alamat_3 ,Kota ,Telp, Fax ,Contax, "
    "Jabatan,nDis,nwDis,nJTP ,SaldoAwal,SaldoAkhir,Ket  ,JenisCus )  Values  ( "
    "'A','N','1','2','3','K','T','F','C','J',0,0,30,"
    "0,0,'k','001')",
    " Update Customer Set NamaCus = 'N',Alamat_1 = '1',nDis = 0,nJTP = 1,SaldoAwal = 0,SaldoAkhir = 5,NPWP = "
    "'',JenisCus = "
    "'001'  Where KodeCus = 'A'",
    "INSERT INTO Produk (KodeBrg ,NamaBrg ,Jasa ,JenisBrg ,QAwal ,QJual ,QBeli ,HPPAwal ,HPPAkhir ,HPPRata , "
    "Pecahan ,Satuan "
    ",PecahanBeli ,SatuanBeli ,HargaBeli ,PecahanJual ,SatuanJual ,HargaJual , QCounter ,QGudang ,OnHand "
    ",OnOrder ,KodeSup "
    ",KodeRef ,Ket )  VALUES ('A','N',False, "
    "'001',0,0,0,1,1,1,1,'PCS',1,'PCS',1,1,'PCS',2,0,0,0,0,'S','','')",
    "Select  * From Invoice Where NoInvoice = '000000000100'",
    "SELECT KodeCus, NamaCus, NoInvoice, TglInvoice,  Netto, PPN, Total, Bayar, Saldo FROM QryInvCustomer  "
    "Where TglInvoice = "
    "datevalue ('1/2/2026') Order By KodeCus,TglInvoice,NoInvoice",
    "SELECT KodeCus, NamaCus, NoInvoice, TglInvoice, Bruto, Disc, Netto, PPN, Total, Bayar, Saldo FROM "
    "QryInvCustomer  Where "
    "NamaCus Like  '%A%' And Saldo >0 Order By KodeCus,TglInvoice,NoInvoice",
    "SELECT Customer.KodeCus, Customer.NamaCus, Customer.Alamat_1, Invoice.NoInvoice, Invoice.CusPo, "
    "Invoice.TglJTP, "
    "nPPN,Invoice.Bruto FROM Customer INNER JOIN Invoice ON Customer.KodeCus = Invoice.KodeCus Where "
    "Invoice.NoInvoice ='1'",
    "Select NoInv From QryIDInvoice  Where NoUser ='00'",
    "SELECT NOINV From QryIDReturJual Where noUser ='00'",
    "Select ID  From QryIDFaktur  Where NoUser ='00'",
    "Select NoBukti From QryIdBKM Where NoUser ='00'",
    "Update Invoice Set Bayar=Bayar + 12.5 , Saldo = Saldo - 12.5 Where NoInvoice = '1'",
    "Update Invoice Set Bayar=Bayar - 500 , Saldo = Saldo =500 Where NoInvoice = '1'",
    "Update Customer Set SaldoAkhir =SaldoAkhir + 999 Where KodeCus = 'A'",
    "Update FakturDetail Set QtySisa =QtySisa + 5 Where (NoFaktur='1')  and (KodeBrg = 'A')",
    "Update InvoiceDetail Set QtyRetur = QtyRetur + 5 Where (NoInvoice='1')  and (KodeBrg = 'A')",
    "Select * From PersediaanJual  Where  NoInvoice ='1' and KodeBrg ='A' and  NoPo ='2'",
    "UPDATE INVOICE Set Saldo =Saldo - 5,Bayar = Bayar +  5 Where NoInvoice='1'",
    "UPDATE BANK Set Saldoakhir = Saldoakhir + 5 Where RekID  ='001'",
    "Update Bank Set SaldoAkhir = SaldoAkhir - 101Where RekID ='001'",
    "Select NoBKM,TglBKM,CaraBayar,Keterangan,RekID,NamaBank, "
    "NoCek,Debitur,TglJTP,NoInvoice,Jumlah,KodeCus,NamaCus,Penerima "
    "From QryCustomerReceive Where noBKM = '1' Order By NoInvoice",
    "Select NoBKM, TglBKM, CaraBayar,  Keterangan, NamaCus, KodeCus, NamaCus + '('+KodeCus+')' As Penyetor, "
    "Jumlah From "
    "QryBKM Where NoBKM ='1'",
    "INSERT INTO BKM "
    "(TglBKM,NoBKM,CaraBayar,Keterangan,Penerima,Penyetor,RekID,NamaBank,Debitur,NoCek,Jumlah,Terbilang,"
    "TglSetor,TglJtp,TglClear,Setor,Clear) VALUES ( "
    "#1/2/2026#,'000000000100','CASH','m','r','c','001','KAS','c','0',1234.5,' "
    "One ',#1/2/2026#,#1/2/2026#,#1/2/2026#,False,False)",
    "SELECT KodeSup, NamaSup, NoFaktur, TglFaktur, Bruto, Disc, Netto, 0 as PPN, Total, Bayar, Saldo FROM "
    "QryInvSupplier  Where "
    "KodeSup Like  '%A%' And Saldo >0 Order By KodeSup,TglFaktur,NoFaktur",
    "Select * From QryPembelianDetail Where NoFaktur = '1'",
    " SELECT  NoFaktur, NoFakSup, TglFaktur, TglJtp, Netto, KodeBrg, Qty, Satuan, Harga, Total,NamaSup, "
    "Alamat_1, Alamat_2, "
    "Alamat_3, Kota,    NamaBrg FROM QryPO Where Nofaktur = '1'",
    " Update Persediaan Set QtySisa = QtySisa - 5 Where NoJurnal ='11' and NoRef  ='1' and KodeBrg = 'A'",
    "Select NoBKK,TglBKK,CaraBayar,Keterangan,RekID,NamaBank, "
    "NoCek,TglJTP,NoFaktur,Jumlah,KodeSup,NamaSup,Penerima From "
    "QrySupplierReceive Where noBKK = '1' Order By NoFaktur",
    "Select RekID, NamaBank,NoRek,NoRek ,NamaPemilik From QryDaftarKasBank Order By RekID",
    " SELECT NoBKK, TglBKK, RekID,   NamaBank, NoRek, JenisBiaya,Diskripsi, JumlahBiaya, Penerima,  "
    "Keterangan, CaraBayar,NoCek, "
    "Jumlah,  Terbilang, TglJTP,    KodeJenisBiaya,JenisBiaya, NamaPemilik  From QryBKK  Where TglBKK= "
    "datevalue ('1/2/2026') "
    "Order By NoBKK,KodeBiaya",
    "Select  * From FakturDetail Where KodeBrg = 'A' and QtySisa > 0",
    "Select * from Persediaan Where  NoJurnal = '11' and NoRef =  '1' and KodeBrg = 'A' ",
    "  SELECT  Customer.KodeCus, Customer.NamaCus,    Invoice.NoInvoice , Invoice.TglInvoice, Invoice.Saldo "
    "From  Customer "
    "Customer LEFT JOIN Invoice Invoice ON Customer.KodeCus = Invoice.KodeCus WHERE Customer.KodeCus = 'A' ",
    " SELECT KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,PPN,Total,JenisProduk,JenisBrg From "
    "QryPenjualanDetail  Where TglInvoice "
    "between Datevalue('1/1/2026') and datevalue('1/31/2026')Order by KodeBrg, TglInvoice",
    " SELECT KodeCus,NamaCus,KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,PPN,Total,JenisProduk,JenisBrg, "
    "THPP, THPPRATA, MARGIN "
    "From QryPenjualanDetail  Where KodeCus= 'A'  and TglInvoice between Datevalue('1/1/2026') and "
    "datevalue('1/31/2026') Order By "
    "kodecus",
    " SELECT KodeCus,NamaCus,KodeBrg,NamaBrg,Qty,Satuan,Total2,ket2  From QryInvoiceRetur  Where KodeCus= "
    "'A'  and TglInvoice "
    "between Datevalue('1/1/2026') and datevalue('1/31/2026') Order By kodebrg, KodeCus, tglInvoice",
    "SELECT  Produk.KodeBrg, Produk.NamaBrg, Produk.JenisBrg, Produk.Satuan, Produk.OnHand, Produk.HPPRata,  "
    "  "
    "JenisProduk.JenisProduk  FROM  Produk Produk LEFT OUTER JOIN JenisProduk JenisProduk ON     "
    "Produk.JenisBrg = "
    "JenisProduk.KodeJenisProduk  Where Produk.JenisBrg = '001' Order By Produk.JenisBrg, Produk.KodeBrg ",
    " SELECT   QryBKKUNION.NoBKK , QryBKKUNION.TglBKK, QryBKKUNION.Penerima, QryBKKUNION.KodeBiaya, "
    "QryBKKUNION.JumlahBiaya "
    "From   QryBKKUNION QryBKKUNION Where KodeJenisBiaya = '001'  and TglBKK between Datevalue('1/1/2026') "
    "and "
    "datevalue('1/31/2026')",
    "SELECT    Sum(QueryBank.Debit) as D, Sum(QueryBank.Kredit) as K From   QueryBank  Where "
    "QueryBank.Tanggal < Datevalue('01/ 1/ "
    "2026')  and QueryBank.RekID = '001'  ",
    "SELECT  NamaBank,RekID, NoRek, Tanggal, NoBukti, Debit, Kredit  From    QueryBank Where month(Tanggal)= "
    "1 And Year (Tanggal) = "
    "2026 And RekID = '001'",
    "SELECT    Customer.KodeCus, Customer.NamaCus,    QueryPiutang.Tanggal, QueryPiutang.NoBukti, "
    "QueryPiutang.Debit, "
    "QueryPiutang.Kredit From    Customer LEFT OUTER JOIN QueryPiutang ON        Customer.KodeCus = "
    "QueryPiutang.KodeCus Where "
    "month(QueryPiutang.Tanggal)= 1 And Year (QueryPiutang.Tanggal) = 2026 And Customer.KodeCus = 'A'  Order "
    "By "
    "QueryPiutang.Tanggal",
    "Select  SaldoAwal , SaldoAkhir From SUpplier Where KodeSup ='A' ",
    "SELECT  BKM.NoBKM, Customer.NamaCus, Bank.NamaBank FROM ((BKM LEFT JOIN [Select NoBKM , KodeCus From "
    "InvoiceBayar Group By "
    "NoBKM,KodeCus]. AS Bayar ON BKM.NoBKM = Bayar.NoBKM) LEFT JOIN Customer ON Bayar.KodeCus = "
    "Customer.KodeCus) INNER JOIN Bank "
    "ON BKM.RekID = Bank.RekID; ",
    "SELECT b.NamaBank, b.RekID, a.Tanggal, a.NoBukti FROM (SELECT  'RECEIPT '+CaraBayar+ ' ID - '+NoBKM as "
    "NoBukti , TglBKM as "
    "Tanggal , RekID FROM BKM UNION ALL SELECT 'PAYMENT '+CaraBayar+' ID-' +NoBKK as NoBukti , TglBKK as "
    "Tanggal , RekID FROM  BKK ) "
    "AS a, Bank AS b WHERE a.RekID =b.RekID; ",
    "SELECT Supplier.KodeSup, (FakturDetail.Harga/(FakturDetail.Qty*FakturDetail.Qty2)) AS Harga, "
    "(FakturDetail.Harga*FakturDetail.Qty)-FakturDetail.Disc AS Netto FROM (((Supplier INNER JOIN Faktur ON "
    "Supplier.KodeSup = "
    "Faktur.KodeSup) INNER JOIN FakturDetail ON Faktur.NoFaktur = FakturDetail.NoFaktur) INNER JOIN Produk "
    "ON FakturDetail.KodeBrg = "
    "Produk.KodeBrg) LEFT JOIN JenisProduk ON Produk.JenisBrg = JenisProduk.KodeJenisProduk; ",
};

// Joined so that they fail, and must: the screens rely on it.
constexpr const char* Failing[] = {
    "UPDATE SUPPLIER SET  SaldoAkhir = SaldoAkhir -  1,000' Where KodeSup = ' S1'",
    "Update Invoice Set Bayar=Bayar - 1,000 , Saldo = Saldo =1,000 Where NoInvoice = '1'",
    "Update Bank Set SaldoAkhir = SaldoAkhir - 1,000Where RekID ='001'",
    "SELECT KodeSup FROM QrySupplierReceive  Where TglFaktur = datevalue ('1/1/2026' Order By "
    "KodeSup,NoBKK,NoFaktur",
    "Select SELECT    QrySupplierReceive.KodeSup From    QrySupplierReceive QrySupplierReceive  Where NoBKK "
    "='1'",
    "SELECT Persediaan.ID, Persediaan Memo, Persediaan.Saldo From  Persediaan Persediaan Where Tanggal "
    "Between "
    "Datevalue('1/1/2026') and datevalue('1/2/2026')",
    "SELECT QueryPiutang.NoJurnal From QueryPiutang",
    "   SELECT    QryInvoice.NoInvoice, QryInvoice.NamaBrg    QryInvoice.KodeBrgQryInvoiceInvoiceDetail.Qty, "
    "QryInvoice.Total,    "
    "From QryInvoice  Where Invoice.NoInvoice ='1'   Order By   QryInvoice.KodeBrg Asc",
    "Select Sum(Debit) From QueryBank Where Tanggal < Datevalue('01/ 13/ 2026x')",
};

class StatementsTest : public DatabaseTest {
protected:
    StatementsTest() {
        environment.catalog = data::Catalog();
        CreateDatabase(file);
        Connection connection = Open();
        for (const jet::Table& table : data::Tables()) CreateTable(connection, table);
        for (const Index& index : data::PrimaryIndexes()) CreateIndex(connection, index);
        for (const Index& index : data::UniqueKeys()) CreateIndex(connection, index);
        for (const data::StoredQuery& query : data::StoredQueries())
            ExecuteNative(connection, "CREATE VIEW " + query.name + " AS " + query.select);
        for (const std::string_view index : data::LookUpIndexes()) ExecuteNative(connection, index);
    }
};

TEST_F(StatementsTest, EveryShapeRuns) {
    Connection connection = Open();
    for (const char* sql : Statements) {
        std::string text;
        const std::string_view word =
            std::string_view(sql).substr(std::string_view(sql).find_first_not_of(' '));
        const bool select = word[0] == 's' || word[0] == 'S';
        EXPECT_EQ(FailureOf(
                      [&] {
                          if (!select) {
                              connection.Execute(sql);
                              return;
                          }
                          Recordset rows(sql, connection);
                          for (; !rows.Eof(); rows.MoveNext()) EXPECT_FALSE(rows.FieldName(0).empty());
                      },
                      &text),
                  0)
            << text << "\n"
            << sql;
    }
    for (const char* sql : Failing) {
        EXPECT_NE(FailureOf([&] { connection.Execute(sql); }), 0) << sql;
    }
    EXPECT_EQ(Ask("Select SaldoAkhir From Bank"), Value(200.0 + 5 - 101));
    EXPECT_EQ(Ask("Select Jumlah From BKM"), Value(1234.5));
}

// Whatever is typed into a field ends up inside a statement: it runs or it is refused, and nothing else
// happens.
TEST_F(StatementsTest, DamagedTextsRunOrAreRefused) {
    constexpr unsigned seed = 20261122;
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    const auto below = [&](std::size_t limit) {
        return std::uniform_int_distribution<std::size_t>(0, limit - 1)(random);
    };
    constexpr const char* splinters[] = {
        "'",       "\"",       "(",          ")", ",",  "#",        "[",     "]",  "].",
        ";",       "--",       "/*",         "+", "/",  "=",        " And ", "''", "1,000",
        " Union ", " Select ", "Case When ", "?", ":x", "\xC3\xA9", "."};
    Connection connection = Open();
    int refused = 0;
    for (int round = 0; round < 4000; ++round) {
        std::string sql = Statements[below(std::size(Statements))];
        for (std::size_t cuts = 1 + below(3); cuts > 0; --cuts) {
            const std::size_t at = below(sql.size());
            if (below(2) == 0) {
                sql.insert(at, splinters[below(std::size(splinters))]);
            } else {
                sql.erase(at, 1 + below(8));
            }
        }
        const long failure = FailureOf([&] {
            connection.Execute(sql);
            Recordset(sql, connection).MoveNext();
        });
        refused += failure != 0;
        EXPECT_NE(failure, EngineFault) << sql;
    }
    EXPECT_GT(refused, 1000);
    EXPECT_EQ(CheckDatabase(file), "");
}

TEST_F(StatementsTest, EveryTableAndStoredQueryOpens) {
    Connection connection = Open();
    for (const jet::Table& table : data::Tables()) {
        Recordset rows("SELECT * FROM " + std::string(table.name), connection);
        ASSERT_EQ(rows.FieldCount(), static_cast<int>(table.columns.size())) << table.name;
        for (int i = 0; i < rows.FieldCount(); ++i)
            EXPECT_EQ(rows.FieldName(i), table.columns[static_cast<std::size_t>(i)].name);
    }
    for (const data::StoredQuery& query : data::StoredQueries()) {
        Recordset rows("Select * From " + query.name, connection);
        EXPECT_GT(rows.FieldCount(), 1) << query.name;
    }
}

} // namespace
} // namespace varnik::ado
