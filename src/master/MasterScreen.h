#pragma once
// The one pattern of the eight master screens: a code box, a block of fields, eight buttons, and a search
// panel or a permanent list. A screen declares its fields, says how a row is inserted and updated, and
// names its departures in a MasterRow; the states, buttons, look-ups, protections and messages are here.
//
// Failures are resumed: a statement that fails is passed over and the routine goes on. A failing save is
// silent on most screens, as wanted; the screen then shows what is stored.

#include "master/MasterButtons.h"
#include "master/MasterList.h"
#include "master/MasterRow.h"
#include "platform/desktop/Failure.h"
#include "platform/desktop/ProgramScreen.h"

#include <string>
#include <string_view>
#include <vector>

namespace varnik {

class MasterScreen : public ProgramScreen {
public:
    MasterScreen(Services& services, const MasterRow& row);
    void Load() override;
    void Unload() override;

    enum Mode { Idle = 0, Adding = 1, Editing = 2 };
    Mode GetMode() const { return mode_; }

    // Walks the main recordset; next stays on the last row, previous on the first. No button leads here.
    enum class Move { First, Last, Next, Previous };
    void MoveRecord(Move move);

    // By the buttons and lists that the screen declares.
    void Has(MasterButtons& buttons) { buttons_ = &buttons; }
    void Has(MasterSearch& search);
    void Has(MasterList& list);

protected:
    // One field and its column; check boxes start unchecked.
    struct Field {
        forms::Control* control;
        std::string_view column;       // "" shows no column of its own
        std::string_view initial = ""; // what ClearFields sets
        std::string_view mask = "";    // of an amount; "" shows the value plain
        bool kept = false;             // ClearFields leaves it
    };
    // The constructor of a screen names its code box, its name field and all other fields in order.
    void Carries(forms::TextControl& code, forms::TextControl& name, std::vector<Field> fields);

    // The buttons.
    void Add();
    void Edit();
    void Save();
    void Cancel();
    void Delete();
    virtual void Find();
    void Print();

    // What a screen says for itself.
    virtual void InsertRecord() = 0;
    virtual void UpdateRecord() = 0;
    virtual void FillLists() {}                  // at load
    virtual void CodeLeft() {}                   // after the look-up of leaving the code box
    virtual void RecordShown(ado::Recordset&) {} // after the fields are filled from a row

    void ShowRecord(const std::string& code);
    void ClearFields();
    void FillSearchGrid();
    void LeaveCode();

    // Words in which the screens' statements are written.
    std::string Code() const { return code_->Text(); }
    static std::string Quoted(std::string_view text) { return "'" + std::string(text) + "'"; }
    static std::string Quoted(const forms::TextControl& field) { return Quoted(field.Text()); }
    std::string Amount(const forms::TextControl& field) const { return SqlNumber(Number(field)); }
    void Execute(const std::string& sql) { connection_.Execute(sql); }
    bool FindInMain(const std::string& code); // reads the table anew first
    // Through the main recordset: a new row, or the row that the save has found.
    struct Cell {
        const char* column;
        Value value;
    };
    void AddToMain(const std::vector<Cell>& cells);
    void ChangeInMain(const std::vector<Cell>& cells);
    // The items of a drop-down, one for each row; failures leave it empty.
    template <typename Text>
    std::vector<std::string> Items(std::string_view statement, Text text) {
        std::vector<std::string> items;
        Resume([&] {
            for (ado::Recordset rows(statement, connection_, ado::CursorType::Static); !rows.Eof();
                 rows.MoveNext())
                items.push_back(text(rows));
        });
        return items;
    }

    // Keys of fields.
    static void Capitals(forms::TextControl& field);
    void TabAndSelect(forms::TextControl& field); // Enter also selects the next field's whole text
    void Reformats(forms::TextControl& field);    // a numeric text on leaving, as "#,##0"
    // A text that is no 16-bit number calls the focus back with this message.
    void TakesShort(forms::TextControl& field, std::string_view message);
    void SaveAndAddNext(forms::Key& key);
    void AsksToSave(forms::TextControl& lastField, std::string_view title, bool whileEditingAlone);

    Mode mode_ = Idle;
    ado::Connection connection_;
    ado::Recordset main_;
    MasterButtons* buttons_ = nullptr;

private:
    ado::Recordset* LookUp(Lookup how, const std::string& code);
    bool Shown(Shows what);
    bool ShowCurrent();
    std::string CurrentCode();
    void GoBackTo(const std::string& code);
    void SetLocked(bool locked);
    void EnterEditButtons() { buttons_->Editing(true); }
    void LeaveEditButtons() { buttons_->Editing(false); }
    void Rest(); // fields locked, idle
    void Tell(const Notice& notice, const std::string& lastError) const;
    std::string ProposedCode();
    void ConfirmAndDelete(ado::Recordset& row);
    bool Guarded(ado::Recordset& row) const;
    void LeaveName();
    void ExecuteSearch();
    void TakeFromSearch();

    const MasterRow& row_;
    ado::Recordset look_;
    std::string saved_; // code of the row to go back to, where Edit or Delete last stood
    forms::TextControl* code_ = nullptr;
    forms::TextControl* name_ = nullptr;
    std::vector<Field> fields_;
    MasterSearch* search_ = nullptr;
    MasterList* list_ = nullptr;
};

} // namespace varnik
