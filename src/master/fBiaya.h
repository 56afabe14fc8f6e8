#pragma once
// Cost details: what other payments are booked on, each under a cost type.

#include "master/MasterScreen.h"

namespace varnik {

class fBiaya : public MasterScreen {
public:
    explicit fBiaya(Services& services);

    forms::TextBox txtKode{*this, "txtKode", "Code"};
    forms::TextBox txtNama{*this, "txtNama", "Description"};
    forms::ComboBox TxtKodeAcc{*this, "TxtKodeAcc", "Cost Category"};
    MasterButtons buttons{*this};
    MasterList list{*this};

protected:
    void InsertRecord() override;
    void UpdateRecord() override;
    void FillLists() override;
    void RecordShown(ado::Recordset& row) override;
    void Find() override { FindInMain(Trim(Code())); } // shows nothing: wanted

private:
    void LeaveType();
    std::string TypeCode() const;

    ado::Recordset types_;
};

} // namespace varnik
