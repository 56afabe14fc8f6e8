// Joined texts are null when a side is null, so a voucher without a way of paying has no NoBukti. Quantities
// and amounts are divided by Divisor(), which fails on a zero as the screens' statements do.

#include "data/Queries.h"

#include "common/Numbers.h"

#include <vector>

namespace varnik::data {
namespace {

// The highest counter of each user: a document number is ten characters of counter and two of user. Grouping
// would read every document; this walks from one user to the next over the index on the two pieces and
// takes the maximum of each, all of them seeks.
StoredQuery Highest(std::string_view name, std::string_view table, std::string_view number,
                    std::string_view counter) {
    std::string select = R"(
WITH RECURSIVE Users(NoUser) AS (
    SELECT min(substr([Number], 11, 2) COLLATE NOCASE) FROM [Table]
    UNION ALL
    SELECT (SELECT min(substr([Number], 11, 2) COLLATE NOCASE) FROM [Table]
            WHERE substr([Number], 11, 2) COLLATE NOCASE > Users.NoUser)
    FROM Users WHERE Users.NoUser IS NOT NULL)
SELECT Users.NoUser COLLATE NOCASE AS NOUSER,
       (SELECT max(substr([Number], 1, 10) COLLATE NOCASE) FROM [Table]
        WHERE substr([Number], 11, 2) COLLATE NOCASE = Users.NoUser) AS [Counter]
FROM Users WHERE Users.NoUser IS NOT NULL)";
    for (const auto& [mark, word] :
         {std::pair{"[Table]", table}, {"[Number]", number}, {"[Counter]", counter}})
        select = ReplaceText(select, mark, word);
    return {std::string(name), std::move(select)};
}

// Receivables by customer. Rows that agree in everything collapse into one, which is wanted here and not in
// the payables; kinds of document never agree, so each is made distinct by itself and asking for one customer
// is a seek. "Indvoice" stands on the printed books.
constexpr std::string_view Receivables = R"(
SELECT DISTINCT TglInvoice AS Tanggal, 'Sales Invoice ID - ' || NoInvoice AS NoBukti, KodeCus, Total AS Debit,
       0 AS Kredit
FROM Invoice
UNION ALL
SELECT DISTINCT TglBKM, 'Receipt ID - ' || NoBKM || ' Invoice ID- ' || NoInvoice, KodeCus, 0, Jumlah
FROM InvoiceBayar
UNION ALL
SELECT DISTINCT TglRetur, 'Sales Returns ID - ' || ReturID || '  For Indvoice ID' || NoInvoice, KodeCus, 0, Total
FROM InvoiceRetur)";

