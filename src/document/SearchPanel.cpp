#include "document/SearchPanel.h"

#include "common/Numbers.h"
#include "common/Text.h"
#include "platform/desktop/Failure.h"
#include "platform/forms/Screen.h"

namespace varnik::document {

SearchPanel::SearchPanel(forms::Screen& screen, SearchLayout layout, const SearchNames& names)
    : layout_(std::move(layout)),
      frame_(screen, std::string(names.frame)),
      criterion_(screen, std::string(names.criterion), "Search By"),
      value_(screen, std::string(names.value), "Value"),
      execute_(screen, std::string(names.execute), "&Execute"),
      take_(screen, std::string(names.take), "C&lose"),
      grid_(screen, std::string(names.grid)) {
    frame_.Hold({&criterion_, &value_, &execute_, &take_, &grid_});
    frame_.SetOverlay(true);
    frame_.SetVisible(false);
    for (const std::string_view offered : layout_.offered) criterion_.AddItem(std::string(offered));
    if (layout_.offered.empty())
        for (const SearchChoice& choice : layout_.choices) criterion_.AddItem(std::string(choice.caption));
    criterion_.SetText(criterion_.Items().front());
    grid_.SetColumns(layout_.columns);
    execute_.onClick = [this] { onExecute(); };
    take_.onClick = [this] { onTake(); };
    grid_.onActivate = [this] { onTake(); };
    for (forms::Control* control : frame_.Held())
        control->onKeyDown = [this](forms::Key& key) {
            if (!key.Is(forms::KeyCode::Escape)) return;
            key.handled = true;
            Close();
        };
}

void SearchPanel::Open() {
    frame_.SetVisible(true);
    frame_.Owner().SetFocus(value_);
}

std::string SearchPanel::Statement() const {
    std::string statement(layout_.select);
    // An unknown criterion adds nothing: everything is listed.
    for (const SearchChoice& choice : layout_.choices)
        if (Upper(Trim(criterion_.Text())) == Upper(choice.caption))
            return statement.append(choice.before).append(value_.Text()).append(choice.after);
    return statement;
}

void SearchPanel::Execute(ado::Connection& connection, Services& services) {
    ado::RowList rows;
    try {
        rows = ReadList(services, Statement(), connection);
    } catch (const ado::DataError& failure) {
        if (failure.Number() == ado::Stopped) return;
        if (layout_.failsAloud) throw;
    }
    grid_.SetSource(rows.Count(), [this, rows, &regional = services.regional](int index) {
        std::string line;
        Resume([&] { line = Line(rows.Row(index), regional); });
        return line;
    });
}

std::string SearchPanel::Line(const std::vector<Value>& row, const Regional& regional) const {
    std::string line;
    for (std::size_t column = 0; column < std::min(layout_.columns.size(), row.size()); ++column) {
        if (column > 0) line += '\t';
        const bool amount = layout_.columns[column].align == forms::Align::Right;
        line += amount ? FormatNumber(NullToNumber(row[column], regional), layout_.mask, regional)
                       : NullToText(row[column], regional);
    }
    return line;
}

} // namespace varnik::document
