#pragma once
// Makes layouts of a page's description, out of the widgets that the binder holds. A screen without a page
// takes the general arrangement: captions and fields in rows, tables, and the buttons below.

#include "ui/Binder.h"
#include "ui/pages/Page.h"

#include <QHash>
#include <QStringList>

class QBoxLayout;
class QGridLayout;
class QLayout;

namespace varnik::ui {

class PageBuilder {
public:
    PageBuilder(Binder& binder, QWidget& window) : binder_(binder), window_(window) {}

    void Build(const Page& page);
    void BuildGeneral();

    // Names that the page has and the screen lacks, and controls that no layout holds.
    const QStringList& Unknown() const { return unknown_; }
    const QStringList& Unplaced() const { return unplaced_; }

    // The least size of window in which every overlay has the room that it needs.
    QSize RoomForOverlays(const Page& page) const;
    // Gives the overlays the place they have in a window of the present size.
    void PlaceOverlays(const Page& page);

private:
    // A widget or a layout, whichever the node becomes.
    struct Piece {
        QWidget* widget = nullptr;
        QLayout* layout = nullptr;
        explicit operator bool() const { return widget || layout; }
    };
    Piece Make(const Node& node);
    Piece MakeControl(const Node& node);
    Piece MakeBox(const Node& node);
    Piece MakeForm(const Node& node);
    Piece MakeFrame(const Node& node);
    Piece MakeStack(const Node& node);
    void Dress(Binding& binding, const Node& node);
    void PutCell(const Node& cell, QGridLayout& grid, int row, int column);
    QLabel* LabelOf(const Node& cell, Binding& binding);
    void Add(QBoxLayout& box, const Node& node);
    Binding* Take(const std::string& name);
    void PlaceLeftovers(QBoxLayout& below);

    Binder& binder_;
    QWidget& window_;
    QHash<const Binding*, bool> taken_;
    QStringList unknown_, unplaced_;
};

} // namespace varnik::ui
