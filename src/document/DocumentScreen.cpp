#include "document/DocumentScreen.h"

#include <algorithm>

namespace varnik::document {

DocumentScreen::DocumentScreen(Services& services, std::string name, std::string caption)
    : ProgramScreen(services, std::move(name), std::move(caption)),
      FrameBawah(*this, "FrameBawah"),
      bttnNew(*this, "bttnNew", "&New"),
      bttnDel(*this, "bttnDel", "&Delete"),
      bttnFind(*this, "bttnFind", "&Find"),
      bttnPrint(*this, "bttnPrint", "&Print"),
      bttnClose(*this, "bttnClose", "C&lose"),
      FrameAtas(*this, "FrameAtas"),
      bttnSave(*this, "bttnSave", "&Save"),
      bttnCancel(*this, "bttnCancel", "Cance&l"),
      connection_(services.data) {
    FrameBawah.Hold({&bttnNew, &bttnDel, &bttnFind, &bttnPrint, &bttnClose});
    FrameAtas.Hold({&bttnSave, &bttnCancel});
    bttnNew.onClick = [this] {
        if (Sess().RightTambah) StartNew();
    };
    bttnDel.onClick = [this] {
        if (Sess().RightHapus) StartDelete();
    };
    bttnFind.onClick = [this] { Find(); };
    bttnPrint.onClick = [this] { Print(); };
    bttnClose.onClick = [this] { Close(); };
    bttnSave.onClick = [this] { Save(); };
    bttnCancel.onClick = [this] { CancelEntry(); };
}

void DocumentScreen::Load() {
    connection_.Open(Sess().ConnectionString);
    ShowBrowseFrame();
}

void DocumentScreen::Unload() { connection_.Close(); }

void DocumentScreen::Save() {
    if (Browsing()) return;
    if (Mode() == EntryMode::New && !TestsPassed()) return;
    const auto end = [this] {
        SetMode(EntryMode::Browsing);
        EntryEnded();
        ShowBrowseFrame();
    };
    // However the writing went, the entry is over: a second Save would write what stands a second time.
    try {
        Write();
    } catch (...) {
        end();
        throw;
    }
    end();
}

void DocumentScreen::Write() {
    const Resting resting(*this, bttnSave);
    if (Mode() == EntryMode::New)
        Post();
    else if (ReverseConfirmed()) {
        Reverse();
        bttnSave.SetCaption("&Save");
    }
    ado::SyncWritten();
}

void DocumentScreen::ShowEntryFrame() {
    FrameAtas.SetVisible(true);
    FrameBawah.SetVisible(false);
}

void DocumentScreen::ShowBrowseFrame() {
    FrameBawah.SetVisible(true);
    // Whoever saved or gave up goes on with the next document.
    if (Focused() && Focused()->Container() == &FrameAtas) SetFocus(bttnNew);
    FrameAtas.SetVisible(false);
}

void DocumentScreen::TypesCapitals(std::initializer_list<forms::Control*> fields) {
    for (forms::Control* field : fields) field->onKeyPress = [](forms::KeyPress& key) { key.ToUpper(); };
}

void DocumentScreen::MovesBackAlong(std::vector<forms::Control*> fields) {
    backwards_.push_back(std::move(fields));
}

void DocumentScreen::PreviewKeyDown(forms::Key& key) {
    if (!key.Is(forms::KeyCode::F2)) return;
    for (const auto& fields : backwards_) {
        auto at = std::ranges::find(fields, Focused());
        if (at == fields.end()) continue;
        key.handled = true;
        while (at != fields.begin()) {
            --at;
            if (!(*at)->CanFocus() || !(*at)->TabStop()) continue;
            return SetFocus(**at);
        }
    }
}

bool DocumentScreen::AsksForList(const forms::Key& key, const forms::TextBox& field) const {
    return Focused() == &field &&
           (key.Is(forms::KeyCode::F5) || (key.Is(forms::KeyCode::Enter) && Trim(field.Text()).empty()));
}

void DocumentScreen::OpenList(LookupList& list, const std::string& sql, forms::TextBox& field,
                              std::function<void()> picked) {
    ado::RowList rows;
    Resume([&] { rows = ReadList(services_, sql, connection_); });
    list.Open(rows, services_.regional, field, [&field, picked](const std::string& code) {
        field.SetText(code);
        picked();
    });
}

void DocumentScreen::ShowLines(Guard& step, OrderLines& grid, ado::Recordset& lines, const char* name,
                               const LineMasks& masks) {
    const auto number = [&](const char* column) { return NullToNumber(lines[column], services_.regional); };
    const auto amount = [&](double of) { return Masked(of, masks.amount); };
    while (!lines.Eof()) {
        step.Step([&] {
            grid.Write(grid.LastRow(),
                       {TextOf(lines["KodeBrg"]), TextOf(lines[name]), Masked(number("Qty"), masks.quantity),
                        TextOf(lines["Satuan"]), amount(number("Harga")),
                        amount(number("Harga") * number("Qty")), amount(number("Disc")),
                        amount(number("Total")), Masked(number("Qty2"))});
        });
        step.Step([&] { lines.MoveNext(); });
        // Wanted: no empty row follows the last line of a loaded document.
        if (!lines.Eof()) grid.Grow();
    }
}

bool DocumentScreen::Found(ado::Recordset& rows, const std::string& sql) {
    bool found = false;
    Resume([&] {
        rows.Open(sql, connection_);
        found = !rows.Empty();
    });
    return found;
}

bool DocumentScreen::Carries(ado::Recordset& rows, const char* column, const std::string& number) const {
    return !rows.Empty() && EqualsNoCase(Trim(TextOf(rows[column])), Trim(number));
}

Resting::Resting(forms::Screen& screen, forms::Button& button)
    : screen_(screen), button_(button), focused_(screen.Focused() == &button) {
    button_.SetEnabled(false);
}

Resting::~Resting() {
    button_.SetEnabled(true);
    if (focused_) screen_.SetFocus(button_);
}

} // namespace varnik::document
