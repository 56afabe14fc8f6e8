// The fields: text, drop-down, date, check box, option.

#include "platform/forms/Controls.h"
#include "ui/Binder.h"
#include "ui/DateKeys.h"
#include "ui/QtText.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QScopedValueRollback>
#include <QStyle>

namespace varnik::ui {

namespace {

// Brings a text in without moving the cursor of who is typing.
void Show(QLineEdit& edit, const std::string& text) {
    const QString shown = ToQt(text);
    if (edit.text() == shown) return;
    const int cursor = edit.cursorPosition();
    edit.setText(shown);
    if (edit.hasFocus() && !edit.isReadOnly())
        edit.setCursorPosition(std::min(cursor, int(shown.size())));
    else
        edit.setCursorPosition(0);
}

// Setting a limit anew, even the same one, moves the cursor and forgets what could be undone.
void Limit(QLineEdit& edit, int characters) {
    constexpr int unlimited = 32767;
    const int limit = characters > 0 ? characters : unlimited;
    if (edit.maxLength() != limit) edit.setMaxLength(limit);
}

// The menu of a field. The toolkit's own would paste past the screen's filter: this one presses the keys.
void OfferClipboard(QLineEdit& edit) {
    edit.setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(&edit, &QLineEdit::customContextMenuRequested, &edit, [&edit](const QPoint& place) {
        auto* menu = new QMenu(&edit);
        menu->setAttribute(Qt::WA_DeleteOnClose);
        const auto add = [&](const QString& text, int key, bool usable) {
            QAction* action = menu->addAction(text);
            action->setEnabled(usable);
            QObject::connect(action, &QAction::triggered, &edit, [&edit, key] {
                QKeyEvent press(QEvent::KeyPress, key, Qt::ControlModifier);
                QCoreApplication::sendEvent(&edit, &press);
            });
        };
        const bool marked = edit.hasSelectedText() && edit.echoMode() == QLineEdit::Normal;
        add(QStringLiteral("Cu&t"), Qt::Key_X, marked && !edit.isReadOnly());
        add(QStringLiteral("&Copy"), Qt::Key_C, marked);
        add(QStringLiteral("&Paste"), Qt::Key_V, !edit.isReadOnly());
        add(QStringLiteral("Select &All"), Qt::Key_A, !edit.text().isEmpty());
        menu->popup(edit.mapToGlobal(place));
    });
}

class LineBinding : public Binding {
public:
    LineBinding(Binder& binder, forms::TextBox& box, QLineEdit* edit)
        : Binding(binder, box, edit), box_(box), edit_(edit) {
        QObject::connect(edit, &QLineEdit::textChanged, edit, [this](const QString& text) {
            if (refreshing_) return;
            box_.Type(FromQt(text));
            Refresh();
        });
        OfferClipboard(*edit);
    }
    void Refresh() override {
        const QScopedValueRollback<bool> quiet(refreshing_, true);
        Limit(*edit_, box_.MaxLength());
        Show(*edit_, box_.Text());
        edit_->setReadOnly(box_.Locked());
        edit_->setAlignment((box_.RightAligned() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
        edit_->setEchoMode(box_.Masked() ? QLineEdit::Password : QLineEdit::Normal);
        SetLook(edit_, "locked", box_.Locked());
    }
    void SelectAll() override { edit_->selectAll(); }
    void Insert(const QString& text) override { edit_->insert(text); }
    bool EatsEnteringPress(const QObject*) const override { return true; }
    // A date that is kept as a text, while it stands there as it was found: what is being typed may have a
    // "-" of its own.
    bool HandlesLeft(const forms::Key& key) override {
        if (!IsDateField(*edit_) || box_.Locked() || edit_->selectedText() != edit_->text()) return false;
        const Regional& regional = binder_.Settings();
        const auto date = DateByKey(key, ParseDate(box_.Text(), regional), binder_.Now());
        if (!date) return false;
        box_.Type(ShortDate(*date, regional));
        Refresh();
        SelectAll();
        return true;
    }

private:
    forms::TextBox& box_;
    QLineEdit* edit_;
    bool refreshing_ = false;
};

class MemoBinding : public Binding {
public:
    MemoBinding(Binder& binder, forms::TextBox& box, QPlainTextEdit* edit)
        : Binding(binder, box, edit), box_(box), edit_(edit) {
        edit->setTabChangesFocus(true);
        edit->setContextMenuPolicy(Qt::NoContextMenu);
        QObject::connect(edit, &QPlainTextEdit::textChanged, edit, [this] {
            if (refreshing_) return;
            box_.Type(FromQt(edit_->toPlainText()));
            Refresh();
        });
    }
    QList<QWidget*> EventSources() const override { return {edit_, edit_->viewport()}; }
    void Refresh() override {
        const QScopedValueRollback<bool> quiet(refreshing_, true);
        if (edit_->toPlainText() != ToQt(box_.Text())) edit_->setPlainText(ToQt(box_.Text()));
        edit_->setReadOnly(box_.Locked());
        SetLook(edit_, "locked", box_.Locked());
    }
    void SelectAll() override { edit_->selectAll(); }
    void Insert(const QString& text) override { edit_->insertPlainText(text); }
    bool EatsEnteringPress(const QObject*) const override { return true; }

private:
    forms::TextBox& box_;
    QPlainTextEdit* edit_;
    bool refreshing_ = false;
};

// The items of a drop-down. It holds none of them: what the list shows is read from the control, so that one
// of all customers costs what is looked at.
class ItemsModel : public QAbstractListModel {
public:
    ItemsModel(const forms::ComboBox& box, QObject* owner) : QAbstractListModel(owner), box_(box) {}
    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
    QVariant data(const QModelIndex& index, int role) const override {
        if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
        const auto row = static_cast<std::size_t>(index.row());
        return row < box_.Items().size() ? ToQt(box_.Items()[row]) : QString();
    }
    // Takes in other items; false when they are those it has.
    bool Renew() {
        if (contents_ == box_.Contents()) return false;
        beginResetModel();
        contents_ = box_.Contents();
        rows_ = static_cast<int>(box_.Items().size());
        endResetModel();
        return true;
    }

private:
    const forms::ComboBox& box_;
    unsigned contents_ = 0;
    int rows_ = 0;
};

class ComboBinding : public Binding {
public:
    ComboBinding(Binder& binder, forms::ComboBox& box, QComboBox* combo)
        : Binding(binder, box, combo), box_(box), combo_(combo), items_(new ItemsModel(box, combo)) {
        if (!box.ListOnly()) {
            combo->setEditable(true);
            combo->setCompleter(nullptr);
            OfferClipboard(*combo->lineEdit());
            QObject::connect(combo, &QComboBox::editTextChanged, combo, [this](const QString& text) {
                if (refreshing_) return;
                box_.Type(FromQt(text));
                Refresh();
            });
        }
        combo->setModel(items_);
        auto* list = new QListView(combo); // its rows take the style sheet's height
        list->setUniformItemSizes(true);
        combo->setView(list);
        combo->setInsertPolicy(QComboBox::NoInsert);
        combo->setMaxVisibleItems(14);
        QObject::connect(combo, &QComboBox::activated, combo, [this](int index) {
            if (refreshing_) return;
            box_.Pick(index);
            Refresh();
        });
    }
    QList<QWidget*> EventSources() const override {
        if (combo_->lineEdit()) return {combo_, combo_->lineEdit()};
        return {combo_};
    }
    void Refresh() override {
        const QScopedValueRollback<bool> quiet(refreshing_, true);
        // A long list is as wide as its field: measuring every item would take longer than opening the
        // screen.
        constexpr int Measured = 200;
        if (items_->Renew() && items_->rowCount() > Measured)
            combo_->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        if (QLineEdit* edit = combo_->lineEdit()) {
            // Choosing the item rewrites the text, and the caret would come back to its beginning.
            const int caret = edit->cursorPosition();
            combo_->setCurrentIndex(box_.ListIndex());
            Show(*edit, box_.Text());
            if (edit->hasFocus() && edit->cursorPosition() != caret)
                edit->setCursorPosition(std::min(caret, int(edit->text().size())));
            edit->setReadOnly(box_.Locked());
            Limit(*edit, box_.MaxLength());
        } else {
            // A text that is no item shows all the same.
            const int index = box_.ListIndex();
            combo_->setCurrentIndex(index);
            combo_->setPlaceholderText(index < 0 ? ToQt(box_.Text()) : QString());
        }
        SetLook(combo_, "locked", box_.Locked());
    }
    void SelectAll() override {
        if (combo_->lineEdit()) combo_->lineEdit()->selectAll();
    }
    bool EatsEnteringPress(const QObject* pressed) const override { return pressed == combo_->lineEdit(); }
    bool Refuses(const QObject* pressed) const override { return box_.Locked() && pressed == combo_; }
    void Insert(const QString& text) override {
        if (combo_->lineEdit()) combo_->lineEdit()->insert(text);
    }
    bool TakesKey(QKeyEvent& event) override {
        const bool opens = event.key() == Qt::Key_F4 ||
                           (event.key() == Qt::Key_Down && event.modifiers().testFlag(Qt::AltModifier));
        return opens && !box_.Locked();
    }

private:
    forms::ComboBox& box_;
    QComboBox* combo_;
    ItemsModel* items_;
    bool refreshing_ = false;
};

// A check box or an option: the screen's Click turns it over, the widget then shows what came of it.
template <typename ControlType, typename WidgetType>
class TickBinding : public Binding {
public:
    TickBinding(Binder& binder, ControlType& tick, WidgetType* widget)
        : Binding(binder, tick, widget), tick_(tick), widget_(widget) {
        QObject::connect(widget, &WidgetType::clicked, widget, [this] {
            const QPointer<QWidget> alive(widget_);
            tick_.Owner().Click(tick_);
            if (alive) Refresh();
        });
    }
    void Refresh() override {
        widget_->setText(ToQt(tick_.Caption()));
        widget_->setChecked(tick_.Checked());
    }

private:
    ControlType& tick_;
    WidgetType* widget_;
};

} // namespace

std::unique_ptr<Binding> MakeFieldBinding(Binder& binder, forms::Control& control, QWidget* parent) {
    switch (control.GetKind()) {
    case forms::Kind::TextBox: {
        auto& box = static_cast<forms::TextBox&>(control);
        if (box.MultiLine()) return std::make_unique<MemoBinding>(binder, box, new QPlainTextEdit(parent));
        return std::make_unique<LineBinding>(binder, box, new QLineEdit(parent));
    }
    case forms::Kind::ComboBox:
        return std::make_unique<ComboBinding>(binder, static_cast<forms::ComboBox&>(control),
                                              new QComboBox(parent));
    case forms::Kind::DatePicker:
        return MakeDateBinding(binder, static_cast<forms::DatePicker&>(control), new QDateEdit(parent));
    case forms::Kind::CheckBox:
        return std::make_unique<TickBinding<forms::CheckBox, QCheckBox>>(
            binder, static_cast<forms::CheckBox&>(control), new QCheckBox(parent));
    case forms::Kind::OptionButton: {
        auto* button = new QRadioButton(parent);
        button->setAutoExclusive(false); // the screen knows the groups
        return std::make_unique<TickBinding<forms::OptionButton, QRadioButton>>(
            binder, static_cast<forms::OptionButton&>(control), button);
    }
    default:
        return nullptr;
    }
}

} // namespace varnik::ui
