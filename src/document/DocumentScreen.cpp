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
      bttnCancel(*this, "bttnCancel", "Ca&ncel"),
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
    bttnSave.SetEnabled(false);
    if (Mode() == EntryMode::New)
        Post();
    else {
        Reverse();
        bttnSave.SetCaption("&Save");
    }
    ado::SyncWritten();
    bttnSave.SetEnabled(true);
    SetMode(EntryMode::Browsing);
    EntryEnded();
    ShowBrowseFrame();
}

void DocumentScreen::ShowEntryFrame() {
    FrameAtas.SetVisible(true);
    FrameBawah.SetVisible(false);
}

void DocumentScreen::ShowBrowseFrame() {
    FrameBawah.SetVisible(true);
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

bool DocumentScreen::Found(ado::Recordset& rows, const std::string& sql) {
    bool found = false;
    Resume([&] {
        rows.Open(sql, connection_);
        found = !rows.Empty();
    });
    return found;
}

} // namespace varnik::document