std::vector<StoredQuery> MakeQueries() {
    return {
        {"QryBKK", R"(
SELECT BKK.NoBKK, BKK.TglBKK, BKK.CaraBayar, BKK.Keterangan, BKK.RekID, Bank.NamaBank, BKK.NoCek, BKK.Jumlah,
       BKK.Penerima, BKK.Terbilang, BKK.TglJTP, BKK.KodeBiaya, BKK.JumlahBiaya, Biaya.Diskripsi, Bank.NoRek,
       Bank.NamaPemilik, JenisBiaya.KodeJenisBiaya, JenisBiaya.JenisBiaya
FROM BKK INNER JOIN Biaya ON BKK.KodeBiaya = Biaya.KodeBiaya
    INNER JOIN Bank ON BKK.RekID = Bank.RekID
    LEFT JOIN JenisBiaya ON Biaya.KodeJenisBiaya = JenisBiaya.KodeJenisBiaya)"},
        // One row per voucher and customer: of several payments of one customer only the first joins. A
        // voucher that pays no invoice stays in, without a customer.
        {"QryBKM", R"(
SELECT BKM.NoBKM, BKM.TglBKM, BKM.CaraBayar, BKM.Keterangan, Customer.NamaCus, Customer.KodeCus, BKM.Jumlah,
       BKM.Terbilang, Bank.NamaBank, BKM.Debitur, BKM.NoCek, Bank.RekID, BKM.Penyetor, BKM.TglJTP, Bank.NoRek
FROM BKM LEFT JOIN InvoiceBayar AS Bayar ON BKM.NoBKM = Bayar.NoBKM
        AND NOT EXISTS (SELECT 1 FROM InvoiceBayar AS Earlier
                        WHERE Earlier.NoBKM = Bayar.NoBKM AND Earlier.KodeCus IS Bayar.KodeCus
                            AND Earlier.rowid < Bayar.rowid)
    LEFT JOIN Customer ON Bayar.KodeCus = Customer.KodeCus
    INNER JOIN Bank ON BKM.RekID = Bank.RekID)"},
        {"QryCustomerReceive", R"(
SELECT InvoiceBayar.KodeCus, BKM.NoBKM, BKM.TglBKM, BKM.Jumlah AS Bayar, BKM.RekID, Bank.NamaBank, BKM.Penerima,
       BKM.TglJTP, BKM.Debitur, InvoiceBayar.NoInvoice, InvoiceBayar.Jumlah, Invoice.TglInvoice, Invoice.Total,
       Invoice.Saldo, BKM.CaraBayar, BKM.Keterangan, BKM.Terbilang, BKM.Kasir, BKM.NoCek, Customer.NamaCus
FROM BKM INNER JOIN InvoiceBayar ON BKM.NoBKM = InvoiceBayar.NoBKM
    INNER JOIN Invoice ON InvoiceBayar.NoInvoice = Invoice.NoInvoice
    INNER JOIN Bank ON BKM.RekID = Bank.RekID
    INNER JOIN Customer ON Invoice.KodeCus = Customer.KodeCus)"},
        {"QryDaftarBiaya", R"(
SELECT Biaya.KodeBiaya, Biaya.Diskripsi, QryDaftarJenisBiaya.JenisBiaya, QryDaftarJenisBiaya.KodeJenisBiaya
FROM Biaya LEFT JOIN QryDaftarJenisBiaya ON Biaya.KodeJenisBiaya = QryDaftarJenisBiaya.KodeJenisBiaya
ORDER BY Biaya.KodeBiaya)"},
        {"QryDaftarJenisBiaya", "SELECT JenisBiaya.KodeJenisBiaya, JenisBiaya.JenisBiaya FROM JenisBiaya"},
        {"QryDaftarKasBank", R"(
SELECT Bank.RekID, Bank.NamaBank, Bank.NoRek, Bank.JenisRek, Bank.NamaPemilik FROM Bank ORDER BY Bank.RekID)"},
        // Misspelt, and its last column misnamed, as files in use have it.
        {"QryFakSupllier", R"(
SELECT Supplier.KodeSup, Supplier.NamaSup, Faktur.NoFaktur, Faktur.TglFaktur, Faktur.Bruto, Faktur.Disc,
       Faktur.Netto, Faktur.Total, Faktur.Bayar, Faktur.Saldo AS Faktur
FROM Faktur INNER JOIN Supplier ON Faktur.KodeSup = Supplier.KodeSup)"},
        Highest("QryIdBKK", "BKK", "NoBKK", "NoBukti"),
        Highest("qryIdBKM", "BKM", "NoBKM", "NoBukti"),
        Highest("QryIdFaktur", "Faktur", "NoFaktur", "ID"),
        Highest("QryIDInvoice", "Invoice", "NoInvoice", "NOINV"),
        Highest("QryIDReceive", "BKM", "NoBKM", "ID"), // the rows of qryIdBKM under another name
        Highest("QryIDReturBeli", "FakturRetur", "NoFaktur", "ID"),
        Highest("QryIDReturJual", "InvoiceRetur", "ReturID", "NOINV"),
        {"QryInvCustomer", R"(
SELECT Customer.KodeCus, Customer.NamaCus, Invoice.NoInvoice, Invoice.TglInvoice, Invoice.Bruto, Invoice.Disc,
       Invoice.Netto, Invoice.PPN, Invoice.Total, Invoice.Bayar, Invoice.Saldo
FROM Customer INNER JOIN Invoice ON Customer.KodeCus = Invoice.KodeCus)"},
        {"QryInvoice", R"(
SELECT Invoice.NoInvoice, Invoice.CusPO, Invoice.TglInvoice, Invoice.TglJtp, Invoice.Netto, Invoice.PPN,
       Invoice.Total, Invoice.Terbilang, InvoiceDetail.KodeBrg, InvoiceDetail.Qty, InvoiceDetail.Satuan,
       InvoiceDetail.Harga, InvoiceDetail.Total AS Total2, Customer.NamaCus, Customer.Alamat_1,
       Customer.Alamat_2, Customer.Alamat_3, Customer.Kota, Produk.NamaBrg, InvoiceDetail.Disc,
       InvoiceDetail.nPPN, InvoiceDetail.nDIS, InvoiceDetail.Jasa, Invoice.KodeCus
FROM Invoice INNER JOIN Customer ON Invoice.KodeCus = Customer.KodeCus
    INNER JOIN InvoiceDetail ON Invoice.NoInvoice = InvoiceDetail.NoInvoice
    INNER JOIN Produk ON InvoiceDetail.KodeBrg = Produk.KodeBrg)"},
        // The columns of QryInvoice as far as returns have them, so that one page layout serves both.
        {"QryInvoiceRetur", R"(
SELECT Invoice.ReturID, Invoice.TglRetur, Invoice.NoInvoice, Invoice.TglInvoice, Invoice.Netto, Invoice.PPN,
       Invoice.Total, InvoiceDetail.KodeBrg, InvoiceDetail.Qty, InvoiceDetail.Satuan, InvoiceDetail.Harga,
       InvoiceDetail.Total AS Total2, Customer.NamaCus, Customer.Alamat_1, Customer.Alamat_2, Customer.Alamat_3,
       Customer.Kota, Produk.NamaBrg, InvoiceDetail.Disc, InvoiceDetail.nPPN, InvoiceDetail.nDIS,
       InvoiceDetail.Jasa, Invoice.KodeCus, Invoice.Ket2
FROM InvoiceRetur AS Invoice INNER JOIN Customer ON Invoice.KodeCus = Customer.KodeCus
    INNER JOIN InvoiceReturDetail AS InvoiceDetail ON Invoice.ReturID = InvoiceDetail.ReturID
    INNER JOIN Produk ON InvoiceDetail.KodeBrg = Produk.KodeBrg)"},
        {"QryInvSupplier", R"(
SELECT Supplier.KodeSup, Supplier.NamaSup, Faktur.NoFaktur, Faktur.TglFaktur, Faktur.Bruto, Faktur.Disc,
       Faktur.Netto, Faktur.Total, Faktur.Bayar, Faktur.Saldo
FROM Supplier INNER JOIN Faktur ON Supplier.KodeSup = Faktur.KodeSup)"},
        {"QryJenisProduk", "SELECT JenisProduk.KodeJenisProduk, JenisProduk.JenisProduk FROM JenisProduk"},
        {"QryPembelianDetail", R"(
SELECT Supplier.KodeSup, Faktur.NoFaktur, Faktur.TglFaktur, FakturDetail.KodeBrg, Produk.NamaBrg,
       FakturDetail.Qty * FakturDetail.Qty2 AS Qty, FakturDetail.Qty AS QtySatuan,
       FakturDetail.Harga / Divisor(FakturDetail.Qty * FakturDetail.Qty2) AS Harga,
       FakturDetail.Harga AS HargaSatuan, FakturDetail.Satuan AS SatuanSatuan, Produk.Satuan,
       FakturDetail.Harga * FakturDetail.Qty AS Bruto, FakturDetail.Disc,
       FakturDetail.Harga * FakturDetail.Qty - FakturDetail.Disc AS Netto, FakturDetail.Total, Produk.Jasa,
       JenisProduk.JenisProduk, Produk.JenisBrg, Supplier.NamaSup, FakturDetail.Qty2
FROM Supplier INNER JOIN Faktur ON Supplier.KodeSup = Faktur.KodeSup
    INNER JOIN FakturDetail ON Faktur.NoFaktur = FakturDetail.NoFaktur
    INNER JOIN Produk ON FakturDetail.KodeBrg = Produk.KodeBrg
    LEFT JOIN JenisProduk ON Produk.JenisBrg = JenisProduk.KodeJenisProduk)"},
        // Qty in base units, QtySatuan in the line's own; Netto, THPP and THPPRATA of the whole line.
        {"QryPenjualanDetail", R"(
SELECT Customer.KodeCus, Customer.NamaCus, Invoice.NoInvoice, Invoice.TglInvoice, InvoiceDetail.KodeBrg,
       Produk.NamaBrg, InvoiceDetail.Qty * InvoiceDetail.Qty2 AS Qty, InvoiceDetail.Qty AS QtySatuan,
       InvoiceDetail.Harga / Divisor(InvoiceDetail.Qty * InvoiceDetail.Qty2) AS Harga,
       InvoiceDetail.Harga AS HargaSatuan, InvoiceDetail.Satuan AS SatuanSatuan, Produk.Satuan,
       InvoiceDetail.Harga * InvoiceDetail.Qty AS Bruto, InvoiceDetail.Disc, InvoiceDetail.Netto,
       InvoiceDetail.PPN, InvoiceDetail.Total, InvoiceDetail.HPPRATA AS THPPRATA, InvoiceDetail.HPP AS THPP,
       InvoiceDetail.HPPRATA / Divisor(InvoiceDetail.Qty * InvoiceDetail.Qty2) AS HPPRATA,
       InvoiceDetail.Netto - InvoiceDetail.HPP AS MARGIN,
       InvoiceDetail.HPP / Divisor(InvoiceDetail.Qty * InvoiceDetail.Qty2) AS HPP, Produk.Jasa,
       JenisProduk.JenisProduk, Produk.JenisBrg, Produk.KodeSup, Supplier.NamaSup
FROM Customer INNER JOIN Invoice ON Customer.KodeCus = Invoice.KodeCus
    INNER JOIN InvoiceDetail ON Invoice.NoInvoice = InvoiceDetail.NoInvoice
    INNER JOIN Produk ON InvoiceDetail.KodeBrg = Produk.KodeBrg
    INNER JOIN JenisProduk ON Produk.JenisBrg = JenisProduk.KodeJenisProduk
    LEFT JOIN Supplier ON Produk.KodeSup = Supplier.KodeSup)"},
        {"QryPO", R"(
SELECT Faktur.NoFaktur, Faktur.NoFakSup, Faktur.TglFaktur, Faktur.TglJtp, Faktur.Netto, FakturDetail.KodeBrg,
       FakturDetail.Qty, FakturDetail.Satuan, FakturDetail.Harga, FakturDetail.Total, Supplier.NamaSup,
       Supplier.Alamat_1, Supplier.Alamat_2, Supplier.Alamat_3, Supplier.Kota, Produk.NamaBrg, Faktur.KodeSup,
       Faktur.NoFakSup AS Ket2
FROM Faktur INNER JOIN Supplier ON Faktur.KodeSup = Supplier.KodeSup
    INNER JOIN FakturDetail ON Faktur.NoFaktur = FakturDetail.NoFaktur
    INNER JOIN Produk ON FakturDetail.KodeBrg = Produk.KodeBrg
ORDER BY Faktur.NoFaktur)"},
        {"QryPORetur", R"(
SELECT Faktur.NoFaktur, Faktur.NoPO, Faktur.TglPO, Faktur.TglFaktur, Faktur.Netto, FakturDetail.KodeBrg,
       FakturDetail.Qty, FakturDetail.Satuan, FakturDetail.Harga, FakturDetail.Total AS Total2,
       Supplier.NamaSup, Supplier.Alamat_1, Supplier.Alamat_2, Supplier.Alamat_3, Supplier.Kota, Produk.NamaBrg,
       Faktur.KodeSup, Faktur.NoPO AS Ket2
FROM FakturRetur AS Faktur INNER JOIN Supplier ON Faktur.KodeSup = Supplier.KodeSup
    INNER JOIN FakturReturDetail AS FakturDetail ON Faktur.NoFaktur = FakturDetail.NoFaktur
    INNER JOIN Produk ON FakturDetail.KodeBrg = Produk.KodeBrg
ORDER BY Faktur.NoFaktur)"},
        {"QrySupplierReceive", R"(
SELECT FakturBayar.KodeSup, BKK.NoBKK, BKK.TglBKK, BKK.Jumlah AS Bayar, BKK.RekID, Bank.NamaBank, BKK.Penerima,
       BKK.TglJTP, FakturBayar.NoFaktur, FakturBayar.Jumlah, Faktur.TglFaktur, Faktur.Total, Faktur.Saldo,
       BKK.CaraBayar, BKK.Keterangan, BKK.Terbilang, BKK.Kasir, BKK.NoCek, Supplier.NamaSup, Faktur.NoFakSup
FROM BKK INNER JOIN FakturBayar ON BKK.NoBKK = FakturBayar.NoBKK
    INNER JOIN Faktur ON FakturBayar.NoFaktur = Faktur.NoFaktur
    INNER JOIN Bank ON BKK.RekID = Bank.RekID
    INNER JOIN Supplier ON Faktur.KodeSup = Supplier.KodeSup)"},
        {"QueryBank", R"(
SELECT Bank.NamaBank, Bank.RekID, Bank.NoRek, BKM.TglBKM AS Tanggal,
       'RECEIPT ' || BKM.CaraBayar || ' ID - ' || BKM.NoBKM AS NoBukti, BKM.NoCek, BKM.Jumlah AS Debit, 0 AS Kredit,
       BKM.Penerima
FROM BKM INNER JOIN Bank ON BKM.RekID = Bank.RekID
UNION ALL
SELECT Bank.NamaBank, Bank.RekID, Bank.NoRek, BKK.TglBKK, 'PAYMENT ' || BKK.CaraBayar || ' ID-' || BKK.NoBKK,
       BKK.NoCek, 0, BKK.Jumlah, BKK.Penerima
FROM BKK INNER JOIN Bank ON BKK.RekID = Bank.RekID)"},
        // Other payments with their cost, and supplier payments as a cost type of their own; rows that agree
        // in everything collapse, as in the receivables.
        {"QryBKKUNION", R"(
SELECT DISTINCT BKK.NoBKK, BKK.TglBKK, BKK.CaraBayar, BKK.RekID, Bank.NamaBank, BKK.Penerima, BKK.TglJTP, BKK.KodeBiaya,
       BKK.JumlahBiaya, Biaya.Diskripsi, JenisBiaya.KodeJenisBiaya, JenisBiaya.JenisBiaya
FROM BKK INNER JOIN Biaya ON BKK.KodeBiaya = Biaya.KodeBiaya
    INNER JOIN Bank ON BKK.RekID = Bank.RekID
    LEFT JOIN JenisBiaya ON Biaya.KodeJenisBiaya = JenisBiaya.KodeJenisBiaya
UNION ALL
SELECT DISTINCT BKK.NoBKK, BKK.TglBKK, FakturBayar.CaraBayar, BKK.RekID, Bank.NamaBank, Supplier.NamaSup, BKK.TglJTP,
       FakturBayar.NoFaktur, FakturBayar.Jumlah, 'SUPPLIER PAYMENT', '999', 'PAYMENT'
FROM BKK INNER JOIN FakturBayar ON BKK.NoBKK = FakturBayar.NoBKK
    INNER JOIN Faktur ON FakturBayar.NoFaktur = Faktur.NoFaktur
    INNER JOIN Bank ON BKK.RekID = Bank.RekID
    INNER JOIN Supplier ON Faktur.KodeSup = Supplier.KodeSup)"},
        {"QueryHutang", R"(
SELECT TglFaktur AS Tanggal, 'Purchases ID-' || NoFaktur AS NoBukti, KodeSup, Total AS Debit, 0 AS Kredit
FROM Faktur
UNION ALL
SELECT TglBKK, 'Payment ID -' || NoBKK, KodeSup, 0, Jumlah FROM FakturBayar
UNION ALL
SELECT TglFaktur, 'Purchases Returns ID-' || NoFaktur, KodeSup, 0, Total FROM FakturRetur)"},
        {"QueryPiutang", std::string(Receivables)},
        {"QueryStok", std::string(Receivables)}, // no stock at all, in spite of its name
    };
}

