#include "sales/Bayar.h"

#include "data/Numbering.h"
#include "document/DocumentScreen.h"
#include "document/Totals.h"

namespace varnik {

namespace {
constexpr int WordsLength = 100; // what the column can hold
constexpr int MemoLength = 100;
} // namespace

Bayar::Bayar(Services& services, std::string number)
    : ProgramScreen(services, "Bayar", "Customer Receive"),
      head_(*this, "Received By"),
      TxtNoInvoice(*this, "TxtNoInvoice", "Invoice ID"),
      TxtKodeCus(*this, "TxtKodeCus", "Customer ID"),
      TxtNamaCus(*this, "TxtNamaCus", "Name"),
      TxtJumlah(*this, "TxtJumlah", "Invoce Total"),
      txtDibayar(*this, "txtDibayar", "Pay In"),
      TxtSaldo(*this, "TxtSaldo", "Balance"),
      bttnSave(*this, "bttnSave", "&Save"),
      bttnPrint(*this, "bttnPrint", "&Print"),
      bttnClose(*this, "bttnClose", "C&lose"),
      number_(std::move(number)),
      connection_(services.data) {
    TxtNoInvoice.SetMaxLength(12);
    head_.TxtMemo.SetMaxLength(MemoLength);
    txtDibayar.SetRightAligned(true);
    for (forms::TextBox* shown : {&TxtJumlah, &TxtSaldo}) document::MakeAmountBox(*shown);
    for (forms::TextBox* shown : {&TxtKodeCus, &TxtNamaCus}) {
        shown->SetLocked(true);
        shown->SetTabStop(false);
    }
    head_.TxtRekening.SetToolTip("The account's code is one character, the first");

    TxtNoInvoice.onKeyPress = [](forms::KeyPress& key) { key.ToUpper(); };
    TxtNoInvoice.onLeave = [this] { Resume([&] { ShowInvoice(); }); };
    txtDibayar.onChange = [this] { PaidTyped(); };
    txtDibayar.onLeave = [this] { PaidTyped(); };
    bttnSave.onClick = [this] { Save(); };
    bttnPrint.onClick = [this] { Print(); };
    bttnClose.onClick = [this] { Close(); };
}

void Bayar::Load() {
    connection_.Open(Sess().ConnectionString);
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        step.Step([&] { invoices_.Open("SELECT * FROM Invoice", connection_); });
        step.Step([&] { payments_.Open("SELECT * FROM InvoiceBayar", connection_); });
        step.Step([&] { accounts_.Open("SELECT * FROM Bank Order By RekID", connection_); });
        step.Step([&] { customers_.Open("SELECT * FROM Customer", connection_); });
        step.Step([&] { vouchers_.Open("SELECT * FROM BKM", connection_); });
        step.Step([&] { head_.txtNoBukti.SetText(data::NextNumber(services_, Document::Bayar)); });
        head_.ListMethods(Sess());
        // Who pays at the counter pays cash, into the account that is marked for it.
        head_.TxtCaraBayar.SetText(Sess().PaymentMethod[1]);
        head_.txtTglJurnal.SetDate(Today());
        step.Step([&] {
            ado::Recordset list("Select RekID,NamaBank,NoRek, DefaultKas From Bank Order By RekID ",
                                connection_);
            head_.ListAccounts(list, [&] {
                const std::string item =
                    TextOf(list["RekID"]) + " / " + TextOf(list["NamaBank"]) + " - " + TextOf(list["NoRek"]);
                if (Yes(list["DefaultKas"])) head_.TxtRekening.SetText(item);
                return item;
            });
        });
        TxtNoInvoice.SetText(number_);
        step.Step([&] { ShowInvoice(); });
        head_.TxtMemo.SetText("Receipt For Inv No. " + number_ + " Cus " + TxtNamaCus.Text() + " /");
    });
}

void Bayar::Unload() {
    for (ado::Recordset* kept : {&invoices_, &payments_, &accounts_, &customers_, &vouchers_})
        if (kept->IsOpen()) kept->Close();
    connection_.Close();
}

void Bayar::ShowInvoice() {
    for (forms::TextBox* text : {&TxtKodeCus, &TxtNamaCus}) text->SetText("");
    TxtJumlah.SetText("0");
    txtDibayar.SetText("0");
    if (!document::StandOn(invoices_, "NoInvoice='" + TxtNoInvoice.Text() + "'")) return;
    const std::string balance = Masked(NullToNumber(invoices_["Saldo"], services_.regional));
    TxtJumlah.SetText(balance);
    txtDibayar.SetText(balance);
    TxtKodeCus.SetText(TextOf(invoices_["KodeCus"]));
    if (document::StandOn(customers_, "KodeCus='" + TxtKodeCus.Text() + "'"))
        TxtNamaCus.SetText(TextOf(customers_["NamaCus"]));
}

void Bayar::PaidTyped() {
    txtDibayar.SetText(Masked(Number(txtDibayar)));
    TxtSaldo.SetText(Masked(Number(TxtJumlah) - Number(txtDibayar)));
}

