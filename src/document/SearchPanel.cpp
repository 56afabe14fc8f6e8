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

void SearchPanel::Execute(ado::Connection& connection, const Regional& regional) {
    std::vector<std::string> list;
    const auto search = [&] {
        ado::Recordset rows(Statement(), connection, ado::CursorType::Static);
        const int columns = static_cast<int>(layout_.columns.size());
        for (; !rows.Eof(); rows.MoveNext()) {
            std::string line;
            for (int column = 0; column < columns; ++column) {
                const Value value = rows[column];
                if (column > 0) line += '\t';
                const bool amount =
                    layout_.columns[static_cast<std::size_t>(column)].align == forms::Align::Right;
                line += amount ? FormatNumber(NullToNumber(value, regional), layout_.mask, regional)
                               : NullToText(value, regional);
            }
            list.push_back(std::move(line));
        }
    };
    if (layout_.failsAloud)
        search();
    else
        Resume(search);
    grid_.SetItems(std::move(list));
}

} // namespace varnik::document
