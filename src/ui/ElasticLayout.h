#pragma once
// Form scaling: the layout that a screen has at load is captured once, the toolkit's layouts are then put
// out of action, and from there on the places and letter sizes are those of class_Elastic.

#include "common/Elastic.h"

#include <QPointer>
#include <QWidget>
#include <vector>

class QLayout;

namespace varnik::ui {

class ElasticLayout {
public:
    // Takes the places of everything within the window as they stand, hidden widgets included; shrunk in
    // proportion where the window is larger than the room that the display has for it.
    void Capture(QWidget& window, QSize room);
    bool Captured() const { return captured_; }
    // Gives everything the place it has at the window's present size.
    void Apply(QWidget& window);

private:
    void Collect(QWidget& container);
    void Place(const std::vector<ElasticControl>& places);

    class_Elastic elastic_;
    std::vector<QPointer<QWidget>> widgets_;
    std::vector<ElasticControl> shown_;
    bool captured_ = false;
};

// Whether the widget only holds others, and its own layout is the page's.
bool IsContainer(const QWidget& widget);

// Lets a layout and those within ask their widgets anew: captions come in after it was made.
void ForgetHints(QLayout& layout);

// Runs all layouts from the outside in, hidden panels too, so that every widget has its place.
void SettleLayouts(QWidget& container);

} // namespace varnik::ui
