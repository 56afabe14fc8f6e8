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

    // Shows the rows, "code<tab>name" each; `take` gets the code without blanks. Back goes the focus.
    void Open(std::vector<std::string> rows, forms::Control& back,
              std::function<void(const std::string& code)> take);

private:
    void Pick();

    forms::Control* back_ = nullptr;
    std::function<void(const std::string&)> take_;
};

// The first two columns of every row, joined by a tab.
std::vector<std::string> CodesAndNames(ado::Recordset& rows, const Regional& regional);

} // namespace varnik::document