// Wanted: the account is read by one character, so a code of more is never found.
std::string Bayar::AccountCode() const { return Left(Trim(head_.TxtRekening.Text()), 1); }

void Bayar::Save() {
    if (posted_) return;
    bttnSave.SetEnabled(false);
    if (TestsPassed()) PostBayar();
    ado::SyncWritten();
    if (!posted_)
        bttnSave.SetEnabled(true);
    else if (bttnPrint.CanFocus())
        SetFocus(bttnPrint);
}

bool Bayar::TestsPassed() {
    // The date of a date picker is one always.
    const auto filled = [this](const forms::TextControl& field, const char* message) {
        if (!Trim(field.Text()).empty()) return true;
        Say(message);
        return false;
    };
    constexpr const char* NoAccount = "Bank or cash account should not be empty ...";
    if (!filled(head_.TxtCaraBayar, "Payment type should not be empty") ||
        !filled(TxtKodeCus, "Customer code should not be empty ...") ||
        !filled(TxtNoInvoice, "Invoice number should not be empty ...") ||
        !filled(head_.TxtRekening, NoAccount))
        return false;
    bool found = false;
    Resume([&] {
        if (!document::StandOn(accounts_, "RekID ='" + AccountCode() + "'")) return;
        accountName_ = TextOf(accounts_["NamaBank"]);
        found = true;
    });
    if (!found) Say(NoAccount);
    return found;
}

void Bayar::PostBayar() {
    const document::Hourglass hourglass(Desk());
    const std::string number = head_.txtNoBukti.Text(), method = head_.TxtCaraBayar.Text(),
                      memo = head_.TxtMemo.Text(), customer = TxtNamaCus.Text();
    const double amount = Number(txtDibayar);
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        step.Step([&] {
            const std::string date = "#" + SqlDate(head_.txtTglJurnal.Date()) + "#";
            const std::string words = Left(Trim(AmountInWords(Masked(amount, "#0"))), WordsLength);
            connection_.Execute(
                "INSERT INTO BKM "
                "(TglBKM,NoBKM,CaraBayar,Keterangan,Penerima,Penyetor,RekID,NamaBank,Debitur,NoCek,Jumlah,"
                "Terbilang,TglSetor,TglJtp,TglClear,Setor,Clear) VALUES ( " +
                date + ",'" + number + "','" + method + "','" + memo + "','" + head_.TxtNamaPenerima.Text() +
                "','" + customer + "','" + AccountCode() + "','" + accountName_ + "','" + customer +
                "','0'," + SqlNumber(amount) + ",'" + words + "'," + date + "," + date + "," + date +
                ",False,False)");
        });
        // From here on something is written, also when the voucher itself was passed over: never twice.
        posted_ = true;
        const auto raise = [&](ado::Recordset& rows, const std::string& criterion, const char* column,
                               double by) {
            bool found = false;
            step.Step([&] { found = document::StandOn(rows, criterion); });
            if (found)
                step.PutRow(rows, {{column, [&, by] {
                                        return NullToNumber(rows[column], services_.regional) + by;
                                    }}});
        };
        raise(accounts_, "RekID ='" + AccountCode() + "'", "SaldoAkhir", amount);
        // Wanted: the invoice is lowered by its whole balance as shown, whatever is paid in; account and
        // customer move by what is paid.
        step.AddRow(payments_, {{"NoInvoice", TxtNoInvoice.Text()},
                                {"TglBKM", head_.txtTglJurnal.Date()},
                                {"NoBKM", number},
                                {"KodeCus", TxtKodeCus.Text()},
                                {"CaraBayar", method},
                                {"Memo", memo},
                                {"Jumlah", Number(TxtJumlah)}});
        double paid = 0;
        bool found = false;
        step.Step([&] { paid = NullToNumber(payments_["Jumlah"], services_.regional); });
        step.Step([&] { found = document::StandOn(invoices_, "NoInvoice='" + TxtNoInvoice.Text() + "'"); });
        if (found)
            step.PutRow(
                invoices_,
                {{"Saldo", [&] { return NullToNumber(invoices_["Saldo"], services_.regional) - paid; }},
                 {"Bayar", [&] { return NullToNumber(invoices_["Bayar"], services_.regional) + paid; }}});
        raise(customers_, "KodeCus ='" + TxtKodeCus.Text() + "'", "Saldoakhir", -amount);
    });
}

void Bayar::Print() {
    ReportRequest request = ReportOf("\\BKM2.rpt");
    request.Connect = Sess().ConnectionString;
    request.SQLQuery = "Select NoBKM, TglBKM, CaraBayar,  Keterangan, NamaCus, KodeCus, "
                       "NamaCus + '('+KodeCus+')' As Penyetor, Jumlah, Terbilang, NamaBank, Debitur, NoCek "
                       "From QryBKM Where NoBKM ='" +
                       head_.txtNoBukti.Text() + "'";
    Desk().LaunchReport(request);
}

} // namespace varnik
