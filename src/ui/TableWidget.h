#pragma once
// The table of every screen: row heights and column widths follow the font, headings sort on a click, and
// what a list was narrowed to is marked in its cells and named in a corner.

#include <QTableView>

class QLabel;

namespace varnik::ui {

class TableModel;

class TableWidget : public QTableView {
public:
    explicit TableWidget(QWidget* parent);

    void Take(TableModel& model);
    TableModel* Model() const;
    void Spread();     // gives the columns their widths
    void SpreadAnew(); // as the rows are others, unless a person has set the widths
    // Back to the rows as the control has them.
    void ForgetOrder();
    // Names what the list is narrowed to; nothing for an empty text.
    void ShowNarrowed(const QString& text);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    int NeededWidth(int column, int heading) const;
    void PlaceNote();

    QLabel* note_;
    bool spreading_ = false, widthsByHand_ = false;
};

} // namespace varnik::ui
