#pragma once
// Date fields: the calendar, and the keys that step a day.

#include "common/DateTime.h"
#include "platform/forms/Key.h"

#include <memory>
#include <optional>

class QDateEdit;
class QWidget;

namespace varnik::forms {
class DatePicker;
}

namespace varnik::ui {

class Binder;
class Binding;

// Where "+", "-" and "T" (today) take a date, from today when there is none; nothing for any other key. The
// time of day stays what it was.
std::optional<DateTime> DateByKey(const forms::Key& key, std::optional<DateTime> date, DateTime today);

// A text field that holds a date, as its page says.
void MarkDateField(QWidget& widget);
bool IsDateField(const QWidget& widget);

std::unique_ptr<Binding> MakeDateBinding(Binder& binder, forms::DatePicker& picker, QDateEdit* edit);

} // namespace varnik::ui
