// The tables, column by column. Widths differ on purpose between a header, its lines and its twin (a
// customer's balance is single, a supplier's double): the column rounds on writing, so they stay as they are.

#include "data/Schema.h"

#include <vector>

namespace varnik::data {
namespace {

using ado::Index;
using jet::Column;
using jet::ColumnType;
using jet::Table;

constexpr Column Text(std::string_view name, int size) { return {name, ColumnType::Text, size}; }
constexpr Column Needed(std::string_view name, int size) { return {name, ColumnType::Text, size, true}; }
// Every number, date and yes/no column is required.
constexpr Column Date(std::string_view name) { return {name, ColumnType::Date, 0, true}; }
constexpr Column Double(std::string_view name) { return {name, ColumnType::Double, 0, true}; }
constexpr Column Single(std::string_view name) { return {name, ColumnType::Single, 0, true}; }
constexpr Column Long(std::string_view name) { return {name, ColumnType::Long, 0, true}; }
constexpr Column Short(std::string_view name) { return {name, ColumnType::Short, 0, true}; }
constexpr Column Boolean(std::string_view name) { return {name, ColumnType::Boolean, 0, true}; }
constexpr Column Decimal(std::string_view name) { return {name, ColumnType::Decimal, 0, true}; }
// Postings add to these, several programs at once.
constexpr Column Sum(Column column) {
    column.accumulates = true;
    return column;
}
constexpr Column Counter(std::string_view name) { return {name, ColumnType::Long, 0, true, true}; }

// Cash and bank accounts.
constexpr Column BankColumns[] = {Text("RekID", 3),          Text("NamaBank", 50),    Text("NamaPemilik", 50),
                                  Text("NoRek", 50),         Text("JenisRek", 20),    Double("SaldoAwal"),
                                  Sum(Double("SaldoAkhir")), Text("Keterangan", 100), Boolean("DefaultKas")};

// Opening and closing balance of an account by month; no key.
constexpr Column BankSaldoColumns[] = {Long("Bulan"), Long("Tahun"), Needed("RekID", 3), Double("SaldoAwal"),
                                       Double("SaldoAkhir")};

// Cost items.
constexpr Column BiayaColumns[] = {Text("KodeBiaya", 10), Text("Diskripsi", 50), Text("KodeJenisBiaya", 3),
                                   Text("KodeAcc", 10)};

// Cash-out vouchers (bukti kas keluar): one row per supplier payment or other payment.
constexpr Column BKKColumns[] = {Text("NoBKK", 12),       Date("TglBKK"),        Text("CaraBayar", 10),
                                 Text("Keterangan", 100), Text("RekID", 3),      Text("NoCek", 50),
                                 Double("Jumlah"),        Text("Penerima", 50),  Text("Terbilang", 100),
                                 Text("Kasir", 50),       Text("NoUser", 2),     Date("TglJTP"),
                                 Text("KodeBiaya", 10),   Double("JumlahBiaya"), Text("KodeJenisBiaya", 3)};

// Cash-in vouchers (bukti kas masuk): one row per customer receipt or other receipt.
constexpr Column BKMColumns[] = {
    Needed("NoBKM", 12),    Date("TglBKM"),      Text("CaraBayar", 10), Text("Keterangan", 200),
    Text("RekID", 3),       Text("NoSetor", 12), Text("NamaBank", 50),  Text("NoCek", 50),
    Text("Debitur", 50),    Double("Jumlah"),    Text("Penerima", 50),  Text("Penyetor", 50),
    Text("Terbilang", 100), Text("Kasir", 50),   Text("NoUser", 2),     Boolean("Setor"),
    Boolean("Clear"),       Date("TglJTP"),      Date("TglSetor"),      Date("TglClear")};

// The one row of company texts.
constexpr Column CompanyColumns[] = {Needed("NamaPerusahaan", 50), Needed("Ket1", 100), Needed("Ket2", 100),
                                     Needed("Ket3", 100)};

// Customers.
constexpr Column CustomerColumns[] = {
    Needed("KodeCus", 10), Text("JenisCus", 3),  Text("NamaCus", 50), Text("Alamat_1", 50),
    Text("Alamat_2", 50),  Text("Alamat_3", 50), Text("Kota", 50),    Text("Telp", 20),
    Text("Fax", 20),       Text("Contax", 30),   Text("Jabatan", 50), Double("nDIS"),
    Short("nwDis"),        Short("nJTP"),        Text("Ket", 200),    Sum(Single("SaldoAkhir")),
    Single("SaldoAwal"),   Text("NPWP", 30)};

// Balance per customer and month.
constexpr Column CustomerSaldoColumns[] = {Long("Bulan"), Long("Tahun"), Needed("KodeCus", 10),
                                           Double("SaldoAwal"), Double("SaldoAkhir")};

// Purchase invoices.
constexpr Column FakturColumns[] = {
    Needed("NoFaktur", 12), Text("NoFakSup", 30), Date("TglFaktur"), Date("TglJtp"),  Text("KodeSup", 10),
    Text("TglCetak", 20),   Single("Bruto"),      Single("Netto"),   Long("Disc"),    Single("Total"),
    Sum(Double("Bayar")),   Sum(Double("Saldo")), Text("NoUser", 2), Text("Ket", 100)};

// What of a BKK paid which purchase invoice.
constexpr Column FakturBayarColumns[] = {Needed("NoBKK", 12),  Date("TglBKK"),    Text("NoFaktur", 12),
                                         Text("KodeSup", 10),  Text("Memo", 100), Decimal("Jumlah"),
                                         Text("CaraBayar", 20)};

// Purchase lines. Each is a lot: QtySisa is what of it is not yet sold, in base units.
constexpr Column FakturDetailColumns[] = {
    Needed("NoFaktur", 12),  Date("TglFaktur"),       Text("KodeSup", 10),   Text("KodeBrg", 10),
    Text("Diskripsi", 100),  Single("Qty"),           Long("Qty2"),          Text("Satuan", 15),
    Single("Harga"),         Single("Disc"),          Single("Total"),       Boolean("Jasa"),
    Sum(Single("QtyOrder")), Sum(Single("QtyRetur")), Sum(Single("QtySisa"))};

// Purchase returns: the return number stands in NoFaktur, the invoice it returns in NoPO.
constexpr Column FakturReturColumns[] = {
    Needed("NoFaktur", 12), Text("NoPO", 30),  Text("KodeSup", 10), Double("Bayar"),   Single("Bruto"),
    Long("Disc"),           Text("Ket", 100),  Single("Netto"),     Text("NoUser", 2), Double("Saldo"),
    Needed("TglCetak", 10), Date("TglFaktur"), Date("TglPO"),       Single("Total")};

// Lines of purchase returns.
constexpr Column FakturReturDetailColumns[] = {
    Text("NoFaktur", 12),   Date("TglFaktur"), Text("KodeSup", 10), Needed("KodeBrg", 10),
    Text("Diskripsi", 100), Single("Qty"),     Long("Qty2"),        Text("Satuan", 15),
    Single("Harga"),        Single("Disc"),    Single("Total"),     Boolean("Jasa")};

// Sales invoices.
constexpr Column InvoiceColumns[] = {
    Needed("NoInvoice", 12), Text("CusPO", 30),   Date("TglInvoice"),     Date("TglJtp"),
    Needed("KodeCus", 10),   Single("Bruto"),     Single("Disc"),         Single("Netto"),
    Single("Total"),         Double("nPPN"),      Single("PPN"),          Sum(Double("Bayar")),
    Sum(Double("Saldo")),    Needed("NoUser", 2), Text("Terbilang", 100), Text("Ket", 100)};

// What of a BKM paid which sales invoice.
constexpr Column InvoiceBayarColumns[] = {Needed("NoBKM", 12), Text("NoInvoice", 12), Date("TglBKM"),
                                          Text("KodeCus", 10), Text("CaraBayar", 20), Decimal("Jumlah"),
                                          Text("Memo", 100)};

// Sales lines.
constexpr Column InvoiceDetailColumns[] = {Text("NoInvoice", 12),
                                           Date("TglInvoice"),
                                           Text("KodeCus", 10),
                                           Text("KodeBrg", 10),
                                           Text("Diskripsi", 100),
                                           Double("Qty"),
                                           Long("Qty2"),
                                           Text("Satuan", 15),
                                           Single("Harga"),
                                           Single("Bruto"),
                                           Single("Disc"),
                                           Single("Netto"),
                                           Double("nDIS"),
                                           Double("nPPN"),
                                           Single("PPN"),
                                           Single("Total"),
                                           Boolean("Jasa"),
                                           Sum(Single("QtyOrder")),
                                           Sum(Single("QtyRetur")),
                                           Single("HPP"),
                                           Single("HPPRATA")};

// Sales returns.
constexpr Column InvoiceReturColumns[] = {
    Text("ReturID", 12), Date("TglRetur"),       Text("NoInvoice", 12), Text("Ket", 100), Date("TglInvoice"),
    Text("KodeCus", 10), Needed("TglCetak", 10), Single("Bruto"),       Single("Disc"),   Single("Netto"),
    Single("PPN"),       Single("Total"),        Double("Bayar"),       Double("Saldo"),  Text("NoUser", 2),
    Single("nPPN"),      Text("Ket2", 50)};

// Lines of sales returns.
constexpr Column InvoiceReturDetailColumns[] = {
    Needed("ReturID", 12),  Date("TglRetur"), Text("KodeCus", 10), Needed("KodeBrg", 10),
    Text("Diskripsi", 100), Double("Qty"),    Long("Qty2"),        Text("Satuan", 15),
    Single("Harga"),        Single("Disc"),   Double("Netto"),     Double("PPN"),
    Single("Total"),        Boolean("Jasa"),  Single("nPPN"),      Single("nDIS"),
    Double("HPP")};

// Cost types.
constexpr Column JenisBiayaColumns[] = {Text("KodeJenisBiaya", 3), Text("JenisBiaya", 50),
                                        Text("KodeAcc", 10)};

// Customer types.
constexpr Column JenisCustomerColumns[] = {Needed("KodeJenisCus", 3), Text("JenisCus", 50)};

// Product types.
constexpr Column JenisProdukColumns[] = {Needed("KodeJenisProduk", 3), Text("JenisProduk", 50)};

// Bank journal: one debit or credit per voucher and account.
constexpr Column JurnalBankColumns[] = {
    Needed("RekID", 3),   Date("TglTrans"),  Text("NamaBank", 50), Text("Pemilik", 50), Text("NoCek", 50),
    Text("CaraBayar", 4), Text("Memo", 100), Double("Debit"),      Double("Kredit"),    Text("NoREF", 12)};

// The menu entries that rights are given for.
constexpr Column MenuListColumns[] = {Needed("MenuID", 10), Text("NamaMenu", 50), Text("Ket", 50)};

// The stock ledger, one row per movement. Rows of NoJurnal "11" carry what is left of a purchase in QtySisa.
constexpr Column PersediaanColumns[] = {
    Counter("ID"),       Text("NoJurnal", 12), Text("NoRef", 12),   Date("Tanggal"),
    Text("KodeBrg", 10), Text("Memo", 100),    Text("NamaBrg", 50), Double("Harga1"),
    Double("Harga2"),    Text("JenisBrg", 3),  Text("Satuan", 20),  Long("Pecahan"),
    Single("Qty1"),      Single("Qty2"),       Single("Saldo"),     Sum(Single("QtySisa"))};

// Which lot served which sale.
constexpr Column PersediaanJualColumns[] = {Text("NoInvoice", 12), Text("NoPO", 12),    Date("Tanggal"),
                                            Needed("KodeBrg", 10), Sum(Decimal("Qty")), Double("Harga")};

// Which lot took back which return.
constexpr Column PersediaanReturColumns[] = {
    Needed("ReturID", 12), Date("Tanggal"), Text("NoInvoice", 12), Text("NoPO", 12),
    Text("KodeBrg", 10),   Decimal("Qty"),  Decimal("Harga")};

// Products.
constexpr Column ProdukColumns[] = {
    Needed("KodeBrg", 10), Text("NamaBrg", 50),    Text("JenisBrg", 3), Text("Satuan", 20),
    Long("Pecahan"),       Text("SatuanBeli", 20), Long("PecahanBeli"), Text("SatuanJual", 20),
    Long("PecahanJual"),   Sum(Double("QGudang")), Double("QCounter"),  Double("OnOrder"),
    Sum(Double("OnHand")), Double("HPPAwal"),      Double("HPPAkhir"),  Double("HPPRata"),
    Single("QAwal"),       Single("QJual"),        Single("QBeli"),     Long("HargaBeli"),
    Long("HargaJual"),     Text("KodeSup", 10),    Text("KodeRef", 20), Boolean("Jasa"),
    Text("Ket", 200)};

// Stock balance per product and month.
constexpr Column ProdukSaldoColumns[] = {
    Long("Bulan"),       Long("Tahun"),        Text("KodeBrg", 10), Double("SaldoAwal"), Double("SaldoAkhir"),
    Double("HargaAwal"), Double("HargaAkhir"), Double("HargaRata"), Double("Pecahan"),   Text("Satuan", 20)};

// Rights, one row per user and permitted menu entry. UserID holds the NoUser of the user, in spite of its
// name.
constexpr Column SecurityUserColumns[] = {Needed("MenuID", 10), Needed("UserID", 20)};

// Suppliers.
constexpr Column SupplierColumns[] = {
    Needed("KodeSup", 10), Text("NamaSup", 50), Text("Alamat_1", 50), Text("Alamat_2", 50),
    Text("Alamat_3", 50),  Text("Kota", 50),    Text("Telp", 20),     Text("Fax", 20),
    Text("Contax", 30),    Text("Jabatan", 50), Double("nDIS"),       Short("nwDis"),
    Short("nJTP"),         Text("Ket", 200),    Double("SaldoAwal"),  Sum(Double("SaldoAkhir"))};

// Balance per supplier and month.
constexpr Column SupplierSaldoColumns[] = {Long("Tahun"), Long("Bulan"), Needed("KodeSup", 10),
                                           Double("SaldoAwal"), Double("SaldoAkhir")};

// User accounts.
constexpr Column T_UserColumns[] = {Needed("UserID", 20), Needed("NoUser", 2), Needed("Password", 20),
                                    Boolean("Tambah"),    Boolean("Ganti"),    Boolean("Hapus"),
                                    Boolean("Lihat")};

constexpr Table TableList[] = {
    {"Bank", BankColumns},
    {"BankSaldo", BankSaldoColumns},
    {"Biaya", BiayaColumns},
    {"BKK", BKKColumns},
    {"BKM", BKMColumns},
    {"Company", CompanyColumns},
    {"Customer", CustomerColumns},
    {"CustomerSaldo", CustomerSaldoColumns},
    {"Faktur", FakturColumns},
    {"FakturBayar", FakturBayarColumns},
    {"FakturDetail", FakturDetailColumns},
    {"FakturRetur", FakturReturColumns},
    {"FakturReturDetail", FakturReturDetailColumns},
    {"Invoice", InvoiceColumns},
    {"InvoiceBayar", InvoiceBayarColumns},
    {"InvoiceDetail", InvoiceDetailColumns},
    {"InvoiceRetur", InvoiceReturColumns},
    {"InvoiceReturDetail", InvoiceReturDetailColumns},
    {"JenisBiaya", JenisBiayaColumns},
    {"JenisCustomer", JenisCustomerColumns},
    {"JenisProduk", JenisProdukColumns},
    {"JurnalBank", JurnalBankColumns},
    {"MenuList", MenuListColumns},
    {"Persediaan", PersediaanColumns},
    {"PersediaanJual", PersediaanJualColumns},
    {"PersediaanRetur", PersediaanReturColumns},
    {"Produk", ProdukColumns},
    {"ProdukSaldo", ProdukSaldoColumns},
    {"SecurityUser", SecurityUserColumns},
    {"Supplier", SupplierColumns},
    {"SupplierSaldo", SupplierSaldoColumns},
    {"T_User", T_UserColumns},
};

constexpr Index PrimaryList[] = {
    {"Biaya", "PrimaryKey", "KodeBiaya", true},
    {"Customer", "PrimaryKey", "KodeCus", true},
    {"JenisCustomer", "PrimaryKey", "KodeJenisCus", true},
    {"JenisProduk", "PrimaryKey", "KodeJenisProduk", true},
    {"Supplier", "PrimaryKey", "KodeSup", true},
};

// Some names repeat and mislead; files in use carry them, so they stay.
constexpr Index UniqueList[] = {
    {"Bank", "RekID", "RekID"},
    {"BKM", "NoBKM", "NoBKM"},
    {"Customer", "KodeCus", "KodeCus"},
    {"Faktur", "NoPO", "NoFaktur"},
    {"FakturRetur", "NoPO", "NoFaktur"},
    {"Invoice", "NoTO", "NoInvoice"},
    {"InvoiceRetur", "NoTO", "ReturID"},
    {"JenisBiaya", "KodeJenisBiaya", "KodeJenisBiaya"},
    {"JenisCustomer", "KodeJenisCus", "KodeJenisCus"},
    {"JenisProduk", "KodeJenisProduk", "KodeJenisProduk"},
    {"Supplier", "KodeCus", "KodeSup"},
    {"T_User", "User-ID", "UserID"},
};

} // namespace

std::span<const jet::Table> Tables() { return TableList; }
std::span<const ado::Index> PrimaryIndexes() { return PrimaryList; }
std::span<const ado::Index> UniqueKeys() { return UniqueList; }

const jet::Catalog& Catalog() {
    static const jet::Catalog catalog{TableList};
    return catalog;
}

} // namespace varnik::data
