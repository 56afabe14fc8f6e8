// The look-up lists of customers and products, and the search for an invoice.

#include "sales/Invoice.h"

namespace varnik {

void Invoice::ListCustomers() {
    const std::string name = Trim(TxtNamaCus.Text());
    OpenList(GridCari,
             name.empty() ? "SELECT KodeCus,NamaCus FROM Customer Order By KodeCus"
                          : "SELECT KodeCus,NamaCus FROM Customer  Where NamaCus Like '%" + name +
                                "%' Order By KodeCus",
             TxtKodeCus, [this] { CustomerLeft(); });
}

void Invoice::ListProducts() {
    if (Browsing()) return;
    const std::string description = Trim(line_.TxtDiskripsi.Text());
    OpenList(GridCari,
             description.empty() ? "SELECT KodeBrg,NamaBrg FROM produk Order by KodeBrg "
                                 : "SELECT KodeBrg,NamaBrg FROM Produk where NamaBrg Like '%" + description +
                                       "%' Order By Kodebrg",
             line_.txtKodeBrg, [this] {
                 ChooseProduct();
                 SetFocus(line_.txtQty);
                 codeHit_ = false;
             });
}

void Invoice::Find() { frmCari.Open(); }

void Invoice::TakeFound() {
    constexpr int NumberColumn = 2;
    const std::string number = frmCari.Chosen(NumberColumn);
    if (!number.empty()) {
        ClearInvoice();
        TxtNoInvoice.SetText(number);
        LoadInvoice(number);
    }
    frmCari.Close();
}

} // namespace varnik
