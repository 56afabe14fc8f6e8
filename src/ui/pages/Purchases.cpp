// The documents of purchases.

#include "ui/pages/Page.h"

namespace varnik::ui {

namespace {

Node Supplier(std::string secondAddress, Node code) {
    return Card("", Form({{std::move(code)},
                          {Field("TxtNamaSup")},
                          {Field("TxtAlamat1")},
                          {AddressRest(std::move(secondAddress))},
                          {Field("txtket")}}))
        .Share(1);
}

Node Totals() {
    return Card("", Form({{Field("TxtJumBru", 12), Field("TxtJumDis", 12)},
                          {Field("TxtJumNetto", 12), Spring()},
                          {Field("txtJumTotal", 14).Total().Label("Total").Span(2)}}));
}

const std::vector<std::string> Navigation{"bttnFirst", "bttnPrev", "bttnNext", "bttnLast"};

Page FakturPage() {
    Node header =
        Row({Card("", Form({{Field("TxtNoFaktur", 15)},
                            {Field("TxtTglFaktur", 15)},
                            {Field("txtFaksup", 15)},
                            {Field("TxtJTP", 15)}})),
             Supplier("TxtAlamat2", Row({Field("TxtKodeSup", 15), Button("bttnSearch(0)"), Spring()}))});
    return DocumentPage(
        "Faktur", {std::move(header), GoodsEntry("bttnSearch(1)", "bttnBatalLine"), Totals(), Navigation});
}

Page FakturReturPage() {
    Node header = Row({Card("", Form({{Field("TxtNoFaktur", 15)},
                                      {Field("TxtTglFaktur", 15)},
                                      {Field("txtNoPO", 15)},
                                      {Field("TxtTglPO", 15)}})),
                       Supplier("txtAlamat2", Field("TxtKodeSup", 15))});
    return DocumentPage("FakturRetur", {.header = std::move(header),
                                        .entry = GoodsEntry("", "bttnBatalLine"),
                                        .totals = Totals(),
                                        .furtherButtons = Navigation,
                                        .lookup = "",
                                        .search = false});
}

} // namespace

std::vector<Page> PurchasesPages() { return {FakturPage(), FakturReturPage()}; }

} // namespace varnik::ui
