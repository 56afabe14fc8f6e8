// The header of a return, the purchase that it returns from, and the returns that stand.

#include "purchases/FakturRetur.h"

namespace varnik {

using document::EntryMode;

bool FakturRetur::Seek(Guard& step, ado::Recordset& rows, const std::string& criterion) {
    bool found = false;
    step.Step([&] {
        rows.MoveFirst();
        rows.Find(criterion);
        found = !rows.Eof();
    });
    return found;
}

void FakturRetur::NumberLeft() {
    if (Browsing()) return;
    if (ReturnNumber().empty()) {
        Say("The ID should not be empty. Enter a value ...");
        SetFocus(TxtNoFaktur);
        return;
    }
    Guarded([&](Guard& step) {
        const bool found = Seek(step, returns_, "NoFaktur='" + ReturnNumber() + "'");
        if (Mode() == EntryMode::New) {
            if (found) Say("This ID already exist ...");
        } else if (found) {
            ShowReturn(step);
        } else {
            Say("Unable to find record ...");
            bttnSave.SetCaption("&Save");
        }
    });
}

void FakturRetur::PurchaseLeft() {
    if (Mode() != EntryMode::New) return;
    // A blank number is nothing to look for when the person has gone to another field.
    if (PurchaseNumber().empty() && !MovingOn()) return;
    // Passing through the field keeps the lines that were cut down; typing the number loads them anew.
    if (!PurchaseNumber().empty() && !purchaseTyped_) return;
    Guarded([&](Guard& step) {
        if (Seek(step, purchases_, "NoFaktur ='" + PurchaseNumber() + "'"))
            LoadPurchaseForReturn(step);
        else if (Ask("Unable to find purcahses id " + std::string(CrLf) + "Searching for others id ? "))
            SetFocus(txtNoPO);
    });
}

void FakturRetur::PurchaseDateLeft() {
    if (!Browsing() && Trim(TxtTglPO.Text()).empty()) Say("The Date should not be empty. Enter a value ...");
}

void FakturRetur::SupplierLeft() {
    Guarded([&](Guard& step) {
        const bool found = Seek(step, supplierLookUp_, "KodeSup='" + Trim(supplier_.TxtKodeSup.Text()) + "'");
        supplier_.ClearName();
        if (!found) return;
        step.Step([&] {
            const auto text = [&](const char* column) { return TextOf(supplierLookUp_[column]); };
            supplier_.TxtNamaSup.SetText(text("NamaSup"));
            supplier_.TxtAlamat1.SetText(text("Alamat_1"));
            supplier_.TxtAlamat2.SetText(text("Alamat_2"));
            supplier_.TxtAlamat3.SetText(text("Alamat_3"));
        });
    });
}

namespace {
// A quantity or an amount as it was stored: nothing is rounded away on its way back into the tables.
constexpr document::LineMasks Whole{.quantity = "#,##0.#####", .amount = "#,##0.#0"};
} // namespace

void FakturRetur::LoadPurchaseForReturn(Guard& step) {
    step.Step([&] { txtNoPO.SetText(TextOf(purchases_["NoFaktur"])); });
    step.Step([&] { TxtTglPO.SetText(Shown(purchases_["TglFaktur"])); });
    step.Step([&] { supplier_.TxtKodeSup.SetText(TextOf(purchases_["KodeSup"])); });
    SupplierLeft();
    ShowAmounts(step, purchases_);
    OrderGrid.ClearGrid();
    step.Step([&] { lots_.Filter("NoFaktur = '" + PurchaseNumber() + "'"); });
    ShowLines(step, OrderGrid, lots_, "Diskripsi", Whole);
    purchaseTyped_ = false;
}

void FakturRetur::ShowAmounts(Guard& step, ado::Recordset& document) {
    const auto amount = [&](const char* column) { return Amount(document, column); };
    step.Step([&] {
        sums_ = {.JumBruto = amount("Bruto"),
                 .JumDisc = amount("Disc"),
                 .JumNetto = amount("Netto"),
                 .JumTotal = amount("Total"),
                 .JumBayar = amount("Bayar"),
                 .JumSaldo = amount("Saldo")};
    });
    ShowSums();
    boxes_.txtJumTotal.SetText(Masked(sums_.JumNetto));
}

// The return that stands on the current row.
void FakturRetur::ShowReturn(Guard& step) {
    step.Step([&] { TxtNoFaktur.SetText(TextOf(returns_["NoFaktur"])); });
    step.Step([&] { TxtTglFaktur.SetText(Shown(returns_["TglFaktur"])); });
    step.Step([&] { txtNoPO.SetText(TextOf(returns_["NoPO"])); });
    step.Step([&] { TxtTglPO.SetText(Shown(returns_["TglPO"])); });
    step.Step([&] { supplier_.TxtKodeSup.SetText(TextOf(returns_["KodeSup"])); });
    SupplierLeft();
    step.Step([&] { supplier_.txtket.SetText(TextOf(returns_["Ket"])); });
    ShowAmounts(step, returns_);
    ShowReturnLines(step, Whole.quantity);
}

void FakturRetur::ShowReturnLines(Guard& step, std::string_view quantityMask) {
    OrderGrid.ClearGrid();
    step.Step([&] { returnLines_.Filter("NoFaktur = '" + ReturnNumber() + "'"); });
    ShowLines(step, OrderGrid, returnLines_, "Diskripsi", {.quantity = quantityMask, .amount = Whole.amount});
}

void FakturRetur::ClearRetur() {
    TxtTglFaktur.SetText(SqlDate(Today()));
    for (forms::TextBox* text : {&TxtNoFaktur, &txtNoPO, &TxtTglPO, &supplier_.TxtKodeSup, &supplier_.txtket})
        text->SetText("");
    supplier_.ClearName();
    line_.Check2.SetChecked(false);
    line_.FrameIsiBarang.SetVisible(false);
    line_.ClearLine();
    sums_ = {};
    boxes_.Clear();
    OrderGrid.ClearGrid();
}

DateTime FakturRetur::ReturnDate() const {
    return ParseDate(TxtTglFaktur.Text(), services_.regional).value_or(Today());
}

} // namespace varnik
