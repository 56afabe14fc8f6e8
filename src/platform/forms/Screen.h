#pragma once
// A screen without a toolkit: named controls as members, in tab order, and handlers. Both faces, the
// desktop and the console, drive it through the same few calls below "A person", so that both see the
// same leaving, entering and clicking in the same order.

#include "platform/forms/Control.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace varnik::forms {

class Screen {
public:
    Screen(std::string name, std::string caption);
    virtual ~Screen() = default;
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    const std::string& Name() const { return name_; }
    const std::string& Caption() const { return caption_; }
    void SetCaption(std::string caption);
    const std::vector<Control*>& Controls() const { return controls_; } // in tab order
    Control* FindControl(std::string_view name) const; // without regard to case; "Option0(1)" for arrays

    virtual void Load() {}               // before it shows for the first time
    virtual void Unload() {}             // as it closes
    virtual void Activate() {}           // each time it comes to the front
    virtual void Resized() {}            // after a person gave it another size
    virtual void PreviewKeyDown(Key&) {} // before the control that has the focus sees the key
    virtual void PreviewKeyUp(Key&) {}

    // Asks the desktop to close it. The object lives until the handler that asked has returned.
    void Close();
    bool Closed() const { return closed_; }

    // The focus, moved from code. The old control is left first; its leaving may call the focus elsewhere,
    // and then that call holds. Nothing happens for a control that cannot take it.
    void SetFocus(Control& control);
    Control* Focused() const { return focused_; }
    void SetDefault(Control* button) { default_ = button; } // Enter presses it
    Control* Default() const { return default_; }
    void SetCancel(Control* button) { cancel_ = button; } // Escape presses it
    Control* Cancel() const { return cancel_; }

    // --- A person ---
    void MoveFocus(Control& control);      // by mouse or key
    void MoveNext(bool backwards = false); // Tab, Shift+Tab: to the next control that can take it
    // Leaves the field that had the focus, then clicks, wherever that leaving put the focus.
    void Click(Control& control);
    void DoubleClick(Control& control);
    // Passes a key to the handlers and does what every screen does with it (Enter as Tab, F-keys, Alt and
    // a shortcut letter, arrows in lists). False when the key is the field's own to edit with.
    bool PressKey(Key key);
    void ReleaseKey(Key key);
    // A character about to enter the focused field: the one to insert, 0 for none.
    char32_t FilterCharacter(char32_t character);

    // Hooks of the face that shows it.
    std::function<void()> onCloseRequest;
    std::function<void()> onFocusChanged; // the focus was moved from code or by a rule
    std::function<void()> onCaptionChanged;

private:
    friend class Control;
    void Register(Control& control) { controls_.push_back(&control); }
    void ControlGone(Control& control); // hidden or disabled: the focus moves on, without a leaving
    void Enter(Control& control);

    std::string name_, caption_;
    std::vector<Control*> controls_;
    Control* focused_ = nullptr;
    Control* default_ = nullptr;
    Control* cancel_ = nullptr;
    unsigned focusMoves_ = 0;
    bool closed_ = false;
};

} // namespace varnik::forms
