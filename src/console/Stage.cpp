#include "console/Stage.h"

#include "console/Script.h"

#include <ostream>

namespace varnik::console {

void Stage::Fail(const std::string& text) {
    ++failed;
    out << text << std::endl;
}

forms::Screen& Stage::Current() const {
    if (forms::Screen* top = desktop.Top()) return *top;
    throw ScriptError{desktop.Running() ? "no screen is open" : "the program does not run"};
}

forms::Screen& Stage::ScreenNamed(const std::string& name) const {
    if (forms::Screen* open = desktop.FindScreen(name)) return *open;
    throw ScriptError{"the screen " + name + " is not open"};
}

forms::Control& Stage::Find(const std::string& name) const {
    const auto dot = name.find('.');
    forms::Screen& screen = dot == std::string::npos ? Current() : ScreenNamed(name.substr(0, dot));
    const std::string control = dot == std::string::npos ? name : name.substr(dot + 1);
    if (forms::Control* found = screen.FindControl(control)) return *found;
    throw ScriptError{"there is no " + control + " on " + screen.Name()};
}

forms::Control& Stage::Use(const std::string& name) const {
    forms::Control& control = Find(name);
    desktop.ComeForward(control.Owner());
    if (!control.IsShown()) throw ScriptError{name + " is hidden"};
    if (!control.IsUsable()) throw ScriptError{name + " is disabled"};
    return control;
}

forms::Control& Stage::Reach(const std::string& name) const {
    forms::Control& control = Use(name);
    forms::Screen& screen = control.Owner();
    if (!control.CanFocus()) throw ScriptError{name + " does not take the focus"};
    screen.MoveFocus(control);
    const forms::Control* const focused = screen.Focused();
    if (focused != &control)
        throw ScriptError{"the focus does not go to " + name + ", it is on " +
                          (focused ? focused->Name() : "nothing")};
    return control;
}

} // namespace varnik::console
