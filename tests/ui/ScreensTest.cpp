// What must hold for every screen of the program, whatever it is for.

#include "sales/Bayar.h"
#include "shell/Dialog.h"
#include "shell/fLogin.h"
#include "tests/ui/Shop.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QHeaderView>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScreen>
#include <QTableView>
#include <algorithm>
#include <functional>
#include <map>

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
            << screen << "." << control->Name() << " stands outside: " << widget->geometry().right() << " "
            << widget->geometry().bottom() << " of " << widget->parentWidget()->width() << " "
            << widget->parentWidget()->height();
    }
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const bool part =
            IsInput(*widget->parentWidget()) || widget->window() != &window; // of a drop-down, a table
        if (!IsInput(*widget) || part) continue;
        EXPECT_TRUE(window.Screen().FindControl(widget->objectName().toStdString()))
            << screen << " shows " << widget->objectName().toStdString() << " without a control";
    }
}

// A caption, a heading or a date that does not fit, a widget that covers its neighbour.
void ExpectNothingClipped(ui::ScreenWindow& window) {
    const std::string at = window.Screen().Name() + " at " + std::to_string(window.width()) + ": ";
    const int slack = 2; // places are whole numbers
    // Hidden ones keep their place: panels take turns, and some open only while a document is entered.
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        const std::string name = at + widget->objectName().toStdString();
        if (widget->window() != &window || widget->parentWidget()->property("statusbar").toBool()) continue;
        if (const auto* table = qobject_cast<QTableView*>(widget)) {
            const QHeaderView& header = *table->horizontalHeader();
            for (int column = 0; column < header.count(); ++column) {
                const QString text = table->model()->headerData(column, Qt::Horizontal).toString();
                if (header.isSectionHidden(column)) continue;
                EXPECT_GE(header.sectionSize(column), header.fontMetrics().horizontalAdvance(text) + 22)
                    << name << " " << text.toStdString();
            }
        }
        if (const auto* date = qobject_cast<QDateEdit*>(widget)) {
            EXPECT_GE(date->width(), date->fontMetrics().horizontalAdvance(date->text()) + 30) << name;
        }
        const bool caption = qobject_cast<QLabel*>(widget) || qobject_cast<QAbstractButton*>(widget);
        if (!caption ||
            (widget->metaObject()->className() != std::string("QLabel") && widget->objectName().isEmpty()))
            continue;
        EXPECT_GE(widget->width() + slack, widget->minimumSizeHint().width()) << name;
        EXPECT_GE(widget->height() + slack, widget->fontMetrics().height()) << name;
    }
    const auto& controls = window.Screen().Controls();
    for (auto one = controls.begin(); one != controls.end(); ++one)
        for (auto other = one + 1; other != controls.end(); ++other) {
            const QWidget* a = window.Binding().WidgetOf((*one)->Name());
            const QWidget* b = window.Binding().WidgetOf((*other)->Name());
            if (!a || !b || a->isHidden() || b->isHidden() || a->parentWidget() != b->parentWidget())
                continue;
            const QRect shared = a->geometry().intersected(b->geometry());
            EXPECT_TRUE(shared.width() <= slack || shared.height() <= slack)
                << at << (*one)->Name() << " and " << (*other)->Name();
        }
}

// What assistive tools say of the control.
void ExpectNamed(const ui::ScreenWindow& window) {
    for (const forms::Control* control : window.Screen().Controls()) {
        QWidget* widget = window.Binding().WidgetOf(control->Name());
        const forms::Kind kind = control->GetKind();
        // A label that stands for its field, or is empty so far, is heard by that.
        if (!widget || kind == forms::Kind::Frame || kind == forms::Kind::Label) continue;
        QAccessibleInterface* heard = QAccessible::queryAccessibleInterface(widget);
        ASSERT_TRUE(heard) << control->Name();
        EXPECT_FALSE(heard->text(QAccessible::Name).isEmpty())
            << window.Screen().Name() << "." << control->Name() << " has no name";
    }
}

