#include "ui/PageBuilder.h"

#include "platform/forms/Controls.h"
#include "ui/DateKeys.h"
#include "ui/QtText.h"
#include "ui/Style.h"

#include <QComboBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTableView>
#include <QTreeView>
#include <QVBoxLayout>

namespace varnik::ui {

using forms::Kind;

namespace {

constexpr int ToolRow = 42; // stays in reach above a panel
constexpr int Gap = 10;     // between neighbours
constexpr int Margin = 14;  // within a card
constexpr int Edge = 16;    // of the window

int CharactersOf(Kind kind, int asked) {
    if (asked > 0) return asked;
    return kind == Kind::DatePicker ? 14 : 0;
}

bool IsField(Kind kind) {
    return kind == Kind::TextBox || kind == Kind::ComboBox || kind == Kind::DatePicker;
}

} // namespace

Binding* PageBuilder::Take(const std::string& name) {
    Binding* binding = binder_.Find(name);
    if (!binding || !binding->Widget()) {
        unknown_ << ToQt(name);
        return nullptr;
    }
    taken_.insert(binding, true);
    return binding;
}

// The look that the page gives the widget: width, large type, primary.
void PageBuilder::Dress(Binding& binding, const Node& node) {
    QWidget& widget = *binding.Widget();
    const forms::Control& control = binding.Control();
    QFont font = window_.font();
    if (node.total) {
        font.setPixelSize(font.pixelSize() * 2 + 4);
        font.setWeight(QFont::Medium);
        widget.setProperty("total", true);
    } else if (node.title) {
        font.setPixelSize(font.pixelSize() * 3 / 2);
        font.setWeight(QFont::Medium);
    } else if (control.FontSize() > 0) {
        font.setPixelSize(control.FontSize() * 96 / 72);
    }
    if (font != window_.font()) widget.setFont(font);
    if (node.quiet) widget.setProperty("quiet", true);
    if (node.date) MarkDateField(widget);
    if (node.primary) widget.setProperty("primary", true);

    const int unit = widget.fontMetrics().averageCharWidth();
    if (IsField(control.GetKind())) {
        const int characters = CharactersOf(control.GetKind(), node.width);
        const int extra = control.GetKind() == Kind::ComboBox ? 40 : 22;
        if (auto* combo = qobject_cast<QComboBox*>(&widget)) {
            combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
            combo->setMinimumContentsLength(std::max(characters, 4));
        }
        widget.setMinimumWidth((characters > 0 ? characters : 10) * unit + extra);
        if (characters > 0 && node.share == 0 && !node.total)
            widget.setMaximumWidth(characters * unit + extra);
        widget.setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        if (qobject_cast<QPlainTextEdit*>(&widget)) {
            const int lines = node.height > 0 ? node.height : 3;
            widget.setMinimumHeight(lines * widget.fontMetrics().height() + 14);
        }
        QSizePolicy policy = widget.sizePolicy();
        policy.setRetainSizeWhenHidden(true);
        widget.setSizePolicy(policy);
        return;
    }
    switch (control.GetKind()) {
    case Kind::Label:
        if (node.width > 0) widget.setMinimumWidth(node.width * unit);
        if (auto* label = qobject_cast<QLabel*>(&widget); label && node.right)
            label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        break;
    case Kind::Grid:
    case Kind::ListGrid:
        widget.setMinimumHeight((node.width > 0 ? node.width : 6) * (widget.fontMetrics().height() + 10) +
                                34);
        widget.setMinimumWidth(node.wide > 0 ? node.wide : 330);
        break;
    case Kind::Tree:
        widget.setMinimumSize(280, (node.width > 0 ? node.width : 10) * (widget.fontMetrics().height() + 10));
        break;
    case Kind::Image:
        widget.setFixedSize(node.width > 0 ? node.width : 64, node.height > 0 ? node.height : 64);
        break;
    case Kind::Button:
        widget.setMinimumWidth(control.Caption().size() <= 3 ? 44 : 92); // "...", "|<"
        break;
    default:
        break;
    }
}

PageBuilder::Piece PageBuilder::Make(const Node& node) {
    switch (node.kind) {
    case Node::Kind::Control:
        return MakeControl(node);
    case Node::Kind::Row:
    case Node::Kind::Column:
        return MakeBox(node);
    case Node::Kind::Form:
        return MakeForm(node);
    case Node::Kind::Card:
    case Node::Kind::Bar:
    case Node::Kind::Inside:
        return MakeFrame(node);
    case Node::Kind::Stack:
        return MakeStack(node);
    case Node::Kind::Heading: {
        auto* heading = new QLabel(ToQt(node.name), &window_);
        heading->setProperty(node.quiet ? "quiet" : "heading", true);
        if (node.title) {
            QFont font = window_.font();
            font.setPixelSize(font.pixelSize() * 3 / 2);
            font.setWeight(QFont::Medium);
            heading->setFont(font);
        }
        return {heading, nullptr};
    }
    case Node::Kind::Spring:
        break;
    }
    return {};
}

QLabel* PageBuilder::LabelOf(const Node& cell, Binding& binding) {
    if (!cell.labelBy.empty()) {
        Binding* by = Take(cell.labelBy);
        auto* label = by ? qobject_cast<QLabel*>(by->Widget()) : nullptr;
        if (label) {
            label->setBuddy(binding.FocusTarget());
            label->setMinimumWidth(cell.labelWidth * label->fontMetrics().averageCharWidth());
            binder_.NameAfter(binding, by->Control());
        }
        return label;
    }
    if (cell.bare || !IsField(binding.Control().GetKind())) {
        if (!cell.label.empty()) binder_.NameField(binding, ToQt(cell.label));
        return nullptr;
    }
    if (binding.Control().Caption().empty() && cell.label.empty()) return nullptr;
    return binder_.MakeLabel(binding, ToQt(cell.label));
}

// A field outside a form carries its caption above it or, in a row, before it.
PageBuilder::Piece PageBuilder::MakeControl(const Node& node) {
    Binding* binding = Take(node.name);
    if (!binding) return {};
    Dress(*binding, node);
    QLabel* label = LabelOf(node, *binding);
    if (!label) return {binding->Widget(), nullptr};
    QBoxLayout* box = nullptr;
    if (node.above) {
        box = new QVBoxLayout;
        box->setSpacing(3);
        label->setProperty("quiet", true);
    } else {
        box = new QHBoxLayout;
        box->setSpacing(Gap);
    }
    box->addWidget(label);
    box->addWidget(binding->Widget());
    return {nullptr, box};
}

void PageBuilder::Add(QBoxLayout& box, const Node& node) {
    if (node.kind == Node::Kind::Spring) {
        box.addStretch(1);
        return;
    }
    const Piece piece = Make(node);
    const Qt::Alignment place = node.centred ? Qt::AlignCenter : Qt::Alignment();
    if (piece.widget) box.addWidget(piece.widget, node.share, place);
    if (piece.layout) box.addLayout(piece.layout, node.share);
}

PageBuilder::Piece PageBuilder::MakeBox(const Node& node) {
    QBoxLayout* box = node.kind == Node::Kind::Row ? static_cast<QBoxLayout*>(new QHBoxLayout)
                                                   : static_cast<QBoxLayout*>(new QVBoxLayout);
    box->setSpacing(Gap);
    const int pad = node.padded ? Edge : 0;
    box->setContentsMargins(pad, pad, pad, pad);
    for (const Node& child : node.children) Add(*box, child);
    return {nullptr, box};
}

void PageBuilder::PutCell(const Node& cell, QGridLayout& grid, int row, int column) {
    const int fieldColumn = 2 * column + 1;
    const int fieldSpan = 2 * cell.span - 1;
    if (cell.kind == Node::Kind::Row) { // several fields behind the caption of the first
        auto* box = new QHBoxLayout;
        box->setSpacing(Gap / 2);
        bool first = true;
        for (const Node& child : cell.children) {
            Binding* binding = child.kind == Node::Kind::Control ? Take(child.name) : nullptr;
            if (!binding) {
                Add(*box, child);
                continue;
            }
            Dress(*binding, child);
            if (QLabel* label = LabelOf(child, *binding)) {
                if (first)
                    grid.addWidget(label, row, 2 * column);
                else
                    box->addWidget(label);
            }
            first = false;
            box->addWidget(binding->Widget(), child.share);
        }
        grid.addLayout(box, row, fieldColumn, 1, fieldSpan);
        return;
    }
    if (cell.kind != Node::Kind::Control) {
        const Piece piece = Make(cell);
        if (piece.widget) grid.addWidget(piece.widget, row, 2 * column, 1, fieldSpan + 1);
        if (piece.layout) grid.addLayout(piece.layout, row, 2 * column, 1, fieldSpan + 1);
        return;
    }
    Binding* binding = Take(cell.name);
    if (!binding) return;
    Dress(*binding, cell);
    if (QLabel* label = LabelOf(cell, *binding)) grid.addWidget(label, row, 2 * column);
    const Kind kind = binding->Control().GetKind();
    const bool narrow = binding->Widget()->maximumWidth() < QWIDGETSIZE_MAX || kind == Kind::CheckBox ||
                        kind == Kind::OptionButton;
    grid.addWidget(binding->Widget(), row, fieldColumn, 1, fieldSpan,
                   narrow ? Qt::AlignLeft | Qt::AlignVCenter : Qt::Alignment());
}

PageBuilder::Piece PageBuilder::MakeForm(const Node& node) {
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(Gap);
    grid->setVerticalSpacing(8);
    int columns = 0;
    for (int row = 0; row < static_cast<int>(node.rows.size()); ++row) {
        int column = 0;
        for (const Node& cell : node.rows[static_cast<std::size_t>(row)]) {
            PutCell(cell, *grid, row, column);
            column += cell.span;
        }
        columns = std::max(columns, column);
    }
    // Captions and fields keep together at the left; what is left over goes to the last fields.
    grid->setColumnStretch(2 * columns - 1, 1);
    // Rows keep together at the top, in line with those of a taller card beside them.
    grid->setRowStretch(static_cast<int>(node.rows.size()), 1);
    return {nullptr, grid};
}

PageBuilder::Piece PageBuilder::MakeFrame(const Node& node) {
    QFrame* frame = nullptr;
    if (node.kind == Node::Kind::Inside) {
        Binding* binding = Take(node.name);
        frame = binding ? qobject_cast<QFrame*>(binding->Widget()) : nullptr;
    } else {
        frame = new QFrame(&window_);
        frame->setProperty(node.kind == Node::Kind::Bar ? "bar" : "card", true);
    }
    if (!frame) return node.children.empty() ? Piece{} : Make(node.children.front());
    auto* column = new QVBoxLayout(frame);
    column->setSpacing(Gap);
    const bool panel = frame->property("card").toBool() || frame->property("overlay").toBool();
    column->setContentsMargins(panel ? Margin : 0, panel ? Margin : 0, panel ? Margin : 0,
                               panel ? Margin : 0);
    if (node.kind == Node::Kind::Card && !node.name.empty()) {
        auto* heading = new QLabel(ToQt(node.name), frame);
        heading->setProperty("heading", true);
        QFont font = window_.font();
        font.setWeight(QFont::DemiBold);
        heading->setFont(font);
        column->addWidget(heading);
    }
    for (const Node& child : node.children) Add(*column, child);
    return {frame, nullptr};
}

PageBuilder::Piece PageBuilder::MakeStack(const Node& node) {
    auto* stack = new QGridLayout;
    for (const Node& panel : node.children) {
        const Piece piece = Make(panel);
        if (piece.widget) stack->addWidget(piece.widget, 0, 0);
        if (piece.layout) stack->addLayout(piece.layout, 0, 0);
    }
    return {nullptr, stack};
}

void PageBuilder::Build(const Page& page) {
    auto* outer = new QVBoxLayout(&window_);
    const int edge = page.family == Family::Main ? 0 : Edge;
    outer->setContentsMargins(edge, edge, edge, edge);
    outer->setSpacing(12);
    Add(*outer, page.content);
    for (const Overlay& overlay : page.overlays) {
        Binding* binding = Take(overlay.control);
        if (!binding) continue;
        binding->Widget()->setProperty("overlay", true);
        if (binding->Control().GetKind() == Kind::Frame) {
            MakeFrame({Node::Kind::Inside, overlay.control, {overlay.content}, {}});
        } else {
            Dress(*binding, overlay.content);
            LabelOf(overlay.content, *binding);
        }
    }
    PlaceLeftovers(*outer);
}

void PageBuilder::BuildGeneral() {
    auto* outer = new QVBoxLayout(&window_);
    outer->setContentsMargins(Edge, Edge, Edge, Edge);
    outer->setSpacing(12);
    PlaceLeftovers(*outer);
    unplaced_.clear(); // all of them stand where this arrangement has them
}

// The general arrangement of whatever no page has placed.
void PageBuilder::PlaceLeftovers(QBoxLayout& below) {
    std::vector<std::vector<Node>> fields;
    std::vector<Node> tables, buttons;
    for (const forms::Control* control : binder_.Screen().Controls()) {
        Binding* binding = binder_.Find(*control);
        if (!binding || !binding->Widget() || taken_.contains(binding)) continue;
        unplaced_ << ToQt(control->Name());
        switch (control->GetKind()) {
        case Kind::Frame: // what it holds stands with the rest and follows its visibility
            taken_.insert(binding, true);
            binding->Widget()->resize(0, 0);
            break;
        case Kind::Button:
            buttons.push_back(Button(control->Name()));
            break;
        case Kind::Grid:
        case Kind::ListGrid:
        case Kind::Tree:
        case Kind::StatusBar:
            tables.push_back(Table(control->Name(), 6).Label(binder_.Screen().Caption()));
            break;
        default:
            fields.push_back({Field(control->Name(), control->GetKind() == Kind::TextBox ? 30 : 0)});
        }
    }
    // A long screen takes two columns of fields.
    constexpr std::size_t tall = 12;
    if (fields.size() > tall) {
        std::vector<std::vector<Node>> paired((fields.size() + 1) / 2);
        for (std::size_t i = 0; i < fields.size(); ++i)
            paired[i % paired.size()].push_back(std::move(fields[i].front()));
        fields = std::move(paired);
    }
    if (!fields.empty()) Add(below, Card("", Form(std::move(fields))));
    for (const Node& table : tables) Add(below, table);
    if (!buttons.empty()) {
        buttons.insert(buttons.begin(), Spring());
        Add(below, Row(std::move(buttons)));
    }
}

QSize PageBuilder::RoomForOverlays(const Page& page) const {
    QSize room;
    for (const Overlay& overlay : page.overlays) {
        const Binding* binding = binder_.Find(overlay.control);
        if (!binding || !binding->Widget() || !binding->Widget()->layout()) continue;
        room = room.expandedTo(binding->Widget()->layout()->totalMinimumSize());
    }
    return room + QSize(2 * Edge, 2 * Edge + ToolRow);
}

void PageBuilder::PlaceOverlays(const Page& page) {
    for (const Overlay& overlay : page.overlays) {
        Binding* binding = binder_.Find(overlay.control);
        if (!binding || !binding->Widget()) continue;
        const QRect room = window_.rect().adjusted(Edge, Edge + ToolRow, -Edge, -Edge);
        const QSize size(overlay.width > 0 ? overlay.width : room.width(),
                         overlay.height > 0 ? overlay.height : room.height());
        binding->Widget()->setGeometry(QRect(room.topLeft(), size.boundedTo(room.size())));
        binding->Widget()->raise();
    }
}

} // namespace varnik::ui
