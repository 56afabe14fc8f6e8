#pragma once
// The lines of other payments: what is spent on which cost, entered on the line above the grid.

#include "common/Regional.h"
#include "document/KeyedItems.h"
#include "document/OrderLines.h"
#include "platform/forms/Controls.h"

#include <string>
#include <vector>

namespace varnik::cashbook {

class CostLines {
public:
    enum Column { Cost, Type, Description, Amount };

    CostLines(forms::Screen& screen, const Regional& regional);

    bool Editing() const { return bttnAddLine.Caption() == "&Edit"; }
    // The entry line into the grid: the current row while the button reads "&Edit", else a new one.
    void Write();
    // A line as it was saved.
    void Append(const std::string& cost, const std::string& type, const std::string& description,
                double amount);
    void TakeBack(); // the current row on the entry line, an empty one to be filled
    void RemoveCurrentRow();
    void ClearLine(); // the next line is a new one
    void Clear();
    // How many rows hold the cost and the type of the entry line.
    int Repeated() const;
    double AmountOf(int row) const; // 0 where it is no number
    bool AmountsAreNumeric() const; // of all rows but the empty one
    double JumBayar() const { return JumBayar_; }

    forms::Frame FrameIsiBarang;
    forms::ComboBox TxtBiaya, TxtJenisBiaya;
    forms::TextBox TxtJumlah;
    forms::Button bttnAddLine, cmdBatalLine;
    document::OrderLines OrderGrid;
    forms::Label lblJumBAYAR;

private:
    std::string Masked(double amount) const;
    void ShowSum();

    const Regional& regional_;
    double JumBayar_ = 0; // of the rows with a code
};

} // namespace varnik::cashbook
