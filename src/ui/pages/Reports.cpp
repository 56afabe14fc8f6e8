// The report dialogs and ledger books.

#include "ui/pages/Page.h"

namespace varnik::ui {

namespace {

// Sales and purchases: five kinds, the filter, the period, and names that stay on the screen.
Page TradeReportPage(std::string screen) {
    Node choice = Column(
        {Form({{Field("Combo1", 40).By("LblJenis", 15).Span(2)},
               {Field("DTPicker1", 14).By("Label1"), Field("DTPicker2", 14).By("Label2", 8)}}),
         Row({Inside("Frame2", Row({Field("Option1"), Field("Option2"), Spring()})), Spring(),
              Field("DT1", 14), Picture("ProgressBar1", 1, 1).Label("Progress")}),
         Card("Approved By", Inside("Frame3", Column({Form({{Field("TxtAdmin", 30)},
                                                            {Field("txtSupervisor", 30)},
                                                            {Field("txtManajer", 30)}}),
                                                      Heading("No report prints these names").Quiet()})))});
    return ReportDialogPage(
        std::move(screen),
        {"LblTipe", "Frame1", {"opLap1", "opLap2", "opLap3", "opLap4", "opLap5"}, std::move(choice)});
}

Page Inventory() {
    return ReportDialogPage("LapPers1", {.kinds = {"opLap1", "opLap2", "opLap3"},
                                         .choice = Form({{Field("Combo1", 30).By("LblJenis").Span(3)},
                                                         {Field("DTPicker1").By("LblDt1")},
                                                         {Field("DTPicker2").By("LblDt2")}})});
}

Page Cost() {
    return ReportDialogPage("LapBiaya1", {.kinds = {"Option1", "Option2"},
                                          .choice = Form({{Field("Combo1", 30).By("LblJenis").Span(3)},
                                                          {Field("DTPicker1")},
                                                          {Field("DTPicker2")}})});
}

Page Book(const char* screen) {
    return ReportDialogPage(
        screen, {.choice = Form({{Field("Combo1", 42).Span(3)}, {Field("Text1", 6), Field("Text2", 8)}})});
}

} // namespace

std::vector<Page> ReportsPages() {
    return {TradeReportPage("SalesReport"),
            TradeReportPage("PurchasesReport"),
            Inventory(),
            Cost(),
            Book("BukuBank"),
            Book("BukuPiutang"),
            Book("BukuHutang")};
}

} // namespace varnik::ui
