#pragma once
// The two lists of master screens: the search panel frmCari laid over the fields, and the permanent list.
// Both call their grid grdCari. A screen declares the one it has after its buttons.

#include "master/MasterRow.h"
#include "platform/forms/Controls.h"
#include "platform/forms/Grid.h"

#include <string>

namespace varnik {

class MasterScreen;

struct MasterSearch {
    explicit MasterSearch(MasterScreen& screen);

    forms::Frame frmCari;
    forms::ComboBox txtKreteria;
    forms::TextBox txtValue;
    forms::Button cmdExecute, cmdTutup;
    forms::ListGrid grdCari;

    void SetUp(const SearchRow& row);
    void Open();
    // The statement of the chosen criterion around the value as it is typed, nothing escaped.
    std::string Statement(const SearchRow& row, double valueAsNumber) const;
};

struct MasterList {
    explicit MasterList(MasterScreen& screen);
    forms::ListGrid grdCari;
};

} // namespace varnik
