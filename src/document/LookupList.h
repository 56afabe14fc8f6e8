#pragma once
// GridCari: the two-column list of codes and names that opens over a screen when a code is asked for.
// Enter or a click hands the row's code to the field it was opened for; Esc goes back without one.

#include "platform/ado/Ado.h"
#include "platform/forms/Grid.h"

#include <functional>
#include <string>
#include <vector>

namespace varnik::document {

class LookupList : public forms::ListGrid {
public:
    explicit LookupList(forms::Screen& screen);

    // Shows the rows of a statement, read as they are looked at; `line` makes "code<tab>name" of one, `take`
    // gets the code without blanks. Back goes the focus.
    using Line = std::function<std::string(const std::vector<Value>& row)>;
    using Take = std::function<void(const std::string& code)>;
    void Open(const ado::RowList& rows, Line line, forms::Control& back, Take take);
    // The same with the first two columns.
    void Open(const ado::RowList& rows, const Regional& regional, forms::Control& back, Take take);

private:
    void Show(forms::Control& back, Take take);
    void Pick();

    forms::Control* back_ = nullptr;
    Take take_;
};

} // namespace varnik::document
