#pragma once
// Stock lots and the cost of goods. A purchase line is a lot: FakturDetail.QtySisa is what of it is not yet
// sold. A sale draws the lots of its product in the order of entry and so fixes the cost of the sold line;
// PersediaanJual remembers which lot gave how much, so that a deletion or a return finds the lots again.
// Every movement leaves a row in the ledger, Persediaan.
//
// All quantities are base units, the smallest unit of the product: a line's Qty times its Qty2. Lots are the
// only costing method; the other, an average cost per product, is kept by the purchases and printed beside
// it.
//
// Every statement is a step of the given guard, so that Abort, Retry and Ignore work inside a posting. No
// step is undone by a later one that fails.

#include "stock/Ledger.h"

#include <string>

namespace varnik::stock {

// One sold line of a product that is no service.
struct SaleLine {
    std::string NoInvoice;
    DateTime Tanggal;
    std::string NamaCus;
    std::string KodeBrg, NamaBrg, JenisBrg;
    std::string Satuan;
    double Qty = 0, Qty2 = 0; // in the line's unit, and the base units in one
    double OnHand = 0;        // of the product, before this line's deduction
};
// The cost of goods of the line. Beyond the lots there is no cost and no trace: stock may be sold that
// no purchase explains.
double ConsumeLots(Guard& step, ado::Connection& connection, const SaleLine& line);

// One line of a sale that is being deleted, of a product that is no service.
struct RestoredLine {
    std::string NoInvoice;
    DateTime Tanggal; // of the ledger rows
    std::string Memo;
    std::string KodeBrg;
    double OnHand = 0; // before this line is added back
};
// Gives every lot back what the sale drew from it; a lot that is gone gets nothing. The product's row
// supplies name, type and unit of the ledger rows.
void RestoreLots(Guard& step, ado::Connection& connection, const RestoredLine& line, ado::Recordset& product);

// One returned line of a product that is no service.
struct ReturnLine {
    std::string ReturID;
    DateTime Tanggal;
    std::string NoInvoice; // the sale that it came from
    std::string KodeBrg, NamaBrg;
    double Qty = 0, Qty2 = 0;
    double OnHand = 0; // before this line is added
};
// Gives back to the lots of the sale, oldest first; the cost of the goods taken back. What goes beyond the
// sale is not recorded in the lots. The lot's own ledger row is not raised, unlike by a deletion.
double ReturnLots(Guard& step, ado::Connection& connection, const ReturnLine& line, ado::Recordset& product);

// One line of a sales return that is being deleted, of a product that is no service.
struct ReversedReturnLine {
    std::string ReturID;
    DateTime Tanggal;
    std::string NoInvoice;
    std::string Memo;
    std::string KodeBrg;
    double OnHand = 0; // before this line is taken off
};
// Takes from the lots again what the return gave back. The count goes off InvoiceDetail.QtyOrder, which goes
// negative, and stays in QtyRetur: the books have it so.
void ReverseReturnLots(Guard& step, ado::Connection& connection, const ReversedReturnLine& line,
                       ado::Recordset& product);

} // namespace varnik::stock
