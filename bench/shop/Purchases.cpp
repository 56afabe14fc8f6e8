// Purchases, each line of which is a lot, and what goes back to the supplier.

#include "bench/shop/Writers.h"

#include "common/Regional.h"
#include "common/Text.h"
#include "purchases/PurchaseLine.h"

#include <algorithm>
#include <cmath>

namespace varnik::bench {

// Orders a product that is short, and with it some others of its supplier.
void Books::Buy(std::size_t product) {
    const std::size_t party = products_[product].supplier;
    Party& supplier = suppliers_[party];
    Pay(party);
    std::vector<std::size_t> ordered{product};
    const std::vector<std::size_t>& offered = productsOf_[party];
    const auto wanted = static_cast<std::size_t>(1 + (OneIn(3) ? 0 : Chance(1, 9)));
    for (std::size_t looked = 0;
         ordered.size() < wanted && looked < std::min<std::size_t>(offered.size(), 20); ++looked) {
        const std::size_t other = offered[nextOf_[party]++ % offered.size()];
        if (other != product && products_[other].onHand < 20) ordered.push_back(other);
    }

    constexpr double MostSold = 72; // base units on one line of a sale
    struct Line {
        double quantity, discount;
    };
    std::vector<Line> lines;
    double bruto = 0, discount = 0;
    for (const std::size_t each : ordered) {
        Product& goods = products_[each];
        if (OneIn(5)) goods.buyPrice += std::floor(goods.buyPrice * Chance(-2, 3) / 100);
        const double least = std::ceil(MostSold / static_cast<double>(goods.perBuy));
        Line line{least + Chance(0, 4), 0};
        if (OneIn(10)) line.discount = 100 * Chance(1, 20);
        lines.push_back(line);
        bruto += line.quantity * goods.buyPrice;
        discount += line.discount;
    }
    const double total = bruto - discount;
    purchases_.push_back({.number = NextNumber(purchaseCount_),
                          .date = today_,
                          .party = party,
                          .paid = 0,
                          .balance = total,
                          .lots = {}});
    Document& purchase = purchases_.back();
    supplier.balance += total;
    supplier.owed.push_back(purchases_.size() - 1);
    write_->purchase.Write({purchase.number, "F/" + std::to_string(purchases_.size()), today_,
                            AddDays(today_, supplier.days), supplier.code, "", bruto, total, discount, total,
                            0, total, Mid(purchase.number, 11, 2)});
    for (std::size_t i = 0; i < ordered.size(); ++i)
        WritePurchaseLine(purchase, ordered[i], lines[i].quantity, lines[i].discount);
    // Not the product that was short: it is about to be sold.
    if (purchase.lots.size() > 1 && OneIn(15)) SendBack(purchase, party);
}

void Books::WritePurchaseLine(Document& purchase, std::size_t at, double quantity, double discount) {
    Product& product = products_[at];
    const Party& supplier = suppliers_[purchase.party];
    const purchases::PurchaseLine line{.KodeBrg = product.code,
                                       .Diskripsi = product.name,
                                       .Satuan = product.buyUnit,
                                       .Qty = quantity,
                                       .Qty2 = static_cast<double>(product.perBuy),
                                       .Harga = product.buyPrice,
                                       .Disc = discount,
                                       .Total = quantity * product.buyPrice - discount};
    Lot lot{.number = purchase.number, .left = line.Base(), .product = at, .entry = entries_.size()};
    lot.row = write_->purchaseLine.Write({purchase.number, purchase.date, supplier.code, product.code,
                                          product.name, line.Qty, line.Satuan, line.Harga, line.Disc,
                                          line.Total, line.Qty2, line.Base(), line.Base(), 0});
    // What a sale reads back of the lot, as the columns keep it.
    lot.unitCost = Stored("FakturDetail", "Total", line.Total) / line.Base();
    product.average =
        purchases::AverageCost(product.onHand, product.average, line.Costed() * line.Cost(), line.Costed());
    product.onHand += line.Base();
    product.lastCost = line.Cost();
    if (product.firstCost == 0) product.firstCost = line.Cost();
    const std::int64_t row = write_->ledger.Write(
        {"11", purchase.number, purchase.date, "Purchases No. " + purchase.number + " Sup. " + supplier.name,
         product.code, product.name, product.type, product.buyUnit, line.Qty2, line.Qty, line.Cost(),
         line.Base(), 0, 0, product.onHand});
    product.lots.push_back(lots_.size());
    product.entries.push_back(entries_.size());
    purchase.lots.push_back(lots_.size());
    entries_.push_back({row, line.Base()});
    lots_.push_back(std::move(lot));
}

// One buying unit of the last line goes back.
void Books::SendBack(Document& purchase, std::size_t party) {
    Lot& lot = lots_[purchase.lots.back()];
    Product& product = products_[lot.product];
    const auto base = static_cast<double>(product.perBuy);
    const purchases::PurchaseLine line{.KodeBrg = product.code,
                                       .Diskripsi = product.name,
                                       .Satuan = product.buyUnit,
                                       .Qty = 1,
                                       .Qty2 = base,
                                       .Harga = product.buyPrice,
                                       .Disc = 0,
                                       .Total = product.buyPrice};
    if (lot.left <= base || purchase.balance < line.Total) return;
    Party& supplier = suppliers_[party];
    const std::string number = NextNumber(sentBackCount_);
    supplier.balance -= line.Total;
    purchase.paid += line.Total, purchase.balance -= line.Total;
    write_->purchaseReturn.Write({number, purchase.number, today_, purchase.date, supplier.code, "",
                                  line.Total, line.Total, 0, line.Total, 0, line.Total, Mid(number, 11, 2),
                                  ShortDate(today_, {})});
    write_->purchaseReturnLine.Write({number, today_, product.code, product.name, line.Qty, line.Satuan,
                                      line.Harga, line.Disc, line.Total, line.Qty2});
    const double out = line.Costed() * line.Cost(), onHand = product.onHand;
    if (onHand - base > 0 && onHand * product.average - out > 0)
        product.average = purchases::AverageCost(onHand, product.average, -out, -base);
    product.onHand -= base;
    // The ledger's open row goes down where the return's own number is that of a purchase of the product.
    for (const Document& other : purchases_) {
        if (other.number != number) continue;
        for (const std::size_t one : other.lots) {
            if (lots_[one].product != lot.product) continue;
            Entry& entry = entries_[lots_[one].entry];
            entry.left -= base;
            if (entry.left <= 0) std::erase(product.entries, lots_[one].entry);
        }
    }
    lot.left -= base, lot.returned += base;
    write_->ledger.Write({"21", number, today_, "", product.code, product.name, product.type, product.buyUnit,
                          line.Qty2, -base, line.Cost(), 0, 0, 0, product.onHand});
}

} // namespace varnik::bench
