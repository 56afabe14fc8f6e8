#pragma once
// Money that comes in without an invoice: one receipt is one voucher and one increase of an account. The
// simplest of the vouchers. A receipt is never edited, only deleted and entered again.

#include "cashbook/CashVoucher.h"

namespace varnik {

class OtherReceive : public cashbook::CashVoucher {
public:
    explicit OtherReceive(Services& services);

private:
    // --- Controls, in tab order, behind those of the voucher ---
    forms::TextBox TxtJumlah;
    document::SearchPanel frmCari;

    void Find() override { frmCari.Open(); }
    void Print() override;
    bool TestsPassed() override;
    void Post() override { PostReceipt(); }
    void Reverse() override;
    void ClearVoucher() override { ClearReceipt(); }
    void LoadVoucher(const std::string& number) override { LoadReceipt(number); }

    void ClearReceipt();
    void LoadReceipt(const std::string& number);
    void PostReceipt();
    void DeleteReceipt();
};

} // namespace varnik
