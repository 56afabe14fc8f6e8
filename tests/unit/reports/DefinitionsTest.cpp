// Every shipped definition, run on fixed rows, says what its expectation in tests/reports says. A new
// definition is a new row of the table; without one, or without an expectation, the test fails. Run with
// VARNIK_WRITE_EXPECTATIONS=1 to write expectations, then read them.

#include "tests/unit/reports/ReportCases.h"

#include <gmock/gmock.h>

using namespace varnik;
using namespace varnik::reports;

namespace {

struct Case {
    std::string expectation; // tests/reports/<this>.txt
    std::string file;
    std::map<std::string, std::string> parameters;
    std::string rows;
};

// Two cost types, a payment without one, and what a supplier was paid.
const std::string CostRows =
    R"(NoBKK|TglBKK@|Penerima|KodeBiaya|JumlahBiaya#|Diskripsi|KodeJenisBiaya|JenisBiaya
000000000300|2026-11-30|PT Pabrik Semen|000000004100|2500000|SUPPLIER PAYMENT|999|PAYMENT
000000000100|2026-11-02|Pak Tono|0000000001|150000.50|Gaji harian tukang|001|Gaji
000000000400|2026-11-16|Pak Tono dan kawan-kawan|0000000001|150000|Gaji harian tukang|001|Gaji
000000000500|2026-11-16|Ibu Rina|0000000003|75000|Lembur|001|Gaji
000000000200|2026-11-05|PLN|0000000002|400000|Rekening listrik gudang|002|Listrik dan air
000000000600|2026-11-17|Warung|0000000009|25000|Lain-lain||
)";

// What customers owe on 22/11/2026: an invoice on each side of every bound, one of a later date, one paid, a
// customer without any.
const std::string ReceivableRows = R"(KodeCus|NamaCus|NoInvoice|TglInvoice@|Saldo#
0000000001|CV Bangun Persada|000000012300|2026-10-23|100000
0000000001|CV Bangun Persada|000000012200|2026-10-22|20000.50
0000000001|CV Bangun Persada|000000012100|2026-09-23|3000
0000000001|CV Bangun Persada|000000012000|2026-09-22|400
0000000001|CV Bangun Persada|000000011900|2026-08-24|50
0000000001|CV Bangun Persada|000000011800|2026-08-23|6
0000000001|CV Bangun Persada|000000011700|2026-11-20|0
0000000001|CV Bangun Persada|000000011600|2026-11-20|0.0000001
0000000002|Toko Sinar|000000012500|2026-11-23|999999999999
0000000002|Toko Sinar|000000012600|2026-11-22|-12500
0000000003|Warung Bu Tini|||
)";

// Two customers, two categories and a product without one; the same product sold twice and more.
const std::string SalesRows =
    R"(KodeCus|NamaCus|KodeBrg|NamaBrg|Qty#|Satuan|Bruto#|Disc#|Netto#|PPN#|Total#|JenisProduk|JenisBrg
0000000001|CV Bangun Persada|0000000001|Semen Portland 40 kg|12|SAK|780000|0|780000|70909.09|780000|Bahan|002
0000000002|Toko Sinar|0000000001|Semen Portland 40 kg|40|SAK|2600000|130000|2470000|224545.45|2470000|Bahan|002
0000000001|CV Bangun Persada|0000000002|Pasir beton dari Cimalaka, dicuci dan disaring, diantar sampai ke tempat pembangunan|2.5|M3|625000|45000.50|579999.50|52727.23|579999.50|Bahan|002
0000000001|CV Bangun Persada|0000000003|Antar barang|1|KALI|50000|0|50000|4545.45|50000|Jasa|001
0000000001|CV Bangun Persada|0000000009|Turbin air 400 kW|1|UNIT|999999999999|0|999999999999|0|999999999999||
)";

const std::string PurchaseRows =
    R"(KodeSup|NamaSup|KodeBrg|NamaBrg|Qty#|Satuan|Bruto#|Disc#|Netto#|PPN|Total#|JenisProduk|JenisBrg
