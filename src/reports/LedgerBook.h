#pragma once
// The ledger books: one month of one account, customer or supplier, between its opening and its closing
// balance. The three dialogs differ in a row of texts alone. They write nothing.

#include "reports/ReportDialog.h"

#include <string_view>

namespace varnik {

// What tells one book from another.
struct Book {
    const char *name, *caption;
    const char* items;       // code and name of the accounts
    const char *query, *key; // the stored query of movements, and its column with the account's code
    const char* balances;    // SaldoAwal and SaldoAkhir, up to the code
    // The month's rows, up to the month; their columns of date and code; what follows the code.
    const char *rows, *date, *code, *order;
    const char *windowTitle, *reportTitle, *file;
    int closingIndex; // of the parameter SaldoAkhir; SaldoAwal has 0
};

class LedgerBook : public ReportDialog {
public:
    LedgerBook(Services& services, const Book& book);
    void Load() override;

private:
    void Print();
    struct Movement {
        double debit = 0, kredit = 0;
    };
    // Both sums over the movements for which the condition holds.
    Movement Sum(ado::Connection& connection, const std::string& condition) const;
    // "month(Tanggal)= 5 And Year (Tanggal) = 2026"
    std::string InMonth(const std::string& date) const;
    std::string Code() const;

    const Book& book_;
    forms::ComboBox Combo1{*this, "Combo1", "Account"};
    forms::TextBox Text1{*this, "Text1", "Month"};
    forms::TextBox Text2{*this, "Text2", "Year"};
    forms::Button OKButton{*this, "OKButton", "Print"};
    forms::Button CancelButton{*this, "CancelButton", "Cancel"};
};

class BukuBank : public LedgerBook {
public:
    explicit BukuBank(Services& services);
};

class BukuPiutang : public LedgerBook {
public:
    explicit BukuPiutang(Services& services);
};

class BukuHutang : public LedgerBook {
public:
    explicit BukuHutang(Services& services);
};

} // namespace varnik
