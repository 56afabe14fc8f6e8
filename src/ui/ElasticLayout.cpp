#include "ui/ElasticLayout.h"

#include "ui/Binding.h"

#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>

namespace varnik::ui {

namespace {

ElasticControl Measure(const QWidget& widget) {
    ElasticControl control;
    if (widget.property("picture").toBool())
        control.kind = widget.objectName().compare(QLatin1String("Logo"), Qt::CaseInsensitive) == 0
                           ? ElasticControl::Kind::Logo
                           : ElasticControl::Kind::Image;
    control.top = static_cast<std::int16_t>(widget.y());
    control.left = static_cast<std::int16_t>(widget.x());
    control.height = static_cast<std::int16_t>(widget.height());
    control.width = static_cast<std::int16_t>(widget.width());
    control.fontSize = static_cast<std::int16_t>(widget.font().pixelSize());
    return control;
}

} // namespace

bool IsContainer(const QWidget& widget) {
    return widget.metaObject() == &QFrame::staticMetaObject && !widget.property("statusbar").toBool();
}

void ForgetHints(QLayout& layout) {
    for (int index = 0; index < layout.count(); ++index) {
        QLayoutItem& item = *layout.itemAt(index);
        if (QLayout* inner = item.widget() ? item.widget()->layout() : item.layout()) ForgetHints(*inner);
        item.invalidate();
    }
    layout.invalidate();
}

void SettleLayouts(QWidget& container) {
    if (QLayout* layout = container.layout()) {
        layout->invalidate();
        layout->activate();
    }
    for (QObject* child : container.children())
        if (auto* widget = qobject_cast<QWidget*>(child); widget && IsContainer(*widget))
            SettleLayouts(*widget);
}

void ElasticLayout::Collect(QWidget& container) {
    delete container.layout();
    for (QObject* child : container.children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (!widget || widget->isWindow()) continue;
        widgets_.push_back(widget);
        shown_.push_back(Measure(*widget));
        // The sizes that shaped the layout must not hold against scaling.
        widget->setMinimumSize(0, 0);
        widget->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        if (IsContainer(*widget)) Collect(*widget);
    }
}

void ElasticLayout::Capture(QWidget& window, QSize room) {
    Collect(window);
    ElasticSize size{window.height(), window.width()};
    const double share =
        std::min({1.0, double(room.width()) / size.width, double(room.height()) / size.height});
    if (share < 1) {
        // The page shrinks as a whole, and counts as captured then: a screen never goes below its load.
        window.setMinimumSize(0, 0);
        for (const QPointer<QWidget>& widget : widgets_) SetLook(widget, "dense", true);
        const auto less = [share](std::int16_t length) { return static_cast<std::int16_t>(length * share); };
        std::vector<ElasticControl> places = shown_;
        for (ElasticControl& place : places)
            place = {place.kind,        less(place.top),      less(place.left), less(place.height),
                     less(place.width), less(place.fontSize), place.rightMargin};
        Place(places);
        size = {static_cast<int>(size.height * share), static_cast<int>(size.width * share)};
        window.resize(size.width, size.height);
    }
    elastic_.Init(size, shown_);
    captured_ = true;
    window.setMinimumSize((size.width + 1) / 2, (size.height + 1) / 2);
}

void ElasticLayout::Apply(QWidget& window) {
    if (!captured_) return;
    window.setUpdatesEnabled(false);
    Place(elastic_.FormResize(elastic_.Clamp(ElasticSize{window.height(), window.width()})));
    window.setUpdatesEnabled(true);
}

void ElasticLayout::Place(const std::vector<ElasticControl>& places) {
    for (std::size_t i = 0; i < widgets_.size() && i < places.size(); ++i) {
        QWidget* widget = widgets_[i];
        if (!widget || places[i] == shown_[i]) continue;
        const ElasticControl& place = places[i];
        widget->setGeometry(place.left, place.top, place.width, place.height);
        if (place.fontSize > 0 && place.fontSize != shown_[i].fontSize && !IsContainer(*widget)) {
            QFont font = widget->font();
            font.setPixelSize(place.fontSize);
            widget->setFont(font);
            // Under a style sheet the parts of a widget do not take its letters over.
            for (QWidget* part : widget->findChildren<QWidget*>())
                if (qobject_cast<QLineEdit*>(part) || qobject_cast<QHeaderView*>(part) ||
                    qobject_cast<QLabel*>(part))
                    part->setFont(font);
            if (auto* button = qobject_cast<QPushButton*>(widget))
                button->setIconSize(QSize(place.fontSize + 3, place.fontSize + 3));
        }
        shown_[i] = place;
    }
}

} // namespace varnik::ui
