#include "cashbook/CashVoucher.h"

#include "data/Numbering.h"

namespace varnik::cashbook {

using document::EntryMode;

namespace {
constexpr int WordsLength = 100; // what the column can hold
} // namespace

CashVoucher::CashVoucher(Services& services, std::string name, std::string caption, const CashTexts& texts)
    : DocumentScreen(services, std::move(name), std::move(caption)),
      navigation_(*this, FrameBawah),
      head_(*this, texts.payee),
      TxtNoCek(*this, "TxtNoCek", "Cheque No"),
      TxtTglJTP(*this, "TxtTglJTP", "Due Date"),
      texts_(texts) {
    TxtNoCek.SetMaxLength(50);
    navigation_.onMove = [this](document::Navigation::Move move) { Move(move); };
    head_.txtNoBukti.onLeave = [this] { NumberLeft(); };
    head_.TxtCaraBayar.onLeave = [this] { MethodLeft(); };
    head_.TxtRekening.onLeave = [this] { document::CompleteItem(head_.TxtRekening); };
}

void CashVoucher::Load() {
    DocumentScreen::Load();
    accounts_.Open("SELECT * FROM Bank Order By RekID", Data());
    vouchers_.Open("SELECT * FROM " + std::string(texts_.table), Data());
    head_.ListMethods(Sess());
    ado::Recordset list(texts_.accounts, Data(), ado::CursorType::Static);
    document::ListItems(head_.TxtRekening, list, services_.regional);
    ClearVoucher();
}

void CashVoucher::Unload() {
    for (ado::Recordset* kept : {&accounts_, &vouchers_})
        if (kept->IsOpen()) kept->Close();
    DocumentScreen::Unload();
}

// ---- The buttons ----

void CashVoucher::StartNew() {
    SetMode(EntryMode::New);
    ClearVoucher();
    ShowEntryFrame();
    head_.txtNoBukti.SetText(data::NextNumber(services_, texts_.document));
    SetFocus(head_.txtNoBukti);
}

void CashVoucher::StartDelete() {
    SetMode(EntryMode::Deleting);
    ClearVoucher();
    bttnSave.SetCaption("&Delete");
    ShowEntryFrame();
    SetFocus(head_.txtNoBukti);
}

void CashVoucher::CancelEntry() {
    LeaveEntry();
    LoadVoucher(head_.txtNoBukti.Text());
}

void CashVoucher::LeaveEntry() {
    bttnSave.SetCaption("&Save");
    SetMode(EntryMode::Browsing);
    EntryEnded();
    ShowBrowseFrame();
}

void CashVoucher::Move(document::Navigation::Move move) {
    bool any = false;
    std::string number;
    Guard(Desk(), "Err No ").Run([&](Guard& step) {
        step.Step([&] { any = document::Navigation::Walk(vouchers_, move); });
        if (any) step.Step([&] { number = TextOf(vouchers_[texts_.number]); });
    });
    if (any) ShowVoucher(number);
}

// A number that stands need not be one of this screen's: supplier payments share the series of payments.
void CashVoucher::ShowVoucher(const std::string& number) {
    ClearVoucher();
    head_.txtNoBukti.SetText(number);
    LoadVoucher(number);
}

void CashVoucher::Serve(document::SearchPanel& panel) {
    panel.onExecute = [this, &panel] { panel.Execute(Data(), services_); };
    panel.onTake = [this, &panel] {
        constexpr int NumberColumn = 0;
        const std::string number = panel.Chosen(NumberColumn);
        panel.Close();
        if (!number.empty()) LoadVoucher(number);
    };
}

// ---- The fields ----

void CashVoucher::MovesBack(std::initializer_list<forms::Control*> further) {
    std::vector<forms::Control*> fields{
        &head_.txtNoBukti,      &head_.txtTglJurnal, &head_.TxtCaraBayar, &head_.TxtRekening,
        &head_.TxtNamaPenerima, &head_.TxtMemo,      &TxtNoCek,           &TxtTglJTP};
    fields.insert(fields.end(), further);
    MovesBackAlong(std::move(fields));
}

void CashVoucher::ClearHead() {
    head_.Clear(Today());
    head_.txtNoBukti.SetText("");
    TxtNoCek.SetText("");
    TxtTglJTP.SetDate(Today());
}

void CashVoucher::ShowHead(Guard& step, ado::Recordset& voucher, const char* date, const char* payee) {
    const auto show = [&](forms::TextControl& field, const std::string& column) {
        step.Step([&] { field.SetText(TextOf(voucher[column])); });
    };
    const auto showDate = [&](forms::DatePicker& field, const char* column) {
        step.Step([&] {
            if (const Value value = voucher[column]; value.IsDate()) field.SetDate(value.Date());
        });
    };
    show(head_.txtNoBukti, std::string(texts_.number));
    showDate(head_.txtTglJurnal, date);
    show(head_.TxtCaraBayar, "CaraBayar");
    show(head_.TxtMemo, "Keterangan");
    step.Step([&] { document::ShowItem(head_.TxtRekening, TextOf(voucher["RekID"])); });
    show(TxtNoCek, "NoCek");
    show(head_.TxtNamaPenerima, payee);
    showDate(TxtTglJTP, "TglJTP");
    MethodLeft();
}

bool CashVoucher::Stands(const std::string& sql) {
    ado::Recordset rows;
    return Found(rows, sql);
}

void CashVoucher::NumberLeft() {
    const std::string number = head_.txtNoBukti.Text();
    if (Trim(number).empty()) return;
    const std::string column(texts_.number);
    const bool stands = Stands("Select " + column + " From " + std::string(texts_.table) + " Where " +
                               column + " = '" + number + "'");
    if (Mode() == EntryMode::New) {
        if (!stands) return;
        Say(texts_.numberStands);
        LeaveEntry();
        return ShowVoucher(number);
    }
    if (stands) return ShowVoucher(number);
    Say(Browsing() ? texts_.unknown : texts_.unknownNow);
    LeaveEntry();
    // What shows is not the voucher of this number.
    ClearVoucher();
    head_.txtNoBukti.SetText(number);
}

// Cash is due on the day it moves.
void CashVoucher::MethodLeft() {
    if (Mode() == EntryMode::New && head_.PaysCash(Sess())) TxtTglJTP.SetDate(head_.txtTglJurnal.Date());
}

// ---- The tests ----

bool CashVoucher::Passes(bool good, const char* message, forms::Control& field) {
    if (good) return true;
    Say(message);
    SetFocus(field);
    return false;
}

bool CashVoucher::MethodGiven() {
    return Passes(!Trim(head_.TxtCaraBayar.Text()).empty(), "Payment type should not be empty ...",
                  head_.TxtCaraBayar);
}

bool CashVoucher::MeansStand() {
    // The date of a date picker is one always.
    if (!head_.PaysCash(Sess()))
        return Passes(!Trim(TxtNoCek.Text()).empty(), texts_.noCheque, TxtNoCek) && AccountFound();
    return Passes(!Trim(head_.TxtRekening.Text()).empty(), texts_.noAccount, head_.TxtRekening) &&
           Passes(Stands("Select RekID from bank Where RekId='" + AccountCode() + "'"), texts_.strangeAccount,
                  head_.TxtRekening);
}

bool CashVoucher::StandOnAccount() { return document::StandOn(accounts_, "RekID ='" + AccountCode() + "'"); }

// Asked before the entry ends, while the account can still be mended: without it nothing would be posted.
bool CashVoucher::AccountFound() {
    bool found = false;
    Resume([&] { found = StandOnAccount(); });
    return Passes(found, "Account cash or bank not found ...", head_.TxtRekening);
}

std::string CashVoucher::WordsOf(double amount) const {
    return Left(Trim(AmountInWords(Masked(amount, "#0"))), WordsLength);
}

void TypesAmount(forms::TextBox& box) {
    box.SetRightAligned(true);
    box.onKeyPress = [](forms::KeyPress& key) {
        if (std::u32string_view(U"1234567890.,").find(key.character) == std::u32string_view::npos)
            key.Discard();
    };
}

} // namespace varnik::cashbook
