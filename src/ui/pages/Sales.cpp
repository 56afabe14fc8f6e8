// The documents of sales.

#include "ui/pages/Page.h"

namespace varnik::ui {

namespace {

Node Totals(std::string last) {
    return Card("", Form({{Field("TxtJumBru", 12), Field("TxtJumNetto", 12)},
                          {Field("TxtJumDis", 12), Field("TxtJumPPN", 12)},
                          {Field("txtJumTotal", 14).Total().Label("Total").Span(2)},
                          {Spring(), Field(std::move(last), 12)}}));
}

} // namespace

std::vector<Page> SalesPages() {
    Node header = Row({Card("", Form({{Field("TxtNoInvoice", 15)},
                                      {Field("TxtTglInvoice", 15)},
                                      {Field("txtCusPO", 15)},
                                      {Field("TxtJTP", 15), Field("TxtPPN", 6)}})),
                       Card("", Form({{Field("TxtKodeCus", 15)},
                                      {Field("TxtNamaCus")},
                                      {Field("TxtAlamat1")},
                                      {AddressRest("TxtAlamat2")}}))
                           .Share(1)});
    Page invoice = DocumentPage(
        "Invoice",
        {std::move(header), GoodsEntry("bttnSearch", "cmdBatalLine"), Totals("TxtSaldo"), {"bttnBayar"}});
    return {invoice};
}

} // namespace varnik::ui
