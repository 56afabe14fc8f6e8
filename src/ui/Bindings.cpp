// What is no field: buttons, captions, pictures, frames, the status bar, timers.

#include "platform/forms/Controls.h"
#include "platform/forms/Grid.h"
#include "ui/Binder.h"
#include "ui/Icons.h"
#include "ui/QtText.h"
#include "ui/Style.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QSvgRenderer>
#include <QTimer>

namespace varnik::ui {

namespace {

class ButtonBinding : public Binding {
public:
    ButtonBinding(Binder& binder, forms::Control& control, QPushButton* button)
        : Binding(binder, control, button), button_(button) {
        button->setAutoDefault(false);
        QObject::connect(button, &QPushButton::clicked, button, [this] { control_.Owner().Click(control_); });
    }
    void Refresh() override {
        // An ellipsis says "look up", and so does the icon.
        button_->setText(control_.Caption() == "..." ? QString() : ToQt(control_.Caption()).trimmed());
        const QString icon = IconOfControl(control_);
        const bool primary = button_->property("primary").toBool();
        if (icon.isEmpty() || (icon == icon_ && primary == primary_)) return;
        icon_ = icon;
        primary_ = primary;
        const Colours& colours = CurrentColours();
        button_->setIcon(DrawnIcon(icon, primary ? colours.accentText : colours.accent, colours.accent));
    }

private:
    QPushButton* button_;
    QString icon_;
    bool primary_ = false;
};

// The mouse on a label or a picture: press, release, and the click that the release completes.
template <typename Base>
class Pressable : public Base {
public:
    using Base::Base;
    forms::Control* control = nullptr;

protected:
    void mousePressEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) return;
        const auto& down = control->onMouseDown;
        if (down && control->IsUsable()) control->Owner().Act(down);
    }
    void mouseReleaseEvent(QMouseEvent* event) override {
        if (event->button() != Qt::LeftButton) return;
        const auto& up = control->onMouseUp;
        if (up && control->IsUsable()) control->Owner().Act(up);
        if (this->rect().contains(event->pos())) control->Owner().Click(*control);
    }
};

using CaptionWidget = Pressable<QLabel>;

class LabelBinding : public Binding {
public:
    LabelBinding(Binder& binder, forms::Label& control, CaptionWidget* label)
        : Binding(binder, control, label), label_(label), caption_(control) {
        label->control = &control;
        label->setTextFormat(control.onClick ? Qt::RichText : Qt::PlainText);
    }
    void Refresh() override {
        // A caption with a click of its own is a menu or a link.
        if (caption_.onClick) label_->setCursor(Qt::PointingHandCursor);
        SetLook(label_, "menu", static_cast<bool>(caption_.onClick));
        SetLook(label_, "pressed", caption_.Border());
        // Before a field the toolkit draws the "&" as the mark of its letter; on a menu we do.
        const QString text = ToQt(control_.Caption());
        const qsizetype mark = text.indexOf(QLatin1Char('&'));
        if (label_->buddy())
            label_->setText(text);
        else if (caption_.onClick && mark >= 0 && mark + 1 < text.size())
            label_->setText(QStringLiteral("%1<u>%2</u>%3")
                                .arg(text.left(mark).toHtmlEscaped(), text.mid(mark + 1, 1).toHtmlEscaped(),
                                     text.mid(mark + 2).toHtmlEscaped()));
        else
            label_->setText(QString(text).remove(QLatin1Char('&')));
    }

private:
    CaptionWidget* label_;
    forms::Label& caption_;
};

class DrawingWidget : public QWidget {
public:
    explicit DrawingWidget(QWidget* parent) : QWidget(parent) {
        setProperty("picture", true);
        renderer_.setAspectRatioMode(Qt::KeepAspectRatio);
    }
    void Load(const QString& drawing) {
        renderer_.load(drawing);
        renderer_.setAspectRatioMode(Qt::KeepAspectRatio);
    }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        renderer_.render(&painter, rect());
    }

