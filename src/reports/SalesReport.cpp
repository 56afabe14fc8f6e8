// Kinds 2 and 3 reset the dates and empty the filter; the margin columns come with a filter alone, and before
// one of the order clauses no blank stands: all wanted.

#include "reports/SalesReport.h"

namespace varnik {

namespace {

using enum TradeKind::List;
using enum TradeKind::Detail;

const TradeTable Table{
    .typesCaption = "Sales Reports Type",
    .parties = "Select KodeCus, NamaCus From Customer Order By KodeCus",
    .ageingByChoice = false,
    .kinds = {{
        {.caption = "Aged Receivables",
         .file = "\\Agging.rpt",
         .windowTitle = "Aged Receivables",
         .reportTitle = "Aged Receivables",
         .statement =
             "  SELECT  Customer.KodeCus, Customer.NamaCus,    Invoice.NoInvoice , Invoice.TglInvoice, "
             "Invoice.Saldo From "
             " Customer Customer LEFT JOIN Invoice Invoice ON Customer.KodeCus = Invoice.KodeCus ",
         .filtered =
             "  SELECT  Customer.KodeCus, Customer.NamaCus,    Invoice.NoInvoice , Invoice.TglInvoice, "
             "Invoice.Saldo From "
             " Customer Customer LEFT JOIN Invoice Invoice ON Customer.KodeCus = Invoice.KodeCus "
             "WHERE Customer.KodeCus = '{code}' ",
         .judul = "Aged Receivables  ",
         .typeLabel = "Customer"},
        {.caption = "Category Product",
         .file = "\\LapJual1.rpt",
         .windowTitle = "Sales Reports ( Product Category) ",
         .reportTitle = "Sales Reports ( Product Category) ",
         .statement = " SELECT KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,PPN,Total,JenisProduk,JenisBrg "
                      "From QryPenjualanDetail "
                      " Where TglInvoice between {period}Order by KodeBrg, TglInvoice",
         .filtered =
             " SELECT KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,PPN,Total,JenisProduk,JenisBrg "
             "From QryPenjualanDetail "
             " Where JenisBrg = '{code}'  and TglInvoice between {period}Order by KodeBrg, TglInvoice",
         .judul = "Sales Reports ( Product Category)",
         .typeLabel = "Category Product",
         .list = Types,
         .detail = Third,
         .clearsFilter = true,
         .resetsDates = true},
        {.caption = "Customer",
         .file = "\\LapJual2.rpt",
         .windowTitle = "Sales Reports ( Customer )",
         .reportTitle = "Sales Reports ( Customer)",
         .statement = " SELECT KodeCus,NamaCus,KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,PPN,Total,"
                      "JenisProduk,JenisBrg From QryPenjualanDetail "
                      " Where  TglInvoice between {period}  Order By kodebrg, KodeCus, tglInvoice",
         .filtered = " SELECT KodeCus,NamaCus,KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,PPN,Total,"
                     "JenisProduk,JenisBrg, THPP, THPPRATA, MARGIN From QryPenjualanDetail "
                     " Where KodeCus= '{code}'  and TglInvoice between {period}"
                     " Order By kodebrg, KodeCus, tglInvoice",
         .judul = "Sales Reports ( Customer )",
         .typeLabel = "Customer",
         .detail = Second,
         .clearsFilter = true,
         .resetsDates = true},
        {.caption = "Sales Invoice Balance",
         .file = "\\LapInvoice.rpt",
         .windowTitle = "Invoice Balance",
         .reportTitle = "Invoice Balance",
         .statement = " SELECT KodeCus,NamaCus,NoInvoice,TglInvoice,Total,Bayar,Saldo From    QryInvCustomer "
                      " Where TglInvoice between {period}",
         .filtered = " SELECT KodeCus,NamaCus,NoInvoice,TglInvoice,Total,Bayar,Saldo From    QryInvCustomer "
                     " Where KodeCus= '{code}' And TglInvoice between {period}",
         .typeLabel = "Customer"},
        {.caption = "Sales Returns",
         .file = "\\LapReturJual2.rpt",
         .windowTitle = "Sales Returns Reports ( Customer )",
         .reportTitle = "Sales Returns Reports ( Customer)",
         .statement = " SELECT KodeCus,NamaCus,KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,PPN,Total2,Ket2 "
                      "From QryInvoiceRetur "
                      " Where  TglInvoice between {period}  Order By kodebrg, KodeCus, tglInvoice",
         .filtered = " SELECT KodeCus,NamaCus,KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,PPN,Total2,ket2  "
                     "From QryInvoiceRetur "
                     " Where KodeCus= '{code}'  and TglInvoice between {period}"
                     " Order By kodebrg, KodeCus, tglInvoice",
         .judul = "Sales Returns History",
         .list = Unchanged,
         .detail = Second},
    }}};

} // namespace

SalesReport::SalesReport(Services& services) : TradeReport(services, "SalesReport", Table) {}

} // namespace varnik
