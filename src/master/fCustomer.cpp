#include "master/fCustomer.h"

namespace varnik {

namespace {

constexpr std::string_view criteria[] = {"Code", "Name", "Address", "Final Balance"};
constexpr SearchClause clauses[] = {
    {"CODE", " Where KodeCus Like '%"},
    {"NAME", " Where NamaCus Like '%"},
    {"ADDRESS", " Where Alamat_1 +Alamat_2+Alamat_3+Kota  Like '%"},
    {"", " Where SaldoAkhir = ", true},
};
constexpr ListColumn searchColumns[] = {{"Code", 12}, {"Name", 28}, {"Address", 36}, {"Balance", 16}};
constexpr SearchRow searchRow{
    .select = "Select KodeCus,NamaCus,Alamat_1 + ' '+ Alamat_2 as Alamat ,SaldoAkhir From Customer",
    .criteria = criteria,
    .clauses = clauses,
    .order = "Order By NamaCus",
    .columns = searchColumns,
    .amount = 3,
    .activationTakes = true};

constexpr MasterRow row{
    .name = "fCustomer",
    .caption = "Customer - Varnik",
    .codeColumn = "KodeCus",
    .main = "SELECT * FROM customer",
    .select = "Select * From Customer Where KodeCus = ",
    .show = "Select   * From Customer Where KodeCus = ",
    .nextCode = {.statement = "Select Max (KodeCus) as Kode From Customer ", .throughNullToNumber = true},
    .editLookup = Lookup::Statement,
    .duplicate = LastErrorAlone,
    .missing = ItemNotFound,
    .reportsSave = true,
    .editNotFound = "Item with this code is not found ...",
    .existing = "Item with this code is found ...",
    .nameMessage = "Enter  name of customer, please ...\"",
    .nameReturns = true,
    .remove = {.guard = "SaldoAkhir",
               .guardsNegative = true,
               .refused = "The balance is not zero. Item may not deleted ...",
               .notFound = "Unable to find record ...",
               .confirm = "Are you sure you want delete this record ?",
               .failed = "Item may not deleted, Error :",
               .notFoundShows = Shows::CurrentRow,
               .requeries = true},
    .report = {.file = "Customer.rpt",
               .statement = "SELECT KodeCus, NamaCus, Alamat_1, Alamat_2, Alamat_3, Kota, Telp, "
                            "SaldoAwal, SaldoAkhir From    Customer Order By KodeCus",
               .title = "Customer"},
    .search = &searchRow};

constexpr const char* Decimals = "#,##0.#0";
constexpr int TypeCode = 3; // characters of an entry of the type list, the name follows

} // namespace

fCustomer::fCustomer(Services& services) : MasterScreen(services, row) {
    Carries(txtKode, txtNama,
            {{&txtNama, "NamaCus"},
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
             {&TxtNPWP, "NPWP"},
             {&txtSaldoAwal, "SaldoAwal", "0", Decimals},
             {&txtSaldoAkhir, "SaldoAkhir", "0", Decimals},
             {&txtket, "Ket"},
             {&Combo1, "", "", "", true},
             {&TxtJenis, "", "", "", true}});
    for (forms::TextBox* amount : {&txtnDis, &txtnwDis, &txtnJTP, &txtSaldoAwal, &txtSaldoAkhir})
        amount->SetRightAligned(true);

    TxtJenis.onLeave = [this] { LeaveJenis(); };
    Combo1.onLeave = [this] { LeaveTypeName(); };
    // The reading of txtnDis takes the leading digits of any text, so nothing is refused there.
    TakesShort(txtnwDis, "Enter  with number, please");
    TakesShort(txtnJTP, "Enter  with number, please ...");
    // Not the mask in which a record is shown: wanted.
    for (forms::TextBox* balance : {&txtSaldoAwal, &txtSaldoAkhir})
        balance->onLeave = [this, balance] { Reformats(*balance); };
    AsksToSave(txtket, "Varnik", true);
}

void fCustomer::FillLists() {
    for (const std::string& type : Sess().CustomerTypes) Combo1.AddItem(Mid(type, TypeCode + 1));
}

void fCustomer::RecordShown(ado::Recordset& customer) {
    Combo1.SetText("");
    TxtJenis.SetText(TextOf(customer["JenisCus"]));
    LeaveJenis();
}

// ---- The type: code and name of the run's list ----

void fCustomer::LeaveJenis() {
    Combo1.SetText("");
    const std::string code = Upper(Trim(TxtJenis.Text()));
    for (const std::string& type : Sess().CustomerTypes)
        if (Upper(Trim(Left(type, TypeCode))) == code) {
            Combo1.SetText(Mid(type, TypeCode + 1));
            return;
        }
}

void fCustomer::LeaveTypeName() {
    const std::string name = Upper(Trim(Combo1.Text()));
    for (const std::string& type : Sess().CustomerTypes)
        if (Upper(Trim(Mid(type, TypeCode + 1))) == name) TxtJenis.SetText(Left(type, TypeCode));
}

// ---- The row ----

bool fCustomer::Exists() {
    return !ado::Recordset("Select * from Customer Where KodeCus = " + Quoted(Code()), connection_).Eof();
}

// The tax number is not part of a new row, only of a change: wanted.
void fCustomer::InsertRecord() {
    if (Exists()) return;
    std::string statement = "Insert Into Customer  "
                            "( KodeCus ,NamaCus ,Alamat_1,Alamat_2 ,Alamat_3 ,Kota ,Telp, Fax ,Contax, "
                            "Jabatan,nDis,nwDis,nJTP ,SaldoAwal,SaldoAkhir,Ket  ,JenisCus ) "
                            " Values  ( ";
    for (const forms::TextBox* text : {&txtKode, &txtNama, &txtAlamat_1, &txtAlamat_2, &txtAlamat_3, &txtKota,
                                       &txtTelp, &txtFax, &txtContax, &txtJabatan})
        statement += Quoted(*text) + ",";
    for (const forms::TextBox* amount : {&txtnDis, &txtnwDis, &txtnJTP, &txtSaldoAwal, &txtSaldoAkhir})
        statement += Amount(*amount) + ",";
    Execute(statement + Quoted(txtket) + "," + Quoted(TxtJenis) + ")");
    main_.Requery();
}

// Terms and discounts go in with the mask: from 1,000 on a comma stands in the statement, which then
// fails with the database's own words. Wanted.
void fCustomer::UpdateRecord() {
    if (!Exists()) return;
    Execute(" Update Customer Set NamaCus = " + Quoted(txtNama) + ",Alamat_1 = " + Quoted(txtAlamat_1) +
            ",Alamat_2 = " + Quoted(txtAlamat_2) + ",Alamat_3 = " + Quoted(txtAlamat_3) +
            ",Kota = " + Quoted(txtKota) + ",Telp = " + Quoted(txtTelp) + ",Fax = " + Quoted(txtFax) +
            ",Contax = " + Quoted(txtContax) + ",Jabatan = " + Quoted(txtJabatan) +
            ",nDis = " + MaskedInSql(Number(txtnDis)) + ",nwDis = " + MaskedInSql(Number(txtnwDis)) +
            ",nJTP = " + MaskedInSql(Number(txtnJTP)) + ",SaldoAwal = " + Amount(txtSaldoAwal) +
            ",SaldoAkhir = " + Amount(txtSaldoAkhir) + ",Ket = " + Quoted(txtket) + ",NPWP = " +
            Quoted(TxtNPWP) + ",JenisCus = " + Quoted(TxtJenis) + "  Where KodeCus = " + Quoted(Code()));
}

} // namespace varnik
