#pragma once
// What the vouchers of money in and out share: the head with method and account, the fields of a cheque, and
// the lines of a voucher that pays documents. A voucher names one account by the key that its drop-down's
// text begins with; how much of the text is the key is the screen's own.

#include "common/Session.h"
#include "document/OrderLines.h"
#include "document/SearchPanel.h"
#include "platform/ado/Ado.h"
#include "platform/forms/Controls.h"

#include <array>
#include <functional>
#include <string>
#include <string_view>

namespace varnik::document {

// Stands an open set on its first row that meets the criterion; false when there is none, and then it stands
// at its end.
bool StandOn(ado::Recordset& rows, const std::string& criterion);

struct VoucherHead {
    explicit VoucherHead(forms::Screen& screen, std::string_view payee);

    void ListMethods(const Session& session);
    // One item a row, in the order of the rows.
    void ListAccounts(ado::Recordset& accounts, const std::function<std::string()>& item);
    // The first method of the session is cash, all others are papers of a bank.
    bool PaysCash(const Session& session) const;
    void Clear(DateTime today);

    forms::TextBox txtNoBukti;
    forms::DatePicker txtTglJurnal;
    forms::ComboBox TxtCaraBayar, TxtRekening;
    forms::TextBox TxtNamaPenerima, TxtMemo;
};

struct ChequeFields {
    explicit ChequeFields(forms::Screen& screen);
    void Clear(DateTime today);

    forms::TextBox TxtNamaBank, TxtNoCek, TxtPemilik;
    forms::DatePicker TxtTglJTP;
};

// What tells the lines of the two voucher screens apart.
struct PaymentLineTexts {
    struct Box {
        std::string_view name, caption;
    };
    Box number, code, partner;                // of the document, of who owes or is owed
    std::array<std::string_view, 4> headings; // number, amount, code, name
    std::string_view memoStart, memoNumber;   // "Receipt From ", " Inv No."
    bool updateKeepsNumber = false;           // "&Up Date" leaves the number of the row
};

// The lines of a voucher: a document and what is paid on it, entered on the line above the grid.
class PaymentLines {
public:
    enum Column { Number, Amount, Code, Partner };

    PaymentLines(forms::Screen& screen, const PaymentLineTexts& texts, const Regional& regional);

    // The entry line into the grid: a new row, or the current one while the button reads "&Up Date"; then the
    // line is empty again and the sum stands. An amount that is no number leaves all as it is;
    // false then.
    bool Add(forms::TextBox& memo);
    // The current row back on the entry line, an empty one to be filled.
    void TakeBack();
    void ClearLine();
    void Clear();
    // Whether the row that is being changed is the payment of this document.
    bool IsOfCurrentRow(const std::string& number) const;
    double AmountOf(int row) const;     // 0 where it is no number
    bool IsPayment(int row) const;      // a number above 0
    bool AmountsAreNumeric() const;     // of all rows but the empty one
    double Sum() const { return sum_; } // as of the last line added

    forms::TextBox TxtNumber, TxtJumlah, TxtCode, TxtPartner;
    forms::Button bttnAddLine;
    OrderLines OrderGrid;
    forms::Label lblJumBAYAR;

private:
    bool Updating() const { return bttnAddLine.Caption() == "&Up Date"; }
    std::string Masked(double amount) const;
    void ShowSum();

    const PaymentLineTexts texts_;
    const Regional& regional_;
    double sum_ = 0;
};

} // namespace varnik::document
