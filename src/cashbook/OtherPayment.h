#pragma once
// Expenses that are not purchases: one payment with a line for each cost. Every line is a row of its own in
// the table of vouchers, all under one number, and each repeats the sum of the whole payment.
//
// OtherPayment.cpp holds the screen, CostLines.h the lines, PostExpense.cpp what it writes.

#include "cashbook/CashVoucher.h"
#include "cashbook/CostLines.h"

namespace varnik {

class OtherPayment : public cashbook::CashVoucher {
public:
    explicit OtherPayment(Services& services);

    void Load() override;
    void PreviewKeyDown(forms::Key& key) override;

private:
    // --- Controls, in tab order, behind those of the voucher ---
    cashbook::CostLines lines_;
    document::SearchPanel frmCari;

    void StartNew() override;
    void StartDelete() override;
    void Find() override { frmCari.Open(); }
    void Print() override;
    bool TestsPassed() override;
    void Post() override { PostPayment(); }
    void Reverse() override;
    void EntryEnded() override;
    void ClearVoucher() override;
    void LoadVoucher(const std::string& number) override { LoadPayment(number); }

    void CostChanged();
    void AddLine();
    void CancelLine();
    void OpenRow();
    // Whether the cost and its type are known; a message tells which is not.
    bool CostStands();

    void LoadPayment(const std::string& number);
    void PostPayment();
    void ReversePayment();
};

} // namespace varnik
