#pragma once
// The stock ledger, Persediaan: one row per movement of goods, in or out, with what was on hand after it.
// A purchase's row also carries in QtySisa what of the purchase is still open.

#include "platform/ado/Ado.h"
#include "platform/desktop/Failure.h"

#include <string>

namespace varnik::stock {

// The codes of the movements, in NoJurnal.
namespace movement {
inline constexpr const char *Purchase = "11", *PurchaseDeleted = "12", *PurchaseReturn = "21",
                            *PurchaseReturnDeleted = "22", *Sale = "31", *SaleDeleted = "32",
                            *SaleReturn = "41", *SaleReturnDeleted = "42";
} // namespace movement

// What a ledger row says of the goods: as on the document's line, or as on the product.
struct Goods {
    std::string KodeBrg;
    Value NamaBrg, JenisBrg, Satuan, Pecahan;
};
// The product's own row; each column is a step.
Goods GoodsOf(Guard& step, const std::string& code, ado::Recordset& product);

// A row of the ledger. Quantities in base units, prices per base unit.
struct Movement {
    const char* NoJurnal = "";
    std::string NoRef; // the document
    DateTime Tanggal;
    std::string Memo;
    Goods goods;
    double Qty1 = 0; // in
    Value Harga1 = 0;
    double Qty2 = 0; // out
    Value Harga2 = 0;
    double QtySisa = 0;
    double Saldo = 0; // on hand after the movement
};
// Adds the row to any open recordset of the ledger. Memo and name are cut to their columns: a long
// description must not stop a posting halfway.
void AddMovement(Guard& step, ado::Recordset& ledger, const Movement& row);

// Opens the ledger on the first row of the product that is still open, in the order of entry, whichever
// lot it belongs to.
void OpenFirstLedgerRow(Guard& step, ado::Connection& connection, const std::string& code,
                        ado::Recordset& ledger);

} // namespace varnik::stock
