#pragma once
// The receipt for the invoice that stands on the invoice screen, which opens this one over itself. It writes
// what a customer receipt writes, for one invoice and by a way of its own.

#include "document/Voucher.h"
#include "platform/desktop/Failure.h"
#include "platform/desktop/ProgramScreen.h"

namespace varnik {

class Bayar : public ProgramScreen {
public:
    // `number` is the invoice's; "" leaves it to be typed.
    Bayar(Services& services, std::string number);

    void Load() override;
    void Unload() override;

private:
    // --- Controls, in tab order ---
    document::VoucherHead head_;
    forms::TextBox TxtNoInvoice, TxtKodeCus, TxtNamaCus, TxtJumlah, txtDibayar, TxtSaldo;
    forms::Button bttnSave, bttnPrint, bttnClose;

    void ShowInvoice();
    void PaidTyped();
    void Save();
    bool TestsPassed();
    void PostBayar();
    void Print();
    std::string AccountCode() const;

    const std::string number_; // of the invoice that it was opened for
    std::string accountName_;  // as found by the tests
    bool posted_ = false;      // the voucher stands: it is not written twice
    ado::Connection connection_;
    // Opened once and kept for the screen's life.
    ado::Recordset invoices_, payments_, accounts_, customers_, vouchers_;
};

} // namespace varnik
