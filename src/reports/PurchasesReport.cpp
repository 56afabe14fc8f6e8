// The label over the filter says "Customer" on two kinds, and "Supplier" goes to the caption of the second
// date; the ageing report's month follows its title without a blank; only the first kind looks at the
// filter alone: all wanted.

#include "reports/PurchasesReport.h"

namespace varnik {

namespace {

using enum TradeKind::List;
using enum TradeKind::Detail;

const TradeTable Table{
    .typesCaption = "Purchases Repotrs Type",
    .parties = "Select KodeSup, NamaSup From Supplier Order By KodeSup",
    .ageingByChoice = true,
    .kinds = {{
        {.caption = "Aged Payables",
         .file = "\\Agging2.rpt",
         .windowTitle = "Aged Payables",
         .reportTitle = "Aged Payables",
         .statement = "SELECT  Supplier.KodeSup, Supplier.NamaSup,    Faktur.NoFaktur, Faktur.TglFaktur, "
                      "Faktur.Saldo From "
                      " Supplier Supplier LEFT JOIN Faktur Faktur ON Supplier.KodeSup = Faktur.KodeSup ",
         .filtered = "  SELECT  Supplier.KodeSup, Supplier.NamaSup,    Faktur.NoFaktur, Faktur.TglFaktur, "
                     "Faktur.Saldo From "
                     " Supplier Supplier LEFT JOIN Faktur Faktur ON Supplier.KodeSup = Faktur.KodeSup "
                     "WHERE Faktur.KodeSup = '{code}' ",
         .judul = "Aged Payables",
         .typeLabel = "Customer",
         .resetsDates = true},
        {.caption = "Category Product",
         .file = "\\LapBeli1.rpt",
         .windowTitle = "Purchases Reports ( Product Category) ",
         .reportTitle = "Purchases Reports ( Product Category) ",
         .statement = " SELECT KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,PPN,Total,JenisProduk,JenisBrg "
                      "From QryPembelianDetail "
                      " Where TglFaktur between {period} Order By KodeBrg, TglFaktur",
         .filtered = " SELECT KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,PPN,Total,JenisProduk,JenisBrg "
                     "From QryPembelianDetail "
                     " Where JenisBrg = '{code}'  and TglFaktur between {period} Order By KodeBrg, TglFaktur",
         .judul = "Purchases Reports ( Product Category)",
         .typeLabel = "Category Product",
         .list = Types,
         .detail = Third,
         .clearsFilter = true,
         .resetsDates = true},
        {.caption = "Supplier",
         .file = "\\LapBeli2.rpt",
         .windowTitle = "Purchases Reports ( Supplier )",
         .reportTitle = "Purchases Reports ( Supplier )",
         .statement = " SELECT KodeSup,NamaSup,KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,Total,"
                      "JenisProduk,JenisBrg From QryPembelianDetail "
                      " Where TglFaktur between {period} Order by KodeSup, tglfaktur",
         .filtered = " SELECT KodeSup,NamaSup,KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,Total,"
                     "JenisProduk,JenisBrg From QryPembelianDetail "
                     " Where KodeSup= '{code}'  and TglFaktur between {period} Order by KodeSup, tglfaktur",
         .judul = "Purchases Reports ( Supplier )",
         .typeLabel = "Customer",
         .detail = Second,
         .clearsFilter = true,
         .resetsDates = true,
         .upToLabel = "Supplier"},
        {.caption = "Purchases Invoice Balance",
         .file = "\\LapFaktur.rpt",
         .windowTitle = "Purchases Invoice Balance",
         .reportTitle = "Purchases Invoice Balance",
         .statement = " SELECT KodeSup,NamaSup,NoFaktur,TglFaktur,Total,Bayar,Saldo From    QryInvSupplier "
                      " Where TglFaktur between {period}",
         .filtered = " SELECT KodeSup,NamaSup,NoFaktur,TglFaktur,Total,Bayar,Saldo From    QryInvSupplier "
                     " Where TglFaktur between {period}  And  KodeSup= '{code}'",
         .resetsDates = true,
         .upToLabel = "Supplier"},
        {.caption = "Purchases Returns",
         .file = "\\LapReturBeli2.rpt",
         .windowTitle = "Purchases Returns Reports ( Supplier )",
         .reportTitle = "Purchases Returns Reports ( Supplier )",
         .statement = " SELECT KodeSup,NamaSup,KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,Total2,"
                      "JenisProduk,JenisBrg From QryPoRetur "
                      " Where TglFaktur between {period} Order by KodeSup, tglfaktur",
         .filtered = " SELECT KodeSup,NamaSup,KodeBrg,NamaBrg,Qty,Satuan,Bruto,Disc,Netto,Total2,"
                     "JenisProduk,JenisBrg From QryPORetur "
                     " Where KodeSup= '{code}'  and TglFaktur between {period} Order by KodeSup, tglfaktur",
         .judul = "Purchases Returns Reports",
         .list = Unchanged,
         .detail = Second},
    }}};

} // namespace

PurchasesReport::PurchasesReport(Services& services) : TradeReport(services, "PurchasesReport", Table) {}

} // namespace varnik
