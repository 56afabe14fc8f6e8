// The vouchers of the cash book.

#include "ui/pages/Page.h"

namespace varnik::ui {

namespace {

Node Voucher() {
    return Card("", Form({{Field("txtNoBukti", 15)},
                          {Field("txtTglJurnal", 15)},
                          {Field("TxtCaraBayar", 15)},
                          {Field("TxtRekening", 50).Share(1)},
                          {Field("TxtNamaPenerima", 50).Share(1)},
                          {Field("TxtMemo", 50).Share(1)}}))
        .Share(1);
}

Node Cheque() { return Card("Cheque", Form({{Field("TxtNoCek", 26)}, {Field("TxtTglJTP", 15)}})); }

} // namespace

std::vector<Page> CashbookPages() {
    Node amount = Card("", Form({{Field("TxtJumlah", 16).Total().Label("Amount")}}));
    Page receipt = VoucherPage("OtherReceive",
                               {.head = Row({Voucher(), Column({Cheque(), std::move(amount), Spring()})}),
                                .entry = Spring(),
                                .furtherButtons = NavigationButtons(),
                                .lines = false,
                                .secondSearch = false});
    Node entry =
        Row({Field("TxtBiaya", 34).Above().Share(1), Field("TxtJenisBiaya", 24).Above(),
             Field("TxtJumlah", 14).Above(),
             Column({Heading(" "), Row({Button("bttnAddLine").Primary(), Button("cmdBatalLine")})})});
    Page payment = VoucherPage("OtherPayment", {.head = Row({Voucher(), Column({Cheque(), Spring()})}),
                                                .entry = Inside("FrameIsiBarang", std::move(entry)),
                                                .furtherButtons = NavigationButtons(),
                                                .secondSearch = false});
    return {std::move(receipt), std::move(payment)};
}

} // namespace varnik::ui
