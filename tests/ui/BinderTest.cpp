#include "tests/ui/Desk.h"
#include "tests/ui/Sample.h"

#include "ui/Style.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDateEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTableView>
#include <cmath>

namespace varnik::test {
namespace {

class Binder : public UiTest {
protected:
    Sample& sample = Open(std::make_unique<Sample>());
};

TEST_F(Binder, TypingGoesThroughTheScreenAndBack) {
    auto* code = Find<QLineEdit>(sample, "code");
    ASSERT_TRUE(code);
    EXPECT_TRUE(code->hasFocus());
    QTest::keyClicks(code, "c001");
    EXPECT_EQ(sample.code.Text(), "C001");
    EXPECT_EQ(code->text(), "C001");

    QTest::keyClick(code, Qt::Key_Return);
    auto* amount = Find<QLineEdit>(sample, "amount");
    EXPECT_TRUE(amount->hasFocus());
    QTest::keyClicks(amount, "12");
    EXPECT_EQ(Find<QLineEdit>(sample, "total")->text(), "1200");

    QTest::keyClick(amount, Qt::Key_Tab);
    EXPECT_EQ(sample.Focused(), &sample.total);
    QTest::keyClicks(Find<QLineEdit>(sample, "total"), "7");
    EXPECT_EQ(sample.total.Text(), "1200") << "a locked field takes no typing";
    QTest::keyClick(Find<QLineEdit>(sample, "total"), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(sample.Focused(), &sample.amount);
    EXPECT_EQ(amount->selectedText(), "12") << "entering a field selects all of it";

    sample.amount.SetText("5");
    EXPECT_EQ(amount->text(), "5");
}

TEST_F(Binder, TypingInTheMiddleStaysThereAndCanBeUndone) {
    auto* code = Find<QLineEdit>(sample, "code");
    QTest::keyClicks(code, "ad");
    QTest::keyClick(code, Qt::Key_Left);
    QTest::keyClicks(code, "bc");
    EXPECT_EQ(sample.code.Text(), "ABCD");
    auto* amount = Find<QLineEdit>(sample, "amount");
    sample.MoveFocus(sample.amount);
    QTest::keyClicks(amount, "125");
    QTest::keyClick(amount, Qt::Key_Home);
    QTest::keyClicks(amount, "7");
    EXPECT_EQ(amount->cursorPosition(), 1);
    QTest::keyClick(amount, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(sample.amount.Text(), "125");
}

TEST_F(Binder, AFieldThatCallsTheFocusBackDoesNotBarTheButtons) {
    auto* code = Find<QLineEdit>(sample, "code");
    QTest::keyClicks(code, "bad");
    QTest::mouseClick(Find<QLineEdit>(sample, "amount"), Qt::LeftButton);
    EXPECT_EQ(sample.Focused(), &sample.code);
    EXPECT_TRUE(code->hasFocus());

    QTest::mouseClick(Find<QPushButton>(sample, "save"), Qt::LeftButton);
    EXPECT_EQ(sample.log, (std::vector<std::string>{"code left", "code left", "saved BAD"}));
}

TEST_F(Binder, EveryKindOfControlFollowsAPerson) {
    QTest::mouseClick(Find<QCheckBox>(sample, "service"), Qt::LeftButton, {}, QPoint(8, 10));
    EXPECT_TRUE(sample.service.Checked());
    QTest::mouseClick(Find<QRadioButton>(sample, "second"), Qt::LeftButton, {}, QPoint(8, 10));
    EXPECT_FALSE(sample.first.Checked());
    EXPECT_FALSE(Find<QRadioButton>(sample, "first")->isChecked());

    sample.unit.SetItems({"PCS", "BOX"});
    auto* unit = Find<QComboBox>(sample, "unit");
    QTest::mouseClick(unit->lineEdit(), Qt::LeftButton);
    QTest::keyClick(unit, Qt::Key_Down);
    QTest::keyClick(unit, Qt::Key_Down);
    EXPECT_EQ(sample.unit.Text(), "BOX");
    EXPECT_EQ(unit->currentText(), "BOX");

    auto* date = Find<QDateEdit>(sample, "date");
    date->setDate(QDate(2026, 11, 22));
    EXPECT_EQ(sample.date.Date(), MakeDate(2026, 11, 22));
    EXPECT_EQ(date->text(), "11/22/2026");

    sample.panel.SetVisible(false);
    EXPECT_TRUE(Find<QLineEdit>(sample, "inner")->isHidden());
    EXPECT_TRUE(Find<QLabel>(sample, "inner.label")->isHidden());
    sample.amount.SetEnabled(false);
    EXPECT_FALSE(Find<QLineEdit>(sample, "amount")->isEnabled());
}

TEST_F(Binder, HidingTheFocusedFieldMovesOnWithoutLeaving) {
    sample.code.SetVisible(false);
    EXPECT_EQ(sample.Focused(), &sample.amount);
    EXPECT_TRUE(Find<QLineEdit>(sample, "amount")->hasFocus());
    EXPECT_TRUE(sample.log.empty());
}

TEST_F(Binder, GridsShowLinesAndTheCurrentRow) {
    auto* view = Find<QTableView>(sample, "lines");
    sample.lines.SetRows(4);
    sample.lines.SetCell(2, 1, "55,000");
    sample.lines.SetRow(2);
    ASSERT_TRUE(Until([&] { return view->model()->rowCount() == 3; }));
    EXPECT_EQ(view->model()->index(1, 1).data().toString(), "55,000");
    EXPECT_EQ(view->currentIndex().row(), 1);
    EXPECT_EQ(view->model()->headerData(1, Qt::Horizontal).toString(), "AMOUNT");

    QTest::mouseClick(view->viewport(), Qt::LeftButton, {},
                      view->visualRect(view->model()->index(2, 0)).center());
    EXPECT_EQ(sample.lines.Row(), 3);
    QTest::keyClick(view, Qt::Key_Up);
    EXPECT_EQ(sample.lines.Row(), 2);
    ASSERT_TRUE(Until([&] { return view->currentIndex().row() == 1; }));
}

TEST_F(Binder, AListOfAHundredThousandOpensAndPicks) {
    std::vector<std::string> rows;
    for (int i = 0; i < 100000; ++i) rows.push_back("P" + std::to_string(i) + "\tProduct");
    sample.list.SetItems(std::move(rows));
    QTest::mouseClick(Find<QPushButton>(sample, "look"), Qt::LeftButton);
    auto* view = Find<QTableView>(sample, "list");
    ASSERT_TRUE(Until([&] { return view->isVisible() && view->model()->rowCount() == 100000; }));
    EXPECT_TRUE(view->hasFocus());
    QTest::keyClick(view, Qt::Key_End);
    QTest::keyClick(view, Qt::Key_Return);
    EXPECT_EQ(sample.code.Text(), "P99999");
}

TEST_F(Binder, AFailureShowsItsDescriptionAndTheScreenGoesOn) {
    boxes.Answer(QMessageBox::Ok);
    QTest::mouseClick(Find<QPushButton>(sample, "fail"), Qt::LeftButton);
    EXPECT_EQ(boxes.texts, std::vector<std::string>{"Table Produk is not there"});
    QTest::mouseClick(Find<QPushButton>(sample, "save"), Qt::LeftButton);
    EXPECT_EQ(sample.log.back(), "saved ");
}

TEST_F(Binder, AScreenLivesUntilTheHandlerThatClosedItHasReturned) {
    Open(std::make_unique<Sample>()); // another one, or the program would end with the last
    bool gone = false;
    sample.gone = &gone;
    QTest::mouseClick(Find<QPushButton>(sample, "close"), Qt::LeftButton);
    EXPECT_EQ(sample.log.back(), "still here");
    EXPECT_TRUE(Until([&] { return gone; }));
}

TEST_F(Binder, ModalScreensGoOnWhereTheyWereOpened) {
    bool then = false;
    auto asked = std::make_unique<Sample>();
    Sample& dialog = *asked;
    desktop.ShowModal(std::move(asked), [&] { then = true; });
    EXPECT_EQ(Window(dialog).windowModality(), Qt::ApplicationModal);
    EXPECT_FALSE(then);
    Window(dialog).close();
    EXPECT_TRUE(Until([&] { return then; }));
}

TEST_F(Binder, ScalesWithTheWindowAndBack) {
    ui::ScreenWindow& window = Window(sample);
    auto* code = Find<QLineEdit>(sample, "code");
    const QRect place = code->geometry();
    const QSize size = window.size();
    const int letters = code->font().pixelSize();
    window.resize(size.width() * 15 / 10, size.height() * 12 / 10);
    ASSERT_TRUE(Until([&] { return code->geometry() != place; }));
    EXPECT_NEAR(code->width(), place.width() * 1.2, 2);
    EXPECT_NEAR(code->y(), place.y() * 1.2, 2);
    EXPECT_GT(code->font().pixelSize(), letters);
    EXPECT_EQ(sample.resized, 1);
    window.resize(size);
    ASSERT_TRUE(Until([&] { return code->geometry() == place; }));
    EXPECT_EQ(code->font().pixelSize(), letters);
    window.resize(10, 10);
    EXPECT_GE(window.width(), size.width() / 2);
}

TEST_F(Binder, PastedTextGoesThroughTheSameFilterAsTyping) {
    QApplication::clipboard()->setText(QStringLiteral("ab\n1"));
    QTest::keyClick(Find<QLineEdit>(sample, "code"), Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(sample.code.Text(), "AB1");
}

double Luminance(const QColor& colour) {
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(colour.redF()) + 0.7152 * part(colour.greenF()) + 0.0722 * part(colour.blueF());
}

double Contrast(const QColor& one, const QColor& other) {
    const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
    return (light + 0.05) / (dark + 0.05);
}

TEST_F(Binder, ColoursCanBeTold) {
    for (const bool dark : {true, false}) {
        ui::ApplyStyle(*qApp, dark);
        const ui::Colours& c = ui::CurrentColours();
        for (const QColor& ground : {c.window, c.card, c.lockedGround, c.zebra}) {
            EXPECT_GE(Contrast(c.text, ground), 4.5) << ground.name().toStdString();
            EXPECT_GE(Contrast(c.quietText, ground), 4.5) << ground.name().toStdString();
            // Headings and totals, and more than the focus mark needs.
            EXPECT_GE(Contrast(c.accent, ground), 4.5) << ground.name().toStdString();
        }
        EXPECT_GE(Contrast(c.text, c.selection), 4.5);
        EXPECT_GE(Contrast(c.quietText, c.selection), 4.5); // a heading under the mouse
        for (const QColor& ground : {c.accent, c.accentFocused})
            EXPECT_GE(Contrast(c.accentText, ground), 4.5) << ground.name().toStdString();
        EXPECT_GE(Contrast(c.text, c.accentFocused), 3) << "the focus mark of a primary button";
        for (const QColor& sign : {c.danger, c.warning}) EXPECT_GE(Contrast(sign, c.window), 3);
    }
}

TEST_F(Binder, EveryControlHasAnAccessibleName) {
    EXPECT_EQ(Find<QLineEdit>(sample, "code")->accessibleName(), "Code");
    EXPECT_EQ(Find<QLineEdit>(sample, "amount")->accessibleName(), "Amount");
    EXPECT_EQ(Find<QLabel>(sample, "code.label")->buddy(), Find<QLineEdit>(sample, "code"));
}

} // namespace
} // namespace varnik::test
