#pragma once
// The statements of the made-up shop, prepared once: every column that the program's posting writes.

#include "bench/shop/Books.h"

namespace varnik::bench {

struct Books::Writers {
    explicit Writers(sqlite3* on) : engine(on) {}

    sqlite3* engine;
    RowWriter invoice{engine,
                      "Invoice",
                      {"NoInvoice", "CusPO", "TglInvoice", "TglJtp", "KodeCus", "Ket", "Bruto", "Netto",
                       "PPN", "Disc", "Total", "Bayar", "Saldo", "NoUser", "nPPN", "Terbilang"}};
    RowWriter invoiceLine{
        engine, "InvoiceDetail", {"NoInvoice", "TglInvoice", "KodeCus", "KodeBrg", "Diskripsi", "Qty",
                                  "Satuan",    "Qty2",       "Harga",   "Disc",    "Netto",     "PPN",
                                  "Total",     "nDIS",       "nPPN",    "HPP",     "HPPRATA",   "Jasa",
                                  "QtyOrder",  "QtyRetur",   "Bruto"}};
    RowWriter drawn{engine, "PersediaanJual", {"NoInvoice", "Tanggal", "NoPO", "KodeBrg", "Qty", "Harga"}};
    RowWriter ledger{engine,
                     "Persediaan",
                     {"NoJurnal", "NoRef", "Tanggal", "Memo", "KodeBrg", "NamaBrg", "JenisBrg", "Satuan",
                      "Pecahan", "Qty1", "Harga1", "QtySisa", "Qty2", "Harga2", "Saldo"}};
    RowWriter salesReturn{engine,
                          "InvoiceRetur",
                          {"ReturID", "NoInvoice", "TglRetur", "TglInvoice", "KodeCus", "Ket", "Bruto",
                           "Netto", "PPN", "Disc", "Total", "Bayar", "Saldo", "NoUser", "nPPN", "Ket2",
                           "TglCetak"}};
    RowWriter salesReturnLine{engine,
                              "InvoiceReturDetail",
                              {"ReturID", "TglRetur", "KodeBrg", "Diskripsi", "Qty", "Satuan", "Harga",
                               "Qty2", "Disc", "Netto", "PPN", "Total", "nDIS", "nPPN", "HPP"}};
    RowWriter returned{
        engine, "PersediaanRetur", {"ReturID", "Tanggal", "NoInvoice", "NoPO", "KodeBrg", "Qty", "Harga"}};
    RowWriter purchase{engine,
                       "Faktur",
                       {"NoFaktur", "NoFakSup", "TglFaktur", "TglJtp", "KodeSup", "Ket", "Bruto", "Netto",
                        "Disc", "Total", "Bayar", "Saldo", "NoUser"}};
    RowWriter purchaseLine{engine,
                           "FakturDetail",
                           {"NoFaktur", "TglFaktur", "KodeSup", "KodeBrg", "Diskripsi", "Qty", "Satuan",
                            "Harga", "Disc", "Total", "Qty2", "QtySisa", "QtyOrder", "QtyRetur"}};
    RowWriter purchaseReturn{engine,
                             "FakturRetur",
                             {"NoFaktur", "NoPO", "TglFaktur", "TglPO", "KodeSup", "Ket", "Bruto", "Netto",
                              "Disc", "Total", "Bayar", "Saldo", "NoUser", "TglCetak"}};
    RowWriter purchaseReturnLine{
        engine,
        "FakturReturDetail",
        {"NoFaktur", "TglFaktur", "KodeBrg", "Diskripsi", "Qty", "Satuan", "Harga", "Disc", "Total", "Qty2"}};
    RowWriter receipt{engine,
                      "BKM",
                      {"TglBKM", "NoBKM", "CaraBayar", "Keterangan", "Penerima", "Penyetor", "RekID",
                       "NamaBank", "Debitur", "NoCek", "Jumlah", "Terbilang", "TglSetor", "TglJTP",
                       "TglClear"}};
    RowWriter receiptLine{
        engine, "InvoiceBayar", {"NoInvoice", "TglBKM", "NoBKM", "KodeCus", "CaraBayar", "Memo", "Jumlah"}};
    RowWriter payment{engine,
                      "BKK",
                      {"TglBKK", "NoBKK", "CaraBayar", "Keterangan", "Penerima", "RekID", "NoCek", "Jumlah",
                       "Terbilang", "TglJTP", "KodeBiaya", "KodeJenisBiaya", "JumlahBiaya"}};
    RowWriter paymentLine{
        engine, "FakturBayar", {"NoFaktur", "TglBKK", "NoBKK", "KodeSup", "CaraBayar", "Memo", "Jumlah"}};
    Prepared returnedQuantity{engine, "UPDATE InvoiceDetail SET QtyRetur = QtyRetur + ?2 WHERE rowid = ?1"};
    Prepared drawnQuantity{engine, "UPDATE PersediaanJual SET Qty = ?2 WHERE rowid = ?1"};
};

} // namespace varnik::bench
