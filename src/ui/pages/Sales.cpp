// The documents of sales.

#include "ui/pages/Page.h"

namespace varnik::ui {

namespace {

Node EntryLine() {
    return Column({
        Row({Field("txtKodeBrg", 13).Above(), Field("TxtDiskripsi", 24).Above().Share(1),
             Column({Heading(" "), Button("bttnSearch")}), Column({Heading(" "), Field("Check2")})}),
        Row({Field("txtQty", 7).Above(), Field("TxtSatuan", 8).Above(), Field("txtHarga", 11).Above(),
             Field("TxtBru", 11).Above(), Field("TxtDis", 11).Above(), Field("TxtHrgTot", 11).Above(),
             Spring()}),
        Row({Button("bttnAddLine").Primary(), Button("cmdBatalLine"), Spring()}),
        Spring(),
    });
}

Node Totals(std::string last) {
    return Card("", Form({{Field("TxtJumBru", 12), Field("TxtJumNetto", 12)},
                          {Field("TxtJumDis", 12), Field("TxtJumPPN", 12)},
                          {Field("txtJumTotal", 14).Total().Label("Total").Span(2)},
                          {Spring(), Field(std::move(last), 12)}}));
}

} // namespace

std::vector<Page> SalesPages() {
    Node header =
        Row({Card("", Form({{Field("TxtNoInvoice", 15)},
                            {Field("TxtTglInvoice", 15)},
                            {Field("TxtJTP", 15)},
                            {Field("txtCusPO", 15), Field("TxtPPN", 6)}})),
             Card("", Form({{Field("TxtKodeCus", 15)},
                            {Field("TxtNamaCus")},
                            {Field("TxtAlamat1")},
                            {Row({Field("TxtAlamat2").Share(1).Label("Address, second line").Bare(),
                                  Field("TxtAlamat3").Share(1).Label("Address, third line").Bare()})}}))
                 .Share(1)});
    Page invoice =
        DocumentPage("Invoice", {std::move(header), EntryLine(), Totals("TxtSaldo"), {"bttnBayar"}});
    return {invoice};
}

} // namespace varnik::ui
