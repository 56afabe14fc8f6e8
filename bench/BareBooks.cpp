#include "bench/BareBooks.h"

#include <cstdio>
#include <stdexcept>

namespace varnik::bench {

BareBooks::BareBooks(const std::filesystem::path& database) {
    if (sqlite3_open(database.c_str(), &engine_) != SQLITE_OK)
        throw std::runtime_error(sqlite3_errmsg(engine_));
    sqlite3_exec(engine_, "PRAGMA journal_mode=WAL; PRAGMA synchronous=NORMAL; PRAGMA cache_size=-4000",
                 nullptr, nullptr, nullptr);
    sqlite3_busy_timeout(engine_, 10000);
    sqlite3_stmt* goods =
        Prepare("SELECT l.rowid, e.rowid, p.rowid, l.KodeBrg FROM FakturDetail l, Persediaan e, "
                "Produk p WHERE l.QtySisa > 40 AND e.NoRef = l.NoFaktur AND e.KodeBrg = l.KodeBrg "
                "AND e.NoJurnal = '11' AND p.KodeBrg = l.KodeBrg LIMIT 10");
    while (sqlite3_step(goods) == SQLITE_ROW) {
        lots_.push_back(sqlite3_column_int64(goods, 0));
        entries_.push_back(sqlite3_column_int64(goods, 1));
        products_.push_back(sqlite3_column_int64(goods, 2));
        codes_.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(goods, 3)));
    }
    sqlite3_stmt* open = Prepare("SELECT rowid, NoInvoice FROM Invoice WHERE Saldo > 1000 LIMIT 10");
    while (sqlite3_step(open) == SQLITE_ROW) {
        invoices_.push_back(sqlite3_column_int64(open, 0));
        owed_.emplace_back(reinterpret_cast<const char*>(sqlite3_column_text(open, 1)));
    }
    sqlite3_reset(goods), sqlite3_reset(open);
    if (lots_.size() < 10 || invoices_.size() < 10) throw std::runtime_error("nothing is open in the shop");

    customer_ = Prepare("UPDATE Customer SET SaldoAkhir = SaldoAkhir + ?1 WHERE KodeCus = 'C000000001'");
    product_ = Prepare("UPDATE Produk SET QGudang = QGudang - ?2, OnHand = OnHand - ?2 WHERE rowid = ?1");
    lot_ = Prepare("UPDATE FakturDetail SET QtySisa = QtySisa - ?2 WHERE rowid = ?1");
    entry_ = Prepare("UPDATE Persediaan SET QtySisa = QtySisa - ?2 WHERE rowid = ?1");
    ledger_ =
        Prepare("INSERT INTO Persediaan (NoJurnal,NoRef,Tanggal,KodeBrg,Memo,NamaBrg,Harga1,Harga2,JenisBrg,"
                "Satuan,Pecahan,Qty1,Qty2,Saldo,QtySisa) VALUES (?1,?2,'2026-11-22',?3,'Sales Inv No. "
                "000000000100 Cus. Customer','Product',0,4500,'001','PCS',1,0,2,1000,?4)");
    sale_ = Prepare(
        "INSERT INTO Invoice (NoInvoice,CusPO,TglInvoice,TglJtp,KodeCus,Ket,Bruto,Netto,PPN,Disc,Total,"
        "Bayar,Saldo,NoUser,nPPN,Terbilang) VALUES (?1,'','2026-11-22','2026-11-22','C000000001',"
        "'Sales Inv No. ',110000,100000,10000,0,110000,0,110000,'99',10,'One Hundred Ten Thousand')");
    saleLine_ =
        Prepare("INSERT INTO InvoiceDetail (NoInvoice,TglInvoice,KodeCus,KodeBrg,Diskripsi,Qty,Satuan,Qty2,"
                "Harga,Disc,Netto,PPN,Total,nDIS,nPPN,Bruto,Jasa,QtyOrder,QtyRetur,HPP,HPPRATA) VALUES (?1,"
                "'2026-11-22','C000000001',?2,'Product',2,'PCS',1,5500,0,11000,1000,11000,0,10,11000,0,0,0,"
                "9000,9000)");
    drawn_ = Prepare("INSERT INTO PersediaanJual (NoInvoice,NoPO,Tanggal,KodeBrg,Qty,Harga) VALUES (?1,"
                     "'000000000100','2026-11-22',?2,2,4500)");
    noSale_ = Prepare("DELETE FROM Invoice WHERE NoInvoice = ?1");
    noSaleLine_ = Prepare("DELETE FROM InvoiceDetail WHERE NoInvoice = ?1 AND KodeBrg = ?2");
    noDrawn_ = Prepare("DELETE FROM PersediaanJual WHERE NoInvoice = ?1 AND KodeBrg = ?2");

    supplier_ = Prepare("UPDATE Supplier SET SaldoAkhir = SaldoAkhir + ?1 WHERE KodeSup = 'S000000001'");
    purchase_ =
        Prepare("INSERT INTO Faktur (NoFaktur,NoFakSup,TglFaktur,TglJtp,KodeSup,Bruto,Netto,Disc,Total,Bayar,"
                "Saldo,NoUser,Ket) VALUES (?1,'F/1','2026-11-22','2026-11-22','S000000001',110000,110000,0,"
                "110000,0,110000,'99','')");
    purchaseLine_ =
        Prepare("INSERT INTO FakturDetail (NoFaktur,TglFaktur,KodeSup,KodeBrg,Diskripsi,Qty,Qty2,Satuan,"
                "Harga,Disc,Total,Jasa,QtyOrder,QtyRetur,QtySisa) VALUES (?1,'2026-11-22','S000000001',"
                "?2,'Product',2,12,'DUS',12000,0,24000,0,24,0,24)");
    cost_ =
        Prepare("UPDATE Produk SET OnHand = OnHand + ?2, QGudang = QGudang + ?2, HPPRata = 4500, HargaBeli = "
                "1000, HPPAkhir = 1000 WHERE rowid = ?1");
    noPurchase_ = Prepare("DELETE FROM Faktur WHERE NoFaktur = ?1");
    noPurchaseLine_ = Prepare("DELETE FROM FakturDetail WHERE NoFaktur = ?1 AND KodeBrg = ?2");

    receipt_ =
        Prepare("INSERT INTO BKM (NoBKM,TglBKM,CaraBayar,Keterangan,RekID,NamaBank,NoCek,Debitur,Jumlah,"
                "Penerima,Penyetor,Terbilang,Setor,Clear,TglJTP,TglSetor,TglClear) VALUES (?1,'2026-11-22',"
                "'CASH','RECEIPT','1','','','',100000,'','Customer','One Hundred Thousand',0,0,'2026-11-22',"
                "'2026-11-22','2026-11-22')");
    payment_ =
        Prepare("INSERT INTO InvoiceBayar (NoBKM,NoInvoice,TglBKM,KodeCus,CaraBayar,Jumlah,Memo) VALUES (?1,"
                "?2,'2026-11-22','C000000001','CASH',10000,'RECEIPT')");
    invoice_ = Prepare("UPDATE Invoice SET Saldo = Saldo - ?2, Bayar = Bayar + ?2 WHERE NoInvoice = ?1");
    account_ = Prepare("UPDATE Bank SET SaldoAkhir = SaldoAkhir + ?1 WHERE RekID = '1'");
    noReceipt_ = Prepare("DELETE FROM BKM WHERE NoBKM = ?1");
    noPayment_ = Prepare("DELETE FROM InvoiceBayar WHERE NoBKM = ?1 AND NoInvoice = ?2");
}

