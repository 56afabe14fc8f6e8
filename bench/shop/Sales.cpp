// Sales and what customers bring back, with the lots they draw on.

#include "bench/shop/Writers.h"

#include "common/Numbers.h"
#include "common/Regional.h"
#include "common/Text.h"
#include "document/Totals.h"

#include <algorithm>
#include <cmath>

namespace varnik::bench {

namespace {

constexpr std::size_t Remembered = 200; // sales that goods may come back from

double Bruto(const SoldLine& line) { return line.quantity * line.price; }

// Puts a lot or ledger row among the open ones of its product again, in the order of entry.
void Reopen(std::vector<std::size_t>& open, std::size_t one) {
    const auto at = std::ranges::lower_bound(open, one);
    if (at == open.end() || *at != one) open.insert(at, one);
}

} // namespace

void Books::Sell() {
    const auto party = static_cast<std::size_t>(Chance(0, static_cast<int>(customers_.size()) - 1));
    ReceiveFrom(party);
    RecentSale sale;
    sale.tax = OneIn(2) ? 10 : 0;
    const int kind = Chance(1, 100);
    const int count = kind <= 30   ? 1
                      : kind <= 55 ? 2
                      : kind <= 75 ? 3
                      : kind <= 90 ? Chance(4, 6)
                                   : Chance(7, 10);
    std::vector<double> discounts;
    for (int i = 0; i < count; ++i) {
        const std::size_t at = ProductByChance();
        if (std::ranges::any_of(sale.lines, [&](const SoldLine& line) { return line.product == at; }))
            continue;
        Product& product = products_[at];
        SoldLine line{.product = at, .quantity = static_cast<double>(Chance(1, 6)), .row = 0, .draws = {}};
        if (!product.service && product.onHand < line.quantity * static_cast<double>(product.perSell))
            Buy(at);
        line.price = product.price * static_cast<double>(product.perSell);
        if (OneIn(30)) line.price += 100; // a price that is talked about
        // An amount under 100 would be taken for a percentage.
        discounts.push_back(OneIn(12) && Bruto(line) > 4000 ? 100 * Chance(1, 10) : 0);
        sale.lines.push_back(std::move(line));
    }
    WriteSale(customers_[party], party, sale, discounts);
    recent_.push_back(std::move(sale));
    if (recent_.size() > Remembered) recent_.pop_front();
    if (OneIn(60))
        TakeBack(recent_[static_cast<std::size_t>(Chance(0, static_cast<int>(recent_.size()) - 1))]);
}

void Books::WriteSale(Party& customer, std::size_t party, RecentSale& sale,
                      const std::vector<double>& discounts) {
    document::Sums sums;
    for (std::size_t i = 0; i < sale.lines.size(); ++i) {
        sums.SumBruto += Bruto(sale.lines[i]);
        sums.SumDisc += discounts[i];
    }
    sums.SumTotal = sums.SumBruto - sums.SumDisc;
    sums.SumNetto = sums.SumTotal / (1 + document::Rate(sale.tax));
    sums.SumPPN = sums.SumTotal - sums.SumNetto;
    Document document{.number = NextNumber(invoiceCount_),
                      .date = today_,
                      .party = party,
                      .paid = 0,
                      .balance = sums.SumTotal,
                      .lots = {}};
    invoiceRows_.push_back(
        write_->invoice.Write({document.number, "", today_, AddDays(today_, customer.days), customer.code,
                               "Sales Inv No. " + document.number + " Cus. ", sums.SumBruto, sums.SumNetto,
                               sums.SumPPN, sums.SumDisc, sums.SumTotal, 0, sums.SumTotal,
                               Mid(document.number, 11, 2), sale.tax, InWords(sums.SumTotal)}));
    customer.balance = Stored("Customer", "SaldoAkhir", customer.balance + sums.SumNetto + sums.SumPPN);
    sale.document = invoices_.size();
    customer.owed.push_back(invoices_.size());
    for (std::size_t i = 0; i < sale.lines.size(); ++i)
        WriteSaleLine(document, sale.tax, sale.lines[i], discounts[i]);
    invoices_.push_back(std::move(document));
}

void Books::WriteSaleLine(const Document& sale, double tax, SoldLine& line, double discount) {
    Product& product = products_[line.product];
    const auto perUnit = static_cast<double>(product.perSell);
    const double base = line.quantity * perUnit, bruto = Bruto(line), total = bruto - discount;
    const double onHand = product.onHand, perBase = line.price / perUnit;
    if (!product.service) product.onHand -= base;
    product.price = std::nearbyint(perBase) == 0 ? line.price : std::nearbyint(perBase);
    const double cost = product.service ? 0 : ConsumeLots(sale, line, onHand);
    line.row = write_->invoiceLine.Write({sale.number,
                                          sale.date,
                                          customers_[sale.party].code,
                                          product.code,
                                          product.name,
                                          line.quantity,
                                          product.sellUnit,
                                          product.perSell,
                                          line.price,
                                          discount,
                                          total,
                                          total / (1 + tax),
                                          total,
                                          discount / bruto * 100,
                                          tax,
                                          cost,
                                          product.average * base,
                                          product.service,
                                          0,
                                          0,
                                          bruto});
}

double Books::ConsumeLots(const Document& sale, SoldLine& line, double onHand) {
    Product& product = products_[line.product];
    double wanted = line.quantity * static_cast<double>(product.perSell), running = onHand, cost = 0;
    while (wanted > 0 && !product.lots.empty()) {
        const std::size_t at = product.lots.front();
        Lot& lot = lots_[at];
        const double taken = std::min(lot.left, wanted);
        lot.left -= taken, wanted -= taken, running -= taken;
        cost += taken * lot.unitCost;
        // The ledger goes down on the product's first open row, whichever lot it belongs to.
        if (!product.entries.empty()) {
            Entry& entry = entries_[product.entries.front()];
            entry.left -= taken;
            if (entry.left <= 0) product.entries.erase(product.entries.begin());
        }
        if (lot.left <= 0) product.lots.erase(product.lots.begin());
        write_->ledger.Write(
            {"31", sale.number, sale.date,
             Left("Sales Inv No. " + sale.number + " Cus. " + customers_[sale.party].name, 100), product.code,
             product.name, product.type, product.sellUnit, product.perSell, 0, 0, 0, taken, lot.unitCost,
             running});
        const std::int64_t row =
            write_->drawn.Write({sale.number, sale.date, lot.number, product.code, taken, lot.unitCost});
        line.draws.push_back({row, at, taken, lot.unitCost});
    }
    return cost;
}

// One selling unit of one line comes back, if that much is still owed.
void Books::TakeBack(RecentSale& sale) {
    Document& invoice = invoices_[sale.document];
    SoldLine& line = sale.lines[static_cast<std::size_t>(Chance(0, static_cast<int>(sale.lines.size()) - 1))];
    Product& product = products_[line.product];
    Party& customer = customers_[invoice.party];
    if (product.service || line.quantity < 1 || invoice.balance < line.price) return;
    const std::string number = NextNumber(returnCount_);
    const double rate = document::Rate(sale.tax), total = line.price, netto = total / (1 + rate);
    write_->salesReturn.Write({number, invoice.number, today_, invoice.date, customer.code, "", total, netto,
                               total - netto, 0, total, 0, total, Mid(number, 11, 2), rate * 100, "RUSAK",
                               ShortDate(invoice.date, {})});
    invoice.paid += total, invoice.balance -= total;
    customer.balance = Stored("Customer", "SaldoAkhir", customer.balance - total);

    double wanted = static_cast<double>(product.perSell), running = product.onHand, cost = 0;
    product.onHand += wanted;
    line.quantity -= 1;
    const double base = wanted;
    for (Draw& draw : line.draws) {
        if (wanted <= 0) break;
        const double given = std::min(draw.quantity, wanted);
        Lot& lot = lots_[draw.lot];
        wanted -= given, running += given, lot.left += given, cost += given * draw.price;
        if (lot.left > 0) Reopen(product.lots, draw.lot);
        write_->returnedQuantity.Run({line.row, given});
        write_->returned.Write({number, today_, invoice.number, lot.number, product.code, given, draw.price});
        write_->ledger.Write({"41", number, today_, "Sales Returns No " + number, product.code, product.name,
                              product.type, product.unit, 1, 0, 0, 0, -given, draw.price, running});
        draw.quantity -= given;
        write_->drawnQuantity.Run({draw.row, draw.quantity});
    }
    write_->salesReturnLine.Write({number, today_, product.code, product.name,
                                   base / static_cast<double>(product.perSell), product.sellUnit, line.price,
                                   product.perSell, 0, netto, netto * rate, total, 0, rate * 100, cost});
}

std::string Books::InWords(double amount) {
    constexpr int Width = 100;
    return Left(Trim(AmountInWords(SqlNumber(amount))), Width);
}

} // namespace varnik::bench