class Screens : public ShopTest {
protected:
    // Every screen that the menus open, and those that others open.
    void ForEach(const std::function<void(ui::ScreenWindow&)>& look) {
        look(*desktop.WindowOf("frmMainCode"));
        std::size_t seen = 0;
        for (const auto& [key, entry] : program.Access().screens) {
            ui::ScreenWindow& window = Open(key);
            look(window);
            window.Screen().Close();
            ++seen;
        }
        EXPECT_GT(seen, 1U);
        std::unique_ptr<forms::Screen> others[] = {std::make_unique<Bayar>(program.Access(), ""),
                                                   std::make_unique<fLogin>(program.Access()),
                                                   std::make_unique<Dialog>(program.Access())};
        for (auto& screen : others) {
            ui::ScreenWindow* window = nullptr;
            forms::Screen& shown = *screen;
            desktop.Show(std::move(screen));
            ASSERT_TRUE(
                Until([&] { return (window = desktop.WindowOf(shown)) && window->isActiveWindow(); }));
            look(*window);
            shown.Close();
        }
    }
};

TEST_F(Screens, EveryOneHasItsControlsPlacedAndNamed) {
    ForEach([](ui::ScreenWindow& window) {
        ExpectControlsAndWidgetsMatch(window);
        ExpectNamed(window);
    });
}

// Also run on small and on dense displays, see CMakeLists.txt.
TEST_F(Screens, EveryOneFitsTheDisplayAndClipsNothingAtAnySize) {
    constexpr QSize smallDisplay(1366 - 8, 768 - 30); // less the window's frame and title bar
    ForEach([&](ui::ScreenWindow& window) {
        const QSize room = window.screen()->availableGeometry().size().boundedTo(smallDisplay);
        EXPECT_EQ(window.size().boundedTo(room), window.size())
            << window.Screen().Name() << " " << window.width() << " x " << window.height();
        const QSize size = window.size();
        for (const double growth : {1.0, 0.8, 1.3, 1.7}) {
            window.resize(size * growth);
            QApplication::processEvents();
            ExpectNothingClipped(window);
        }
    });
}

// Tab walks once through all that a person can use, in the order of entry, and comes back to where it
// began; the focus shows where it is.
TEST_F(Screens, TabWalksEveryOneInTheOrderOfEntry) {
    // Where these screens ask something of who leaves an empty field: the walk of a new one ends there.
    const std::map<std::string, std::string> asked{
        {"Invoice", "TxtKodeCus"}, {"FakturRetur", "txtNoPO"}, {"BayarFaktur", "TxtKodeSup"},
        {"fProduk", "txtket"},     {"fCustomer", "txtNama"},   {"fSupplier", "txtNama"},
        {"fBank", "TxtNamaBank"},  {"fJenisBiaya", "txtNama"}, {"fBiaya", "txtNama"}};
    int screens = 0, entries = 0, walks = 0;
    const auto walk = [&](ui::ScreenWindow& window, const std::string& last) {
        forms::Screen& screen = window.Screen();
        std::vector<std::string> order, walked;
        for (const forms::Control* control : screen.Controls())
            if (control->CanFocus() && control->TabStop()) order.push_back(control->Name());
        const forms::Control* first = screen.Focused();
        ASSERT_TRUE(first) << screen.Name();
        const auto begin = std::ranges::find(order, first->Name());
        ASSERT_NE(begin, order.end()) << screen.Name() << "." << first->Name();
        std::ranges::rotate(order, begin);
        if (!last.empty()) {
            const auto end = std::ranges::find(order, last);
            ASSERT_NE(end, order.end()) << screen.Name() << "." << last;
            order.erase(end + 1, order.end());
        }
        do {
            walked.push_back(screen.Focused()->Name());
            if (walked.back() == last) break;
            ASSERT_TRUE(window.focusWidget()) << screen.Name();
            QTest::keyClick(window.focusWidget(), Qt::Key_Tab);
            const forms::Control* focused = screen.Focused();
            ASSERT_TRUE(focused) << screen.Name();
            EXPECT_EQ(window.Binding().Find(*focused)->FocusTarget(), window.focusWidget())
                << screen.Name() << "." << focused->Name();
        } while (screen.Focused() != first && walked.size() < 100);
        EXPECT_EQ(walked, order) << screen.Name();
        ++walks;
    };
    // As it opens, and while a document or a record is entered.
    ForEach([&](ui::ScreenWindow& window) {
        ++screens;
        walk(window, "");
        for (const char* name : {"bttnNew", "bttnAdd"}) {
            const forms::Control* button = window.Screen().FindControl(name);
            if (!button || !button->IsUsable()) continue;
            ++entries;
            QTest::mouseClick(window.Binding().WidgetOf(name), Qt::LeftButton);
            const auto end = asked.find(window.Screen().Name());
            walk(window, end == asked.end() ? "" : end->second);
        }
    });
    EXPECT_GT(entries, 10);
    EXPECT_EQ(walks, screens + entries);
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
