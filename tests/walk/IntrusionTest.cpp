// No field is a way to a statement of one's own: every field of every screen is given texts that would carry
// one, is left by every way there is, and everything that searches is pressed.

#include "common/Text.h"
#include "data/Schema.h"
#include "tests/walk/support/Walk.h"

#include <gtest/gtest.h>

namespace varnik::walk {
namespace {

// Buttons that only look. What they are called, on whatever screen.
bool OnlyLooks(const forms::Control& control) {
    for (const char* name : {"EXECUTE", "SEARCH", "FIND", "TUTUP"})
        if (InStr(Upper(control.Name()), name) > 0) return control.IsUsable();
    return control.Caption() == "..." && control.IsUsable();
}

// Every text into the fields of searches, some into the others, each of them somewhere.
std::vector<std::string> TextsFor(const forms::Control& field, int turn) {
    if (field.Container() && field.Container()->Overlay()) return Intrusions;
    std::vector<std::string> some;
    for (int i = 0; i < 4; ++i)
        some.push_back(Intrusions[static_cast<std::size_t>(turn + i) % Intrusions.size()]);
    return some;
}

bool Holds(const std::vector<std::string>& rows, const std::vector<std::string>& all) {
    return std::ranges::all_of(
        all, [&](const std::string& row) { return std::ranges::find(rows, row) != rows.end(); });
}

// The first cell of every row: the number of the document.
std::set<std::string> Codes(const std::vector<std::string>& rows) {
    std::set<std::string> codes;
    for (const std::string& row : rows) codes.insert(row.substr(0, row.find('|')));
    return codes;
}

struct Intruder {
    Walk& walk;
    std::string key;
    int fields = 0, texts = 0;

    // What brings the screen into this state, again after a press has led elsewhere.
    forms::Screen* Enter(const std::vector<std::string>& state) {
        walk.Desktop().Quit();
        walk.Desktop().Settle();
        forms::Screen* const screen = walk.Open(key);
        for (const std::string& button : state)
            if (forms::Control* const control = screen ? screen->FindControl(button) : nullptr) {
                if (!control->IsUsable()) return nullptr;
                walk.Press(*screen, *control);
            } else {
                return nullptr;
            }
        return screen;
    }

    void TryState(const std::vector<std::string>& state) {
        forms::Screen* screen = Enter(state);
        if (!screen) return;
        std::vector<std::string> names;
        for (forms::Control* control : screen->Controls())
            if (auto* field = dynamic_cast<forms::TextControl*>(control);
                field && field->CanFocus() && !field->Locked())
                names.push_back(control->Name());
        for (const std::string& name : names) {
            ++fields;
            for (const std::string& text : TextsFor(*screen->FindControl(name), fields)) {
                ++texts;
                TryText(screen, name, text, state);
                if (!screen) break;
            }
            if (!screen) return;
        }
    }

