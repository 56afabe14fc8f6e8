#pragma once
// The payment of purchases: one voucher, drawn on one cash or bank account, pays any number of purchases,
// also of several suppliers. A payment is never edited, only deleted and entered again.
//
// BayarFaktur.cpp holds the buttons, the searches and the paper, PaymentHeader.cpp the fields,
// PostPayment.cpp loads, writes and takes back.

#include "document/DocumentScreen.h"
#include "document/SearchPanel.h"
#include "document/Voucher.h"

namespace varnik {

class BayarFaktur : public document::DocumentScreen {
public:
    explicit BayarFaktur(Services& services);

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
    void Post() override { PostPayment(); }
    void Reverse() override {} // a deletion is no mode here: the button asks and does it
    void EntryEnded() override;
    void TakePurchase();
    void TakePayment();

    // --- Header and line ---
    void NumberLeft();
    void MethodLeft();
    void AccountTyped();
    void AccountLeft();
    void PurchaseLeft();
    void SupplierLeft();
    void ClearPayment();
    // The account of a payment is read by the first three characters.
    std::string AccountCode() const { return Left(Trim(head_.TxtRekening.Text()), 3); }
    std::string AccountItem(ado::Recordset& account) const;
    bool StandOnAccount();

    // --- The data ---
    void LoadPayment(const std::string& number);
    void PostPayment();
    void PostLine(int row);
    void ReversePayment();
    void ReverseLine(const std::string& account);

    // Opened once and kept for the screen's life.
    ado::Recordset purchases_, payments_, accounts_, suppliers_, vouchers_;
};

} // namespace varnik
