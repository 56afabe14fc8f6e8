#include "bench/BareLoop.h"

#include <cstdio>
#include <stdexcept>

namespace varnik::bench {

namespace {

std::vector<sqlite3_int64> RowNumbers(sqlite3* engine, const char* sql) {
    std::vector<sqlite3_int64> rows;
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v2(engine, sql, -1, &statement, nullptr) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(engine));
    while (sqlite3_step(statement) == SQLITE_ROW) rows.push_back(sqlite3_column_int64(statement, 0));
    sqlite3_finalize(statement);
    return rows;
}

} // namespace

BareLoop::BareLoop(const std::filesystem::path& database) {
    if (sqlite3_open(database.c_str(), &engine_) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(engine_));
    sqlite3_exec(engine_, "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL", nullptr, nullptr, nullptr);
    header_ =
        Prepare("INSERT INTO Invoice (NoInvoice,CusPO,TglInvoice,TglJtp,KodeCus,Ket,Bruto,Netto,PPN,Disc,"
                "Total,Bayar,Saldo,NoUser,nPPN,Terbilang) VALUES (?1,'','2026-11-22','2026-11-22',"
                "'C000000001','Sales Inv No. ',110000,100000,10000,0,110000,0,110000,'99',10,"
                "'One Hundred Ten Thousand')");
    customer_ = Prepare("UPDATE Customer SET SaldoAkhir = SaldoAkhir + 110000 WHERE KodeCus = 'C000000001'");
    detail_ =
        Prepare("INSERT INTO InvoiceDetail (NoInvoice,TglInvoice,KodeCus,KodeBrg,Diskripsi,Qty,Satuan,"
                "Qty2,Harga,Disc,Netto,PPN,Total,nDIS,nPPN,Bruto,Jasa,QtyOrder,QtyRetur,HPP,HPPRATA) VALUES "
                "(?1,'2026-11-22','C000000001',?2,'Product',2,'PCS',1,5500,0,11000,1000,11000,0,10,11000,0,"
                "0,0,9000,9000)");
    product_ = Prepare("UPDATE Produk SET QGudang = QGudang - 2, OnHand = OnHand - 2, HargaJual = 5500 "
                       "WHERE rowid = ?1");
    lot_ = Prepare("UPDATE FakturDetail SET QtySisa = QtySisa - 2 WHERE rowid = ?1");
    openRow_ = Prepare("UPDATE Persediaan SET QtySisa = QtySisa - 2 WHERE rowid = ?1");
    ledger_ =
        Prepare("INSERT INTO Persediaan (NoJurnal,NoRef,Tanggal,KodeBrg,Memo,NamaBrg,Harga1,Harga2,JenisBrg,"
                "Satuan,Pecahan,Qty1,Qty2,Saldo,QtySisa) VALUES ('31',?1,'2026-11-22',?2,"
                "'Sales Inv No. 000000000100 Cus. Customer','Product',0,4500,'001','PCS',1,0,2,1000,0)");
    sold_ = Prepare("INSERT INTO PersediaanJual (NoInvoice,NoPO,Tanggal,KodeBrg,Qty,Harga) VALUES (?1,"
                    "'000000000100','2026-11-22',?2,2,4500)");
    lots_ =
        RowNumbers(engine_, "SELECT rowid FROM FakturDetail WHERE QtySisa > 1000 ORDER BY rowid LIMIT 10");
    openRows_ = RowNumbers(engine_, "SELECT rowid FROM Persediaan WHERE NoJurnal = '11' AND QtySisa > 1000 "
                                    "ORDER BY rowid LIMIT 10");
    if (lots_.size() < 10 || openRows_.size() < 10) throw std::runtime_error("the database has no open lots");
}

BareLoop::~BareLoop() {
    for (sqlite3_stmt* statement : statements_) sqlite3_finalize(statement);
    sqlite3_close(engine_);
}

sqlite3_stmt* BareLoop::Prepare(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v3(engine_, sql.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) !=
        SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(engine_));
    statements_.push_back(statement);
    return statement;
}

void BareLoop::Step(sqlite3_stmt* statement) {
    if (sqlite3_step(statement) != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(engine_));
    sqlite3_reset(statement);
}

void BareLoop::Sync() {
    sqlite3_file* log = nullptr;
    sqlite3_file_control(engine_, "main", SQLITE_FCNTL_JOURNAL_POINTER, &log);
    if (!log || !log->pMethods || log->pMethods->xSync(log, SQLITE_SYNC_NORMAL) != SQLITE_OK)
        throw std::runtime_error("the log was not synced");
}

void BareLoop::PostSale(int lines) {
    char number[32];
    std::snprintf(number, sizeof number, "B%09ld99", ++sales_);
    const auto text = [](sqlite3_stmt* statement, int at, const char* value) {
        sqlite3_bind_text(statement, at, value, -1, SQLITE_STATIC);
    };
    text(header_, 1, number);
    Step(header_);
    Step(customer_);
    for (int line = 0; line < lines; ++line) {
        char code[16];
        std::snprintf(code, sizeof code, "%010d", line + 1);
        const auto at = static_cast<std::size_t>(line);
        text(detail_, 1, number), text(detail_, 2, code), Step(detail_);
        sqlite3_bind_int64(product_, 1, line + 1), Step(product_);
        sqlite3_bind_int64(lot_, 1, lots_[at]), Step(lot_);
        sqlite3_bind_int64(openRow_, 1, openRows_[at]), Step(openRow_);
        text(ledger_, 1, number), text(ledger_, 2, code), Step(ledger_);
        text(sold_, 1, number), text(sold_, 2, code), Step(sold_);
    }
}

} // namespace varnik::bench
