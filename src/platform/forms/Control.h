#pragma once
// What all controls share: a name, a caption, whether they show and can be used, and the events that a
// screen's handlers hang on. No toolkit: the desktop binds widgets to controls, the console types on them.

#include "platform/forms/Key.h"

#include <functional>
#include <string>
#include <string_view>

namespace varnik::forms {

class Screen;
class Frame;

enum class Kind {
    Label,
    Button,
    TextBox,
    ComboBox,
    CheckBox,
    OptionButton,
    DatePicker,
    Frame,
    Grid,
    ListGrid,
    Tree,
    StatusBar,
    Timer,
    Image,
    Menu,
    MenuItem
};

class Control {
public:
    Control(Screen& screen, Kind kind, std::string name, std::string caption = "");
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    Kind GetKind() const { return kind_; }
    const std::string& Name() const { return name_; }
    Screen& Owner() const { return screen_; }

    const std::string& Caption() const { return caption_; } // "&" stands before the shortcut letter
    void SetCaption(std::string caption);
    bool Enabled() const { return enabled_; } // of this control alone
    void SetEnabled(bool enabled);
    bool Visible() const { return visible_; } // of this control alone
    void SetVisible(bool visible);
    const std::string& ToolTip() const { return toolTip_; } // a hint in a few words
    void SetToolTip(std::string text);
    bool Masked() const { return masked_; } // shows dots instead of characters
    void SetMasked(bool masked);
    int FontSize() const { return fontSize_; } // points; 0 is the screen's own size
    void SetFontSize(int points);

    // Whether a person can see it, reach it: the frames around it count too.
    bool IsShown() const;
    bool IsUsable() const; // shown, and neither it nor a frame around it disabled
    bool CanFocus() const; // usable, and of a kind that takes the focus
    Frame* Container() const { return container_; }
    bool TabStop() const { return tabStop_; }
    void SetTabStop(bool stop) { tabStop_ = stop; }

    // The handlers of the screen. Text set from code raises onChange as typing does.
    std::function<void()> onChange;
    std::function<void()> onClick;
    std::function<void()> onDoubleClick;
    std::function<void()> onMouseDown; // the left button, pressed on labels and pictures
    std::function<void()> onMouseUp;   // and released
    std::function<void()> onEnter;     // got the focus
    std::function<void()> onLeave;     // lost it
    std::function<void(Key&)> onKeyDown;
    std::function<void(Key&)> onKeyUp;
    std::function<void(KeyPress&)> onKeyPress;

    // One watcher, the widget behind the control: called after anything that it shows has changed.
    void Watch(std::function<void()> watcher) { watcher_ = std::move(watcher); }

protected:
    friend class Frame;
    friend class Screen;
    void Changed() {
        if (watcher_) watcher_();
    }
    void RaiseChange();
    // What a person does to the control: a failure that escapes the handlers goes to the screen's report.
    void Person(const std::function<void()>& act);

private:
    Screen& screen_;
    Kind kind_;
    std::string name_, caption_, toolTip_;
    bool enabled_ = true, visible_ = true, tabStop_ = true, masked_ = false;
    int fontSize_ = 0;
    Frame* container_ = nullptr;
    std::function<void()> watcher_;
};

} // namespace varnik::forms
