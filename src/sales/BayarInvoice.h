#pragma once
// The receipt from customers: one voucher that pays invoices, of several customers if need be, into one cash
// or bank account. It stands on the screen alone until it is saved; a saved one is only deleted and entered
// again.
//
// BayarInvoice.cpp holds the screen, PostReceipt.cpp what it writes.

#include "document/DocumentScreen.h"
#include "document/Voucher.h"

namespace varnik {

class BayarInvoice : public document::DocumentScreen {
public:
    explicit BayarInvoice(Services& services);

    void Load() override;
    void Unload() override;
    void PreviewKeyDown(forms::Key& key) override;

private:
    // --- Controls, in tab order ---
    document::VoucherHead head_;
    document::ChequeFields cheque_;
    document::PaymentLines lines_;
    forms::Button Command1;
    document::SearchPanel frmCari, FrmCari2;

    // --- Buttons ---
    void StartNew() override;
    void StartDelete() override;
    void CancelEntry() override;
    void Find() override { FrmCari2.Open(); }
    void Print() override;
    bool TestsPassed() override;
    void Post() override { PostReceipt(); }
    void Reverse() override {} // a receipt is deleted at its button
    void EntryEnded() override { lines_.bttnAddLine.SetEnabled(false); }

    void ClearReceipt();
    void NumberLeft();
    void MethodLeft();
    void InvoiceLeft();
    void TakeInvoice();
    void TakeReceipt();
    bool ChequeTestsPassed();
    bool AccountStands();
    // The account's item of the drop-down.
    std::string AccountItem();
    std::string AccountCode() const;

    void LoadReceipt(const std::string& number);
    void PostReceipt();
    void PostPayment(Guard& step, int row);
    bool DeleteReceipt(); // whether the receipt is gone

    // Opened once and kept for the screen's life.
    ado::Recordset invoices_, payments_, accounts_, customers_, vouchers_;
};

} // namespace varnik
