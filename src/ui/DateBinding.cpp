#include "common/Regional.h"
#include "platform/forms/Controls.h"
#include "ui/Binder.h"
#include "ui/DateKeys.h"
#include "ui/Icons.h"
#include "ui/QtText.h"
#include "ui/Style.h"

#include <QCalendarWidget>
#include <QDateEdit>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QTextCharFormat>
#include <QToolButton>

namespace varnik::ui {

namespace {

constexpr const char* DateProperty = "date";

void DressCalendar(QCalendarWidget& calendar) {
    calendar.setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
    calendar.setMinimumSize(360, 270);
    QTextCharFormat weekend;
    weekend.setForeground(CurrentColours().quietText);
    calendar.setWeekdayTextFormat(Qt::Saturday, weekend);
    calendar.setWeekdayTextFormat(Qt::Sunday, weekend);
    const char* const turns[] = {"qt_calendar_prevmonth", "qt_calendar_nextmonth"};
    const char* const icons[] = {"previous", "next"};
    for (int i = 0; i < 2; ++i)
        if (auto* button = calendar.findChild<QToolButton*>(QLatin1String(turns[i])))
            button->setIcon(DrawnIcon(QLatin1String(icons[i]), CurrentColours().accent));
}

// The calendar is made when it is first asked for: a screen of two dates would open with two of them unseen.
class CalendarWhenPressed : public QObject {
public:
    explicit CalendarWhenPressed(QDateEdit& edit) : QObject(&edit), edit_(edit) {}
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress && !dressed_) {
            dressed_ = true;
            DressCalendar(*edit_.calendarWidget());
        }
        return false;
    }

private:
    QDateEdit& edit_;
    bool dressed_ = false;
};

class DateBinding : public Binding {
public:
    DateBinding(Binder& binder, forms::DatePicker& picker, QDateEdit* edit)
        : Binding(binder, picker, edit), picker_(picker), edit_(edit) {
        edit->setCalendarPopup(true);
        edit->setDisplayFormat(Format(binder.Settings()));
        edit->installEventFilter(new CalendarWhenPressed(*edit));
        edit->setDateRange(QDate(1900, 1, 1), QDate(2099, 12, 31));
        QObject::connect(edit, &QDateEdit::dateChanged, edit, [this](const QDate& date) {
            if (refreshing_) return;
            picker_.Pick(FromQt(date, picker_.Date().second));
            Refresh();
        });
    }
    QList<QWidget*> EventSources() const override { return {edit_, edit_->findChild<QLineEdit*>()}; }
    void Refresh() override {
        const QScopedValueRollback<bool> quiet(refreshing_, true);
        const QDate date = ToQt(picker_.Date());
        if (edit_->date() != date) edit_->setDate(date);
    }
    void SelectAll() override {
        typing_ = false;
        edit_->setSelectedSection(edit_->sectionAt(0));
    }
    bool HandlesLeft(const forms::Key& key) override {
        // Between the parts of a date that is being typed a "-" is a separator.
        if (typing_ && key.character == U'-') return false;
        const auto date = DateByKey(key, picker_.Date(), binder_.Now());
        typing_ = !date && key.code == forms::KeyCode::Character;
        if (!date) return false;
        picker_.Pick(*date);
        Refresh();
        SelectAll();
        return true;
    }
    bool Handles(QKeyEvent& event) override {
        const bool opens = event.key() == Qt::Key_F4 ||
                           (event.key() == Qt::Key_Down && event.modifiers().testFlag(Qt::AltModifier));
        if (!opens) return false;
        // The toolkit opens its calendar by the mouse alone.
        const QPointF arrow(edit_->width() - 10, edit_->height() / 2.0);
        QMouseEvent press(QEvent::MouseButtonPress, arrow, edit_->mapToGlobal(arrow), Qt::LeftButton,
                          Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(edit_, &press);
        return true;
    }

private:
    static QString Format(const Regional& regional) {
        const QString separator = QStringLiteral("'%1'").arg(ToQt(regional.dateSeparator));
        const QString day = QStringLiteral("dd"), month = QStringLiteral("MM"), year = QStringLiteral("yyyy");
        switch (regional.order) {
        case DateOrder::DayMonthYear:
            return day + separator + month + separator + year;
        case DateOrder::YearMonthDay:
            return year + separator + month + separator + day;
        case DateOrder::YearDayMonth:
            return year + separator + day + separator + month;
        default:
            return month + separator + day + separator + year;
        }
    }
    forms::DatePicker& picker_;
    QDateEdit* edit_;
    bool refreshing_ = false, typing_ = false;
};

} // namespace

std::optional<DateTime> DateByKey(const forms::Key& key, std::optional<DateTime> date, DateTime today) {
    if (key.code != forms::KeyCode::Character || key.ctrl || key.alt) return std::nullopt;
    today.second = date ? date->second : 0;
    switch (key.character) {
    case U'+':
        return AddDays(date.value_or(today), 1);
    case U'-':
        return AddDays(date.value_or(today), -1);
    case U't':
    case U'T':
        return today;
    default:
        return std::nullopt;
    }
}

void MarkDateField(QWidget& widget) { widget.setProperty(DateProperty, true); }
bool IsDateField(const QWidget& widget) { return widget.property(DateProperty).toBool(); }

std::unique_ptr<Binding> MakeDateBinding(Binder& binder, forms::DatePicker& picker, QDateEdit* edit) {
    return std::make_unique<DateBinding>(binder, picker, edit);
}

} // namespace varnik::ui
