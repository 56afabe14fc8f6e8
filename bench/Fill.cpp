#include "bench/Fill.h"

#include <sqlite3.h>

#include <stdexcept>
#include <string>

namespace varnik::bench {

namespace {

// The statements count with a recursive walk; %N is the number of sales.
const char* const Statements[] = {
    "INSERT INTO JenisProduk VALUES ('001', 'General')",
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1000) "
    "INSERT INTO Customer (KodeCus,JenisCus,NamaCus,Alamat_1,nDIS,nwDis,nJTP,SaldoAkhir,SaldoAwal) "
    "SELECT printf('C%09d', i), '001', 'Customer ' || i, 'Street ' || i, 0, 0, 30, 0, 0 FROM n",
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1000) "
    "INSERT INTO Produk "
    "(KodeBrg,NamaBrg,JenisBrg,Satuan,Pecahan,SatuanBeli,PecahanBeli,SatuanJual,PecahanJual,"
    "QGudang,QCounter,OnOrder,OnHand,HPPAwal,HPPAkhir,HPPRata,QAwal,QJual,QBeli,HargaBeli,HargaJual,KodeSup,"
    "Jasa) "
    "SELECT printf('%010d', i), 'Product ' || i, '001', 'PCS', 1, 'PCS', 1, 'PCS', 1, 1000000, 0, 0, "
    "1000000, "
    "4500, 4500, 4500, 0, 0, 0, 4500, 5500, 'S000000001', 0 FROM n",
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1000) "
    "INSERT INTO FakturDetail "
    "(NoFaktur,TglFaktur,KodeSup,KodeBrg,Diskripsi,Qty,Qty2,Satuan,Harga,Disc,Total,Jasa,"
    "QtyOrder,QtyRetur,QtySisa) SELECT printf('%010d00', i), '2020-01-01', 'S000000001', printf('%010d', i), "
    "'Product ' || i, 1000000, 1, 'PCS', 4500, 0, 4500000000.0, 0, 0, 0, 1000000 FROM n",
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 1000) "
    "INSERT INTO Persediaan "
    "(NoJurnal,NoRef,Tanggal,KodeBrg,Memo,NamaBrg,Harga1,Harga2,JenisBrg,Satuan,Pecahan,"
    "Qty1,Qty2,Saldo,QtySisa) SELECT '11', printf('%010d00', i), '2020-01-01', printf('%010d', i), "
    "'Purchase', "
    "'Product ' || i, 4500, 0, '001', 'PCS', 1, 1000000, 0, 1000000, 1000000 FROM n",
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %N) "
    "INSERT INTO Invoice "
    "(NoInvoice,TglInvoice,TglJtp,KodeCus,Bruto,Disc,Netto,Total,nPPN,PPN,Bayar,Saldo,NoUser,"
    "Terbilang,Ket) SELECT printf('%010d00', i), date('2020-01-01', '+' || (i % 2000) || ' days'), "
    "'2026-01-01', "
    "printf('C%09d', 1 + i % 1000), 11000, 0, 10000, 11000, 10, 1000, 11000, 0, '00', 'Eleven Thousand', '' "
    "FROM n",
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %N) "
    "INSERT INTO InvoiceDetail "
    "(NoInvoice,TglInvoice,KodeCus,KodeBrg,Diskripsi,Qty,Qty2,Satuan,Harga,Bruto,Disc,"
    "Netto,nDIS,nPPN,PPN,Total,Jasa,QtyOrder,QtyRetur,HPP,HPPRATA) SELECT printf('%010d00', i), "
    "'2020-01-01', "
    "printf('C%09d', 1 + i % 1000), printf('%010d', 1 + i % 1000), 'Product', 2, 1, 'PCS', 5500, 11000, 0, "
    "11000, 0, "
    "10, 1000, 11000, 0, 0, 0, 9000, 9000 FROM n",
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %N) "
    "INSERT INTO Persediaan "
    "(NoJurnal,NoRef,Tanggal,KodeBrg,Memo,NamaBrg,Harga1,Harga2,JenisBrg,Satuan,Pecahan,"
    "Qty1,Qty2,Saldo,QtySisa) SELECT '31', printf('%010d00', i), '2020-01-01', printf('%010d', 1 + i % "
    "1000), "
    "'Sales Inv No. ', 'Product', 0, 4500, '001', 'PCS', 1, 0, 2, 1000, 0 FROM n",
    "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %N) "
    "INSERT INTO PersediaanJual (NoInvoice,NoPO,Tanggal,KodeBrg,Qty,Harga) SELECT printf('%010d00', i), "
    "printf('%010d00', 1 + i % 1000), '2020-01-01', printf('%010d', 1 + i % 1000), 2, 4500 FROM n",
};

// Beside those of the shop; %N is the number of rows.
const char* const Masters[] = {
    "WITH RECURSIVE n(i) AS (SELECT 1001 UNION ALL SELECT i + 1 FROM n WHERE i < %N) "
    "INSERT INTO Customer "
    "(KodeCus,JenisCus,NamaCus,Alamat_1,Alamat_2,Kota,nDIS,nwDis,nJTP,SaldoAkhir,SaldoAwal) "
    "SELECT printf('C%09d', i), '001', 'Customer ' || i, 'Street ' || i, 'Block ' || (i % 90), 'Bandung', 0, "
    "0, "
    "30, i % 5000, 0 FROM n",
    "WITH RECURSIVE n(i) AS (SELECT 1001 UNION ALL SELECT i + 1 FROM n WHERE i < %N) "
    "INSERT INTO Produk "
    "(KodeBrg,NamaBrg,JenisBrg,Satuan,Pecahan,SatuanBeli,PecahanBeli,SatuanJual,PecahanJual,"
    "QGudang,QCounter,OnOrder,OnHand,HPPAwal,HPPAkhir,HPPRata,QAwal,QJual,QBeli,HargaBeli,HargaJual,KodeSup,"
    "Jasa) "
    "SELECT printf('%010d', i), 'Product ' || i, '001', 'PCS', 1, 'DUS' || (i % 12), 12, 'PCS', 1, 100, 0, "
    "0, 100, "
    "4500, 4500, 4500, 0, 0, 0, 4500, 5500, 'S000000001', 0 FROM n",
};

template <std::size_t Count>
void Run(const std::filesystem::path& database, const char* const (&statements)[Count], long number) {
    sqlite3* engine = nullptr;
    if (sqlite3_open(database.c_str(), &engine) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(engine));
    const auto run = [&](const std::string& sql) {
        if (sqlite3_exec(engine, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK)
            throw std::runtime_error(std::string(sqlite3_errmsg(engine)) + " in " + sql);
    };
    run("PRAGMA synchronous=OFF; PRAGMA cache_size=-400000");
    run("BEGIN");
    for (std::string sql : statements) {
        if (const auto at = sql.find("%N"); at != std::string::npos)
            sql.replace(at, 2, std::to_string(number));
        run(sql);
    }
    run("COMMIT");
    run("PRAGMA wal_checkpoint(TRUNCATE)");
    sqlite3_close(engine);
}

} // namespace

void FillShop(const std::filesystem::path& database, long sales) { Run(database, Statements, sales); }

void FillMasters(const std::filesystem::path& database, long masters) {
    if (masters > 1000) Run(database, Masters, masters);
}

} // namespace varnik::bench
