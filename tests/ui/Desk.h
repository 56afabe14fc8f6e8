#pragma once
// A desktop for tests: windows offscreen, the machine's settings fixed, boxes answered as they open.

#include "common/Regional.h"
#include "ui/QtDesktop.h"
#include "ui/ScreenWindow.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <deque>
#include <gtest/gtest.h>

namespace varnik::test {

// Waits for a condition; true when it came about within five seconds.
template <typename Condition>
bool Until(Condition condition) {
    return QTest::qWaitFor(condition, 5000);
}

// Answers the boxes in order, and keeps their texts. A box that nobody expects fails the test, it never
// hangs.
class Boxes {
public:
    Boxes() {
        QObject::connect(&clock_, &QTimer::timeout, &clock_, [this] { Look(); });
        clock_.start(2);
    }
    void Answer(QMessageBox::StandardButton press) { answers_.push_back(press); }
    std::vector<std::string> texts;

private:
    void Look() {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !box->isVisible()) return;
        texts.push_back(box->text().toStdString());
        if (answers_.empty()) {
            ADD_FAILURE() << "nobody expects the box: " << texts.back();
            box->buttons().constFirst()->click();
            return;
        }
        const QMessageBox::StandardButton press = answers_.front();
        answers_.pop_front();
        box->button(press)->click();
    }
    QTimer clock_;
    std::deque<QMessageBox::StandardButton> answers_;
};

// Its clock stands where the test sets it.
class ClockedDesktop : public ui::QtDesktop {
public:
    using QtDesktop::QtDesktop;
    DateTime Now() override { return now; }
    DateTime now{*MakeDate(2026, 3, 14)};
};

class UiTest : public ::testing::Test {
protected:
    template <typename ScreenType>
    ScreenType& Open(std::unique_ptr<ScreenType> screen) {
        ScreenType& opened = *screen;
        desktop.Show(std::move(screen));
        EXPECT_TRUE(Until([&] { return Window(opened).isActiveWindow(); }));
        return opened;
    }
    ui::ScreenWindow& Window(const forms::Screen& screen) { return *desktop.WindowOf(screen); }
    template <typename WidgetType>
    WidgetType* Find(const forms::Screen& screen, const char* name) {
        auto* widget = Window(screen).findChild<WidgetType*>(QString::fromLatin1(name));
        EXPECT_TRUE(widget) << name;
        return widget;
    }

    Regional regional;
    Boxes boxes;
    ClockedDesktop desktop{std::filesystem::temp_directory_path(), regional};
};

} // namespace varnik::test
