// The report dialogs and ledger books.

#include "ui/pages/Page.h"

namespace varnik::ui {

namespace {

Page Inventory() {
    return ReportDialogPage("LapPers1", {.kindsFrame = "",
                                         .kinds = {"opLap1", "opLap2", "opLap3"},
                                         .choice = Form({{Field("Combo1", 30).By("LblJenis").Span(3)},
                                                         {Field("DTPicker1").By("LblDt1")},
                                                         {Field("DTPicker2").By("LblDt2")}})});
}

Page Cost() {
    return ReportDialogPage("LapBiaya1", {.kindsFrame = "",
                                          .kinds = {"Option1", "Option2"},
                                          .choice = Form({{Field("Combo1", 30).By("LblJenis").Span(3)},
                                                          {Field("DTPicker1")},
                                                          {Field("DTPicker2")}})});
}

Page Book(const char* screen) {
    return ReportDialogPage(
        screen, {.kindsFrame = "",
                 .kinds = {},
                 .choice = Form({{Field("Combo1", 42).Span(3)}, {Field("Text1", 6), Field("Text2", 8)}})});
}

} // namespace

std::vector<Page> ReportsPages() {
    return {Inventory(), Cost(), Book("BukuBank"), Book("BukuPiutang"), Book("BukuHutang")};
}

} // namespace varnik::ui