BareBooks::~BareBooks() {
    for (sqlite3_stmt* statement : statements_) sqlite3_finalize(statement);
    sqlite3_close(engine_);
}

sqlite3_stmt* BareBooks::Prepare(const char* sql) {
    sqlite3_stmt* statement = nullptr;
    if (sqlite3_prepare_v3(engine_, sql, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr) != SQLITE_OK)
        throw std::runtime_error(std::string(sqlite3_errmsg(engine_)) + " in " + sql);
    statements_.push_back(statement);
    return statement;
}

void BareBooks::Run(sqlite3_stmt* statement, std::initializer_list<Cell> values) {
    int at = 0;
    for (const Cell& value : values) {
        ++at;
        if (const auto* number = std::get_if<sqlite3_int64>(&value))
            sqlite3_bind_int64(statement, at, *number);
        else
            sqlite3_bind_text(statement, at, std::get<const char*>(value), -1, SQLITE_STATIC);
    }
    if (sqlite3_step(statement) != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(engine_));
    sqlite3_reset(statement);
}

void BareBooks::Sync() {
    sqlite3_file* log = nullptr;
    sqlite3_file_control(engine_, "main", SQLITE_FCNTL_JOURNAL_POINTER, &log);
    if (!log || !log->pMethods || log->pMethods->xSync(log, SQLITE_SYNC_NORMAL) != SQLITE_OK)
        throw std::runtime_error("the log was not synced");
}

