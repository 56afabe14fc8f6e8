#include "master/fSupplier.h"

#include <cmath>

namespace varnik {

namespace {

constexpr std::string_view criteria[] = {"Code", "Name"};
// The typed criterion is compared in capitals, so the first two are never met: the address is searched.
constexpr SearchClause clauses[] = {
    {"Code", " Where KodeSup Like '%"},
    {"Name", " Where NamaSup Like '%"},
    {"", " Where Alamat_1 +Alamat_2+Alamat_3+Kota  Like '%"},
};
constexpr ListColumn searchColumns[] = {
    {"Code", 12}, {"Supplier name", 28}, {"Address", 36}, {"Final Balance", 16}};
constexpr SearchRow searchRow{
    .select = "Select KodeSup,NamaSup,Alamat_1 + ' '+ Alamat_2 as Alamat ,SaldoAkhir From Supplier",
    .criteria = criteria,
    .clauses = clauses,
    .order = "Order By NamaSup",
    .columns = searchColumns,
    .amount = 3};

constexpr MasterRow row{
    .name = "fSupplier",
    .caption = "Supplier",
    .codeColumn = "KodeSup",
    .select = "Select * from Supplier Where  KodeSup=",
    .nextCode = {.statement = "Select Max(KodeSup) as Kode From Supplier", .throughNullToNumber = true},
    .saveLookup = Lookup::Statement,
    .editLookup = Lookup::Statement,
    .clearsFirst = false,
    .duplicate = LastErrorAlone,
    .missing = LastErrorAlone,
    .cancelShows = Shows::CodeInBox,
    .editNotFound = "Item with this code is not found ...",
    .editNotFoundShows = Shows::CodeInBox,
    .escapeEmptiesCode = true,
    .nameMessage = "Supplier Name should not be empty ...",
    .nameReturns = true,
    .remove = {.lookup = Lookup::Statement,
               .statement = "Delete from Supplier Where KodeSup = ",
               .guard = "SaldoAkhir",
               .refused = "The balance is not zero. This item can not be deleted ...",
               .notFound = "Unable to find record ...\"",
               .confirm = "Are you sure you want delete this record ?",
               .failed = "Unable to delete record ..., Error :",
               .notFoundShows = Shows::Nothing,
               .shows = Shows::Nothing},
    .report = {.file = "Supplier.rpt",
               .statement = "  SELECT    Supplier.KodeSup , Supplier.NamaSup, Supplier.Alamat_1, "
                            "Supplier.Alamat_2, Supplier.Alamat_3, Supplier.Kota, Supplier.Telp, "
                            "Supplier.Fax, Supplier.Contax, Supplier.Jabatan, Supplier.nDis, "
                            "Supplier.nwDis, Supplier.nJTP "
                            " From    Supplier Order By    Supplier.NamaSup Asc ",
               .title = "List Of Supplier"},
    .search = &searchRow};

constexpr const char* Decimals = "#,##0.#0";

} // namespace

fSupplier::fSupplier(Services& services) : MasterScreen(services, row) {
    Carries(txtKode, txtNama,
            {{&txtNama, "NamaSup"},
             {&txtAlamat_1, "Alamat_1"},
             {&txtAlamat_2, "Alamat_2"},
             {&txtAlamat_3, "Alamat_3"},
             {&txtKota, "Kota"},
             {&txtTelp, "Telp"},
             {&txtFax, "Fax"},
             {&txtContax, "Contax"},
             {&txtJabatan, "Jabatan"},
             {&txtnDis, "nDis", "0"},
             {&txtnwDis, "nwDis", "0"},
             {&txtnJTP, "nJTP", "0"},
             {&txtket, "Ket"},
             {&txtSaldoAwal, "SaldoAwal", "0", Decimals},
             {&txtSaldoAkhir, "SaldoAkhir", "0", Decimals}});
    for (forms::TextBox* amount : {&txtnDis, &txtnwDis, &txtnJTP, &txtSaldoAwal, &txtSaldoAkhir})
        amount->SetRightAligned(true);

    txtnDis.onLeave = [this] {
        if (Numeric(txtnDis.Text())) return;
        Say("Enter  a numeric value for this item ..");
        SetFocus(txtnDis);
    };
    for (forms::TextBox* days : {&txtnwDis, &txtnJTP})
        TakesShort(*days, "Enter a numeric value for this item ...");
    txtket.onKeyDown = [this](forms::Key& key) { SaveAndAddNext(key); };
}

// One statement a column: a value that a column refuses leaves that column alone.
void fSupplier::WriteFields(ado::Recordset& supplier) {
    const auto put = [&](const char* column, const Value& value) {
        Resume([&] { supplier[column] = value; });
    };
    put("NamaSup", txtNama.Text());
    put("Alamat_1", txtAlamat_1.Text());
    put("Alamat_2", txtAlamat_2.Text());
    put("Alamat_3", txtAlamat_3.Text());
    put("Kota", txtKota.Text());
    put("Telp", txtTelp.Text());
    put("Fax", txtFax.Text());
    put("Contax", txtContax.Text());
    put("Jabatan", txtJabatan.Text());
    put("nDis", std::trunc(Number(txtnDis)));
    put("nwDis", txtnwDis.Text());
    put("nJTP", txtnJTP.Text());
    put("Ket", txtket.Text());
}

void fSupplier::InsertRecord() {
    ado::Recordset supplier(Select(), connection_);
    if (!supplier.Eof()) return;
    supplier.AddNew();
    supplier["KodeSup"] = Code();
    WriteFields(supplier);
    supplier["SaldoAwal"] = Masked(Number(txtSaldoAwal), Decimals);
    supplier["SaldoAkhir"] = Masked(Number(txtSaldoAkhir), Decimals);
    supplier.Update();
}

void fSupplier::UpdateRecord() {
    ado::Recordset supplier(Select(), connection_);
    if (supplier.Eof()) return;
    WriteFields(supplier);
    supplier["SaldoAwal"] = Number(txtSaldoAwal);
    supplier["SaldoAkhir"] = Number(txtSaldoAkhir);
    supplier.Update();
}

} // namespace varnik
