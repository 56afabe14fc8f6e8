#pragma once
// What all screens of documents and vouchers share. Such a screen holds its document in its fields and
// grid only, and stands in one of three modes: browsing, entering a new document, or choosing one to
// delete. Two rows of buttons take turns: FrameBawah while browsing, FrameAtas (Save and Cancel) while
// something is being entered. What the buttons do beyond that is the screen's own.

#include "document/LookupList.h"
#include "document/OrderLines.h"
#include "platform/desktop/Failure.h"
#include "platform/desktop/Hourglass.h"
#include "platform/desktop/ProgramScreen.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace varnik::document {

// How the saved lines of a document of goods show.
struct LineMasks {
    std::string_view quantity = "#,##0", amount = "#,##0";
};

enum class EntryMode { Browsing = 0, New = 1, Deleting = 3 };

class DocumentScreen : public ProgramScreen {
public:
    void Load() override;
    void Unload() override;
    void PreviewKeyDown(forms::Key& key) override;

protected:
    DocumentScreen(Services& services, std::string name, std::string caption);

    forms::Frame FrameBawah;
    forms::Button bttnNew, bttnDel, bttnFind, bttnPrint, bttnClose;
    forms::Frame FrameAtas;
    forms::Button bttnSave, bttnCancel;

    // The steps behind the buttons. New and Delete are reached only with the right they need; without it
    // the button does nothing, silently.
    virtual void StartNew() = 0;
    virtual void StartDelete() = 0;
    virtual void CancelEntry() = 0;
    virtual void Find() = 0;
    virtual void Print() = 0;
    // Save: the tests (a message and false stop it), then one of the two routines that write, then the end.
    virtual bool TestsPassed() = 0;
    virtual bool ReverseConfirmed() { return true; } // false leaves the document and ends the entry
    virtual void Post() = 0;
    virtual void Reverse() = 0;
    virtual void EntryEnded() = 0;

    EntryMode Mode() const { return entryMode_; }
    bool Browsing() const { return entryMode_ == EntryMode::Browsing; }
    void SetMode(EntryMode mode) { entryMode_ = mode; }
    void ShowEntryFrame();
    void ShowBrowseFrame();

    // Every character typed into these fields turns to a capital.
    static void TypesCapitals(std::initializer_list<forms::Control*> fields);
    // F2 moves from each of these fields to the one before it.
    void MovesBackAlong(std::vector<forms::Control*> fields);

    // Whether the key asks for the list behind the code field that has the focus: F5, or Enter on it empty.
    bool AsksForList(const forms::Key& key, const forms::TextBox& field) const;
    // Lists the first two columns of a statement for a code field; a pick writes the code and goes on.
    void OpenList(LookupList& list, const std::string& sql, forms::TextBox& field,
                  std::function<void()> picked);
    // The saved lines of a document of goods in the grid, an empty row between each and the next. `name` is
    // the column of the description.
    void ShowLines(Guard& step, OrderLines& grid, ado::Recordset& lines, const char* name,
                   const LineMasks& masks = {});

    // The connection of the screen's life: look-ups and lists.
    ado::Connection& Data() { return connection_; }
    // Opens a look-up. A statement that fails (a quote in a field) finds nothing, as on every screen.
    bool Found(ado::Recordset& rows, const std::string& sql);
    // Whether the row found is the document of this number, without regard to case and blanks: a number with
    // quotes in it may read as a condition that other rows meet.
    bool Carries(ado::Recordset& rows, const char* column, const std::string& number) const;

private:
    void Save();
    void Write();

    ado::Connection connection_;
    EntryMode entryMode_ = EntryMode::Browsing;
    std::vector<std::vector<forms::Control*>> backwards_;
};

using varnik::Hourglass;

// A button that is disabled while what it does is under way. The focus comes back to it: the next Enter
// must not press its neighbour.
class Resting {
public:
    Resting(forms::Screen& screen, forms::Button& button);
    ~Resting();
    Resting(const Resting&) = delete;
    Resting& operator=(const Resting&) = delete;

private:
    forms::Screen& screen_;
    forms::Button& button_;
    bool focused_;
};

} // namespace varnik::document