void BareBooks::NextNumber() { std::snprintf(number_, sizeof number_, "B%09ld99", ++documents_); }

void BareBooks::PostSale(int lines) {
    NextNumber();
    Run(sale_, {number_});
    Run(customer_, {110000});
    for (std::size_t i = 0; i < static_cast<std::size_t>(lines); ++i) {
        const char* code = codes_[i].c_str();
        Run(saleLine_, {number_, code});
        Run(product_, {products_[i], 2});
        Run(lot_, {lots_[i], 2});
        Run(entry_, {entries_[i], 2});
        Run(ledger_, {"31", number_, code, 0});
        Run(drawn_, {number_, code});
    }
}

void BareBooks::DeleteSale(int lines) {
    Run(noSale_, {number_});
    Run(customer_, {-110000});
    for (std::size_t i = 0; i < static_cast<std::size_t>(lines); ++i) {
        const char* code = codes_[i].c_str();
        Run(product_, {products_[i], -2});
        Run(ledger_, {"32", number_, code, 0});
        Run(lot_, {lots_[i], -2});
        Run(entry_, {entries_[i], -2});
        Run(noDrawn_, {number_, code});
        Run(noSaleLine_, {number_, code});
    }
}

void BareBooks::PostPurchase(int lines) {
    NextNumber();
    Run(supplier_, {110000});
    Run(purchase_, {number_});
    for (std::size_t i = 0; i < static_cast<std::size_t>(lines); ++i) {
        const char* code = codes_[i].c_str();
        Run(purchaseLine_, {number_, code});
        Run(cost_, {products_[i], 24});
        Run(ledger_, {"11", number_, code, 24});
    }
}

// The ledger row of the purchase is lowered, and one is added.
void BareBooks::DeletePurchase(int lines) {
    Run(noPurchase_, {number_});
    Run(supplier_, {-110000});
    const sqlite3_int64 last = sqlite3_last_insert_rowid(engine_);
    for (std::size_t i = 0; i < static_cast<std::size_t>(lines); ++i) {
        const char* code = codes_[i].c_str();
        Run(cost_, {products_[i], -24});
        Run(entry_, {last - lines + 1 + static_cast<sqlite3_int64>(i), 24});
        Run(ledger_, {"12", number_, code, 0});
        Run(noPurchaseLine_, {number_, code});
    }
}

void BareBooks::PostReceipt(int invoices) {
    NextNumber();
    Run(receipt_, {number_});
    for (std::size_t i = 0; i < static_cast<std::size_t>(invoices); ++i) {
        Run(payment_, {number_, owed_[i].c_str()});
        Run(invoice_, {owed_[i].c_str(), 100});
        Run(customer_, {-100});
        Run(account_, {100});
    }
}

void BareBooks::DeleteReceipt(int invoices) {
    Run(noReceipt_, {number_});
    for (std::size_t i = 0; i < static_cast<std::size_t>(invoices); ++i) {
        Run(invoice_, {owed_[i].c_str(), -100});
        Run(account_, {-100});
        Run(customer_, {100});
        Run(noPayment_, {number_, owed_[i].c_str()});
    }
}

} // namespace varnik::bench
