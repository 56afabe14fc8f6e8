#pragma once
// One control and the widget that shows it. A binding brings what the control holds into the widget, and
// what a person does to the widget into the control; which event means what for all kinds alike is the
// Binder's.

#include "platform/forms/Control.h"

#include <QDate>
#include <QList>
#include <QString>
#include <QWidget>
#include <memory>

class QLabel;

namespace varnik::ui {

class Binder;

class Binding {
public:
    Binding(Binder& binder, forms::Control& control, QWidget* widget)
        : binder_(binder), control_(control), widget_(widget) {}
    virtual ~Binding() = default;
    Binding(const Binding&) = delete;
    Binding& operator=(const Binding&) = delete;

    forms::Control& Control() const { return control_; }
    QWidget* Widget() const { return widget_; } // null for a timer or a menu
    // Objects whose keys, presses and focus count as this control's.
    virtual QList<QWidget*> EventSources() const {
        return widget_ ? QList<QWidget*>{widget_} : QList<QWidget*>{};
    }
    // The widget that takes the keyboard.
    virtual QWidget* FocusTarget() const { return widget_; }

    virtual void Refresh() {}   // brings the control's content into the widget
    virtual void SelectAll() {} // the content, as a field is entered
    // A character that a handler changed, or text from the clipboard, at the cursor.
    virtual void Insert(const QString&) {}
    // Keys that the kind keeps for its widget before the screen sees them.
    virtual bool TakesKey(QKeyEvent&) { return false; }
    // Deals with a key before the screen sees it, or with one that the screen has left; the widget sees
    // neither.
    virtual bool Handles(QKeyEvent&) { return false; }
    virtual bool HandlesLeft(const forms::Key&) { return false; }
    // Whether the press is used up by entering the field, so that all of it stays selected.
    virtual bool EatsEnteringPress(const QObject* /*pressed*/) const { return false; }
    // Whether the widget would change by itself although the control is locked.
    virtual bool Refuses(const QObject* /*pressed*/) const { return false; }

    void SetLabel(QLabel* label) { label_ = label; }
    QLabel* Label() const { return label_; }

protected:
    Binder& binder_;
    forms::Control& control_;

private:
    QWidget* widget_;
    QLabel* label_ = nullptr;
};

// Sets a property that the style sheet looks at.
void SetLook(QWidget* widget, const char* property, bool on);

// Makes widget and binding for a control; without a widget for timers and menus.
std::unique_ptr<Binding> MakeBinding(Binder& binder, forms::Control& control, QWidget* parent);
std::unique_ptr<Binding> MakeFieldBinding(Binder& binder, forms::Control& control, QWidget* parent);
std::unique_ptr<Binding> MakeTableBinding(Binder& binder, forms::Control& control, QWidget* parent);

} // namespace varnik::ui
