// The fields of a payment, and of the line that pays one purchase.

#include "purchases/BayarFaktur.h"

namespace varnik {

using document::EntryMode;
using document::StandOn;

void BayarFaktur::NumberLeft() {
    const std::string number = head_.txtNoBukti.Text();
    const bool isNew = Mode() == EntryMode::New;
    if (!StandOn(vouchers_, "NoBKK ='" + Trim(number) + "'")) {
        if (isNew && MovingOn()) SetFocus(head_.txtTglJurnal);
        return;
    }
    LoadPayment(number);
    if (!isNew) return;
    Say("Receipt with this number already exist ...");
    CancelEntry();
}

// Cash needs no paper of a bank.
void BayarFaktur::MethodLeft() {
    const bool cash = head_.PaysCash(Sess());
    for (forms::TextBox* field : {&cheque_.TxtNamaBank, &cheque_.TxtNoCek, &cheque_.TxtPemilik}) {
        if (cash) field->SetText("-");
        field->SetEnabled(!cash);
    }
    if (cash) cheque_.TxtTglJTP.SetDate(head_.txtTglJurnal.Date());
    cheque_.TxtTglJTP.SetEnabled(!cash);
}

std::string BayarFaktur::AccountItem(ado::Recordset& account) const {
    constexpr int NameWidth = 30;
    return TextOf(account["RekID"]) + "." + PadRight(TextOf(account["NamaBank"]), NameWidth) + "/" +
           Trim(TextOf(account["NoRek"]));
}

bool BayarFaktur::StandOnAccount() { return StandOn(accounts_, "RekID ='" + AccountCode() + "'"); }

void BayarFaktur::AccountTyped() {
    if (!accounts_.IsOpen() || AccountCode().empty() || !StandOnAccount()) return;
    head_.TxtRekening.SetText(AccountItem(accounts_));
}

void BayarFaktur::AccountLeft() {
    if (Browsing() || !StandOnAccount()) return;
    head_.TxtRekening.SetText(AccountItem(accounts_));
    const bool paper = cheque_.TxtNoCek.Enabled();
    cheque_.TxtNamaBank.SetText(paper ? TextOf(accounts_["NamaBank"]) : "");
    if (paper) cheque_.TxtPemilik.SetText(TextOf(accounts_["NamaPemilik"]));
    if (!MovingOn()) return;
    if (paper)
        SetFocus(cheque_.TxtNoCek);
    else
        SetFocus(head_.TxtNamaPenerima);
}

void BayarFaktur::PurchaseLeft() {
    const std::string number = Trim(lines_.TxtNumber.Text());
    if (Mode() != EntryMode::New || number.empty()) return;
    if (!StandOn(purchases_, "NoFaktur='" + number + "'")) return;
    lines_.TxtJumlah.SetText(Masked(NullToNumber(purchases_["Saldo"], services_.regional), "#,##0.#0"));
    if (Trim(lines_.TxtCode.Text()).empty()) {
        lines_.TxtCode.SetText(TextOf(purchases_["KodeSup"]));
        if (StandOn(suppliers_, "KodeSup='" + lines_.TxtCode.Text() + "'"))
            lines_.TxtPartner.SetText(TextOf(suppliers_["NamaSup"]));
    }
    if (MovingOn()) SetFocus(lines_.bttnAddLine);
}

void BayarFaktur::SupplierLeft() {
    if (Mode() != EntryMode::New) return;
    const bool found = StandOn(suppliers_, "KodeSup='" + Trim(lines_.TxtCode.Text()) + "'");
    lines_.TxtPartner.SetText(found ? TextOf(suppliers_["NamaSup"]) : "");
    if (MovingOn()) SetFocus(lines_.TxtNumber);
}

void BayarFaktur::ClearPayment() {
    head_.Clear(Today());
    cheque_.Clear(Today());
    lines_.Clear();
    lines_.bttnAddLine.SetEnabled(false);
}

} // namespace varnik
