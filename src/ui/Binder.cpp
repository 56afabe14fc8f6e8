#include "ui/Binder.h"

#include "platform/forms/Controls.h"
#include "ui/DateKeys.h"
#include "ui/QtText.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QScopedValueRollback>

namespace varnik::ui {

using forms::Kind;

namespace {

// The key of the number pad, whichever of the two the keyboard's layout puts on it.
bool IsDecimalKey(const QKeyEvent& event) {
    return event.modifiers().testFlag(Qt::KeypadModifier) &&
           (event.text() == QLatin1String(".") || event.text() == QLatin1String(","));
}

// A password is typed as it is, and in a date the key parts days from months.
bool TakesDecimals(const Binding& binding) {
    const auto* text = dynamic_cast<const forms::TextControl*>(&binding.Control());
    return text && !text->Masked() && !IsDateField(*binding.Widget());
}

} // namespace

Binder::Binder(forms::Screen& screen, QWidget* window, const Regional& regional, Desktop& desktop)
    : screen_(screen), window_(window), regional_(regional), desktop_(desktop) {
    for (forms::Control* control : screen.Controls()) {
        std::unique_ptr<Binding> made = MakeBinding(*this, *control, window);
        Binding& binding = *made;
        bindings_.push_back(std::move(made));
        byControl_.insert(control, &binding);
        if (QWidget* widget = binding.Widget()) {
            widget->setObjectName(ToQt(control->Name()));
            // Tab and clicks are the screen's to decide; the policy tells assistive tools what takes the
            // focus.
            widget->setFocusPolicy(control->CanFocus() || binding.FocusTarget() != widget
                                       ? Qt::TabFocus
                                       : widget->focusPolicy());
            QSizePolicy policy = widget->sizePolicy();
            policy.setRetainSizeWhenHidden(true);
            widget->setSizePolicy(policy);
        }
        for (QWidget* source : binding.EventSources()) {
            sources_.insert(source, &binding);
            source->installEventFilter(this);
        }
        control->Watch([this, &binding] { Changed(binding); });
        if (auto* text = dynamic_cast<forms::TextControl*>(control))
            text->selectAll = [&binding] { binding.SelectAll(); };
    }
    screen.onFocusChanged = [this] { SyncFocus(); };
}

Binder::~Binder() {
    screen_.onFocusChanged = nullptr;
    for (const auto& binding : bindings_) {
        binding->Control().Watch(nullptr);
        if (auto* text = dynamic_cast<forms::TextControl*>(&binding->Control())) text->selectAll = nullptr;
        for (QWidget* source : binding->EventSources()) source->removeEventFilter(this);
    }
    bindings_.clear();
}

Binding* Binder::Find(const forms::Control& control) const { return byControl_.value(&control); }

Binding* Binder::Find(const std::string& name) const {
    const forms::Control* control = screen_.FindControl(name);
    return control ? Find(*control) : nullptr;
}

QWidget* Binder::WidgetOf(const std::string& name) const {
    const Binding* binding = Find(name);
    return binding ? binding->Widget() : nullptr;
}

QLabel* Binder::MakeLabel(Binding& binding, const QString& fallback) {
    auto* label = new QLabel(window_);
    label->setObjectName(binding.Widget()->objectName() + QStringLiteral(".label"));
    label->setBuddy(binding.FocusTarget());
    QSizePolicy policy = label->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    label->setSizePolicy(policy);
    binding.SetLabel(label);
    if (!fallback.isEmpty()) fallbackCaptions_.insert(&binding.Control(), fallback);
    Refresh(binding);
    return label;
}

void Binder::NameField(Binding& binding, const QString& name) {
    fallbackCaptions_.insert(&binding.Control(), name);
    Refresh(binding);
}

void Binder::NameAfter(Binding& binding, const forms::Control& label) {
    NameField(binding, PlainCaption(label.Caption()));
}

void Binder::RefreshAll() {
    for (const auto& binding : bindings_) {
        Refresh(*binding);
        binding->Refresh();
    }
}

// What all kinds share: whether it shows, can be used, and how it is called.
void Binder::Refresh(Binding& binding) {
    const forms::Control& control = binding.Control();
    QWidget* widget = binding.Widget();
    if (!widget) return;
    // A widget that is hidden or disabled hands the toolkit's focus on; only the screen may do that.
    const QScopedValueRollback<bool> quiet(settling_, true);
    const bool shown = control.IsShown();
    const bool appears = shown && widget->isHidden();
    widget->setVisible(shown);
    widget->setEnabled(control.GetKind() == Kind::Frame ? control.Enabled() : control.IsUsable() || !shown);
    widget->setToolTip(ToQt(control.ToolTip()));

    const QString fallback = fallbackCaptions_.value(&control);
    QString name = PlainCaption(control.Caption());
    if (name.isEmpty()) name = fallback;
    if (name.isEmpty()) name = ToQt(control.ToolTip());
    widget->setAccessibleName(name);
    for (QWidget* source : binding.EventSources())
        if (source != widget) source->setAccessibleName(name);
    if (QLabel* label = binding.Label()) {
        label->setText(control.Caption().empty() ? fallback : ToQt(control.Caption()).simplified());
        label->setVisible(shown);
    }
    if (appears && onOverlayShown) onOverlayShown(binding);
}

void Binder::Changed(Binding& binding) {
    Refresh(binding);
    binding.Refresh();
    // A frame hides and disables what it holds.
    if (auto* frame = dynamic_cast<forms::Frame*>(&binding.Control()))
        for (forms::Control* held : frame->Held())
            if (Binding* inner = Find(*held)) Changed(*inner);
}

// ---- The focus ----

void Binder::SyncFocus() {
    if (screen_.Closed()) return;
    const forms::Control* focused = screen_.Focused();
    Binding* binding = focused ? Find(*focused) : nullptr;
    if (!binding) {
        // Between two fields, or nothing can take it: keys come to the window.
        entered_ = nullptr;
        window_->setFocus(Qt::OtherFocusReason);
        return;
    }
    if (binding != entered_) {
        entered_ = binding;
        if (dynamic_cast<const forms::TextControl*>(focused)) lastField_ = binding;
        binding->FocusTarget()->setFocus(Qt::OtherFocusReason);
        binding->SelectAll();
    } else if (!binding->FocusTarget()->hasFocus()) {
        binding->FocusTarget()->setFocus(Qt::OtherFocusReason);
    }
}

// ---- Events of a person ----

bool Binder::eventFilter(QObject* object, QEvent* event) {
    Binding* binding = sources_.value(object);
    if (!binding || screen_.Closed()) return QObject::eventFilter(object, event);
    switch (event->type()) {
    case QEvent::ShortcutOverride:
        event->accept(); // every key comes to us as a key press
        return true;
    case QEvent::KeyPress:
        return OnKey(binding, static_cast<QKeyEvent&>(*event));
    case QEvent::KeyRelease:
        if (const auto key = ToKey(static_cast<QKeyEvent&>(*event))) screen_.ReleaseKey(*key);
        return screen_.Closed();
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return OnPress(*binding, object, static_cast<QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease:
        return std::exchange(swallowRelease_, false);
    case QEvent::Wheel: // never changes a value by accident: the arrows are there for it
        event->ignore();
        return binding->Control().GetKind() == Kind::ComboBox ||
               binding->Control().GetKind() == Kind::DatePicker;
    case QEvent::FocusIn: {
        // Assistive tools move the toolkit's focus themselves.
        const Qt::FocusReason reason = static_cast<QFocusEvent&>(*event).reason();
        if (settling_) return false;
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
            reason == Qt::ShortcutFocusReason) {
            screen_.MoveFocus(binding->Control());
            SyncFocus();
        }
        return false;
    }
    default:
        return QObject::eventFilter(object, event);
    }
}

bool Binder::OnPress(Binding& binding, const QObject* pressed, QMouseEvent& event) {
    forms::Control& control = binding.Control();
    // Buttons and their kin take the focus by their click.
    switch (control.GetKind()) {
    case Kind::TextBox:
    case Kind::ComboBox:
    case Kind::DatePicker:
    case Kind::Grid:
    case Kind::ListGrid:
    case Kind::Tree:
        break;
    default:
        return false;
    }
    if (screen_.Focused() == &control) {
        SyncFocus();
        return binding.Refuses(pressed);
    }
    screen_.MoveFocus(control);
    if (screen_.Closed()) return true;
    SyncFocus();
    if (screen_.Focused() != &control) return swallowRelease_ = true;
    if (event.button() == Qt::LeftButton && binding.EatsEnteringPress(pressed)) return swallowRelease_ = true;
    return binding.Refuses(pressed);
}

bool Binder::PressKey(QKeyEvent& event) { return OnKey(nullptr, event); }

bool Binder::OnKey(Binding* binding, QKeyEvent& event) {
    if (binding && binding->TakesKey(event)) return false;
    if (binding && binding->Handles(event)) return true;
    std::optional<forms::Key> key = ToKey(event);
    if (!key) return false;
    const char32_t pressed = key->character;
    if (binding && IsDecimalKey(event) && TakesDecimals(*binding))
        key->character = static_cast<unsigned char>(regional_.decimal);
    const QPointer<Binder> alive(this);
    const bool help = event.key() == Qt::Key_F1 && onHelp;
    const bool taken = !(help && key->shift) && screen_.PressKey(*key);
    if (!alive || screen_.Closed()) return true;
    SyncFocus();
    if (taken) return true;
    if (help) {
        onHelp();
        return true;
    }
    if (key->code == forms::KeyCode::Enter && key->ctrl && !key->alt) {
        PressSave();
        return true;
    }
    if (!binding) return true;
    if (event.matches(QKeySequence::Paste)) {
        Paste(*binding);
        return true;
    }
    if (binding->HandlesLeft(*key)) return true;
    if (key->code != forms::KeyCode::Character || key->ctrl || key->alt) return false;
    const char32_t typed = screen_.FilterCharacter(key->character);
    if (!alive || screen_.Closed() || typed == 0) return true;
    if (typed == pressed) return false;
    binding->Insert(QString::fromUcs4(&typed, 1));
    return true;
}

// While the button reads "Save": the same button deletes at other times.
void Binder::PressSave() {
    for (forms::Control* control : screen_.Controls()) {
        const bool save =
            control->GetKind() == Kind::Button &&
            PlainCaption(control->Caption()).compare(QLatin1String("Save"), Qt::CaseInsensitive) == 0;
        if (!save || !control->IsUsable()) continue;
        screen_.Click(*control);
        return;
    }
}

// What is pasted is filtered as if it were typed.
void Binder::Paste(Binding& binding) {
    QString passed;
    for (const uint character : QApplication::clipboard()->text().toUcs4()) {
        if (character < 32 && character != '\t') continue;
        const char32_t typed = screen_.FilterCharacter(character);
        if (typed != 0) passed += QString::fromUcs4(&typed, 1);
    }
    if (!passed.isEmpty()) binding.Insert(passed);
}

} // namespace varnik::ui
