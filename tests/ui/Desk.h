#pragma once
// A desktop for tests: windows offscreen, the machine's settings fixed, boxes answered as they open.

#include "common/Regional.h"
#include "ui/QtDesktop.h"
#include "ui/ScreenWindow.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

namespace varnik::test {

// Waits for a condition; true when it came about within five seconds.
template <typename Condition>
bool Until(Condition condition) {
    return QTest::qWaitFor(condition, 5000);
}

// Presses a button of the next box as soon as it is there, and keeps its text.
class BoxAnswerer {
public:
    explicit BoxAnswerer(QMessageBox::StandardButton press) {
        QObject::connect(&clock_, &QTimer::timeout, &clock_, [this, press] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!box || !box->isVisible()) return;
            text = box->text().toStdString();
            clock_.stop();
            box->button(press)->click();
        });
        clock_.start(0);
    }
    std::string text;

private:
    QTimer clock_;
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
        return Window(screen).findChild<WidgetType*>(QString::fromLatin1(name));
    }

    Regional regional;
    ui::QtDesktop desktop{std::filesystem::temp_directory_path(), regional};
};

} // namespace varnik::test
