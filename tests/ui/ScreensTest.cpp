// What must hold for every screen of the program, whatever it is for.

#include "tests/ui/Shop.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QTableView>

namespace varnik::test {
namespace {

bool HasWidget(const forms::Control& control) {
    return control.GetKind() != forms::Kind::Timer && control.GetKind() != forms::Kind::Menu &&
           control.GetKind() != forms::Kind::MenuItem;
}

bool IsInput(const QWidget& widget) {
    return qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
           qobject_cast<const QPlainTextEdit*>(&widget) || qobject_cast<const QAbstractButton*>(&widget) ||
           qobject_cast<const QTableView*>(&widget) || qobject_cast<const QDateEdit*>(&widget);
}

void ExpectControlsAndWidgetsMatch(ui::ScreenWindow& window) {
    const std::string screen = window.Screen().Name();
    EXPECT_TRUE(window.Unknown().isEmpty())
        << screen << " lacks " << window.Unknown().join(", ").toStdString();
    EXPECT_TRUE(window.Unplaced().isEmpty())
        << "the page of " << screen << " lacks " << window.Unplaced().join(", ").toStdString();
    for (const forms::Control* control : window.Screen().Controls()) {
        if (!HasWidget(*control)) continue;
        const auto* widget = window.findChild<QWidget*>(QString::fromStdString(control->Name()));
        ASSERT_TRUE(widget) << screen << "." << control->Name() << " has no widget";
        const bool fallbackFrame = control->GetKind() == forms::Kind::Frame && widget->size().isEmpty();
        if (fallbackFrame) continue;
        EXPECT_FALSE(widget->size().isEmpty()) << screen << "." << control->Name() << " has no room";
        EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()))
            << screen << "." << control->Name() << " stands outside";
        const bool named = !control->CanFocus() || !widget->accessibleName().isEmpty();
        EXPECT_TRUE(named) << screen << "." << control->Name() << " has no name";
    }
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const bool part =
            IsInput(*widget->parentWidget()) || widget->window() != &window; // of a drop-down, a table
        if (!IsInput(*widget) || part) continue;
        EXPECT_TRUE(window.Screen().FindControl(widget->objectName().toStdString()))
            << screen << " shows " << widget->objectName().toStdString() << " without a control";
    }
}

void ExpectNoCaptionClipped(ui::ScreenWindow& window) {
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const bool caption = qobject_cast<QLabel*>(widget) || qobject_cast<QAbstractButton*>(widget);
        if (!caption || widget->window() != &window || widget->isHidden() ||
            widget->parentWidget()->property("statusbar").toBool())
            continue;
        if (widget->metaObject()->className() != std::string("QLabel") && widget->objectName().isEmpty())
            continue;
        const int slack = 2; // places are whole numbers
        EXPECT_GE(widget->width() + slack, widget->minimumSizeHint().width())
            << window.Screen().Name() << "." << widget->objectName().toStdString() << " at "
            << window.width();
        EXPECT_GE(widget->height() + slack, widget->fontMetrics().height())
            << window.Screen().Name() << "." << widget->objectName().toStdString();
    }
}

class Screens : public ShopTest {};

TEST_F(Screens, EveryOneHasItsControlsPlacedNamedAndUnclipped) {
    std::vector<ui::ScreenWindow*> windows{desktop.WindowOf("frmMainCode")};
    for (const auto& [key, entry] : program.Access().screens) windows.push_back(&Open(key));
    EXPECT_GT(windows.size(), 1U);
    for (ui::ScreenWindow* window : windows) {
        ExpectControlsAndWidgetsMatch(*window);
        ExpectNoCaptionClipped(*window);
        window->resize(window->size() * 1.3);
        QApplication::processEvents();
        ExpectNoCaptionClipped(*window);
    }
}

// Tab walks through what can take the focus and comes back to where it began; the focus shows where it is.
TEST_F(Screens, TabGoesRoundEveryOne) {
    for (const auto& [key, entry] : program.Access().screens) {
        ui::ScreenWindow& window = Open(key);
        const forms::Control* first = window.Screen().Focused();
        if (!first) continue; // nothing to enter
        std::size_t steps = 0;
        do {
            ASSERT_TRUE(window.focusWidget()) << entry.name;
            QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
            const forms::Control* focused = window.Screen().Focused();
            ASSERT_TRUE(focused) << entry.name;
            EXPECT_EQ(window.Binding().Find(*focused)->FocusTarget(), window.focusWidget())
                << entry.name << "." << focused->Name();
        } while (window.Screen().Focused() != first && ++steps < 100);
        EXPECT_EQ(window.Screen().Focused(), first) << entry.name;
        window.close();
    }
}

TEST_F(Screens, ClosingTheMainWindowEndsTheProgram) {
    desktop.WindowOf("frmMainCode")->close();
    EXPECT_TRUE(desktop.Ended());
}

TEST_F(Screens, TheMenuOpensScreensByKeyboardAndMenusByTheirLetter) {
    auto* tree = Find("frmMainCode", "TV");
    tree->window()->activateWindow();
    QTest::keyClick(tree, Qt::Key_Down);
    QTest::keyClick(tree, Qt::Key_Down);
    QTest::keyClick(tree, Qt::Key_Return);
    EXPECT_TRUE(desktop.WindowOf("fProduk"));
    desktop.BringToFront(desktop.WindowOf("frmMainCode")->Screen());
    ASSERT_TRUE(Until([&] { return desktop.WindowOf("frmMainCode")->isActiveWindow(); }));
    QTest::keyClick(tree, Qt::Key_H, Qt::AltModifier);
    ASSERT_TRUE(Until([] { return QApplication::activePopupWidget(); }));
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_A);
    EXPECT_TRUE(Until([&] { return desktop.WindowOf("frmAbout"); }));
}

} // namespace
} // namespace varnik::test
