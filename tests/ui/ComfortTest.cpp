// What makes entering quick and takes nothing away from the screens: keys, lists that sort and narrow.

#include "tests/ui/Desk.h"
#include "tests/ui/Sample.h"
#include "tests/ui/Shop.h"

#include <QComboBox>
#include <QDateEdit>
#include <QHeaderView>
#include <QTableView>
#include <QWheelEvent>

namespace varnik::test {
namespace {

QStringList Column(const QTableView& view, int column) {
    QStringList texts;
    for (int row = 0; row < view.model()->rowCount(); ++row)
        texts << view.model()->index(row, column).data().toString();
    return texts;
}

void ClickHeading(QTableView& view, int column) {
    QHeaderView& header = *view.horizontalHeader();
    const QPoint place(header.sectionViewportPosition(column) + header.sectionSize(column) / 2,
                       header.height() / 2);
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {}, place);
}

void Turn(QWidget& widget) {
    const QPointF place = widget.rect().center();
    QWheelEvent wheel(place, widget.mapToGlobal(place), {}, QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &wheel);
}

class Comfort : public UiTest {
protected:
    Sample& sample = Open(std::make_unique<Sample>());
};

TEST_F(Comfort, AllIsSelectedOnArrivalByMouseToo) {
    sample.amount.SetText("1250");
    auto* amount = Find<QLineEdit>(sample, "amount");
    QTest::mouseClick(amount, Qt::LeftButton, {}, QPoint(amount->width() - 10, 8));
    EXPECT_EQ(amount->selectedText(), "1250");
    QTest::mouseClick(amount, Qt::LeftButton, {}, QPoint(amount->width() - 10, 8));
    EXPECT_EQ(amount->selectedText(), "") << "the second press puts the cursor";
}

TEST_F(Comfort, TheNumberPadGivesTheDecimalSeparatorOfTheMachine) {
    regional.decimal = ',';
    auto* code = Find<QLineEdit>(sample, "code");
    QTest::keyClick(code, Qt::Key_1);
    QTest::keyClick(code, Qt::Key_Period, Qt::KeypadModifier);
    QTest::keyClick(code, Qt::Key_5, Qt::KeypadModifier);
    QTest::keyClick(code, Qt::Key_Period);
    EXPECT_EQ(sample.code.Text(), "1,5.");
    regional.decimal = '.';
    QTest::keyClick(code, Qt::Key_Comma, Qt::KeypadModifier);
    EXPECT_EQ(sample.code.Text(), "1,5..");
    sample.code.SetMasked(true);
    QTest::keyClick(code, Qt::Key_Comma, Qt::KeypadModifier);
    EXPECT_EQ(sample.code.Text(), "1,5..,") << "a password is typed as it is";
}

TEST_F(Comfort, DateFieldsStepADayAndKnowToday) {
    sample.date.SetDate(*MakeDate(2026, 2, 28));
    auto* date = Find<QDateEdit>(sample, "date");
    sample.MoveFocus(sample.date);
    QTest::keyClick(date, Qt::Key_Plus);
    EXPECT_EQ(sample.date.Date(), MakeDate(2026, 3, 1));
    EXPECT_EQ(date->text(), "03/01/2026");
    QTest::keyClick(date, Qt::Key_Minus, Qt::KeypadModifier);
    QTest::keyClick(date, Qt::Key_Minus);
    EXPECT_EQ(sample.date.Date(), MakeDate(2026, 2, 27));
    QTest::keyClicks(date, "12-24-2026"); // a "-" between digits parts the date
    EXPECT_EQ(sample.date.Date(), MakeDate(2026, 12, 24));
    QTest::keyClick(date, Qt::Key_T);
    EXPECT_EQ(sample.date.Date(), MakeDate(2026, 3, 14)) << "the desktop's day";
}

TEST_F(Comfort, TheWheelChangesNoValue) {
    sample.unit.SetItems({"PCS", "BOX"});
    sample.unit.SetText("PCS");
    sample.date.SetDate(*MakeDate(2026, 2, 28));
    for (forms::Control* control : std::initializer_list<forms::Control*>{&sample.unit, &sample.date}) {
        sample.MoveFocus(*control);
        Turn(*Window(sample).Binding().WidgetOf(control->Name()));
    }
    Turn(*Find<QComboBox>(sample, "unit")->lineEdit());
    EXPECT_EQ(sample.unit.Text(), "PCS");
    EXPECT_EQ(sample.date.Date(), MakeDate(2026, 2, 28));
}

TEST_F(Comfort, CtrlEnterPressesSaveWhileItReadsSo) {
    auto* amount = Find<QLineEdit>(sample, "amount");
    QTest::keyClicks(Find<QLineEdit>(sample, "code"), "c1");
    QTest::keyClick(Find<QLineEdit>(sample, "code"), Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(sample.log, (std::vector<std::string>{"code left", "saved C1"}));
    sample.MoveFocus(sample.amount);
    sample.save.SetCaption("&Delete");
    QTest::keyClick(amount, Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier);
    EXPECT_EQ(sample.log.size(), 2U);
    EXPECT_EQ(sample.Focused(), &sample.amount);
}

TEST_F(Comfort, AHeadingSortsWhatIsSeenAndTheRowsStayTheScreens) {
    sample.lines.SetColumns({{"ID", forms::Align::Left, 10},
                             {"AMOUNT", forms::Align::Right, 12},
                             {"DATE", forms::Align::Left, 12}});
    sample.lines.SetRows(5);
    const char* const rows[][3] = {
        {"b", "1,000", "11/02/2026"}, {"A", "9", "02/12/2026"}, {"c", "-20", "01/01/2027"}, {"", "0", ""}};
    for (int row = 0; row < 4; ++row)
        for (int column = 0; column < 3; ++column) sample.lines.SetCell(row + 1, column, rows[row][column]);
    sample.lines.SetRow(1);
    auto* view = Find<QTableView>(sample, "lines");
    ASSERT_TRUE(Until([&] { return view->model()->rowCount() == 4; }));

    ClickHeading(*view, 0);
    EXPECT_EQ(Column(*view, 0), (QStringList{"A", "b", "c", ""}));
    EXPECT_EQ(view->currentIndex().row(), 1) << "the current row goes along";
    ClickHeading(*view, 1);
    EXPECT_EQ(Column(*view, 1), (QStringList{"-20", "9", "1,000", "0"})) << "an empty line stays last";
    ClickHeading(*view, 1);
    EXPECT_EQ(Column(*view, 1), (QStringList{"1,000", "9", "-20", "0"}));
    sample.lines.SetCell(2, 1, "5,000");
    ASSERT_TRUE(Until([&] { return Column(*view, 0).front() == "A"; }));
    ClickHeading(*view, 2);
    EXPECT_EQ(Column(*view, 0), (QStringList{"A", "b", "c", ""}));

    sample.MoveFocus(sample.lines);
    QTest::keyClick(view, Qt::Key_Home);
    EXPECT_EQ(sample.lines.Row(), 2);
    QTest::keyClick(view, Qt::Key_Down);
    EXPECT_EQ(sample.lines.Row(), 1);
    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      view->visualRect(view->model()->index(2, 0)).center());
    EXPECT_EQ(sample.lines.Row(), 3);
    EXPECT_EQ(sample.lines.Cell(1, 0), "b");

    ClickHeading(*view, 2);
    ClickHeading(*view, 2); // the third click
    EXPECT_EQ(Column(*view, 0), (QStringList{"b", "A", "c", ""}));
}

TEST_F(Comfort, AListNarrowsWhileTyping) {
    sample.list.SetItems({"P1\tArabica coffee", "P2\tGreen tea", "P3\tCOFFEE filter", "P4\tSugar"});
    QTest::mouseClick(Find<QPushButton>(sample, "look"), Qt::LeftButton);
    auto* view = Find<QTableView>(sample, "list");
    ASSERT_TRUE(Until([&] { return view->isVisible() && view->model()->rowCount() == 4; }));
    QTest::keyClicks(view, "coffee f");
    EXPECT_EQ(Column(*view, 0), QStringList{"P3"});
    EXPECT_EQ(view->accessibleDescription(), "coffee f:  1 of 4");
    EXPECT_EQ(sample.list.Row(), 2);
    QTest::keyClick(view, Qt::Key_Backspace);
    QTest::keyClick(view, Qt::Key_Backspace);
    EXPECT_EQ(Column(*view, 0), (QStringList{"P1", "P3"}));
    QTest::keyClick(view, Qt::Key_Up);
    EXPECT_EQ(sample.list.Row(), 0);
    QTest::keyClick(view, Qt::Key_Down);
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_EQ(sample.code.Text(), "P3");

    QTest::keyClicks(view, "zz");
    sample.code.SetText("");
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_EQ(sample.code.Text(), "") << "what is not seen is not taken";
    QTest::keyClick(view, Qt::Key_Escape);
    EXPECT_EQ(view->model()->rowCount(), 4);
    QTest::keyClicks(view, "tea");
    sample.list.SetVisible(false);
    sample.list.SetVisible(true);
    EXPECT_TRUE(Until([&] { return view->model()->rowCount() == 4; })) << "it opens whole again";
}

class ComfortInTheShop : public ShopTest {};

// The keys of the screens reach them from every kind of field.
TEST_F(ComfortInTheShop, KeysOfTheScreensReachThem) {
    auto& window = Open("T01");
    const auto press = [&](Qt::Key key, Qt::KeyboardModifier with = Qt::NoModifier) {
        QTest::keyClick(window.focusWidget(), key, with);
    };
    press(Qt::Key_N, Qt::AltModifier);
    press(Qt::Key_Return);
    EXPECT_EQ(Focused("Invoice"), "TxtTglInvoice");
    press(Qt::Key_Plus);
    press(Qt::Key_F2);
    EXPECT_EQ(Focused("Invoice"), "TxtNoInvoice");
    for (int step = 0; step < 3; ++step) press(Qt::Key_Return);
    ASSERT_EQ(Focused("Invoice"), "TxtJTP");
    const std::string due = Text("Invoice", "TxtJTP");
    press(Qt::Key_Plus);
    const auto stepped = ParseDate(Text("Invoice", "TxtJTP"), regional);
    ASSERT_TRUE(stepped);
    EXPECT_EQ(*stepped, AddDays(*ParseDate(due, regional), 1));
    press(Qt::Key_Minus);
    EXPECT_EQ(Text("Invoice", "TxtJTP"), due);
    press(Qt::Key_Return);
    press(Qt::Key_Return);
    ASSERT_EQ(Focused("Invoice"), "TxtKodeCus");
    press(Qt::Key_F5);
    EXPECT_EQ(Focused("Invoice"), "GridCari");
    press(Qt::Key_Escape);
    EXPECT_EQ(Focused("Invoice"), "TxtKodeCus");
    EXPECT_FALSE(Find("Invoice", "GridCari")->isVisible());
}

TEST_F(ComfortInTheShop, TheSearchPanelRemembersItsCriterion) {
    for (const auto& [key, name, close] :
         {std::tuple{"T01", "Invoice", "cmdTutup"}, std::tuple{"F02", "fCustomer", "cmdTutup"}}) {
        ui::ScreenWindow& window = Open(key);
        Click(name, "bttnFind");
        auto* criterion = Find<QComboBox>(name, "txtKreteria");
        ASSERT_GT(criterion->count(), 2);
        window.Screen().MoveFocus(*window.Screen().FindControl("txtKreteria"));
        QTest::keyClick(criterion, Qt::Key_Down);
        QTest::keyClick(criterion, Qt::Key_Down);
        const QString chosen = criterion->currentText();
        EXPECT_EQ(chosen, criterion->itemText(2));
        Click(name, close);
        EXPECT_FALSE(criterion->isVisible());
        Click(name, "bttnFind");
        EXPECT_EQ(criterion->currentText(), chosen) << name;
    }
}

} // namespace
} // namespace varnik::test
