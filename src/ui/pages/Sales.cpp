// The documents of sales.

#include "ui/pages/Page.h"

namespace varnik::ui {

namespace {

// The account of a receipt, with how it is read.
Node AccountOfReceipt() {
    return Row({Field("TxtRekening", 26), Heading("read by its first character").Quiet(), Spring()});
}

Node Totals(std::string last) {
    return Card("", Form({{Field("TxtJumBru", 12), Field("TxtJumNetto", 12)},
                          {Field("TxtJumDis", 12), Field("TxtJumPPN", 12)},
                          {Field("txtJumTotal", 14).Total().Label("Total").Span(2)},
                          {Spring(), Field(std::move(last), 12)}}));
}

Page BayarPage() {
    Node voucher = Card("", Form({{Field("txtNoBukti", 15)},
                                  {Field("txtTglJurnal", 15)},
                                  {Field("TxtCaraBayar", 15)},
                                  {AccountOfReceipt()},
                                  {Field("TxtNamaPenerima")},
                                  {Field("TxtMemo")}}));
    Node invoice = Card("", Form({{Field("TxtNoInvoice", 15)},
                                  {Field("TxtKodeCus", 15)},
                                  {Field("TxtNamaCus", 30)},
                                  {Field("TxtJumlah", 15)},
                                  {Field("txtDibayar", 15)},
                                  {Field("TxtSaldo", 15)}}));
    return DialogPage("Bayar", Row({std::move(voucher).Share(1), std::move(invoice)}),
                      {"bttnSave", "bttnPrint", "bttnClose"});
}

Page BayarInvoicePage() {
    Node head = Row({Card("", Form({{Field("txtNoBukti", 15)},
                                    {Field("txtTglJurnal", 15)},
                                    {Field("TxtCaraBayar", 15)},
                                    {AccountOfReceipt()},
                                    {Field("TxtNamaPenerima", 60)},
                                    {Field("TxtMemo", 60)}}))
                         .Share(1),
                     Card("Cheque", Form({{Field("TxtNamaBank", 36)},
                                          {Field("TxtNoCek", 36)},
                                          {Field("TxtPemilik", 36)},
                                          {Field("TxtTglJTP", 15)}}))});
    Node entry = Card("", Row({Field("TxtNoInvoice", 13).Above(), Column({Heading(" "), Button("Command1")}),
                               Field("TxtJumlah", 13).Above(), Field("TxtKodeCus", 12).Above(),
                               Field("TxtNamaCus", 24).Above().Share(1),
                               Column({Heading(" "), Button("bttnAddLine").Primary()})}));
    return VoucherPage("BayarInvoice", {std::move(head), std::move(entry)});
}

Page InvoiceReturPage() {
    Node header = Row({Card("", Form({{Field("TxtReturID", 15)},
                                      {Field("TxtTglRetur", 15).Date()},
                                      {Row({Field("TxtNoInvoice", 15), Button("bttnSearch"), Spring()})},
                                      {Field("TxtTglInvoice", 15)},
                                      {Field("TxtPPN", 6)}})),
                       Card("", Form({{Field("TxtKodeCus", 15)},
                                      {Field("TxtNamaCus")},
                                      {Field("TxtAlamat")},
                                      {Field("txtket")},
                                      {Field("Combo1", 20)}}))
                           .Share(1)});
    Node totals = Card("", Form({{Field("TxtJumBru", 12), Field("TxtJumNetto", 12)},
                                 {Field("TxtJumDis", 12), Field("TxtJumPPN", 12)},
                                 {Field("txtJumTotal", 14).Total().Label("Total").Span(2)}}));
    Page page = DocumentPage("InvoiceRetur", {.header = std::move(header),
                                              .entry = GoodsEntry("", "cmdBatalLine"),
                                              .totals = std::move(totals),
                                              .lookup = ""});
    page.overlays.push_back(SecondSearchOver());
    return page;
}

} // namespace

std::vector<Page> SalesPages() {
    Node header = Row({Card("", Form({{Field("TxtNoInvoice", 15)},
                                      {Field("TxtTglInvoice", 15)},
                                      {Field("txtCusPO", 15)},
                                      {Field("TxtJTP", 15).Date(), Field("TxtPPN", 6)}})),
                       Card("", Form({{Field("TxtKodeCus", 15)},
                                      {Field("TxtNamaCus")},
                                      {Field("TxtAlamat1")},
                                      {AddressRest("TxtAlamat2")}}))
                           .Share(1)});
    Page invoice = DocumentPage(
        "Invoice",
        {std::move(header), GoodsEntry("bttnSearch", "cmdBatalLine"), Totals("TxtSaldo"), {"bttnBayar"}});
    return {std::move(invoice), BayarPage(), BayarInvoicePage(), InvoiceReturPage()};
}

} // namespace varnik::ui