0000000001|PT Pabrik Semen|0000000001|Semen Portland 40 kg|80|SAK|4640000|0|4640000||4640000|Bahan|002
0000000001|PT Pabrik Semen|0000000001|Semen Portland 40 kg|40|SAK|2320000|20000|2300000||2300000|Bahan|002
0000000002|CV Paku Jaya|0000000007|Paku 5 cm|12.5|KG|250000|0|250000||250000|Bahan|002
)";

const std::string ReturnedRows =
    R"(KodeCus|NamaCus|KodeBrg|NamaBrg|Qty#|Satuan|Bruto|Disc#|Netto#|PPN#|Total2#|Ket2
0000000001|CV Bangun Persada|0000000001|Semen Portland 40 kg|6|SAK||0|354545.45|35454.55|390000|RUSAK
0000000002|Toko Sinar|0000000002|Pasir beton|0.5|M3||9000|105454.55|10545.45|116000|Salah kirim, diambil kembali
)";

// The parameters of a report that knows summary and detail.
std::map<std::string, std::string> Form(const std::string& title, const std::string& detail) {
    return {{"Judul", title}, {"SubJudul", "Date From 01/11/2026 To 30/11/2026"}, {"Detail", detail}};
}

const std::vector<Case> Cases = {
    {"Invoice",
     "Invoice.rpt",
     {},
     R"(NoInvoice|CusPO|TglInvoice@|TglJtp@|Netto#|PPN#|Total#|Terbilang|KodeBrg|Qty#|Satuan|Harga#|Total2#|NamaCus|Alamat_1|Alamat_2|Alamat_3|Kota|NamaBrg|Disc#|KodeCus
000000012300|PO-7|2026-11-22|2026-12-22|1236363.64|123636.36|1360000||0000000001|12|SAK|65000|780000|CV Bangun Persada|Jl. Asia Afrika 5|||Bandung|Semen Portland 40 kg|0|0000000001
000000012300|PO-7|2026-11-22|2026-12-22|1236363.64|123636.36|1360000||0000000002|2.5|M3|250000|580000|CV Bangun Persada|Jl. Asia Afrika 5|||Bandung|Pasir beton dari Cimalaka, dicuci dan disaring, diantar sampai ke tempat pembangunan|45000|0000000001
)"},
    {"InvoiceRetur",
     "InvoiceRetur.rpt",
     {},
     R"(ReturID|NoInvoice|TglRetur@|TglInvoice@|Netto#|PPN#|Total#|KodeCus|NamaCus|Alamat_1|Alamat_2|Alamat_3|Kota|NamaBrg|KodeBrg|Qty#|Satuan|Harga#|Disc#|Total2#|Ket2
000000000500|000000012300|2026-11-24|2026-11-22|354545.45|35454.55|390000|0000000001|CV Bangun Persada|Jl. Asia Afrika 5|||Bandung|Semen Portland 40 kg|0000000001|6|SAK|65000|0|390000|RUSAK
)"},
    {"BKM2",
     "BKM2.rpt",
     {},
     R"(NoBKM|TglBKM@|CaraBayar|Keterangan|RekID|NoCek|Jumlah#|Penyetor|NamaBank|NoRek
000000000700|2026-11-22|CHEQUE|Receipt From CV Bangun Persada Inv No.000000012300 Inv No.000000012400|2|CQ-0091|2360000.5|CV Bangun Persada|Bank Nusa|123-456
000000000700|2026-11-22|CHEQUE|Receipt From CV Bangun Persada Inv No.000000012300 Inv No.000000012400|2|CQ-0091|2360000.5|CV Bangun Persada|Bank Nusa|123-456
)"},
    {"PO",
     "PO.rpt",
     {},
     R"(NoFaktur|NoFakSup|TglFaktur@|TglJtp@|Netto#|KodeBrg|Qty#|Satuan|Harga#|Total#|NamaSup|Alamat_1|Alamat_2|Alamat_3|Kota|NamaBrg
000000004100|INV/2026/77|2026-11-22|2026-12-22|5050000|0000000001|80|SAK|58000|4640000|PT Pabrik Semen|Jl. Raya Padalarang 100|||Padalarang|Semen Portland 40 kg
000000004100|INV/2026/77|2026-11-22|2026-12-22|5050000|0000000002|2.5|M3|200000|410000|PT Pabrik Semen|Jl. Raya Padalarang 100|||Padalarang|Pasir beton
)"},
    {"BKK",
     "BKK.rpt",
     {},
     R"(KodeSup|NoBKK|TglBKK@|RekID|NamaBank|Penerima|Jumlah#|CaraBayar|Keterangan|NoCek|NamaSup|NoFakSup
0000000001|000000000300|2026-11-30|902|Bank Satu|Ibu Sri|2500000|CHEQUE|PAYMENT TO PT Pabrik Semen Po No.000000004100|C-7781|PT Pabrik Semen|INV/2026/77
0000000002|000000000300|2026-11-30|902|Bank Satu|Ibu Sri|150000.50|CHEQUE|PAYMENT TO PT Pabrik Semen Po No.000000004100|C-7781|CV Paku Jaya|
)"},
    {"BKK2",
     "BKK2.rpt",
     {},
     R"(NoBKK|TglBKK@|CaraBayar|Keterangan|RekID|NoCek|Jumlah#|Penerima|KodeBiaya|JumlahBiaya#|Diskripsi|NamaBank|NoRek
000000000800|2026-11-25|CASH|PAYMENT|001||1315.50|Pak Udin|0000000001|1200|Daily wages|Kas Kecil|-
000000000800|2026-11-25|CASH|PAYMENT|001||1315.50|Pak Udin|0000000003|115.50|Tolls / parking|Kas Kecil|-
)"},
    {"PORetur",
     "PORetur.rpt",
     {},
     R"(NoFaktur|TglFaktur@|KodeBrg|Qty#|Satuan|Total2#|NamaSup|Alamat_1|Alamat_2|Alamat_3|Kota|NamaBrg|KodeSup|Ket2
000000000700|2026-11-25|0000000001|3|SAK|174000|PT Pabrik Semen|Jl. Raya Padalarang 100|||Padalarang|Semen Portland 40 kg|0000000001|000000004100
000000000700|2026-11-25|0000000002|0.5|M3|82000.50|PT Pabrik Semen|Jl. Raya Padalarang 100|||Padalarang|Pasir beton|0000000001|000000004100
)"},
    {"persediaan",
     "persediaan.rpt",
     {},
     R"(KodeBrg|NamaBrg|JenisBrg|JenisProduk|Satuan|OnHand#|HargaBeli#|HargaJual#|KodeSup
0000000002|Pasir beton|002|Bahan|M3|17.5|200000|250000|0000000001
0000000001|Semen Portland 40 kg|002|Bahan|SAK|120|58000|65000|0000000001
0000000003|Antar barang|001|Jasa|KALI|0|0|50000|
)"},
    {"persediaan-balance",
     "Persediaan.rpt",
     {},
     R"(KodeBrg|NamaBrg|JenisBrg|Satuan|OnHand#|HPPRata#|JenisProduk
0000000003|Antar barang|001|KALI|0|0|Jasa
0000000001|Semen Portland 40 kg|002|SAK|120|57250.5|Bahan
0000000002|Pasir beton|002|M3|17.5|200000|Bahan
)"},
    {"persediaan-empty", "persediaan.rpt", {}, "KodeBrg|NamaBrg|JenisBrg|OnHand#"},
    {"persediaan-uncategorised",
     "persediaan.rpt",
     {},
     R"(KodeBrg|NamaBrg|JenisBrg|JenisProduk|Satuan|OnHand#|HargaBeli#|HargaJual#|KodeSup
0000000002|Pasir beton|||M3|17.5|200000|250000|0000000001
0000000001|Semen Portland 40 kg|002|Bahan|SAK|120|58000|65000|0000000001
)"},
    {"Persediaan2",
     "Persediaan2.rpt",
     {},
     R"(KodeBrg|NamaBrg|JenisBrg|JenisProduk|SatuanJual|PecahanJual#|HargaSatuanJual#|Satuan|Pecahan#|HargaSatuan#|SatuanBeli|PecahanBeli#|HargaSatuanBeli#
0000000003|Antar barang|001|Jasa||0|50000||0|0||0|0
0000000001|Semen Portland 40 kg|002|Bahan|SAK|1|65000|SAK|1|65000|PALET|40|2600000
0000000004|Turbin air 400 kW, dengan pemasangan dan pengujian|||UNIT|1|125000000000|UNIT|1|125000000000|SET|8|999999999999
)"},
    {"Stok",
     "Stok.rpt",
     {{"Judul", "Periode 01/11/2026 To 30/11/2026"}},
     R"(ID#|Tanggal@|KodeBrg|Memo|NamaBrg|JenisBrg|Pecahan#|Qty1#|Qty2#|Saldo#|Masuk#
1|2026-11-02|0000000001|Purchases No. 000000004100 Sup. PT Pabrik Semen|Semen Portland 40 kg|002|40|2|0|100|80
2|2026-11-03|0000000002|Purchases No. 000000004100 Sup. PT Pabrik Semen|Pasir beton|002|1|2.5|0|2.5|2.5
3|2026-11-05|0000000001|Sales Inv No. 000000012300 Cus. CV Bangun Persada|Semen Portland 40 kg|002|1|0|12|88|0
4|2026-11-04|0000000001|Purchases return, torn bags|Semen Portland 40 kg|002|1|-3|0|85|-3
5|2026-11-09|0000000001|Sales Returns No 000000000500|Semen Portland 40 kg|002|1|0|-6|91|0
)"},
    {"Agging", "Agging.rpt", {{"Judul", "Aged Receivables  NOVEMBER 2026"}}, ReceivableRows},
    {"Agging2",
     "Agging2.rpt",
     {{"Judul", "Aged PayablesNOVEMBER 2026"}},
     R"(KodeSup|NamaSup|NoFaktur|TglFaktur@|Saldo#
0000000001|PT Pabrik Semen|000000004100|2026-08-23|999999999999
0000000001|PT Pabrik Semen|000000004000|2026-08-24|1500000
0000000002|CV Paku Jaya|||
)"},
    {"LapJual1", "LapJual1.rpt", Form("Sales Reports ( Product Category)", "D"), SalesRows},
    {"LapJual1-summary", "LapJual1.rpt", Form("Sales Reports ( Product Category)", "S"), SalesRows},
    {"LapJual2", "LapJual2.rpt", Form("Sales Reports ( Customer )", "D"), SalesRows},
    {"LapJual2-summary", "LapJual2.rpt", Form("Sales Reports ( Customer )", "S"), SalesRows},
    {"LapJual2-margin", "LapJual2.rpt", Form("Sales Reports ( Customer )", "D"),
     R"(KodeCus|NamaCus|KodeBrg|NamaBrg|Qty#|Satuan|Bruto#|Disc#|Netto#|PPN#|Total#|JenisProduk|JenisBrg|THPP#|THPPRATA#|MARGIN#
0000000001|CV Bangun Persada|0000000001|Semen Portland 40 kg|12|SAK|780000|0|780000|70909.09|780000|Bahan|002|696000|687006|84000
0000000001|CV Bangun Persada|0000000009|Turbin air 400 kW|1|UNIT|999999999999|0|999999999999|0|999999999999|Mesin|004|900000000000.50|900000000000.50|99999999998.50
)"},
    {"LapInvoice",
     "LapInvoice.rpt",
     {{"Judul", "Date From 01/11/2026 To 30/11/2026"}},
     R"(KodeCus|NamaCus|NoInvoice|TglInvoice@|Total#|Bayar#|Saldo#
0000000002|Toko Sinar|000000012500|2026-11-23|999999999999.50|0|999999999999.50
0000000001|CV Bangun Persada|000000012400|2026-11-24|580000|580000|0
0000000001|CV Bangun Persada|000000012300|2026-11-22|1360000|500000|860000
)"},
    {"LapFaktur",
     "LapFaktur.rpt",
     {{"Judul", "Date From 01/11/2026 To 30/11/2026"}},
     R"(KodeSup|NamaSup|NoFaktur|TglFaktur@|Total#|Bayar#|Saldo#
0000000001|PT Pabrik Semen|000000004100|2026-11-02|4640000|4640000|0
0000000001|PT Pabrik Semen|000000004200|2026-11-09|2320000|0|2320000
)"},
    {"LapReturJual2", "LapReturJual2.rpt", Form("Sales Returns History", "D"), ReturnedRows},
    {"LapReturJual2-summary", "LapReturJual2.rpt", Form("Sales Returns History", "S"), ReturnedRows},
    {"LapBeli1", "LapBeli1.rpt", Form("Purchases Reports ( Product Category)", "D"), PurchaseRows},
    {"LapBeli2", "LapBeli2.rpt", Form("Purchases Reports ( Supplier )", "D"), PurchaseRows},
    {"LapBeli2-summary", "LapBeli2.rpt", Form("Purchases Reports ( Supplier )", "S"), PurchaseRows},
    {"LapReturBeli2", "LapReturBeli2.rpt", Form("Purchases Returns Reports", "D"),
     R"(KodeSup|NamaSup|KodeBrg|NamaBrg|Qty#|Satuan|Bruto|Disc|Netto#|Total2#|JenisProduk|JenisBrg
0000000001|PT Pabrik Semen|0000000001|Semen Portland 40 kg|3|SAK|||256000.50|174000||
0000000001|PT Pabrik Semen|0000000002|Pasir beton|0.5|M3|||256000.50|82000.50||
)"},
    {"LapJual1-empty", "LapJual1.rpt", Form("Sales Reports ( Product Category)", "D"),
     "KodeBrg|NamaBrg|Qty#|Total#"},
    {"LapBKK1", "LapBKK1.rpt", {{"Judul", "Periode 01/11/2026 To 30/11/2026"}}, CostRows},
    {"LapBKK2", "LapBKK2.rpt", {{"Judul", "Periode 01/11/2026 To 30/11/2026"}}, CostRows},
    {"BukuBank",
     "BukuBank.rpt",
     {{"SaldoAkhir", "999,998,860,000"}},
     R"(NamaBank|RekID|NoRek|Tanggal@|NoBukti|Debit#|Kredit#
Bank Nusa|002|123-456|2026-11-22|RECEIPT CASH ID - 000000000700|1360000|0
Bank Nusa|002|123-456|2026-11-30|RECEIPT CHEQ ID - 000000000800|999999999999|0
Bank Nusa|002|123-456|2026-11-07|PAYMENT CHEQ ID-000000000300|0|2499999.50
)"},
    {"BukuPiutang",
     "BukuPiutang.rpt",
     {{"SaldoAwal", "250,000"}, {"SaldoAkhir", "862,500"}},
     R"(KodeCus|NamaCus|NoJurnal|Tanggal@|NoBukti|Debit#|Kredit#
0000000001|CV Bangun Persada||2026-11-02|Sales Invoice ID - 000000012300|1360000|0
0000000001|CV Bangun Persada||2026-11-05|Receipt ID - 000000000700 Invoice ID- 000000012300|0|497500
0000000001|CV Bangun Persada||2026-11-09|Sales Returns ID - 000000000500  For Indvoice ID000000012300|0|250000
)"},
    {"BukuPiutang-empty",
     "BukuPiutang.rpt",
     {{"SaldoAwal", "250,000"}, {"SaldoAkhir", "250,000"}},
     "KodeCus|NamaCus|NoJurnal|Tanggal@|NoBukti|Debit#|Kredit#"},
    {"BukuHutang",
     "BukuHutang.rpt",
     {{"SaldoAwal", "0"}, {"SaldoAkhir", "2,376,000"}},
     R"(KodeSup|NamaSup|NoJurnal|Tanggal@|NoBukti|Debit#|Kredit#
0000000001|PT Pabrik Semen||2026-11-02|Purchases ID-000000004100|5050000|0
0000000001|PT Pabrik Semen||2026-11-30|Payment ID -000000000300|0|2500000
0000000001|PT Pabrik Semen||2026-11-25|Purchases Returns ID-000000000700|0|174000
)"},
    {"Customer",
     "Customer.rpt",
     {},
     R"(KodeCus|NamaCus|Alamat_1|Alamat_2|Alamat_3|Kota|Telp|SaldoAwal#|SaldoAkhir#
0000000001|CV Bangun Persada|Jl. Asia Afrika 5|Blok C||Bandung|022 555 0101|0|1360000
0000000002|Toko Sinar|Jl. Braga 9|||Bandung||250000.50|-12500
)"},
    {"Supplier",
     "Supplier.rpt",
     {},
     R"(KodeSup|NamaSup|Alamat_1|Alamat_2|Alamat_3|Kota|Telp|Fax|Contax|Jabatan|nDis#|nwDis#|nJTP#
0000000002|PT Baja Ringan|Kawasan Industri 3|||Cikarang|021 555 0303|021 555 0304|Ibu Rina|Sales|0|0|30
0000000001|Semen Jaya|Jl. Pabrik 1|||Bogor|0251 555 01||Pak Tono|Manager|0|0|14
)"},
    {"bank",
     "bank.rpt",
     {},
     R"(RekID|NamaBank|NoRek|SaldoAwal#|SaldoAkhir#
001|Kas Kecil||500000|375000
002|Bank Nusa|123-456|10000000|11360000
)"},
    {"JenisProduk", "JenisProduk.rpt", {}, "KodeJenisProduk|JenisProduk\n001|Jasa\n002|Bahan"},
    {"JenisCustomer", "JenisCustomer.rpt", {}, "KodeJenisCus|JenisCus\n001|Eceran\n002|Proyek"},
    {"JenisBiaya", "JenisBiaya.rpt", {}, "KodeJenisBiaya|JenisBiaya\n001|Gaji\n002|Listrik dan air"},
    {"DetailBiaya",
     "DetailBiaya.rpt",
     {},
     R"(KodeBiaya|Diskripsi|KodejenisBiaya|JenisBiaya|KodeAcc|NamaAcc
0000000001|Gaji harian tukang|001|Gaji||
0000000002|Rekening listrik gudang|002|Listrik dan air||
)"},
};

std::string Printed(const Case& test) {
    return Report(LoadDefinition("Report", test.file), RowsOf(test.rows), FactsOf(test.parameters)).Text();
}

} // namespace

TEST(Definitions, SayWhatIsExpected) {
    for (const Case& test : Cases) {
        SCOPED_TRACE(test.expectation);
        const std::filesystem::path expectation = "tests/reports/" + test.expectation + ".txt";
        const std::string printed = Printed(test);
        if (std::getenv("VARNIK_WRITE_EXPECTATIONS") != nullptr)
            std::ofstream(expectation, std::ios::binary) << printed;
        ASSERT_TRUE(std::filesystem::exists(expectation)) << printed;
        EXPECT_EQ(printed, FileText(expectation));
    }
}

TEST(Definitions, AllHaveACase) {
    for (const auto& entry : std::filesystem::directory_iterator("Report")) {
        const std::string file = entry.path().filename().string();
        if (entry.path().extension() != ".rpt") continue;
        EXPECT_TRUE(std::any_of(Cases.begin(), Cases.end(),
                                [&](const Case& test) { return EqualsNoCase(test.file, file); }))
            << file << " has no row in the table of cases";
    }
}
