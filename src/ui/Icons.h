#pragma once
// The drawn icons. A button's icon follows from its name, so that the same action looks the same on every
// screen.

#include "platform/forms/Control.h"

#include <QColor>
#include <QIcon>
#include <QString>
#include <string>

namespace varnik::ui {

// A line icon ("add", "print") in a colour, crisp at every size a widget asks for; faded, in the colour for
// that when one is given, while its widget is disabled.
QIcon DrawnIcon(const QString& name, const QColor& colour, const QColor& disabled = {});

// The icon's name for a control ("bttnAdd" -> "add", "mnuFileExit" -> "exit"), "" for none. The few names
// that mean another action on one screen are known with that screen's name.
QString IconOfControl(const forms::Control& control);
// For a row of the menu tree, by its key; branches are folders.
QString IconOfMenuKey(const std::string& key);
// The picture behind an image control: a resource path.
QString PictureOfControl(const std::string& controlName);

} // namespace varnik::ui
