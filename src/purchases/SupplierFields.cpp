#include "purchases/SupplierFields.h"

namespace varnik::purchases {

SupplierFields::SupplierFields(forms::Screen& screen, std::string_view secondAddress)
    : TxtKodeSup(screen, "TxtKodeSup", "Supplier ID "),
      TxtNamaSup(screen, "TxtNamaSup", "Name"),
      TxtAlamat1(screen, "TxtAlamat1", "Address"),
      TxtAlamat2(screen, std::string(secondAddress)),
      TxtAlamat3(screen, "TxtAlamat3"),
      txtket(screen, "txtket", "Memo") {
    TxtKodeSup.SetMaxLength(10);
    TxtKodeSup.SetToolTip("F5, or Enter on an empty code, lists the suppliers");
    TxtNamaSup.SetMaxLength(50);
    txtket.SetMaxLength(100);
}

void SupplierFields::ClearName() {
    for (forms::TextBox* text : {&TxtNamaSup, &TxtAlamat1, &TxtAlamat2, &TxtAlamat3}) text->SetText("");
}

} // namespace varnik::purchases