    void TryText(forms::Screen*& screen, const std::string& name, const std::string& text,
                 const std::vector<std::string>& state) {
        const auto there = [&] { return walk.Desktop().Top() == screen && screen; };
        if (!there()) screen = Enter(state);
        if (!screen) return;
        auto* const field = dynamic_cast<forms::TextControl*>(screen->FindControl(name));
        if (!field->CanFocus()) return;
        walk.TypeInto(*screen, *field, text);
        for (std::size_t i = 0; there() && i < screen->Controls().size(); ++i)
            if (forms::Control& control = *screen->Controls()[i]; OnlyLooks(control))
                walk.Press(*screen, control);
    }
};

TEST(Intrusion, NoFieldOfAnyScreenLeadsToAStatementOfItsOwn) {
    int fields = 0, texts = 0;
    Walk walk(7);
    walk.Desktop().DeclineAll();
    for (const std::string& key : walk.Keys()) {
        if (key == "mnuConnect") continue; // its field names a file, and the program would go there
        Intruder intruder{walk, key};
        for (const std::vector<std::string>& state :
             std::vector<std::vector<std::string>>{{},
                                                   {"bttnFind"},
                                                   {"bttnNew"},
                                                   {"bttnNew", "Command1"},
                                                   {"bttnAdd"},
                                                   {"bttnDel"},
                                                   {"bttnEdit"}})
            intruder.TryState(state);
        fields += intruder.fields;
        texts += intruder.texts;
        // A screen may save what was typed into it; it takes nothing away and changes nothing else.
        for (const std::string& statement : walk.written)
            for (const char* word : {"DELETE", "DROP", "ATTACH", "PRAGMA", "UPDATE \"BANK", "UPDATE BANK"})
                EXPECT_EQ(InStr(Upper(statement), word), 0) << key << ": " << statement;
        walk.written.clear();
    }
    EXPECT_GT(fields, 100);
    const Walk::AllTables after = walk.Books();
    for (const auto& [table, rows] : walk.AtFirst())
        EXPECT_TRUE(table == "Company" || Holds(after.at(table), rows)) << table;
    for (const std::string& finding : walk.findings) ADD_FAILURE() << finding;
    std::cout << fields << " fields, " << texts << " texts\n";
}

// A code that is a condition of its own would meet every row where one is looked up to be changed or deleted.
TEST(Intrusion, ACodeThatIsAConditionMeetsNoRecord) {
    for (const char* key : {"F01", "F02", "F03", "F04", "F06", "F07", "F08", "F09"}) {
        for (const char* code : {"'OR''='", "'OR 1<'2"}) {
            for (const bool deletes : {true, false}) {
                Walk walk(7);
                walk.Desktop().AgreeToAll();
                forms::Screen* const screen = walk.Open(key);
                auto* field = dynamic_cast<forms::TextControl*>(screen->FindControl("txtKode"));
                if (!field) field = dynamic_cast<forms::TextControl*>(screen->FindControl("txtRekID"));
                ASSERT_TRUE(field) << key;
                walk.Act("types", [&] { field->Type(code); });
                if (deletes) {
                    walk.Press(*screen, *screen->FindControl("bttnDelete"));
                } else {
                    walk.Press(*screen, *screen->FindControl("bttnEdit"));
                    walk.Press(*screen, *screen->FindControl("bttnOK"));
                }
                EXPECT_EQ(walk.Books(), walk.AtFirst())
                    << key << " by " << code << (deletes ? " deletes" : " changes");
            }
        }
    }
}

constexpr const char* DocumentTables[] = {"Invoice", "InvoiceDetail", "InvoiceRetur", "InvoiceReturDetail",
                                          "Faktur",  "FakturDetail",  "FakturRetur",  "FakturReturDetail",
                                          "BKM",     "InvoiceBayar",  "BKK",          "FakturBayar"};

// Two more of every document.
void AddDocuments(ado::Connection& connection, DateTime date) {
    for (const char* name : DocumentTables)
        for (const char* number : {"000000000901", "000000000902"}) {
            ado::Recordset rows(std::string("Select * From ") + name, connection);
            rows.AddNew();
            for (const jet::Column& column : jet::Catalog{data::Tables()}.FindTable(name)->columns) {
                ado::Field field = rows[column.name];
                if (column.type == jet::ColumnType::Boolean)
                    field = false;
                else if (column.type == jet::ColumnType::Date)
                    field = date;
                else if (column.type != jet::ColumnType::Text)
                    field = 1.0;
                else
                    field = column.name.starts_with("Kode") && column.size >= 10 ? "0000000001"
                            : column.name == "RekID"                             ? "001"
                                                                                 : "1";
            }
            rows[0] = number;
            rows.Update();
        }
}

// The most documents that go from one table when the screen is to delete this number; `fields` took it.
std::size_t MostGoneBy(const std::string& number, const std::string& key, bool partnersGone, int& fields) {
    Walk walk(7);
    walk.Desktop().AgreeToAll();
    ado::Connection connection(walk.Access().data, walk.Access().session.ConnectionString);
    AddDocuments(connection, walk.Desktop().Now());
    if (partnersGone)
        for (const char* table : {"Customer", "Supplier", "Bank"})
            connection.Execute(std::string("Delete From ") + table);
    const Walk::AllTables before = walk.Books();
    Intruder intruder{walk, key};
    forms::Screen* screen = intruder.Enter({"bttnDel"});
    if (!screen) return 0;
    for (std::size_t i = 0; i < screen->Controls().size() && walk.Desktop().Top() == screen; ++i) {
        auto* const field = dynamic_cast<forms::TextControl*>(screen->Controls()[i]);
        if (!field || !field->CanFocus() || field->Locked()) continue;
        ++fields;
        walk.TypeInto(*screen, *field, number);
    }
    if (forms::Control* save = screen->FindControl("bttnSave"); save && walk.Desktop().Top() == screen)
        walk.Press(*screen, *save);
    const Walk::AllTables after = walk.Books();
    std::size_t most = 0;
    for (const char* table : DocumentTables) {
        std::set<std::string> gone = Codes(before.at(table));
        for (const std::string& left : Codes(after.at(table))) gone.erase(left);
        most = std::max(most, gone.size());
    }
    return most;
}

// A number that is a condition of its own may find a document, which then shows; that one goes, and no other.
// What cannot be shown, since its partner or its account is gone, stays; a purchase shows without one too.
TEST(Intrusion, ANumberThatIsAConditionDeletesNoMoreThanWhatShows) {
    int fields = 0;
    for (const std::string& key : Walk(7).Keys()) {
        if (!key.starts_with("T")) continue;
        for (const char* number : {"'OR''='", "x' Or 1<>'2"}) {
            EXPECT_LE(MostGoneBy(number, key, false, fields), 1U) << key << " by " << number;
            EXPECT_LE(MostGoneBy(number, key, true, fields), key == "T04" ? 1U : 0U)
                << key << " by " << number;
        }
    }
    EXPECT_GT(fields, 10);
}

} // namespace
} // namespace varnik::walk
