#include "platform/forms/Screen.h"

#include "platform/forms/Controls.h"
#include "platform/forms/Grid.h"

#include <algorithm>
#include <cctype>
#include <new>

namespace varnik::forms {

namespace {

bool SameName(std::string_view a, std::string_view b) {
    return std::ranges::equal(
        a, b, [](unsigned char x, unsigned char y) { return std::tolower(x) == std::tolower(y); });
}

// Counts the handlers under way, whichever way they end.
struct Depth {
    explicit Depth(int& depth) : count(depth) { ++count; }
    ~Depth() { --count; }
    Depth(const Depth&) = delete;
    Depth& operator=(const Depth&) = delete;
    int& count;
};

// A flag that holds for as long as it lives.
struct While {
    While(bool& flag, bool value) : flag_(flag), before_(std::exchange(flag, value)) {}
    ~While() { flag_ = before_; }
    While(const While&) = delete;
    While& operator=(const While&) = delete;
    bool& flag_;
    bool before_;
};

} // namespace

Screen::Screen(std::string name, std::string caption)
    : name_(std::move(name)), caption_(std::move(caption)) {}

void Screen::SetCaption(std::string caption) {
    if (caption_ == caption) return;
    caption_ = std::move(caption);
    if (onCaptionChanged) onCaptionChanged();
}

Control* Screen::FindControl(std::string_view name) const {
    const auto found =
        std::ranges::find_if(controls_, [&](Control* control) { return SameName(control->Name(), name); });
    return found == controls_.end() ? nullptr : *found;
}

void Screen::Close() {
    if (closed_) return;
    closed_ = true;
    // A screen whose unloading fails goes all the same, and then says why: nobody could close it any more.
    try {
        Raise([this] { Unload(); });
    } catch (...) {
        if (onCloseRequest) onCloseRequest();
        throw;
    }
    if (onCloseRequest) onCloseRequest();
}

void Screen::Present() {
    Act([this] { Load(); });
    if (!focused_ && !closed_) MoveNext();
}

bool Screen::Act(const std::function<void()>& action) {
    const Depth inside(depth_);
    try {
        action();
        return true;
    } catch (const std::bad_alloc&) {
        throw;
    } catch (const std::exception& failure) {
        if (!onFailure) throw;
        onFailure(failure.what());
        return false;
    }
}

// Inside a handler a failure goes on to whoever meets it there; outside it ends at the report.
void Screen::Raise(const std::function<void()>& handler) {
    if (!handler) return;
    if (depth_ > 0)
        handler();
    else
        Act(handler);
}

// ---- The focus ----

void Screen::SetFocus(Control& control) {
    if (closed_ || !control.CanFocus()) return;
    const unsigned move = ++focusMoves_;
    if (focused_ == &control) return;
    Control* const left = std::exchange(focused_, nullptr);
    if (left) {
        try {
            Raise(left->onLeave);
        } catch (...) {
            if (move == focusMoves_) focused_ = &control;
            if (onFocusChanged) onFocusChanged();
            throw;
        }
    }
    if (move != focusMoves_ || closed_)
        return; // the leaving called the focus elsewhere, or closed the screen
    // The leaving may have hidden or disabled where the focus was going.
    Control* const target = control.CanFocus() ? &control : Next(&control, false, true);
    if (target)
        Enter(*target);
    else if (onFocusChanged)
        onFocusChanged();
}

void Screen::Enter(Control& control) {
    focused_ = &control;
    if (onFocusChanged) onFocusChanged();
    Raise(control.onEnter);
}

void Screen::ControlGone() {
    if (closed_ || !focused_ || focused_->CanFocus()) return;
    ++focusMoves_;
    const Control* const gone = std::exchange(focused_, nullptr);
    if (Control* const next = Next(gone, false, true))
        Enter(*next);
    else if (onFocusChanged)
        onFocusChanged();
}

// The next control round the screen that can take the focus; from the start without `from`.
Control* Screen::Next(const Control* from, bool backwards, bool tabStopsOnly) const {
    const int count = static_cast<int>(controls_.size());
    if (count == 0) return nullptr;
    int at = backwards ? count : -1;
    if (from) at = static_cast<int>(std::ranges::find(controls_, from) - controls_.begin());
    for (int step = 0; step < count; ++step) {
        at = backwards ? (at + count - 1) % count : (at + 1) % count;
        Control* const candidate = controls_[static_cast<std::size_t>(at)];
        if (candidate->CanFocus() && (candidate->TabStop() || !tabStopsOnly)) return candidate;
    }
    return nullptr;
}

void Screen::MoveFocus(Control& control) { SetFocus(control); }

void Screen::MoveNext(bool backwards) {
    Control* const next = Next(focused_, backwards, true);
    if (!next) return;
    const While moving(movingOn_, !backwards);
    SetFocus(*next);
}

// ---- Clicks ----

void Screen::Click(Control& control) {
    if (closed_ || !control.IsUsable()) return;
    if (control.CanFocus()) SetFocus(control);
    if (!closed_ && control.IsUsable()) Press(control);
}

void Screen::Press(Control& control) {
    Raise([&] {
        if (auto* check = dynamic_cast<CheckBox*>(&control)) {
            if (!check->Locked()) check->SetChecked(!check->Checked());
        } else if (auto* option = dynamic_cast<OptionButton*>(&control)) {
            option->SetChecked(true);
        } else if (control.onClick) {
            control.onClick();
        }
    });
}

void Screen::DoubleClick(Control& control) {
    if (closed_ || !control.IsUsable()) return;
    if (control.CanFocus()) SetFocus(control);
    if (closed_ || !control.IsUsable()) return;
    Raise(control.onDoubleClick);
    if (auto* list = dynamic_cast<ListGrid*>(&control); list && !closed_) list->ActivateRow(list->Row());
}

// ---- Keys: see ScreenKeys.cpp for what every screen does with them ----

bool Screen::PressKey(Key key) {
    if (closed_) return true;
    Control* const control = focused_;
    Raise([&] { PreviewKeyDown(key); });
    if (key.handled || closed_ || focused_ != control) return true;
    if (control && control->onKeyDown) Raise([&] { control->onKeyDown(key); });
    if (key.handled || closed_ || focused_ != control) return true;
    return DefaultAction(key);
}

void Screen::ReleaseKey(Key key) {
    if (closed_) return;
    Raise([&] { PreviewKeyUp(key); });
    if (!key.handled && !closed_ && focused_ && focused_->onKeyUp) Raise([&] { focused_->onKeyUp(key); });
}

char32_t Screen::FilterCharacter(char32_t character) {
    KeyPress press{character};
    if (!closed_ && focused_ && focused_->onKeyPress) Raise([&] { focused_->onKeyPress(press); });
    return press.character;
}

} // namespace varnik::forms
