#pragma once
// A small screen with one control of every kind, and the habits that real screens have: a code that calls
// the focus back, an amount that rewrites itself, a list that opens over the rest.

#include "platform/forms/Controls.h"
#include "platform/forms/Grid.h"
#include "platform/forms/Screen.h"

#include <stdexcept>
#include <string>
#include <vector>

namespace varnik::test {

class Sample : public forms::Screen {
public:
    Sample() : Screen("Sample", "Sample - Varnik") {
        code.onKeyPress = [](forms::KeyPress& key) { key.ToUpper(); };
        code.onLeave = [this] {
            log.push_back("code left");
            if (code.Text() == "BAD") SetFocus(code);
        };
        amount.onChange = [this] { total.SetText(amount.Text().empty() ? "" : amount.Text() + "00"); };
        amount.SetRightAligned(true);
        total.SetLocked(true);
        save.onClick = [this] { log.push_back("saved " + code.Text()); };
        fail.onClick = [] { throw std::runtime_error("Table Produk is not there"); };
        close.onClick = [this] {
            Close();
            log.push_back("still here");
        };
        look.onClick = [this] {
            list.SetVisible(true);
            SetFocus(list);
        };
        list.SetColumns({{"CODE", forms::Align::Left, 10}, {"NAME", forms::Align::Left, 30}});
        list.SetVisible(false);
        list.onActivate = [this] { code.SetText(list.Cell(list.Row(), 0)); };
        lines.SetColumns({{"ID", forms::Align::Left, 10}, {"AMOUNT", forms::Align::Right, 12}});
        panel.Hold({&inner});
        first.SetChecked(true);
    }
    ~Sample() override {
        if (gone) *gone = true;
    }
    void Resized() override { ++resized; }

    forms::TextBox code{*this, "code", "&Code"};
    forms::TextBox amount{*this, "amount", "Amount :"};
    forms::TextBox total{*this, "total", "Total"};
    forms::ComboBox unit{*this, "unit", "Unit"};
    forms::DatePicker date{*this, "date", "Date"};
    forms::CheckBox service{*this, "service", "&Service"};
    forms::OptionButton first{*this, "first", "First"}, second{*this, "second", "Second"};
    forms::Frame panel{*this, "panel"};
    forms::TextBox inner{*this, "inner", "Inner"};
    forms::Grid lines{*this, "lines"};
    forms::ListGrid list{*this, "list"};
    forms::Button save{*this, "save", "&Save"}, fail{*this, "fail", "Fail"}, close{*this, "close", "Close"},
        look{*this, "look", "Look"};

    std::vector<std::string> log;
    int resized = 0;
    bool* gone = nullptr;
};

} // namespace varnik::test
