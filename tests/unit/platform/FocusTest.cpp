// Focus, leaving, entering, clicks and keys: one small screen, one row a case. A case drives the screen and
// compares the trace of what its handlers saw: "-A" leaves A, "+A" enters A, "!A" clicks A, "~A" changes A.

#include "platform/forms/Controls.h"
#include "platform/forms/Grid.h"
#include "platform/forms/Screen.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>

namespace varnik::forms {
namespace {

class Probe : public Screen {
public:
    Probe() : Screen("Probe", "Probe") {
        Box.Hold({&C, &Ok});
        Other.Hold({&O1, &O2});
        for (Control* control : Controls()) Trace(*control);
        Hidden.SetVisible(false);
        List.SetItems({"a\tone", "b\ttwo", "c\tthree"});
        Combo.SetItems({"CASH", "CHEQUE", "BG"});
        onFailure = [this](const std::string& text) { trace += " [" + text + "]"; };
    }
    void Trace(Control& control) {
        const std::string name = control.Name();
        control.onEnter = [this, name] { trace += " +" + name; };
        control.onLeave = [this, name] { trace += " -" + name; };
        if (control.GetKind() != Kind::Label) control.onClick = [this, name] { trace += " !" + name; };
        control.onChange = [this, name] { trace += " ~" + name; };
    }
    void AlsoOnLeave(Control& control, std::function<void()> more) {
        control.onLeave = [this, name = control.Name(), more] {
            trace += " -" + name;
            more();
        };
    }
    std::string Take() { return std::exchange(trace, ""); }
    bool Press(KeyCode code, bool shift = false) { return PressKey({.code = code, .shift = shift}); }
    bool Alt(char32_t letter) { return PressKey({.character = letter, .alt = true}); }

