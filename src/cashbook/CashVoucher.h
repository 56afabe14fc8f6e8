#pragma once
// What other receipts and other payments share: one voucher over one cash or bank account, without any
// document that it pays. The head, the cheque, the tests of method and account, the walk through the table.

#include "common/Numbering.h"
#include "document/DocumentScreen.h"
#include "document/KeyedItems.h"
#include "document/Navigation.h"
#include "document/SearchPanel.h"
#include "document/Voucher.h"

namespace varnik::cashbook {

// What tells the two apart.
struct CashTexts {
    Document document;
    std::string_view payee;           // who pays, or is paid
    std::string_view table, number;   // of the vouchers, and the column of their number
    std::string_view accounts;        // what the drop-down of accounts lists
    const char* numberStands;         // a new voucher under a number that is there
    const char *unknown, *unknownNow; // no voucher of this number: while browsing, to be deleted
    const char *noAccount, *strangeAccount, *noCheque;
};

class CashVoucher : public document::DocumentScreen {
public:
    void Load() override;
    void Unload() override;

protected:
    CashVoucher(Services& services, std::string name, std::string caption, const CashTexts& texts);

    document::Navigation navigation_;
    document::VoucherHead head_;
    forms::TextBox TxtNoCek;
    forms::DatePicker TxtTglJTP;

    // The voucher of a number onto the screen; without one the screen stays as it is.
    virtual void LoadVoucher(const std::string& number) = 0;
    virtual void ClearVoucher() = 0;

    void StartNew() override;
    void StartDelete() override;
    void CancelEntry() override;
    void EntryEnded() override {}

    void Serve(document::SearchPanel& panel);
    void MovesBack(std::initializer_list<forms::Control*> further);
    void ClearHead();
    void ShowHead(Guard& step, ado::Recordset& voucher, const char* date, const char* payee);

    // The tests that both make. One that fails shows its message and goes to the field.
    bool Passes(bool good, const char* message, forms::Control& field);
    bool MethodGiven();
    bool MeansStand(); // cash from an account that is there, everything else with a cheque
    // Whether the account is there; accounts_ stands on it then.
    bool StandOnAccount();
    bool AccountFound(); // the same, with the message of the posting
    std::string AccountCode() const { return document::KeyOf(head_.TxtRekening); }
    std::string WordsOf(double amount) const;

    // Opened once and kept for the screen's life.
    ado::Recordset accounts_, vouchers_;

private:
    bool Stands(const std::string& sql);
    void NumberLeft();
    void MethodLeft();
    void LeaveEntry();
    void Move(document::Navigation::Move move);
    void ShowVoucher(const std::string& number); // and nothing but it

    const CashTexts texts_;
};

// Keeps what is typed to digits and separators.
void TypesAmount(forms::TextBox& box);

} // namespace varnik::cashbook
