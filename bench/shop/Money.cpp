// What comes in from customers and goes out to suppliers, and receipts and costs that belong to no document.

#include "bench/shop/Writers.h"

#include <array>
#include <cmath>

namespace varnik::bench {

const char* const AccountCodes[AccountCount] = {"1", "2", "901", "902"};

namespace {

constexpr std::array Methods{"CASH", "CASH", "CASH", "CHEQUE", "BG"};

} // namespace

std::vector<Books::Payment> Books::Settle(Party& party, std::vector<Document>& documents) {
    constexpr std::size_t Most = 10;
    std::vector<Payment> payments;
    while (!party.owed.empty() && payments.size() < Most) {
        const std::size_t at = party.owed.front();
        Document& document = documents[at];
        if (AddDays(document.date, party.days) > today_) break;
        if (document.balance <= 0) {
            party.owed.pop_front();
            continue;
        }
        // Now and then a part, and the rest another day.
        const bool part = OneIn(15) && document.balance > 1000;
        const double amount = part ? std::floor(document.balance / 2) : document.balance;
        document.paid += amount, document.balance -= amount;
        payments.push_back({at, amount});
        if (part) break;
        party.owed.pop_front();
    }
    return payments;
}

void Books::ReceiveFrom(std::size_t at) {
    Party& customer = customers_[at];
    const std::vector<Payment> payments = Settle(customer, invoices_);
    if (payments.empty()) return;
    double sum = 0;
    for (const Payment& payment : payments) sum += payment.amount;
    const std::string number = NextNumber(receiptCount_),
                      method = Methods[static_cast<std::size_t>(Chance(0, 4))];
    const std::size_t account = method == "CASH" ? 0 : 1;
    const DateTime due = method == "CASH" ? today_ : AddDays(today_, 14);
    write_->receipt.Write({today_, number, method, "RECEIPT FROM " + customer.name, "Siti", customer.name,
                           AccountCodes[account], "", "", method == "CASH" ? "" : "CK" + number, sum,
                           InWords(sum), today_, due, due});
    for (const Payment& payment : payments) {
        write_->receiptLine.Write({invoices_[payment.document].number, today_, number, customer.code, method,
                                   "RECEIPT FROM " + customer.name, payment.amount});
        customer.balance = Stored("Customer", "SaldoAkhir", customer.balance - payment.amount);
        accounts_[account] += payment.amount;
    }
}

void Books::Pay(std::size_t at) {
    Party& supplier = suppliers_[at];
    const std::vector<Payment> payments = Settle(supplier, purchases_);
    if (payments.empty()) return;
    double sum = 0;
    for (const Payment& payment : payments) sum += payment.amount;
    const std::string number = NextNumber(paymentCount_),
                      method = Methods[static_cast<std::size_t>(Chance(0, 4))];
    const std::size_t account = method == "CASH" ? 2 : 3;
    write_->payment.Write({today_, number, method, "PAYMENT TO " + supplier.name, supplier.name,
                           AccountCodes[account], method == "CASH" ? "" : "CK" + number, sum, InWords(sum),
                           today_, Value(), Value(), sum});
    for (const Payment& payment : payments) {
        write_->paymentLine.Write({purchases_[payment.document].number, today_, number, supplier.code, method,
                                   "PAYMENT TO " + supplier.name, payment.amount});
        supplier.balance -= payment.amount;
        accounts_[account] -= payment.amount;
    }
}

void Books::ReceiveOther() {
    const std::string number = NextNumber(receiptCount_);
    const double amount = 10'000 * Chance(1, 50);
    write_->receipt.Write({today_, number, "CASH", "OTHER RECEIPT", Value(), "Owner", AccountCodes[2], "Cash",
                           Value(), "", amount, InWords(amount), today_, today_, today_});
    accounts_[2] += amount;
}

// One row for each cost, all of one number and with the sum of all.
void Books::PayCosts() {
    const std::string number = NextNumber(paymentCount_);
    std::vector<double> amounts;
    double sum = 0;
    for (int i = Chance(1, 3); i > 0; --i) sum += amounts.emplace_back(5'000 * Chance(1, 40));
    const int first = Chance(0, 19);
    for (std::size_t i = 0; i < amounts.size(); ++i) {
        const int cost = (first + static_cast<int>(i)) % 20;
        const std::string code = (cost < 9 ? "B00" : "B0") + std::to_string(cost + 1);
        write_->payment.Write({today_, number, "CASH", "PAYMENT ", "Office", AccountCodes[2], "", sum,
                               InWords(sum), today_, code, "00" + std::to_string(1 + cost % 4), amounts[i]});
    }
    accounts_[2] -= sum;
}

} // namespace varnik::bench
