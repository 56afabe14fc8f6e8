#pragma once
// The plain controls.

#include "common/DateTime.h"
#include "platform/forms/Control.h"

#include <initializer_list>
#include <string>
#include <vector>

namespace varnik::forms {

class Label : public Control {
public:
    Label(Screen& screen, std::string name, std::string caption = "")
        : Control(screen, Kind::Label, std::move(name), std::move(caption)) {}
    bool Border() const { return border_; } // gives a label that is clicked a pressed look
    void SetBorder(bool border);

private:
    bool border_ = false;
};

class Button : public Control {
public:
    Button(Screen& screen, std::string name, std::string caption = "")
        : Control(screen, Kind::Button, std::move(name), std::move(caption)) {}
};

class Image : public Control {
public:
    Image(Screen& screen, std::string name) : Control(screen, Kind::Image, std::move(name)) {}
};

// A control whose content is a text: TextBox and ComboBox.
class TextControl : public Control {
public:
    using Control::Control;
    const std::string& Text() const { return text_; }
    void SetText(std::string text);         // raises onChange when the text differs
    void Type(std::string text);            // by a person: nothing when locked, cut to MaxLength
    bool Locked() const { return locked_; } // shows and takes the focus, takes no typing
    void SetLocked(bool locked);
    int MaxLength() const { return maxLength_; } // characters, 0 for any
    void SetMaxLength(int characters) { maxLength_ = characters; }
    bool RightAligned() const { return rightAligned_; } // amounts
    void SetRightAligned(bool right) { rightAligned_ = right; }
    // The screen asks for the whole text to be selected (the keystrokes Home and Shift+End).
    std::function<void()> selectAll;
    void SelectAll() {
        if (selectAll) selectAll();
    }

private:
    std::string text_;
    bool locked_ = false, rightAligned_ = false;
    int maxLength_ = 0;
};

class TextBox : public TextControl {
public:
    TextBox(Screen& screen, std::string name, std::string caption = "") // the caption of its label
        : TextControl(screen, Kind::TextBox, std::move(name), std::move(caption)) {}
    bool MultiLine() const { return multiLine_; }
    void SetMultiLine(bool many) { multiLine_ = many; }

private:
    bool multiLine_ = false;
};

class ComboBox : public TextControl {
public:
    ComboBox(Screen& screen, std::string name, std::string caption = "")
        : TextControl(screen, Kind::ComboBox, std::move(name), std::move(caption)) {}
    const std::vector<std::string>& Items() const { return items_; }
    void SetItems(std::vector<std::string> items); // the text stays
    void AddItem(std::string item);
    void Clear();                                   // items and text
    unsigned Contents() const { return contents_; } // another number after a change of the items
    bool ListOnly() const { return listOnly_; }     // picks from the list, takes no free typing
    void SetListOnly(bool only) { listOnly_ = only; }
    int ListIndex() const; // of the item that the text equals, -1 when none
    void Pick(int index);  // by a person: sets the text, then onClick; nothing when locked

private:
    std::vector<std::string> items_;
    unsigned contents_ = 0;
    bool listOnly_ = false;
};

// CheckBox and OptionButton: setting the value from code raises onClick when it differs (an option that
// goes off because another of its group went on raises nothing).
class CheckBox : public Control {
public:
    CheckBox(Screen& screen, std::string name, std::string caption = "")
        : Control(screen, Kind::CheckBox, std::move(name), std::move(caption)) {}
    bool Checked() const { return checked_; }
    void SetChecked(bool checked);
    bool Locked() const { return locked_; }
    void SetLocked(bool locked);

private:
    bool checked_ = false, locked_ = false;
};

// Those of one container exclude each other; those outside any frame, those of the screen.
class OptionButton : public Control {
public:
    OptionButton(Screen& screen, std::string name, std::string caption = "")
        : Control(screen, Kind::OptionButton, std::move(name), std::move(caption)) {}
    bool Checked() const { return checked_; }
    void SetChecked(bool checked);

private:
    bool checked_ = false;
};

class DatePicker : public Control {
public:
    DatePicker(Screen& screen, std::string name, std::string caption = "")
        : Control(screen, Kind::DatePicker, std::move(name), std::move(caption)) {}
    DateTime Date() const { return date_; }
    void SetDate(DateTime date); // raises onChange when it differs
    void Pick(DateTime date);    // by a person

private:
    DateTime date_;
};

// Holds controls: hiding or disabling it does the same to them. A frame laid over the others (a search
// panel, a look-up list) is marked so.
class Frame : public Control {
public:
    Frame(Screen& screen, std::string name, std::string caption = "")
        : Control(screen, Kind::Frame, std::move(name), std::move(caption)) {}
    void Hold(std::initializer_list<Control*> controls); // each control stands in one frame at most
    const std::vector<Control*>& Held() const { return held_; }
    bool Overlay() const { return overlay_; }
    void SetOverlay(bool overlay) { overlay_ = overlay; }

private:
    std::vector<Control*> held_;
    bool overlay_ = false;
};

struct TreeNode {
    std::string parent, key, caption; // parent "" for the root
    bool expanded = false;
};

class Tree : public Control {
public:
    Tree(Screen& screen, std::string name) : Control(screen, Kind::Tree, std::move(name)) {}
    const std::vector<TreeNode>& Nodes() const { return nodes_; }
    void Add(TreeNode node);
    const TreeNode* Find(std::string_view key) const;
    void NodeClick(const std::string& key); // by a person
    std::function<void(const std::string& key)> onNodeClick;

private:
    std::vector<TreeNode> nodes_;
};

class StatusBar : public Control {
public:
    StatusBar(Screen& screen, std::string name, int panels)
        : Control(screen, Kind::StatusBar, std::move(name)), panels_(static_cast<std::size_t>(panels)) {}
    int Panels() const { return static_cast<int>(panels_.size()); }
    const std::string& Panel(int number) const; // counted from 1
    void SetPanel(int number, std::string text);

private:
    std::vector<std::string> panels_;
};

class Timer : public Control {
public:
    Timer(Screen& screen, std::string name, int milliseconds)
        : Control(screen, Kind::Timer, std::move(name)), milliseconds_(milliseconds) {}
    int Milliseconds() const { return milliseconds_; }
    void Tick(); // by the clock
    std::function<void()> onTick;

private:
    int milliseconds_;
};

// A drop-down menu and its items, in the order of construction.
class MenuItem;
class Menu : public Control {
public:
    Menu(Screen& screen, std::string name, std::string caption)
        : Control(screen, Kind::Menu, std::move(name), std::move(caption)) {}
    const std::vector<MenuItem*>& Items() const { return items_; }

private:
    friend class MenuItem;
    std::vector<MenuItem*> items_;
};

class MenuItem : public Control {
public:
    MenuItem(Menu& menu, std::string name, std::string caption);
    bool Checked() const { return checked_; }
    void SetChecked(bool checked);
    bool Checkable() const { return checkable_; }
    void SetCheckable(bool checkable) { checkable_ = checkable; }

private:
    bool checked_ = false, checkable_ = false;
};

} // namespace varnik::forms
