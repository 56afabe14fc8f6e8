#pragma once
// A shop, a clerk with every right, and hands on the one screen under test.

#include "platform/forms/Controls.h"
#include "tests/support/TemporaryShop.h"

namespace varnik {

class ClerkTest : public testing::Test {
public:
    ClerkTest() {
        shop.session.NoUser = "00";
        shop.session.RightTambah = shop.session.RightHapus = true;
        shop.session.DateMask = "mm/dd/yyyy";
        shop.session.PaymentMethod = {"", "CASH", "CHEQUE", "BG"};
    }

    template <typename Opened>
    void Open(std::unique_ptr<Opened> opened) {
        const std::string name = opened->Name();
        shop.desktop.Show(std::move(opened));
        screen = shop.desktop.FindScreen(name);
    }
    template <typename T>
    T& Control(const char* name) {
        return dynamic_cast<T&>(*screen->FindControl(name));
    }
    void Fill(const char* name, const char* text) {
        auto& field = Control<forms::TextControl>(name);
        screen->MoveFocus(field);
        field.Type(text);
        screen->MoveNext();
    }
    void Click(const char* name) { screen->Click(*screen->FindControl(name)); }

    TemporaryShop shop;
    forms::Screen* screen = nullptr;
};

} // namespace varnik
