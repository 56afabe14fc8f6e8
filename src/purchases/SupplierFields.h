#pragma once
// The supplier of a purchase, and the memo that follows from him.

#include "platform/forms/Controls.h"

#include <string_view>

namespace varnik::purchases {

struct SupplierFields {
    // `secondAddress` is the name of the second address box, which the screens spell differently.
    explicit SupplierFields(forms::Screen& screen, std::string_view secondAddress = "TxtAlamat2");

    // Name and address to "".
    void ClearName();

    forms::TextBox TxtKodeSup, TxtNamaSup, TxtAlamat1, TxtAlamat2, TxtAlamat3, txtket;
};

} // namespace varnik::purchases
