#pragma once
// The window of one screen: page, binder, scaling. It owns the screen, and goes with it.

#include "ui/Binder.h"
#include "ui/ElasticLayout.h"
#include "ui/pages/Page.h"

#include <QStringList>
#include <QWidget>
#include <functional>
#include <memory>

namespace varnik::ui {

class ScreenWindow : public QWidget {
public:
    ScreenWindow(std::unique_ptr<forms::Screen> screen, const Regional& regional, Desktop& desktop);
    ~ScreenWindow() override;

    // Loads the screen, lays it out and shows it. A screen that closes in its load never shows.
    void Open(bool modal);
    forms::Screen& Screen() const { return *screen_; }
    Binder& Binding() const { return *binder_; }
    // What the page names and the screen lacks, and the other way round.
    const QStringList& Unknown() const { return unknown_; }
    const QStringList& Unplaced() const { return unplaced_; }

    std::function<void(ScreenWindow&)> onClosed; // the window is hidden; it is deleted once handlers returned

protected:
    void closeEvent(QCloseEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool) override { return false; } // Tab is the screen's

private:
    QSize Room() const;
    void ShowOverlay(varnik::ui::Binding& binding);

    std::unique_ptr<forms::Screen> screen_;
    std::unique_ptr<Binder> binder_;
    ElasticLayout elastic_;
    const Page* page_ = nullptr;
    QStringList unknown_, unplaced_;
    QSize lastSize_;
};

} // namespace varnik::ui
