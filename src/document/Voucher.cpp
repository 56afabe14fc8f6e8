#include "document/Voucher.h"

#include "common/Numbers.h"
#include "common/Text.h"
#include "document/Totals.h"
#include "platform/forms/Screen.h"

namespace varnik::document {

namespace {

constexpr int LargeType = 20;

std::vector<forms::GridColumn> Columns(const std::array<std::string_view, 4>& headings) {
    using forms::Align;
    const auto column = [&](PaymentLines::Column at, Align align, int width) {
        return forms::GridColumn{std::string(headings[at]), align, width};
    };
    return {column(PaymentLines::Number, Align::Left, 14), column(PaymentLines::Amount, Align::Right, 16),
            column(PaymentLines::Code, Align::Left, 12), column(PaymentLines::Partner, Align::Left, 40)};
}

} // namespace

bool StandOn(ado::Recordset& rows, const std::string& criterion) {
    if (rows.Empty()) rows.Requery();
    if (rows.Empty()) return false;
    rows.MoveFirst();
    rows.Find(criterion);
    return !rows.Eof();
}

// ---- The head ----

VoucherHead::VoucherHead(forms::Screen& screen, std::string_view payee)
    : txtNoBukti(screen, "txtNoBukti", "Voucher No"),
      txtTglJurnal(screen, "txtTglJurnal", "Date"),
      TxtCaraBayar(screen, "TxtCaraBayar", "Payment Type"),
      TxtRekening(screen, "TxtRekening", "Cash/Bank Account"),
      TxtNamaPenerima(screen, "TxtNamaPenerima", std::string(payee)),
      TxtMemo(screen, "TxtMemo", "Memo") {
    const auto capitals = [](forms::KeyPress& key) { key.ToUpper(); };
    txtNoBukti.SetMaxLength(12);
    txtNoBukti.onKeyPress = capitals;
    TxtCaraBayar.SetMaxLength(10);
    TxtCaraBayar.onKeyPress = capitals;
    TxtNamaPenerima.SetMaxLength(50);
    TxtMemo.SetMaxLength(200);
}

void VoucherHead::ListMethods(const Session& session) {
    TxtCaraBayar.SetItems({session.PaymentMethod.begin() + 1, session.PaymentMethod.end()});
}

void VoucherHead::ListAccounts(ado::Recordset& accounts, const std::function<std::string()>& item) {
    std::vector<std::string> items;
    for (; !accounts.Eof(); accounts.MoveNext()) items.push_back(item());
    TxtRekening.SetItems(std::move(items));
}

bool VoucherHead::PaysCash(const Session& session) const {
    return Upper(Trim(TxtCaraBayar.Text())) == session.PaymentMethod[1];
}

void VoucherHead::Clear(DateTime today) {
    txtTglJurnal.SetDate(today);
    for (forms::TextControl* text :
         std::initializer_list<forms::TextControl*>{&TxtCaraBayar, &TxtRekening, &TxtNamaPenerima, &TxtMemo})
        text->SetText("");
}

ChequeFields::ChequeFields(forms::Screen& screen)
    : TxtNamaBank(screen, "TxtNamaBank", "Bank"),
      TxtNoCek(screen, "TxtNoCek", "Cheque No"),
      TxtPemilik(screen, "TxtPemilik", "Account Owner"),
      TxtTglJTP(screen, "TxtTglJTP", "Due Date") {
    for (forms::TextBox* text : {&TxtNamaBank, &TxtNoCek, &TxtPemilik}) text->SetMaxLength(50);
}

void ChequeFields::Clear(DateTime today) {
    for (forms::TextBox* text : {&TxtNamaBank, &TxtNoCek, &TxtPemilik}) text->SetText("");
    TxtTglJTP.SetDate(today);
}

// ---- The lines ----

PaymentLines::PaymentLines(forms::Screen& screen, const PaymentLineTexts& texts, const Regional& regional)
    : TxtNumber(screen, std::string(texts.number.name), std::string(texts.number.caption)),
      TxtJumlah(screen, "TxtJumlah", "Amount"),
      TxtCode(screen, std::string(texts.code.name), std::string(texts.code.caption)),
      TxtPartner(screen, std::string(texts.partner.name), std::string(texts.partner.caption)),
      bttnAddLine(screen, "bttnAddLine", "&Add"),
      OrderGrid(screen, {Columns(texts.headings), {"", "", "", ""}}),
      lblJumBAYAR(screen, "lblJumBAYAR", "0"),
      texts_(texts),
      regional_(regional) {
    TxtNumber.SetMaxLength(12);
    TxtCode.SetMaxLength(10);
    TxtPartner.SetMaxLength(50);
    TxtJumlah.SetRightAligned(true);
    lblJumBAYAR.SetFontSize(LargeType);
    for (forms::TextBox* text : {&TxtNumber, &TxtCode})
        text->onKeyPress = [](forms::KeyPress& key) { key.ToUpper(); };
}

bool PaymentLines::Add(forms::TextBox& memo) {
    if (!IsNumeric(TxtJumlah.Text(), regional_)) return false;
    if (Trim(memo.Text()).empty()) memo.SetText(std::string(texts_.memoStart) + Trim(TxtPartner.Text()));
    const std::vector<std::string> cells{TxtNumber.Text(), Masked(ToNumber(TxtJumlah.Text(), regional_)),
                                         TxtCode.Text(), TxtPartner.Text()};
    if (Updating()) {
        const std::string kept = OrderGrid.Cell(OrderGrid.Row(), Number);
        OrderGrid.Write(OrderGrid.Row(), cells);
        if (texts_.updateKeepsNumber) OrderGrid.SetCell(OrderGrid.Row(), Number, kept);
        bttnAddLine.SetCaption("&Add");
    } else {
        memo.SetText(Trim(memo.Text()) + std::string(texts_.memoNumber) + Trim(TxtNumber.Text()));
        OrderGrid.Write(OrderGrid.LastRow(), cells);
        OrderGrid.Grow();
    }
    OrderGrid.SetRow(OrderGrid.LastRow());
    TxtNumber.SetText("");
    TxtJumlah.SetText("0");
    ShowSum();
    return true;
}

void PaymentLines::TakeBack() {
    const int row = OrderGrid.Row();
    if (row < 1) return;
    const bool filled = OrderGrid.IsFilled(row);
    bttnAddLine.SetCaption(filled ? "&Up Date" : "&Add");
    TxtNumber.SetText(OrderGrid.Cell(row, Number));
    TxtJumlah.SetText(filled ? OrderGrid.Cell(row, Amount) : "0");
    TxtCode.SetText(OrderGrid.Cell(row, Code));
    TxtPartner.SetText(OrderGrid.Cell(row, Partner));
}

void PaymentLines::ClearLine() {
    for (forms::TextBox* text : {&TxtNumber, &TxtCode, &TxtPartner}) text->SetText("");
    TxtJumlah.SetText("0");
    bttnAddLine.SetCaption("&Add");
}

void PaymentLines::Clear() {
    ClearLine();
    OrderGrid.ClearGrid();
    ShowSum();
}

bool PaymentLines::IsOfCurrentRow(const std::string& number) const {
    return Updating() && Trim(OrderGrid.Cell(OrderGrid.Row(), Number)) == number;
}

double PaymentLines::AmountOf(int row) const {
    return IsPayment(row) ? ToNumber(OrderGrid.Cell(row, Amount), regional_) : 0;
}

bool PaymentLines::IsPayment(int row) const {
    const std::string& amount = OrderGrid.Cell(row, Amount);
    return IsNumeric(amount, regional_) && ToNumber(amount, regional_) > 0;
}

bool PaymentLines::AmountsAreNumeric() const {
    for (int row = 1; row < OrderGrid.LastRow(); ++row)
        if (!IsNumeric(OrderGrid.Cell(row, Amount), regional_)) return false;
    return true;
}

std::string PaymentLines::Masked(double amount) const { return FormatNumber(amount, "#,##0.#0", regional_); }

void PaymentLines::ShowSum() {
    sum_ = 0;
    for (int row = 1; row < OrderGrid.Rows(); ++row) sum_ += ToNumber(OrderGrid.Cell(row, Amount), regional_);
    lblJumBAYAR.SetCaption(Masked(sum_));
}

} // namespace varnik::document
