#pragma once
// Product categories: a code and a name. The one master screen with shortcut keys.

#include "master/MasterScreen.h"

namespace varnik {

class fAccJenisProduk : public MasterScreen {
public:
    explicit fAccJenisProduk(Services& services);
    void Unload() override;
    // A shortcut acts as the key goes down and again as it comes up: wanted.
    void PreviewKeyDown(forms::Key& key) override;
    void PreviewKeyUp(forms::Key& key) override { Shortcut(key); }

    forms::TextBox txtKode{*this, "txtKode", "Code"};
    forms::TextBox txtNama{*this, "txtNama", "Product Category"};
    MasterButtons buttons{*this};
    MasterList list{*this};

protected:
    void InsertRecord() override;
    void UpdateRecord() override;

private:
    void Shortcut(forms::Key& key);
    void ShowHelp() const;
};

} // namespace varnik
