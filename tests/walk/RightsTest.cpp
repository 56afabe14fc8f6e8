// What a user may not do, no button, key or field of any screen does. The user works by chance on every
// screen whose buttons ask for rights; what the rights forbid must not be found in the books.

#include "tests/walk/support/Walk.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace varnik::walk {
namespace {

constexpr std::uint64_t Seed = 20261122;

// Account file and transactions ask for rights; the tools do not: whoever has the menu may use them.
bool AsksForRights(const std::string& key) { return key.starts_with("F") || key.starts_with("T"); }

using Table = std::vector<std::string>;

bool Contains(const Table& whole, const Table& part) {
    return std::ranges::all_of(
        part, [&](const std::string& row) { return std::ranges::find(whole, row) != whole.end(); });
}

// The first cell of every row: the code, or the number of the document.
Table Codes(const Table& rows) {
    Table codes;
    for (const std::string& row : rows) codes.push_back(row.substr(0, row.find('|')));
    return codes;
}

void ForEveryScreen(Rights rights, int actions,
                    const std::function<void(Walk&, const std::string& key)>& look) {
    const std::vector<std::string> keys = Walk(Seed).Keys();
    int screens = 0;
    for (const std::string& key : keys) {
        if (!AsksForRights(key)) continue;
        ++screens;
        Walk walk(Seed, rights);
        walk.On(key, actions);
        look(walk, key);
        for (const std::string& finding : walk.findings) ADD_FAILURE() << finding;
    }
    EXPECT_GE(screens, 14);
}

TEST(Rights, WithoutAnyNothingIsWrittenFromAnyScreen) {
    ForEveryScreen({false, false, false}, 60, [](const Walk& walk, const std::string& key) {
        EXPECT_EQ(walk.written, std::vector<std::string>{}) << key;
    });
}

TEST(Rights, WithoutTheRightToAddNoCodeAndNoDocumentIsNew) {
    ForEveryScreen({false, true, true}, 50, [](Walk& walk, const std::string& key) {
        const auto before = walk.AtFirst(), after = walk.Books();
        for (const char* table :
             {"Produk", "Customer", "Supplier", "Bank", "JenisProduk", "JenisCustomer", "JenisBiaya", "Biaya",
              "Invoice", "InvoiceRetur", "Faktur", "FakturRetur", "BKM", "BKK"})
            EXPECT_TRUE(Contains(Codes(before.at(table)), Codes(after.at(table))))
                << key << " added to " << table;
    });
}

// The first field that a person can type into: the code of a record, the number of a document.
forms::TextControl* FirstField(forms::Screen& screen) {
    for (forms::Control* control : screen.Controls())
        if (auto* field = dynamic_cast<forms::TextControl*>(control);
            field && field->CanFocus() && !field->Locked())
            return field;
    return nullptr;
}

std::set<std::string> AllCodes(const Walk& walk) {
    std::set<std::string> codes;
    for (const auto& [table, rows] : walk.AtFirst())
        for (const std::string& code : Codes(rows))
            if (!code.empty() && code.size() <= 12) codes.insert(code);
    return codes;
}

// Every code and number of the shop is deleted, or changed, on every screen as the screen has it, and every
// question is agreed to. Gives what is written by it, screen by screen.
std::map<std::string, long> WrittenBy(Rights rights, const std::vector<const char*>& buttons,
                                      const std::vector<std::string>& keys) {
    std::map<std::string, long> written;
    for (const std::string& key : keys) {
        if (!AsksForRights(key)) continue;
        Walk walk(Seed, rights);
        walk.Desktop().AgreeToAll();
        for (const std::string& code : AllCodes(walk)) {
            forms::Screen* const screen = walk.Open(key);
            const auto press = [&](const char* name) {
                if (forms::Control* button = screen->FindControl(name)) walk.Press(*screen, *button);
            };
            const auto type = [&](forms::TextControl* field, const std::string& text) {
                if (field) walk.TypeInto(*screen, *field, text, Then::Tab);
            };
            if (!screen->FindControl("bttnDel"))
                type(FirstField(*screen), code); // a record is looked up first
            for (const char* button : buttons) press(button);
            if (screen->FindControl("bttnDel")) type(FirstField(*screen), code);
            type(dynamic_cast<forms::TextControl*>(screen->FindControl("txtNama")), "Other");
            press("bttnSave");
            press("bttnOK");
        }
        for (const std::string& finding : walk.findings) ADD_FAILURE() << finding;
        written[key] = static_cast<long>(walk.written.size());
    }
    return written;
}

// With a record or a document on the screen there is more to press: a receipt for an invoice, say.
TEST(Rights, WithoutAnyEveryButtonIsPressedInVainWhateverShows) {
    for (const std::string& key : Walk(Seed).Keys()) {
        if (!AsksForRights(key)) continue;
        Walk walk(Seed, {false, false, false});
        walk.Desktop().AgreeToAll();
        for (const std::string& code : AllCodes(walk)) {
            forms::Screen* const screen = walk.Open(key);
            if (forms::TextControl* const field = FirstField(*screen))
                walk.TypeInto(*screen, *field, code, Then::Tab);
            for (forms::Control* control : std::vector(screen->Controls())) {
                if (control->GetKind() != forms::Kind::Button || control->Name() == "bttnClose") continue;
                walk.Press(*screen, *control);
                EXPECT_LE(walk.Desktop().Screens().size(), 2U)
                    << key << "." << control->Name() << " opens a screen";
            }
        }
        EXPECT_EQ(walk.written, std::vector<std::string>{}) << key;
    }
}

TEST(Rights, TheButtonsThatDeleteAskForTheRightToDelete) {
    for (const auto& [key, statements] :
         WrittenBy({true, true, false}, {"bttnDelete", "bttnDel"}, Walk(Seed).Keys()))
        EXPECT_EQ(statements, 0) << key;
    for (const auto& [key, statements] :
         WrittenBy({}, {"bttnDelete", "bttnDel"}, {"F01", "F08", "T01", "T04"}))
        EXPECT_GT(statements, 0) << key;
}

TEST(Rights, TheButtonThatChangesAsksForTheRightToChange) {
    for (const auto& [key, statements] : WrittenBy({true, false, true}, {"bttnEdit"}, Walk(Seed).Keys()))
        EXPECT_EQ(statements, 0) << key;
    for (const auto& [key, statements] : WrittenBy({}, {"bttnEdit"}, {"F01", "F03", "F08"}))
        EXPECT_GT(statements, 0) << key;
}

TEST(Rights, WithoutTheRightToDeleteEverythingStays) {
    ForEveryScreen({true, true, false}, 50, [](Walk& walk, const std::string& key) {
        const auto before = walk.AtFirst(), after = walk.Books();
        for (const auto& [table, rows] : before)
            EXPECT_TRUE(Contains(Codes(after.at(table)), Codes(rows))) << key << " deleted from " << table;
    });
}

} // namespace
} // namespace varnik::walk
