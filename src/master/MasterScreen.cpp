#include "master/MasterScreen.h"

#include "master/NextCode.h"
#include "platform/desktop/Failure.h"

namespace varnik {

MasterScreen::MasterScreen(Services& services, const MasterRow& row)
    : ProgramScreen(services, std::string(row.name), std::string(row.caption)),
      connection_(services.data),
      row_(row) {}

void MasterScreen::Carries(forms::TextControl& code, forms::TextControl& name, std::vector<Field> fields) {
    code_ = &code;
    name_ = &name;
    fields_ = std::move(fields);
    Capitals(code);
    code.onLeave = [this] { LeaveCode(); };
    code.onKeyDown = [this](forms::Key& key) {
        if (!row_.escapeCancels || !key.Is(forms::KeyCode::Escape)) return;
        key.handled = true;
        if (row_.escapeEmptiesCode) code_->SetText("");
        Cancel();
    };
    if (!row_.nameMessage.empty()) name.onLeave = [this] { LeaveName(); };
}

void MasterScreen::Load() {
    buttons_->bttnAdd.onClick = [this] { Add(); };
    buttons_->bttnEdit.onClick = [this] { Edit(); };
    buttons_->bttnDelete.onClick = [this] { Delete(); };
    buttons_->bttnFind.onClick = [this] { Find(); };
    buttons_->bttnPrint.onClick = [this] { Print(); };
    buttons_->bttnOK.onClick = [this] { Save(); };
    buttons_->bttnCancel.onClick = [this] { Cancel(); };
    buttons_->bttnClose.onClick = [this] { Close(); };
    Reported(Desk(), [this] {
        connection_.Open(Sess().ConnectionString);
        if (!row_.main.empty()) main_.Open(row_.main, connection_);
    });
    FillLists();
    ClearFields();
    SetLocked(true);
    FillSearchGrid();
}

void MasterScreen::Unload() {
    Resume([this] {
        look_.Close();
        main_.Close();
        connection_.Close();
    });
}

// ---- The buttons ----

void MasterScreen::Add() {
    if (!Sess().RightTambah) return;
    EnterEditButtons();
    ClearFields();
    SetLocked(false);
    const std::string code = ProposedCode();
    mode_ = Adding;
    if (!row_.nextCode.statement.empty()) code_->SetText(code);
    SetFocus(*code_);
}

void MasterScreen::Edit() {
    if (!Sess().RightGanti) return;
    const std::string position = CurrentCode();
    if (!position.empty()) saved_ = position;
    const std::string code = Trim(Code());
    if (!LookUp(row_.editLookup, code)) {
        Say(std::string(row_.editNotFound));
        GoBackTo(position);
        if (!Shown(row_.editNotFoundShows)) ClearFields();
        SetLocked(true);
        return;
    }
    ShowRecord(code);
    mode_ = Editing;
    EnterEditButtons();
    SetLocked(false);
    SetFocus(*name_);
}

void MasterScreen::Save() {
    std::string lastError;
    const auto attempt = [&](auto save) {
        if (row_.reportsSave)
            Reported(Desk(), save);
        else
            Resume(save, &lastError);
    };
    const bool found = LookUp(row_.saveLookup, Code()) != nullptr;
    if (mode_ == Adding) {
        if (found)
            Tell(row_.duplicate, lastError);
        else
            attempt([this] { InsertRecord(); });
        // The screen comes to rest on the next proposed code.
        Cancel();
        Add();
    } else if (found) {
        attempt([this] { UpdateRecord(); });
    } else {
        Tell(row_.missing, lastError);
    }
    LeaveEditButtons();
    Shown(row_.savedShows);
    Rest();
    FillSearchGrid();
}

void MasterScreen::Cancel() {
    LeaveEditButtons();
    if (!Shown(row_.cancelShows)) ClearFields();
    Rest();
}

void MasterScreen::Delete() {
    if (!Sess().RightHapus) return;
    const std::string position = CurrentCode();
    const std::string code = Trim(Code());
    ado::Recordset* const found = LookUp(row_.remove.lookup, code);
    if (!found) {
        Say(std::string(row_.remove.notFound));
        GoBackTo(position);
        if (!Shown(row_.remove.notFoundShows)) ClearFields();
    } else {
        saved_ = code;
        const bool guarded = Guarded(*found);
        ShowRecord(code);
        if (guarded)
            Say(std::string(row_.remove.refused));
        else
            ConfirmAndDelete(*found);
        if (!Shown(row_.remove.shows)) ClearFields();
    }
    Rest();
    FillSearchGrid();
}

void MasterScreen::ConfirmAndDelete(ado::Recordset& row) {
    const std::string code = Trim(Code());
    if (!Ask(std::string(row_.remove.confirm))) return;
    std::string failure;
    const bool deleted = Resume(
        [&] {
            if (row_.remove.statement.empty())
                row.Delete();
            else
                Execute(std::string(row_.remove.statement) + Quoted(code));
        },
        &failure);
    if (!deleted) {
        Say(std::string(row_.remove.failed) + std::string(CrLf) + failure);
        if (row_.remove.statement.empty()) Resume([&] { row.CancelUpdate(); });
        GoBackTo(code);
        return;
    }
    if (!row_.remove.statement.empty()) return;
    if (row_.remove.requeries) Resume([&] { row.Requery(); });
    MoveRecord(Move::Next);
}

bool MasterScreen::Guarded(ado::Recordset& row) const {
    if (row_.remove.guard.empty()) return false;
    double amount = 0;
    Resume([&] { amount = NullToNumber(row[row_.remove.guard], services_.regional); });
    return row_.remove.guardsNegative ? amount != 0 : amount > 0;
}

void MasterScreen::Find() {
    if (search_) search_->Open();
}

void MasterScreen::Print() {
    ReportRequest request;
    request.Connect = connection_.ConnectionString();
    request.SQLQuery = row_.report.statement;
    request.ReportFileName = Desk().ProgramFolder().string() + "\\Report\\" + std::string(row_.report.file);
    request.SetTitles(row_.report.firstTitle, Sess().CompanyName, Sess().CompanyLine1, Sess().CompanyLine2,
                      Sess().CompanyLine3);
    request.WindowTitle = row_.report.title;
    const auto launch = [&] { Desk().LaunchReport(request); };
    if (row_.report.reportsFailure)
        Reported(Desk(), launch);
    else
        Resume(launch);
}

// ---- Records ----

// Null when the code is not there, or when the statement fails.
ado::Recordset* MasterScreen::LookUp(Lookup how, const std::string& code) {
    if (how == Lookup::Find) return FindInMain(code) ? &main_ : nullptr;
    bool met = false;
    Resume([&] {
        look_.Open(std::string(row_.select) + Quoted(code), connection_);
        // A code with quotes in it may read as a condition that other rows meet.
        met = !look_.Eof() && EqualsNoCase(TextOf(look_[row_.codeColumn]), ReplaceText(code, "''", "'"));
    });
    return met ? &look_ : nullptr;
}

bool MasterScreen::FindInMain(const std::string& code) {
    bool found = false;
    Resume([&] {
        main_.Requery();
        if (main_.Empty()) return;
        main_.Find(std::string(row_.codeColumn) + "=" + Quoted(code));
        found = !main_.Eof();
    });
    return found;
}

void MasterScreen::AddToMain(const std::vector<Cell>& cells) {
    Resume([&] {
        main_.AddNew();
        ChangeInMain(cells);
    });
}

void MasterScreen::ChangeInMain(const std::vector<Cell>& cells) {
    const bool saved = Resume([&] {
        for (const Cell& cell : cells) main_[cell.column] = cell.value;
        main_.Update();
    });
    if (!saved) Resume([this] { main_.CancelUpdate(); });
    Resume([this] { main_.Requery(); });
}

void MasterScreen::ShowRecord(const std::string& code) {
    if (row_.clearsFirst) {
        ClearFields();
        code_->SetText(code);
    }
    ado::Recordset shown;
    ado::Recordset* row = nullptr;
    const std::string_view statement = row_.show.empty() ? row_.select : row_.show;
    if (statement.empty()) {
        if (FindInMain(code)) row = &main_;
    } else if (Resume([&] { shown.Open(std::string(statement) + Quoted(code), connection_); }) &&
               !shown.Eof()) {
        row = &shown;
    }
    if (!row) return;
    Resume([&] { code_->SetText(TextOf((*row)[row_.codeColumn])); });
    for (const Field& field : fields_)
        Resume([&] {
            if (field.column.empty()) return;
            const Value value = (*row)[field.column];
            if (auto* check = dynamic_cast<forms::CheckBox*>(field.control))
                check->SetChecked(NullToNumber(value, services_.regional) != 0);
            else if (auto* text = dynamic_cast<forms::TextControl*>(field.control))
                text->SetText(field.mask.empty() ? TextOf(value) : Masked(Number(value), field.mask));
        });
    Resume([&] { RecordShown(*row); });
}

void MasterScreen::ClearFields() {
    if (!row_.keepsCode) code_->SetText("");
    for (const Field& field : fields_) {
        if (field.kept) continue;
        if (auto* check = dynamic_cast<forms::CheckBox*>(field.control))
            check->SetChecked(false);
        else if (auto* text = dynamic_cast<forms::TextControl*>(field.control))
            text->SetText(std::string(field.initial));
    }
}

bool MasterScreen::Shown(Shows what) {
    switch (what) {
    case Shows::CodeInBox:
        ShowRecord(Code());
        return true;
    case Shows::LastRow:
        Resume([this] { main_.MoveLast(); });
        return ShowCurrent();
    case Shows::SavedRow:
        if (!saved_.empty()) GoBackTo(saved_);
        return ShowCurrent();
    case Shows::CurrentRow:
        return ShowCurrent();
    case Shows::Nothing:
        break;
    }
    return false;
}

// False when the main recordset stands on no row.
bool MasterScreen::ShowCurrent() {
    std::string code;
    if (!Resume([&] { code = TextOf(main_[row_.codeColumn]); })) return false;
    ShowRecord(code);
    return true;
}

std::string MasterScreen::CurrentCode() {
    std::string code;
    Resume([&] {
        if (main_.IsOpen() && !main_.Bof() && !main_.Eof()) code = TextOf(main_[row_.codeColumn]);
    });
    return code;
}

// Stays where it is when that row has gone.
void MasterScreen::GoBackTo(const std::string& code) {
    const std::string present = CurrentCode();
    if (row_.main.empty() || code.empty() || FindInMain(code)) return;
    if (!present.empty()) FindInMain(present);
}

void MasterScreen::MoveRecord(Move move) {
    Resume([&] {
        switch (move) {
        case Move::First:
            main_.MoveFirst();
            break;
        case Move::Last:
            main_.MoveLast();
            break;
        case Move::Next:
            main_.MoveNext();
            if (main_.Eof()) main_.MoveLast();
            break;
        case Move::Previous:
            main_.MovePrevious();
            if (main_.Bof()) main_.MoveFirst();
            break;
        }
    });
    ShowCurrent();
    SetLocked(true);
}

// ---- Fields ----

void MasterScreen::LeaveCode() {
    const std::string position = CurrentCode();
    const std::string code = Trim(Code());
    if (!LookUp(row_.select.empty() ? Lookup::Find : Lookup::Statement, code)) {
        GoBackTo(position);
        if (row_.unknownCodeClears) {
            ClearFields();
            code_->SetText(code);
        }
    } else {
        ShowRecord(code);
        if (mode_ == Adding && row_.existing.empty()) {
            saved_ = code;
            Cancel();
        } else if (mode_ == Adding) {
            LeaveEditButtons();
            Rest();
            Say(std::string(row_.existing), Icon::Information);
        }
    }
    CodeLeft();
}

void MasterScreen::LeaveName() {
    if (mode_ == Idle || !Trim(name_->Text()).empty()) return;
    Say(std::string(row_.nameMessage));
    if (row_.nameReturns) SetFocus(*name_);
}

void MasterScreen::SetLocked(bool locked) {
    for (const Field& field : fields_) {
        if (auto* check = dynamic_cast<forms::CheckBox*>(field.control))
            check->SetLocked(locked);
        else if (auto* text = dynamic_cast<forms::TextControl*>(field.control))
            text->SetLocked(locked);
    }
}

void MasterScreen::Rest() {
    SetLocked(true);
    mode_ = Idle;
}

void MasterScreen::Tell(const Notice& notice, const std::string& lastError) const {
    if (!notice.shown) return;
    Say(std::string(notice.text) + (notice.withLastError ? lastError : ""));
}

std::string MasterScreen::ProposedCode() {
    if (row_.nextCode.statement.empty()) return "";
    Value highest;
    Resume([&] {
        ado::Recordset rows(row_.nextCode.statement, connection_, ado::CursorType::Static);
        if (!rows.Eof()) highest = rows["Kode"];
    });
    return NextCode(row_.nextCode, highest, Sess().NoUser, services_.regional);
}

// Types are typed in one go: Enter in the last field saves and starts the next record.
void MasterScreen::SaveAndAddNext(forms::Key& key) {
    if (!key.Is(forms::KeyCode::Enter) || !buttons_->bttnOK.Enabled()) return;
    key.handled = true;
    Save();
    Cancel();
    Add();
}

void MasterScreen::Capitals(forms::TextControl& field) {
    field.onKeyPress = [](forms::KeyPress& press) { press.ToUpper(); };
}

void MasterScreen::TabAndSelect(forms::TextControl& field) {
    field.onKeyDown = [this](forms::Key& key) {
        if (!key.Is(forms::KeyCode::Enter)) return;
        key.handled = true;
        MoveNext();
        if (auto* next = dynamic_cast<forms::TextControl*>(Focused())) next->SelectAll();
    };
}

void MasterScreen::Reformats(forms::TextControl& field) {
    if (Numeric(field.Text())) field.SetText(Masked(Number(field)));
}

void MasterScreen::TakesShort(forms::TextControl& field, std::string_view message) {
    field.onLeave = [this, &field, message] {
        if (Numeric(field.Text()) && FitsShort(Number(field))) return;
        Say(std::string(message));
        SetFocus(field);
    };
}

void MasterScreen::AsksToSave(forms::TextControl& lastField, std::string_view title, bool whileEditingAlone) {
    lastField.onLeave = [this, title, whileEditingAlone] {
        if (whileEditingAlone && mode_ == Idle) return;
        if (!Sess().RightTambah || !Sess().RightGanti || !buttons_->bttnOK.Enabled()) return;
        if (Ask("Are you sure you want save this record  ?", std::string(title))) Save();
    };
}

} // namespace varnik
