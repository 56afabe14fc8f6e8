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

Page FakturPage() {
    Node header =
        Row({Card("", Form({{Field("TxtNoFaktur", 15)},
                            {Field("TxtTglFaktur", 15)},
                            {Field("txtFaksup", 15)},
                            {Field("TxtJTP", 15).Date()}})),
             Supplier("TxtAlamat2", Row({Field("TxtKodeSup", 15), Button("bttnSearch(0)"), Spring()}))});
    return DocumentPage("Faktur", {std::move(header), GoodsEntry("bttnSearch(1)", "bttnBatalLine"), Totals(),
                                   NavigationButtons()});
}

Page FakturReturPage() {
    Node header = Row({Card("", Form({{Field("TxtNoFaktur", 15)},
                                      {Field("TxtTglFaktur", 15).Date()},
                                      {Field("txtNoPO", 15)},
                                      {Field("TxtTglPO", 15).Date()}})),
                       Supplier("txtAlamat2", Field("TxtKodeSup", 15))});
    return DocumentPage("FakturRetur", {.header = std::move(header),
                                        .entry = GoodsEntry("", "bttnBatalLine"),
                                        .totals = Totals(),
                                        .furtherButtons = NavigationButtons(),
                                        .lookup = "",
                                        .search = false});
}

Page BayarFakturPage() {
    Node account =
        Row({Field("TxtRekening", 36), Heading("read by its first three characters").Quiet(), Spring()});
    Node head = Row({Card("", Form({{Field("txtNoBukti", 15)},
                                    {Field("txtTglJurnal", 15)},
                                    {Field("TxtCaraBayar", 15)},
                                    {std::move(account)},
                                    {Field("TxtNamaPenerima")},
                                    {Field("TxtMemo")}}))
                         .Share(1),
                     Card("", Form({{Field("TxtNamaBank", 26)},
                                    {Field("TxtNoCek", 26)},
                                    {Field("TxtPemilik", 26)},
                                    {Field("TxtTglJTP", 15)}}))});
    Node entry = Row({Field("TxtNoFaktur", 14).Above(), Column({Heading(" "), Button("Command1")}),
                      Field("TxtJumlah", 14).Above(), Field("TxtKodeSup", 12).Above(),
                      Field("TxtNamaSup", 24).Above().Share(1),
                      Column({Heading(" "), Button("bttnAddLine").Primary()})});
    return VoucherPage("BayarFaktur", {.head = std::move(head), .entry = std::move(entry)});
}

} // namespace

std::vector<Page> PurchasesPages() { return {FakturPage(), FakturReturPage(), BayarFakturPage()}; }

} // namespace varnik::ui