constexpr std::string_view Indexes[] = {
    // Document numbers, in the two pieces that the next number is found by.
    "CREATE INDEX IdBKK ON BKK(substr(NoBKK, 11, 2) COLLATE NOCASE, substr(NoBKK, 1, 10) COLLATE NOCASE)",
    "CREATE INDEX IdBKM ON BKM(substr(NoBKM, 11, 2) COLLATE NOCASE, substr(NoBKM, 1, 10) COLLATE NOCASE)",
    "CREATE INDEX IdFaktur ON Faktur(substr(NoFaktur, 11, 2) COLLATE NOCASE, substr(NoFaktur, 1, 10) COLLATE "
    "NOCASE)",
    "CREATE INDEX IdInvoice ON Invoice(substr(NoInvoice, 11, 2) COLLATE NOCASE, substr(NoInvoice, 1, 10) "
    "COLLATE NOCASE)",
    "CREATE INDEX IdFakturRetur ON FakturRetur(substr(NoFaktur, 11, 2) COLLATE NOCASE, substr(NoFaktur, 1, "
    "10) COLLATE NOCASE)",
    "CREATE INDEX IdInvoiceRetur ON InvoiceRetur(substr(ReturID, 11, 2) COLLATE NOCASE, substr(ReturID, 1, "
    "10) COLLATE NOCASE)",
    // Lines and payments by their document.
    "CREATE INDEX InvoiceDetailNo ON InvoiceDetail(NoInvoice, KodeBrg)",
    "CREATE INDEX InvoiceReturDetailNo ON InvoiceReturDetail(ReturID)",
    "CREATE INDEX FakturDetailNo ON FakturDetail(NoFaktur, KodeBrg)",
    "CREATE INDEX FakturReturDetailNo ON FakturReturDetail(NoFaktur)",
    "CREATE INDEX BKKNo ON BKK(NoBKK)",
    "CREATE INDEX InvoiceBayarVoucher ON InvoiceBayar(NoBKM, KodeCus)",
    "CREATE INDEX InvoiceBayarNo ON InvoiceBayar(NoInvoice)",
    "CREATE INDEX FakturBayarVoucher ON FakturBayar(NoBKK)",
    "CREATE INDEX FakturBayarNo ON FakturBayar(NoFaktur)",
    "CREATE INDEX InvoiceReturInvoice ON InvoiceRetur(NoInvoice)",
    "CREATE INDEX FakturReturFaktur ON FakturRetur(NoPO)",
    "CREATE INDEX JurnalBankRef ON JurnalBank(NoREF)",
    // Stock: the open lots of a product alone, so that the first of them is a seek however long its history.
    "CREATE INDEX FakturDetailOpen ON FakturDetail(KodeBrg) WHERE QtySisa > 0",
    "CREATE INDEX PersediaanOpen ON Persediaan(KodeBrg) WHERE QtySisa > 0",
    "CREATE INDEX PersediaanRef ON Persediaan(NoRef, KodeBrg)",
    "CREATE INDEX PersediaanDate ON Persediaan(Tanggal)",
    "CREATE INDEX PersediaanJualNo ON PersediaanJual(NoInvoice, KodeBrg)",
    "CREATE INDEX PersediaanReturNo ON PersediaanRetur(ReturID)",
    // Books and lists: by party and date in the order of the lists, the open documents of a party alone,
    // and by date.
    "CREATE INDEX InvoiceParty ON Invoice(KodeCus, TglInvoice, NoInvoice)",
    "CREATE INDEX InvoiceOpen ON Invoice(KodeCus, TglInvoice, NoInvoice) WHERE Saldo > 0",
    "CREATE INDEX InvoiceDate ON Invoice(TglInvoice)",
    "CREATE INDEX FakturParty ON Faktur(KodeSup, TglFaktur, NoFaktur)",
    "CREATE INDEX FakturOpen ON Faktur(KodeSup, TglFaktur, NoFaktur) WHERE Saldo > 0",
    "CREATE INDEX FakturDate ON Faktur(TglFaktur)",
    "CREATE INDEX InvoiceReturParty ON InvoiceRetur(KodeCus, TglRetur)",
    "CREATE INDEX FakturReturParty ON FakturRetur(KodeSup, TglFaktur)",
    "CREATE INDEX InvoiceBayarParty ON InvoiceBayar(KodeCus, TglBKM)",
    "CREATE INDEX FakturBayarParty ON FakturBayar(KodeSup, TglBKK)",
    "CREATE INDEX BKMDate ON BKM(TglBKM, NoBKM)",
    "CREATE INDEX BKKDate ON BKK(TglBKK)",
    "CREATE INDEX BKMAccount ON BKM(RekID, TglBKM)",
    "CREATE INDEX BKKAccount ON BKK(RekID, TglBKK)",
    "CREATE INDEX JurnalBankAccount ON JurnalBank(RekID, TglTrans)",
    // Codes and names of the look-up lists.
    "CREATE INDEX ProdukCode ON Produk(KodeBrg)",
    "CREATE INDEX ProdukName ON Produk(NamaBrg)",
    "CREATE INDEX CustomerName ON Customer(NamaCus, KodeCus)", // a search by code is listed by name
    "CREATE INDEX SupplierName ON Supplier(NamaSup)",
    // Units that were entered before.
    "CREATE INDEX ProdukUnit ON Produk(Satuan)",
    "CREATE INDEX ProdukPurchaseUnit ON Produk(SatuanBeli)",
    "CREATE INDEX ProdukSellingUnit ON Produk(SatuanJual)",
    // Monthly balances.
    "CREATE INDEX BankSaldoMonth ON BankSaldo(RekID, Tahun, Bulan)",
    "CREATE INDEX CustomerSaldoMonth ON CustomerSaldo(KodeCus, Tahun, Bulan)",
    "CREATE INDEX SupplierSaldoMonth ON SupplierSaldo(KodeSup, Tahun, Bulan)",
    "CREATE INDEX ProdukSaldoMonth ON ProdukSaldo(KodeBrg, Tahun, Bulan)",
    "CREATE INDEX SecurityUserRight ON SecurityUser(UserID, MenuID)",
};

} // namespace

std::span<const StoredQuery> StoredQueries() {
    static const std::vector<StoredQuery> queries = MakeQueries();
    return queries;
}

std::span<const std::string_view> LookUpIndexes() { return Indexes; }

} // namespace varnik::data
