#include "ui/ScreenWindow.h"

#include "ui/PageBuilder.h"
#include "ui/QtText.h"

#include <QApplication>
#include <QCloseEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QLayout>
#include <QScreen>

namespace varnik::ui {

ScreenWindow::ScreenWindow(std::unique_ptr<forms::Screen> screen, const Regional& regional, Desktop& desktop)
    : screen_(std::move(screen)), page_(FindPage(screen_->Name())) {
    setObjectName(QStringLiteral("window"));
    setProperty("screen", ToQt(screen_->Name()));
    setWindowIcon(QIcon(QStringLiteral(":/icons/logo.svg")));
    setAttribute(Qt::WA_StyledBackground);
    const Family family = page_ ? page_->family : Family::Dialog;
    if (family == Family::Splash)
        setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    else
        setWindowFlags(Qt::Window);

    binder_ = std::make_unique<Binder>(*screen_, this, regional, desktop);
    screen_->onCaptionChanged = [this] { setWindowTitle(ToQt(screen_->Caption())); };
    screen_->onCloseRequest = [this] {
        hide();
        deleteLater(); // not before the handler that asked has returned
        if (onClosed) onClosed(*this);
    };
}

ScreenWindow::~ScreenWindow() {
    binder_.reset(); // lets go of the controls before they go
}

void ScreenWindow::Open(bool modal) {
    if (modal) setWindowModality(Qt::ApplicationModal);
    PageBuilder builder(*binder_, *this);
    if (page_)
        builder.Build(*page_);
    else
        builder.BuildGeneral();
    unknown_ = builder.Unknown();
    unplaced_ = builder.Unplaced();
    binder_->RefreshAll();

    screen_->Present();
    if (screen_->Closed()) return;
    setWindowTitle(ToQt(screen_->Caption()));
    binder_->RefreshAll();

    ensurePolished();
    ForgetHints(*layout());
    resize(page_ ? sizeHint().expandedTo(builder.RoomForOverlays(*page_)) : sizeHint());
    SettleLayouts(*this);
    if (page_) builder.PlaceOverlays(*page_);
    for (QObject* child : children())
        if (auto* frame = qobject_cast<QWidget*>(child); frame && IsContainer(*frame)) SettleLayouts(*frame);
    elastic_.Capture(*this, Room());
    lastSize_ = size();
    binder_->onOverlayShown = [this](varnik::ui::Binding& binding) { ShowOverlay(binding); };
    if (const QScreen* display = screen()) {
        const QRect room = display->availableGeometry();
        move(room.center() - rect().center());
    }
    show();
    activateWindow();
    binder_->SyncFocus();
}

// Of the display, without the frame and title bar that the desktop puts round a window.
QSize ScreenWindow::Room() const {
    constexpr int frame = 8, titleBar = 30;
    const QScreen* display = screen();
    return display ? display->availableGeometry().size() - QSize(frame, titleBar) : size();
}

// A list opens under the field that it was asked for; a panel comes to the front.
void ScreenWindow::ShowOverlay(varnik::ui::Binding& binding) {
    if (!page_) return;
    const auto overlay = std::ranges::find(page_->overlays, binding.Control().Name(), &Overlay::control);
    if (overlay == page_->overlays.end()) return;
    QWidget* panel = binding.Widget();
    panel->raise();
    const varnik::ui::Binding* field = binder_->LastField();
    if (overlay->where != Overlay::Where::UnderField || !field) return;
    const QRect under(field->Widget()->mapTo(this, QPoint(0, 0)), field->Widget()->size());
    constexpr int gap = 2;
    int left = std::min(under.left(), width() - panel->width() - gap);
    int top = under.bottom() + gap;
    if (top + panel->height() > height()) top = std::max(under.top() - gap - panel->height(), gap);
    panel->move(std::max(left, gap), top);
}

void ScreenWindow::closeEvent(QCloseEvent* event) {
    event->ignore(); // the screen decides
    screen_->Close();
}

void ScreenWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (!elastic_.Captured() || size() == lastSize_) return;
    lastSize_ = size();
    elastic_.Apply(*this);
    if (page_)
        for (const Overlay& overlay : page_->overlays)
            if (varnik::ui::Binding* open = binder_->Find(overlay.control); open && open->Control().IsShown())
                ShowOverlay(*open);
    screen_->Act([this] { screen_->Resized(); });
}

void ScreenWindow::keyPressEvent(QKeyEvent* event) {
    if (!binder_->PressKey(*event)) QWidget::keyPressEvent(event);
}

bool ScreenWindow::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        event->accept();
        return true;
    }
    if (event->type() == QEvent::WindowActivate && !screen_->Closed())
        screen_->Act([this] { screen_->Activate(); });
    return QWidget::event(event);
}

} // namespace varnik::ui
