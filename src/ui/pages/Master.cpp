// The screens of the master files.

#include "ui/pages/Page.h"

namespace varnik::ui {

namespace {

// Customers and suppliers: who, where, terms and balances.
Node Partner(Node heading, std::vector<Node> money) {
    std::vector<std::vector<Node>> moneyRows;
    for (Node& field : money) moneyRows.push_back({std::move(field)});
    return Column({
        std::move(heading),
        Row({Card("Address", Form({{Field("txtAlamat_1")},
                                   {Field("txtAlamat_2").Label("Address 2")},
                                   {Field("txtAlamat_3").Label("Address 3")},
                                   {Field("txtKota", 20)},
                                   {Field("txtTelp", 20)},
                                   {Field("txtFax", 20)},
                                   {Field("txtContax", 20)},
                                   {Field("txtJabatan", 20)}}))
                 .Share(1),
             Card("Terms and balance", Column({Form(std::move(moneyRows)), Spring()}))}),
    });
}

// A code and a name over the permanent list.
Page TypePage(const char* screen, std::vector<std::vector<Node>> further = {}) {
    std::vector<std::vector<Node>> rows{{Field("txtKode", 14)}, {Field("txtNama")}};
    for (auto& row : further) rows.push_back(std::move(row));
    return MasterPage(screen, Card("", Form(std::move(rows))), false);
}

} // namespace

std::vector<Page> MasterPages() {
    Node product = Column({
        Card("", Form({{Field("txtKode", 14), Field("Check1")},
                       {Field("txtNama").Span(2)},
                       {Row({Field("TxtJenis", 5).Label("Type"), Field("Combo1").Share(1)}).Span(2)}})),
        Card("Units and prices",
             Form({{Field("TxtSatuan", 10), Field("txtPecahan", 7)},
                   {Field("TxtSatuanBeli", 10), Field("TxtPecahanBeli", 7), Field("txtHargaBeli", 12)},
                   {Field("TxtSatuanJual", 10), Field("TxtPecahanJual", 7), Field("TxtHargaJual", 12)}})),
        // In columns, as the entry goes.
        Row({Card("Cost and stock",
                  Form({{Field("TxtHPPRata", 10), Field("TxtOnHand", 10)},
                        {Field("txtQCounter", 10), Field("TxtQAwal", 10)},
                        {Field("TxtQGudang", 10), Field("txtOnOrder", 10).Label("On Order")}})),
             Card("Supplier", Form({{Field("TxtKodeSup")}, {Field("txtKodeRef")}, {Field("txtket")}}))
                 .Share(1)}),
    });
    Node customer =
        Partner(Card("", Form({{Field("txtKode", 14)},
                               {Field("txtNama")},
                               {Row({Field("TxtJenis", 5), Field("Combo1").Label("Name").Share(1)})}})),
                {Field("txtnDis", 8).Label("Discount"), Field("txtnwDis", 8).Label("Discount Days"),
                 Field("txtnJTP", 8), Field("TxtNPWP", 20), Field("txtSaldoAwal", 16),
                 Field("txtSaldoAkhir", 16), Field("txtket", 24)});
    Node supplier = Partner(Card("", Form({{Field("txtKode", 14)}, {Field("txtNama")}})),
                            {Field("txtnDis", 8).Label("Discount"),
                             Field("txtnwDis", 8).Label("Discount Days"), Field("txtnJTP", 8),
                             Field("txtSaldoAwal", 16), Field("txtSaldoAkhir", 16), Field("txtket", 24)});
    Node code =
        Row({Field("txtRekID", 6),
             Heading("one character to receive from customers, three to pay suppliers").Quiet(), Spring()});
    Node bank = Column({
        Card("", Form({{std::move(code).Span(2)},
                       {Field("TxtNamaBank").Span(2)},
                       {Field("txtNoRek", 24), Field("txtJenisRek")},
                       {Field("txtNamaPemilik").Span(2)}})),
        Row({Card("Balance", Form({{Field("txtSaldoAwal", 16)}, {Field("txtSaldoAkhir", 16)}})),
             Card("Use", Form({{Field("txtket")}, {Field("Check1")}})).Share(1)}),
        Spring(),
    });
    return {MasterPage("fProduk", std::move(product)),
            MasterPage("fCustomer", std::move(customer)),
            MasterPage("fSupplier", std::move(supplier)),
            MasterPage("fBank", std::move(bank)),
            TypePage("fAccJenisProduk"),
            TypePage("frmJenisCustomer"),
            TypePage("fJenisBiaya"),
            TypePage("fBiaya", {{Field("TxtKodeAcc")}})};
}

} // namespace varnik::ui
