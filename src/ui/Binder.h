#pragma once
// Connects a screen to widgets, by control name and both ways. Everything that a person does goes through
// the same few calls of the screen that the console uses, so that both faces see the same leaving, entering
// and clicking in the same order. No rule of the business stands here.
//
// The keyboard: every key is offered to the screen first; what it leaves is the field's own to edit with.
// Ctrl+Enter presses Save, and the number pad's decimal key gives the machine's decimal separator.
// The mouse: a press on a field moves the screen's focus, and only where the screen then has it does the
// toolkit's focus go. A button never takes the focus by the toolkit; the screen's Click decides.

#include "common/Regional.h"
#include "platform/desktop/Desktop.h"
#include "platform/forms/Screen.h"
#include "ui/Binding.h"

#include <QHash>
#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>
#include <vector>

namespace varnik::ui {

class Binder : public QObject {
public:
    // Makes a widget for every control of the screen, as children of `window` that no layout holds yet.
    Binder(forms::Screen& screen, QWidget* window, const Regional& regional, Desktop& desktop);
    ~Binder() override;

    forms::Screen& Screen() const { return screen_; }
    const Regional& Settings() const { return regional_; }
    DateTime Now() const { return desktop_.Now(); }
    QWidget* Window() const { return window_; }
    Binding* Find(const forms::Control& control) const;
    Binding* Find(const std::string& name) const;
    QWidget* WidgetOf(const std::string& name) const; // null when the control has none
    Binding* LastField() const { return lastField_; } // the text field that had the focus last

    // The text that stands before a field, made on first use; the control's caption, or `fallback`.
    QLabel* MakeLabel(Binding& binding, const QString& fallback);
    // How a field without a caption is called: by the page, or after a label control of the screen.
    void NameField(Binding& binding, const QString& name);
    void NameAfter(Binding& binding, const forms::Control& label);

    void RefreshAll();
    void SyncFocus(); // the toolkit's focus goes where the screen's is
    // A key that reached the window itself, as when no control can take the focus.
    bool PressKey(QKeyEvent& event);

    // F1, where the screen has no use of its own for it; with Shift everywhere.
    std::function<void()> onHelp;
    // What a frame or list that lies over the others does when it shows: the page places it.
    std::function<void(Binding&)> onOverlayShown;

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void Refresh(Binding& binding);
    void Changed(Binding& binding); // the control says so
    bool OnPress(Binding& binding, const QObject* pressed, QMouseEvent& event);
    bool OnKey(Binding* binding, QKeyEvent& event);
    void Paste(Binding& binding);
    void PressSave();

    forms::Screen& screen_;
    QWidget* window_;
    const Regional& regional_;
    Desktop& desktop_;
    std::vector<std::unique_ptr<Binding>> bindings_;
    QHash<const QObject*, Binding*> sources_;
    QHash<const forms::Control*, Binding*> byControl_;
    QHash<const forms::Control*, QString> fallbackCaptions_;
    Binding* entered_ = nullptr; // whose content was selected on entering
    Binding* lastField_ = nullptr;
    bool settling_ = false;
    bool swallowRelease_ = false;
};

} // namespace varnik::ui
