#include "ui/QtDesktop.h"

#include "platform/desktop/Failure.h"
#include "platform/desktop/Manual.h"
#include "platform/desktop/Services.h"
#include "platform/forms/Controls.h"
#include "reports/engine/Report.h"
#include "ui/Help.h"
#include "ui/Icons.h"
#include "ui/QtText.h"
#include "ui/ScreenWindow.h"
#include "ui/Style.h"
#include "ui/preview/PreviewWindow.h"

#include <QApplication>
#include <QCryptographicHash>
#include <QDateTime>
#include <QDesktopServices>
#include <QDir>
#include <QLockFile>
#include <QMenu>
#include <QScreen>
#include <QShortcut>
#include <QTimer>
#include <QUrl>
#include <QWindow>
#include <algorithm>

namespace varnik::ui {

QtDesktop::QtDesktop(std::filesystem::path programFolder, const Regional& regional)
    : programFolder_(std::move(programFolder)), regional_(regional) {
    QApplication::setQuitOnLastWindowClosed(false); // between login and main window there is none
}

QtDesktop::~QtDesktop() { DropScreens(); }

void QtDesktop::DropScreens() {
    for (const QPointer<QWidget>& preview : previews_) delete preview;
    previews_.clear();
    for (ScreenWindow* window : Windows()) delete window;
    windows_.clear();
}

// ---- Screens ----

void QtDesktop::Show(std::unique_ptr<forms::Screen> screen) { Open(std::move(screen), false, nullptr); }

void QtDesktop::ShowModal(std::unique_ptr<forms::Screen> screen, std::function<void()> then) {
    Open(std::move(screen), true, std::move(then));
}

void QtDesktop::Open(std::unique_ptr<forms::Screen> screen, bool modal, std::function<void()> then) {
    ReportFailures(*screen, *this);
    auto* window = new ScreenWindow(std::move(screen), regional_, *this);
    windows_.emplace_back(window);
    if (const QPointer<QWidget> opener = modal ? QApplication::activeWindow() : nullptr; opener) {
        window->winId();
        if (opener->windowHandle()) window->windowHandle()->setTransientParent(opener->windowHandle());
        QObject::connect(window, &QObject::destroyed, opener, [opener] { opener->activateWindow(); });
    }
    window->onClosed = [this, then = std::move(then)](ScreenWindow& closed) { Closed(closed, then); };
    window->Binding().onHelp = [this, window] { OpenManual(*this, HelpPageOf(window->Screen().Name())); };
    window->Open(modal);
}

void QtDesktop::Closed(ScreenWindow& window, std::function<void()> then) {
    // Once the window is gone, and with it everything its handlers did.
    ++pending_;
    QObject::connect(&window, &QObject::destroyed, &later_, [this, then = std::move(then)] {
        QTimer::singleShot(0, &later_, [this, then] {
            --pending_;
            if (ended_) return;
            if (then) {
                try {
                    then();
                } catch (const std::exception& failure) {
                    MessageBox({failure.what(), "Varnik", Icon::Critical, Buttons::Ok});
                }
            }
            if (Windows().empty() && pending_ == 0) Quit(); // nothing is left that a person could use
        });
    });
}

std::vector<ScreenWindow*> QtDesktop::Windows() const {
    std::vector<ScreenWindow*> open;
    for (const QPointer<ScreenWindow>& window : windows_)
        if (window) open.push_back(window);
    return open;
}

ScreenWindow* QtDesktop::WindowOf(const forms::Screen& screen) const {
    for (ScreenWindow* window : Windows())
        if (&window->Screen() == &screen) return window;
    return nullptr;
}

ScreenWindow* QtDesktop::WindowOf(const std::string& screenName) const {
    for (ScreenWindow* window : Windows())
        if (window->Screen().Name() == screenName && !window->Screen().Closed()) return window;
    return nullptr;
}

forms::Screen* QtDesktop::FindScreen(const std::string& name) {
    ScreenWindow* window = WindowOf(name);
    return window ? &window->Screen() : nullptr;
}

void QtDesktop::BringToFront(forms::Screen& screen) {
    ScreenWindow* window = WindowOf(screen);
    if (!window) return;
    if (window->isMinimized()) window->showNormal();
    window->show();
    window->raise();
    window->activateWindow();
}

void QtDesktop::Repaint(forms::Screen& screen) {
    ScreenWindow* window = WindowOf(screen);
    if (!window) return;
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents); // lets the window system map it
    window->repaint();
    QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

QWidget* QtDesktop::Front() const {
    if (QWidget* active = QApplication::activeModalWidget()) return active;
    if (QWidget* active = QApplication::activeWindow()) return active;
    const std::vector<ScreenWindow*> open = Windows();
    return open.empty() || !open.back()->isVisible() ? nullptr : open.back();
}

void QtDesktop::PopUp(forms::Menu& menu, forms::Control& below) {
    ScreenWindow* window = WindowOf(below.Owner());
    QWidget* label = window ? window->Binding().WidgetOf(below.Name()) : nullptr;
    if (!label) return;
    if (!menu.Owner().onFailure) ReportFailures(menu.Owner(), *this); // a holder of menus is never shown
    auto* list = new QMenu(window);
    list->setAttribute(Qt::WA_DeleteOnClose);
    list->setObjectName(ToQt(menu.Name()));
    for (forms::MenuItem* item : menu.Items()) {
        if (!item->Visible()) continue;
        if (item->Caption() == "-") {
            list->addSeparator();
            continue;
        }
        QAction* action = list->addAction(ToQt(item->Caption()));
        action->setObjectName(ToQt(item->Name()));
        const QString icon = IconOfControl(*item);
        if (!icon.isEmpty()) action->setIcon(DrawnIcon(icon, CurrentColours().accent));
        action->setEnabled(item->Enabled());
        action->setCheckable(item->Checkable());
        action->setChecked(item->Checked());
        QObject::connect(action, &QAction::triggered, &later_, [item] { item->Owner().Click(*item); });
    }
    list->popup(label->mapToGlobal(QPoint(0, label->height())));
}

void QtDesktop::ArrangeWindows(int code) {
    std::vector<ScreenWindow*> open;
    for (ScreenWindow* window : Windows())
        if (window->isVisible() && !window->isMinimized() && window->Screen().Name() != "frmMainCode")
            open.push_back(window);
    // The system itself lines up what is minimised (code 3).
    if (open.empty() || code < 0 || code > 2) return;
    const QRect room = open.front()->screen()->availableGeometry();
    const int count = static_cast<int>(open.size());
    constexpr int step = 32;
    for (int i = 0; i < count; ++i) {
        ScreenWindow* window = open[static_cast<std::size_t>(i)];
        window->showNormal();
        if (code == 0) {
            window->move(room.topLeft() + QPoint(step, step) * (i + 1));
        } else if (code == 1) {
            window->setGeometry(room.left(), room.top() + i * room.height() / count, room.width(),
                                room.height() / count);
        } else {
            window->setGeometry(room.left() + i * room.width() / count, room.top(), room.width() / count,
                                room.height());
        }
        window->raise();
    }
}

void QtDesktop::DragMainWindow() {
    ScreenWindow* window = WindowOf("frmMainCode");
    if (window && !window->isMaximized() && window->windowHandle()) window->windowHandle()->startSystemMove();
}

void QtDesktop::Quit() {
    ended_ = true;
    for (const QPointer<QWidget>& preview : previews_)
        if (preview) preview->close();
    for (ScreenWindow* window : Windows()) {
        window->hide();
        window->deleteLater();
    }
    QApplication::exit(0);
}

// ---- What leaves the program ----

void QtDesktop::LaunchReport(const ReportRequest& request) {
    if (!services_) throw ado::DataError(0, "There are no reports here.");
    std::unique_ptr<reports::Report> report;
    try {
        report = reports::OpenReport(request, *services_);
    } catch (const ado::DataError& failure) {
        if (failure.Number() == ado::Stopped) return; // by the person: there is nothing to tell
        throw;
    }
    auto* preview = new PreviewWindow(std::move(report));
    preview->setWindowIcon(QIcon(QStringLiteral(":/icons/logo.svg")));
    std::erase_if(previews_, [](const QPointer<QWidget>& known) { return !known; });
    previews_.emplace_back(preview);
    auto* help = new QShortcut(QKeySequence(Qt::Key_F1), preview);
    QObject::connect(help, &QShortcut::activated, preview,
                     [this] { OpenManual(*this, "reports.html#preview"); });
    preview->ShowAsAsked();
}

bool QtDesktop::OpenWithShell(const std::string& target) {
    const QString text = ToQt(target);
    if (text.startsWith(QLatin1String("mailto:")) || text.contains(QLatin1String("://")))
        return QDesktopServices::openUrl(QUrl(text, QUrl::TolerantMode));
    // A file, and perhaps a place in it.
    const QDir folder(ToQt(programFolder_.string()));
    const qsizetype hash = folder.exists(text) ? -1 : text.lastIndexOf(QLatin1Char('#'));
    const QString file = hash < 0 ? text : text.left(hash);
    if (!folder.exists(file)) return false;
    QUrl url = QUrl::fromLocalFile(folder.absoluteFilePath(file));
    if (hash >= 0) url.setFragment(text.mid(hash + 1));
    return QDesktopServices::openUrl(url);
}

void QtDesktop::Hourglass(bool on) {
    if (on == hourglass_) return;
    hourglass_ = on;
    if (on)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

DateTime QtDesktop::Now() {
    const QDateTime now = QDateTime::currentDateTime();
    return FromQt(now.date(), QTime(0, 0).secsTo(now.time()));
}

bool QtDesktop::AnotherInstanceRuns() {
    if (!lock_) {
        // One of this machine: other workstations may share the folder.
        const QByteArray folder = QByteArray::fromStdString(programFolder_.lexically_normal().string());
        const QString key =
            QString::fromLatin1(QCryptographicHash::hash(folder, QCryptographicHash::Sha1).toHex());
        lock_ = std::make_unique<QLockFile>(QDir::temp().filePath(QStringLiteral("varnik-%1.lock").arg(key)));
        lock_->setStaleLockTime(0);
    }
    if (lock_->isLocked()) return false;
    return !lock_->tryLock(0) && lock_->error() == QLockFile::LockFailedError;
}

} // namespace varnik::ui
