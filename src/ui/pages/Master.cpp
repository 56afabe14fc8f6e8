// The screens of the master files.

#include "ui/pages/Page.h"

namespace varnik::ui {

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
    return {MasterPage("fProduk", std::move(product))};
}

} // namespace varnik::ui