    TextBox A{*this, "A", "&Name"};
    Label Caption{*this, "Caption", "&Total"};
    TextBox B{*this, "B"};
    TextBox Hidden{*this, "Hidden"};
    Frame Box{*this, "Box"};
    TextBox C{*this, "C"};
    Button Ok{*this, "Ok", "&OK"};
    Frame Other{*this, "Other"};
    OptionButton O1{*this, "O1"}, O2{*this, "O2"};
    CheckBox Check{*this, "Check", "&Service"};
    ComboBox Combo{*this, "Combo"};
    ListGrid List{*this, "List"};
    Grid Lines{*this, "Lines"};
    Button Cancel{*this, "Cancel", "&Cancel"};
    std::string trace;
};

struct Case {
    const char* what;
    std::function<void(Probe&)> drive; // with the focus on A
    const char* trace;
    const char* focus; // "" for none
};

void PrintTo(const Case& c, std::ostream* out) { *out << c.what; }

class FocusTest : public testing::TestWithParam<Case> {};

TEST_P(FocusTest, Rule) {
    Probe screen;
    screen.Present();
    EXPECT_EQ(screen.Take(), " +A");
    GetParam().drive(screen);
    EXPECT_EQ(screen.Take(), GetParam().trace);
    EXPECT_EQ(screen.Focused() ? screen.Focused()->Name() : "", GetParam().focus);
}

const Case cases[] = {
    {"Tab goes on, past hidden controls", [](Probe& s) { s.Press(KeyCode::Tab), s.Press(KeyCode::Tab); },
     " -A +B -B +C", "C"},
    {"Shift+Tab goes round the start", [](Probe& s) { s.Press(KeyCode::Tab, true); }, " -A +Cancel",
     "Cancel"},
    {"a control without a tab stop is passed", [](Probe& s) { s.B.SetTabStop(false), s.Press(KeyCode::Tab); },
     " -A +C", "C"},
    {"Enter acts as Tab", [](Probe& s) { s.Press(KeyCode::Enter); }, " -A +B", "B"},
    {"a handled Enter does nothing more",
     [](Probe& s) {
         s.A.onKeyDown = [](Key& key) { key.handled = true; };
         s.Press(KeyCode::Enter);
     },
     "", "A"},
    {"a handler that moved the focus has dealt with the key",
     [](Probe& s) {
         s.A.onKeyDown = [&s](Key&) { s.SetFocus(s.B); };
         s.Press(KeyCode::Enter);
     },
     " -A +B", "B"},
    {"Enter presses the default button, after the leaving",
     [](Probe& s) { s.SetDefault(&s.Ok), s.Press(KeyCode::Enter); }, " -A +Ok !Ok", "Ok"},
    {"Enter on a button clicks that one",
     [](Probe& s) { s.SetDefault(&s.Ok), s.SetFocus(s.Cancel), s.Press(KeyCode::Enter); },
     " -A +Cancel !Cancel", "Cancel"},
    {"Escape presses the cancel button without leaving the field",
     [](Probe& s) { s.SetCancel(&s.Cancel), s.Press(KeyCode::Escape); }, " !Cancel", "A"},
    {"a field keeps the focus",
     [](Probe& s) {
         s.AlsoOnLeave(s.A, [&s] { s.SetFocus(s.A); });
         s.Press(KeyCode::Tab);
     },
     " -A +A", "A"},
    {"and does not keep the user from a button",
     [](Probe& s) {
         s.AlsoOnLeave(s.A, [&s] { s.SetFocus(s.A); });
         s.Click(s.Cancel);
     },
     " -A +A !Cancel", "A"},
    {"the leaving's own call holds against code too",
     [](Probe& s) {
         s.AlsoOnLeave(s.A, [&s] { s.SetFocus(s.C); });
         s.SetFocus(s.B);
     },
     " -A +C", "C"},
    {"a call to a control that cannot take it is no call",
     [](Probe& s) {
         s.AlsoOnLeave(s.A, [&s] { s.SetFocus(s.Hidden); });
         s.SetFocus(s.B);
     },
     " -A +B", "B"},
    {"the leaving hides where the focus was going",
     [](Probe& s) {
         s.AlsoOnLeave(s.A, [&s] { s.B.SetVisible(false); });
         s.SetFocus(s.B);
     },
     " -A +C", "C"},
    {"the leaving disables the button: no click",
     [](Probe& s) {
         s.AlsoOnLeave(s.A, [&s] { s.Cancel.SetEnabled(false); });
         s.Click(s.Cancel);
     },
     " -A +A", "A"},
    {"a hidden field loses the focus without a leaving", [](Probe& s) { s.A.SetVisible(false); }, " +B", "B"},
    {"so does one in a disabled frame", [](Probe& s) { s.SetFocus(s.C), s.Box.SetEnabled(false); },
     " -A +C +O1", "O1"},
    {"a button that disables itself in its click",
     [](Probe& s) {
         s.Ok.onClick = [&s] { s.Ok.SetEnabled(false); };
         s.Click(s.Ok);
     },
     " -A +Ok +O1", "O1"},
    {"nothing left to take it",
     [](Probe& s) {
         for (Control* control : s.Controls()) control->SetEnabled(false);
     },
     " +B +C +O1 +Check +Combo +List +Lines +Cancel", ""},
    {"text from code raises change once, the same text none",
     [](Probe& s) { s.B.SetText("x"), s.B.SetText("x"); }, " ~B", "A"},
    {"typing into a locked field", [](Probe& s) { s.A.SetLocked(true), s.A.Type("x"); }, "", "A"},
    {"a check box turns over", [](Probe& s) { s.Click(s.Check); }, " -A +Check !Check", "Check"},
    {"but not when locked", [](Probe& s) { s.Check.SetLocked(true), s.Click(s.Check); }, " -A +Check",
     "Check"},
    {"options of one frame exclude each other, the one that goes off is silent",
     [](Probe& s) { s.O1.SetChecked(true), s.O2.SetChecked(true); }, " !O1 !O2", "A"},
    {"arrows move within the group",
     [](Probe& s) { s.SetFocus(s.O1), s.Press(KeyCode::Down), s.Press(KeyCode::Down); },
     " -A +O1 -O1 +O2 !O2 -O2 +O1 !O1", "O1"},
    {"Down picks in a drop-down list", [](Probe& s) { s.SetFocus(s.Combo), s.Press(KeyCode::Down); },
     " -A +Combo ~Combo !Combo", "Combo"},
    {"Alt and a letter clicks", [](Probe& s) { s.Alt(U's'); }, " -A +Check !Check", "Check"},
    {"Alt and a letter of a field's own caption", [](Probe& s) { s.SetFocus(s.B), s.Alt(U'N'); },
     " -A +B -B +A", "A"},
    {"Alt and a letter of a label: the control after it", [](Probe& s) { s.Alt(U't'); }, " -A +B", "B"},
    {"Alt passes a disabled button", [](Probe& s) { s.Ok.SetEnabled(false), s.Alt(U'o'); }, "", "A"},
    {"Space presses the focused button", [](Probe& s) { s.SetFocus(s.Ok), s.PressKey({.character = U' '}); },
     " -A +Ok !Ok", "Ok"},
    {"a failing leaving is reported and the click runs",
     [](Probe& s) {
         s.AlsoOnLeave(s.A, [] { throw std::runtime_error("no such column"); });
         s.Click(s.Ok);
     },
     " -A [no such column] +Ok !Ok", "Ok"},
    {"a failing leaving met by the handler that moved the focus",
     [](Probe& s) {
         s.AlsoOnLeave(s.A, [] { throw std::runtime_error("no such column"); });
         s.Ok.onClick = [&s] {
             s.SetFocus(s.A);
             try {
                 s.SetFocus(s.B);
             } catch (const std::runtime_error&) {
                 s.trace += " met";
             }
         };
         s.PressKey({.character = U'o', .alt = true});
     },
     " -A [no such column] +Ok -Ok +A -A met", "B"},
    {"nothing comes of a closed screen",
     [](Probe& s) { s.Close(), s.Click(s.Ok), s.SetFocus(s.B), s.Press(KeyCode::Tab); }, "", "A"},
};

INSTANTIATE_TEST_SUITE_P(Rules, FocusTest, testing::ValuesIn(cases));

TEST(Screen, KeysOfTheFieldStayWithTheField) {
    Probe screen;
    screen.Present();
    for (KeyCode code : {KeyCode::Character, KeyCode::Backspace, KeyCode::Left, KeyCode::Home, KeyCode::Down})
        EXPECT_FALSE(screen.PressKey({.code = code, .character = U'x'}));
    EXPECT_FALSE(screen.PressKey({.character = U'c', .ctrl = true}));
}

TEST(Screen, PreviewSeesKeysFirst) {
    struct Preview : Probe {
        void PreviewKeyDown(Key& key) override { key.handled = key.Is(KeyCode::F2); }
    } screen;
    screen.Present();
    bool seen = false;
    screen.A.onKeyDown = [&](Key&) { seen = true; };
    EXPECT_TRUE(screen.Press(KeyCode::F2));
    EXPECT_FALSE(seen);
    EXPECT_FALSE(screen.Press(KeyCode::F5));
    EXPECT_TRUE(seen);
}

TEST(Screen, CharactersAreFiltered) {
    Probe screen;
    screen.Present();
    screen.A.onKeyPress = [](KeyPress& press) {
        if (press.character == U'\'') press.Discard();
        press.ToUpper();
    };
    EXPECT_EQ(screen.FilterCharacter(U'\''), 0U);
    EXPECT_EQ(screen.FilterCharacter(U'ä'), U'Ä');
    EXPECT_EQ(screen.FilterCharacter(U'÷'), U'÷');
}

TEST(Screen, MemoryThatRanOutIsNoReport) {
    Probe screen;
    screen.Present();
    screen.Ok.onClick = [] { throw std::bad_alloc(); };
    EXPECT_THROW(screen.Click(screen.Ok), std::bad_alloc);
    EXPECT_TRUE(screen.Act([] {})) << "and the screen goes on";
}

TEST(Lists, RowsMoveWithTheKeys) {
    Probe screen;
    screen.Present();
    screen.SetFocus(screen.List);
    std::string activated;
    screen.List.onActivate = [&] { activated += screen.List.Cell(screen.List.Row(), 1) + " "; };
    const struct {
        KeyCode code;
        int row;
    } steps[] = {{KeyCode::Up, 0},     {KeyCode::Down, 1}, {KeyCode::PageDown, 2}, {KeyCode::Down, 2},
                 {KeyCode::PageUp, 0}, {KeyCode::End, 2},  {KeyCode::Home, 0}};
    for (const auto& [code, row] : steps) {
        EXPECT_TRUE(screen.Press(code));
        EXPECT_EQ(screen.List.Row(), row);
    }
    screen.Press(KeyCode::Enter);
    screen.List.SetRow(2);
    screen.DoubleClick(screen.List);
    EXPECT_EQ(activated, "one three ");

    screen.List.SetCheckColumn(1);
    screen.List.ToggleCheck(0);
    EXPECT_EQ(screen.List.Cell(0, 1), "-1");
    screen.List.SetCell(0, 3, "z");
    EXPECT_EQ(screen.List.Cell(0, 3), "z");
    EXPECT_EQ(screen.List.Cell(0, 0), "a");
    EXPECT_EQ(screen.List.Cell(9, 0), "");
}

TEST(Lists, GridKeepsItsRow) {
    Probe screen;
    Grid& grid = screen.Lines;
    grid.SetColumns({{"CODE"}, {"QTY"}});
    EXPECT_EQ(grid.Rows(), 1);
    grid.SetRows(4);
    grid.SetCell(3, 1, "7");
    grid.SetCell(4, 1, "outside");
    grid.SetHeading(0, "ID");
    grid.SetRow(3);
    grid.RemoveRow(1);
    EXPECT_EQ(grid.Cell(2, 1), "7");
    EXPECT_EQ(grid.Cell(0, 0), "ID");
    EXPECT_EQ(grid.Cell(4, 1), "");
    EXPECT_EQ(grid.Row(), 2);
    grid.RemoveRow(0);
    EXPECT_EQ(grid.Rows(), 3) << "the headings stay";
    screen.Present();
    screen.SetFocus(grid);
    EXPECT_TRUE(screen.Press(KeyCode::Up));
    EXPECT_TRUE(screen.Press(KeyCode::Up));
    EXPECT_EQ(grid.Row(), 1) << "keys do not reach the headings";
}

TEST(Fields, TypingIsCutAtTheMaximum) {
    Probe screen;
    screen.A.SetMaxLength(2);
    screen.A.Type("ÄÖÜ");
    EXPECT_EQ(screen.A.Text(), "ÄÖ");
    screen.A.SetText("from code it is not");
    EXPECT_EQ(screen.A.Text(), "from code it is not");
}

} // namespace
} // namespace varnik::forms
