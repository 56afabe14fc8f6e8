#pragma once
// Between the toolkit's values and the program's.

#include "common/DateTime.h"
#include "platform/forms/Key.h"

#include <QDate>
#include <QString>
#include <optional>
#include <string>

class QKeyEvent;

namespace varnik::ui {

inline QString ToQt(const std::string& text) { return QString::fromStdString(text); }
inline std::string FromQt(const QString& text) { return text.toStdString(); }

// A caption as a reader hears it: without "&", the closing colon and blanks.
QString PlainCaption(const std::string& caption);

QDate ToQt(DateTime date);
DateTime FromQt(const QDate& date, std::int32_t second);

// The key as the screens know it; nothing for a modifier alone or a key that no screen knows.
std::optional<forms::Key> ToKey(const QKeyEvent& event);

} // namespace varnik::ui
