#pragma once
// One line of a purchase or of its return, in numbers, and what it does to the cost of the goods.

#include "platform/ado/Ado.h"

#include <string>

namespace varnik::purchases {

struct PurchaseLine {
    std::string KodeBrg, Diskripsi, Satuan;
    double Qty = 0, Qty2 = 0; // in the line's unit, and the base units in one
    double Harga = 0, Disc = 0, Total = 0;

    // What the stock moves by.
    double Base() const { return Qty * Qty2; }
    // What the cost is spread over. Wanted: a line whose unit has no base units costs on its quantity,
    // though it moves no stock.
    double Costed() const { return Qty2 == 0 ? Qty : Base(); }
    // Of one base unit; error 11 for a line without a quantity.
    double Cost() const { return ado::Divide(Total, Costed()); }
};

// The average cost of a base unit after goods of a value came in (or, both negative, went out). Wanted:
// what is on hand counts as it is, below zero too. Error 11 when nothing is on hand afterwards.
inline double AverageCost(double onHand, double average, double value, double quantity) {
    return ado::Divide(onHand * average + value, onHand + quantity);
}

} // namespace varnik::purchases
