#pragma once
// The books of a made-up shop while they are being written: what is still open and what everybody owes is
// kept in memory, so that a document is written as the program's posting would write it, without reading a
// row back. Amounts are whole units of money, quantities whole base units.

#include "bench/shop/RowWriter.h"

#include <deque>
#include <memory>
#include <random>

namespace varnik::bench {

struct Product {
    std::string code, name, type, unit, buyUnit, sellUnit;
    std::size_t supplier = 0;
    std::int64_t perBuy = 1, perSell = 1; // base units in one
    double buyPrice = 0;                  // of a buying unit
    double price = 0;                     // HargaJual: of a base unit
    bool service = false;
    double onHand = 0, average = 0, firstCost = 0, lastCost = 0;
    std::vector<std::size_t> lots, entries; // the open ones, in the order of entry
};

struct Lot {
    std::int64_t row = 0;
    std::string number; // of the purchase
    double left = 0, returned = 0, unitCost = 0;
    std::size_t product = 0, entry = 0;
};
// A purchase's row in the ledger.
struct Entry {
    std::int64_t row = 0;
    double left = 0;
};

// A customer or a supplier.
struct Party {
    std::string code, name;
    int days = 30; // to pay
    double balance = 0;
    std::deque<std::size_t> owed; // documents, oldest first
};

// A sale or a purchase.
struct Document {
    std::string number;
    DateTime date;
    std::size_t party = 0;
    double paid = 0, balance = 0;
    std::vector<std::size_t> lots; // of a purchase
};

// A sale not long ago, that goods may come back from.
struct Draw {
    std::int64_t row = 0;
    std::size_t lot = 0;
    double quantity = 0, price = 0;
};
struct SoldLine {
    std::size_t product = 0;
    double quantity = 0, price = 0; // in the selling unit
    std::int64_t row = 0;
    std::vector<Draw> draws;
};
struct RecentSale {
    std::size_t document = 0;
    double tax = 0;
    std::vector<SoldLine> lines;
};

// What customers pay comes into the first two, all else goes through the others: a customer's receipt reads
// one character of the code, a payment to a supplier three.
inline constexpr std::size_t AccountCount = 4;
extern const char* const AccountCodes[AccountCount];

class Books {
public:
    // The database is fresh; its look-up indexes may be missing meanwhile.
    Books(sqlite3* engine, long sales);
    void Write();

private:
    struct Writers;

    // By chance, the same for every run.
    int Chance(int from, int to);
    bool OneIn(int many) { return Chance(1, many) == 1; }
    std::size_t ProductByChance(); // the first sell best

    void MakeMasters();
    void WriteMasters();
    void WriteWhatChanged();

    void Sell();
    void WriteSale(Party& customer, std::size_t party, RecentSale& sale,
                   const std::vector<double>& discounts);
    void WriteSaleLine(const Document& sale, double tax, SoldLine& line, double discount);
    double ConsumeLots(const Document& sale, SoldLine& line, double onHand);
    void TakeBack(RecentSale& sale);

    void Buy(std::size_t product);
    void WritePurchaseLine(Document& purchase, std::size_t product, double quantity, double discount);
    void SendBack(Document& purchase, std::size_t party);

    void ReceiveFrom(std::size_t customer);
    void Pay(std::size_t supplier);
    void ReceiveOther();
    void PayCosts();
    struct Payment {
        std::size_t document;
        double amount;
    };
    // What is due of a party's documents, at most ten of them, off its balance and theirs.
    std::vector<Payment> Settle(Party& party, std::vector<Document>& documents);

    std::string NextNumber(std::vector<int>& counters);
    static std::string InWords(double amount);
    double OpeningBalance() const { return 200'000.0 * static_cast<double>(sales_); } // of each account

    sqlite3* engine_;
    std::shared_ptr<Writers> write_;
    std::mt19937_64 random_{20261122};
    long sales_;
    DateTime today_;
    std::vector<Product> products_;
    std::vector<std::vector<std::size_t>> productsOf_; // by supplier
    std::vector<std::size_t> nextOf_;                  // whose turn it is to be ordered along
    std::vector<Party> customers_, suppliers_;
    std::vector<double> accounts_; // their balances
    std::vector<Lot> lots_;
    std::vector<Entry> entries_;
    std::vector<Document> invoices_, purchases_;
    std::vector<std::int64_t> invoiceRows_;
    std::deque<RecentSale> recent_;
    // By user: how many of each kind there are.
    std::vector<int> invoiceCount_, returnCount_, purchaseCount_, sentBackCount_, receiptCount_,
        paymentCount_;
};

} // namespace varnik::bench
