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

class OptionButton;

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

    // Runs Unload, then asks the desktop to take it away. The object lives until the handler that asked has
    // returned. By code and by a person alike.
    void Close();
    bool Closed() const { return closed_; }

    // The focus, moved from code. The old control is left first; its leaving may call the focus elsewhere,
    // and then that call holds. Nothing happens for a control that cannot take it.
    void SetFocus(Control& control);
    Control* Focused() const { return focused_; }
    // Whether the leaving under way comes from a key that moves on (Enter, Tab), not from a person who went
    // to a field of choice: that choice holds, where a rule only says what comes next.
    bool MovingOn() const { return movingOn_; }
    void SetDefault(Control* button) { default_ = button; } // Enter presses it
    Control* Default() const { return default_; }
    void SetCancel(Control* button) { cancel_ = button; } // Escape presses it, without leaving the field
    Control* Cancel() const { return cancel_; }

    // --- The faces ---
    // Load, then the focus to the first control unless Load gave it to one.
    void Present();
    // Runs what comes from outside (a person, the clock, the window). A failure that escapes it ends this
    // action alone and goes to onFailure; without one it goes on to the caller. False after a failure.
    bool Act(const std::function<void()>& action);

    // --- A person ---
    // A failure that escapes a handler goes to onFailure, once, from the outermost of these calls. Nothing
    // comes of a call on a control that a person cannot use.
    void MoveFocus(Control& control);      // by mouse or key
    void MoveNext(bool backwards = false); // Tab, Shift+Tab: to the next control that can take it
    // Leaves the field that had the focus, then clicks, wherever that leaving put the focus.
    void Click(Control& control);
    void DoubleClick(Control& control); // the second press; on a ListGrid it activates the current row
    // Passes a key to the handlers and does what every screen does with it (Enter as Tab, F-keys, Alt and
    // a shortcut letter, arrows in lists). False when the key is the field's own to edit with. A handler
    // that marks the key or moves the focus has dealt with it.
    bool PressKey(Key key);
    void ReleaseKey(Key key);
    // A character about to enter the focused field: the one to insert, 0 for none.
    char32_t FilterCharacter(char32_t character);

    // Hooks of the face that shows it.
    std::function<void()> onCloseRequest;
    std::function<void()> onFocusChanged; // the focus was moved from code or by a rule
    std::function<void()> onCaptionChanged;
    std::function<void(const std::string& description)> onFailure;

private:
    friend class Control;
    void Register(Control& control) { controls_.push_back(&control); }
    void ControlGone(); // something was hidden or disabled: the focus moves on, without a leaving
    void Raise(const std::function<void()>& handler);
    void Enter(Control& control);
    void Press(Control& control); // the click itself
    Control* Next(const Control* from, bool backwards, bool tabStopsOnly) const;
    bool DefaultAction(const Key& key);
    bool ActivateKey(const Key& key); // Enter and Escape
    bool Shortcut(const Key& key);    // Alt and a letter
    bool ListKey(const Key& key);     // arrows and their kin in lists and groups
    void MoveInGroup(OptionButton& option, bool backwards);

    std::string name_, caption_;
    std::vector<Control*> controls_;
    Control* focused_ = nullptr;
    Control* default_ = nullptr;
    Control* cancel_ = nullptr;
    unsigned focusMoves_ = 0;
    int depth_ = 0; // of handlers under way
    bool closed_ = false, movingOn_ = false;
};

} // namespace varnik::forms