private:
    QSvgRenderer renderer_;
};

using PictureWidget = Pressable<DrawingWidget>;

class ImageBinding : public Binding {
public:
    ImageBinding(Binder& binder, forms::Control& control, PictureWidget* picture)
        : Binding(binder, control, picture) {
        picture->control = &control;
        picture->Load(PictureOfControl(control.Name()));
    }
};

class FrameBinding : public Binding {
public:
    FrameBinding(Binder& binder, forms::Frame& frame, QFrame* widget) : Binding(binder, frame, widget) {
        widget->setProperty("overlay", frame.Overlay());
    }
};

class StatusBinding : public Binding {
public:
    StatusBinding(Binder& binder, forms::StatusBar& bar, QFrame* strip)
        : Binding(binder, bar, strip), bar_(bar) {
        strip->setProperty("statusbar", true);
        auto* row = new QHBoxLayout(strip);
        row->setContentsMargins(4, 0, 4, 0);
        row->setSpacing(0);
        for (int number = 1; number <= bar.Panels(); ++number) {
            auto* panel = new QLabel(strip);
            // A text that scrolls must not widen the window.
            panel->setMinimumWidth(1);
            panel->setSizePolicy(number == 1 ? QSizePolicy::Ignored : QSizePolicy::Preferred,
                                 QSizePolicy::Fixed);
            row->addWidget(panel, number == 1 ? 1 : 0);
            panels_.push_back(panel);
        }
    }
    void Refresh() override {
        for (int number = 1; number <= bar_.Panels(); ++number)
            panels_[static_cast<std::size_t>(number - 1)]->setText(ToQt(bar_.Panel(number)));
    }

private:
    forms::StatusBar& bar_;
    std::vector<QLabel*> panels_;
};

class TimerBinding : public Binding {
public:
    TimerBinding(Binder& binder, forms::Timer& timer) : Binding(binder, timer, nullptr), timer_(timer) {
        clock_.setInterval(timer.Milliseconds());
        QObject::connect(&clock_, &QTimer::timeout, &clock_, [this] { timer_.Tick(); });
    }
    void Refresh() override {
        if (timer_.Enabled() == clock_.isActive()) return;
        if (timer_.Enabled())
            clock_.start();
        else
            clock_.stop();
    }

private:
    forms::Timer& timer_;
    QTimer clock_;
};

} // namespace

void SetLook(QWidget* widget, const char* property, bool on) {
    if (widget->property(property).toBool() == on) return;
    widget->setProperty(property, on);
    widget->style()->unpolish(widget);
    widget->style()->polish(widget);
}

std::unique_ptr<Binding> MakeBinding(Binder& binder, forms::Control& control, QWidget* parent) {
    if (auto field = MakeFieldBinding(binder, control, parent)) return field;
    if (auto table = MakeTableBinding(binder, control, parent)) return table;
    switch (control.GetKind()) {
    case forms::Kind::Button:
        return std::make_unique<ButtonBinding>(binder, control, new QPushButton(parent));
    case forms::Kind::Label:
        return std::make_unique<LabelBinding>(binder, static_cast<forms::Label&>(control),
                                              new CaptionWidget(parent));
    case forms::Kind::Image:
        return std::make_unique<ImageBinding>(binder, control, new PictureWidget(parent));
    case forms::Kind::Frame:
        return std::make_unique<FrameBinding>(binder, static_cast<forms::Frame&>(control),
                                              new QFrame(parent));
    case forms::Kind::StatusBar:
        return std::make_unique<StatusBinding>(binder, static_cast<forms::StatusBar&>(control),
                                               new QFrame(parent));
    case forms::Kind::Timer:
        return std::make_unique<TimerBinding>(binder, static_cast<forms::Timer&>(control));
    default: // menus show by themselves when they pop up
        return std::make_unique<Binding>(binder, control, nullptr);
    }
}

} // namespace varnik::ui
