#include "master/fProduk.h"

namespace varnik {

namespace {

constexpr std::string_view criteria[] = {"Code", "Product Description"};
// The typed criterion is compared in capitals, so the first clause is never met: the description is searched.
constexpr SearchClause clauses[] = {{"Code", " Where KodeBrg Like '%"}, {"", " Where  NamaBrg Like '%"}};
constexpr ListColumn searchColumns[] = {{"Code", 12}, {"Product Description", 40}, {"Qty", 12}, {"Unit", 12}};
constexpr SearchRow searchRow{.select = "Select KodeBrg,NamaBrg,Onhand,Satuan From Produk ",
                              .criteria = criteria,
                              .clauses = clauses,
                              .order = "Order By NamaBrg ",
                              .columns = searchColumns,
                              .amount = 2,
                              .activationTakes = true};

constexpr MasterRow row{
    .name = "fProduk",
    .caption = "Product",
    .codeColumn = "KodeBrg",
    .main = "SELECT * FROM Produk Order By KodeBrg",
    .select = "Select * From Produk Where KodeBrg = ",
    .show = "Select  a.*, b.NamaSup From Produk a Left Join Supplier b on  a.KodeSup = b.KodeSup "
            "Where a.KodeBrg = ",
    .nextCode = {.statement = "Select Max (KodeBrg) as Kode From Produk ", .throughNullToNumber = true},
    .editLookup = Lookup::Statement,
    .savedShows = Shows::CurrentRow,
    .cancelShows = Shows::SavedRow,
    .editNotFound = "Unable to find record ....",
    .editNotFoundShows = Shows::SavedRow,
    .existing = "This Record Already Exist ....",
    .remove = {.guard = "OnHand",
               .refused = "Stock balance should not be zero...",
               .notFound = "Unable To Find Record ...",
               .confirm = "Are you sure record will be deleted  ?",
               .failed = "This Record can not be deleted, because this error. ",
               .notFoundShows = Shows::LastRow},
    .report = {.file = "persediaan.rpt", .title = "Report of product and service", .firstTitle = 1},
    .search = &searchRow};

constexpr const char* Whole = "#,##0";
constexpr int TypeCode = 3, SupplierKey = 10; // characters

std::string TypeItem(const std::string& code, const std::string& name) { return code + " - " + name; }

} // namespace

fProduk::fProduk(Services& services) : MasterScreen(services, row) {
    Carries(txtKode, txtNama,
            {{&txtNama, "NamaBrg"},
             {&TxtJenis, "JenisBrg"},
             {&Check1, "Jasa"},
             {&Combo1, ""},
             {&txtPecahan, "Pecahan", "1"},
             {&TxtSatuan, "Satuan"},
             {&TxtPecahanBeli, "PecahanBeli", "1"},
             {&TxtSatuanBeli, "SatuanBeli"},
             {&txtHargaBeli, "HargaBeli", "0", Whole},
             {&TxtPecahanJual, "PecahanJual", "1"},
             {&TxtSatuanJual, "SatuanJual"},
             {&TxtHargaJual, "HargaJual", "0", Whole},
             {&TxtHPPRata, "HPPRata", "0", Whole},
             {&TxtQAwal, "QAwal", "0", Whole},
             {&txtQCounter, "QCounter", "0", Whole},
             {&TxtQGudang, "QGudang", "0", Whole},
             {&TxtOnHand, "OnHand", "0", Whole},
             {&txtOnOrder, "OnOrder", "0", Whole},
             {&txtKodeRef, "KodeRef"},
             {&TxtKodeSup, ""},
             {&txtket, "Ket"}});
    for (forms::TextControl* amount : std::initializer_list<forms::TextControl*>{
             &txtPecahan, &TxtPecahanBeli, &txtHargaBeli, &TxtPecahanJual, &TxtHargaJual, &TxtHPPRata,
             &TxtQAwal, &txtQCounter, &TxtQGudang, &TxtOnHand, &txtOnOrder})
        amount->SetRightAligned(true);

    Check1.onClick = [this] { SwitchService(); };
    TxtJenis.onLeave = [this] { LeaveJenis(); };
    Combo1.onLeave = [this] { LeaveCategory(); };
    txtPecahan.onKeyDown = [this](forms::Key& key) {
        if (key.Is(forms::KeyCode::Enter)) Reformats(txtPecahan);
    };
    TxtPecahanBeli.onLeave = [this] { Reformats(TxtPecahanBeli); };
    // The selling quantity reformats the purchase quantity, not itself: wanted.
    TxtPecahanJual.onLeave = [this] {
        if (Numeric(TxtPecahanJual.Text())) TxtPecahanBeli.SetText(Masked(Number(TxtPecahanBeli)));
    };
    txtHargaBeli.onLeave = [this] {
        Reformats(txtHargaBeli);
        if (mode_ == Adding) TxtHPPRata.SetText(txtHargaBeli.Text());
    };
    for (forms::TextBox* amount : {&TxtHargaJual, &TxtHPPRata, &TxtQAwal})
        amount->onLeave = [this, amount] { Reformats(*amount); };
    txtQCounter.onLeave = [this] { SumOnHand(); };
    TxtQGudang.onLeave = [this] { SumOnHand(); };
    TxtOnHand.onLeave = [this] {
        if (mode_ == Adding) TxtQAwal.SetText(Masked(Number(TxtOnHand)));
    };
    for (forms::ComboBox* unit : {&TxtSatuan, &TxtSatuanBeli, &TxtSatuanJual}) {
        Capitals(*unit);
        TabAndSelect(*unit);
    }
    TabAndSelect(txtHargaBeli);
    TabAndSelect(TxtHargaJual);
    AsksToSave(txtket, "Varnik Small Business", false);
}

void fProduk::FillLists() {
    TxtKodeSup.SetItems(
        Items("SELECT KodeSup, NamaSup FROM  Supplier Order By KodeSup", [this](ado::Recordset& supplier) {
            return PadRight(TextOf(supplier["KodeSup"]), SupplierKey) + "-" + TextOf(supplier["NamaSup"]);
        }));
    RefreshUnitLists();
    Combo1.SetItems(
        Items("SELECT * FROM JenisProduk  Order By KodeJenisProduk", [this](ado::Recordset& type) {
            return TypeItem(TextOf(type["KodeJenisProduk"]), TextOf(type["JenisProduk"]));
        }));
}

// The units are offered from what has been entered before.
void fProduk::RefreshUnitLists() {
    const auto unit = [this](ado::Recordset& product) { return TextOf(product[0]); };
    TxtSatuan.SetItems(Items("Select Satuan    From Produk Group By  Satuan ", unit));
    TxtSatuanBeli.SetItems(Items("Select SatuanBeli    From Produk Group By  SatuanBeli ", unit));
    TxtSatuanJual.SetItems(Items("Select SatuanJual From Produk Group By  SatuanJual ", unit));
}

void fProduk::RecordShown(ado::Recordset& product) {
    const std::string supplier = TextOf(product["KodeSup"]);
    TxtKodeSup.SetText(supplier.empty() ? ""
                                        : PadRight(supplier, SupplierKey) + "." + TextOf(product["NamaSup"]));
    LeaveJenis();
}

// ---- What fields do ----

// A service keeps no stock and no purchase: its amounts become 0 and those fields go away. Coming back
// restores no value.
void fProduk::SwitchService() {
    const bool service = Check1.Checked();
    if (service) {
        for (forms::TextBox* amount :
             {&txtPecahan, &TxtPecahanBeli, &TxtPecahanJual, &txtHargaBeli, &TxtHargaJual, &TxtQAwal,
              &TxtHPPRata, &txtQCounter, &TxtQGudang, &TxtOnHand, &txtOnOrder})
            amount->SetText("0");
        for (forms::ComboBox* unit : {&TxtSatuan, &TxtSatuanBeli, &TxtSatuanJual}) unit->SetText("");
    }
    for (forms::Control* field : std::initializer_list<forms::Control*>{
             &TxtPecahanBeli, &TxtSatuanBeli, &txtHargaBeli, &TxtQAwal, &TxtHPPRata, &txtQCounter,
             &TxtQGudang, &TxtOnHand, &txtOnOrder})
        field->SetVisible(!service);
    SetFocus(txtNama);
}

void fProduk::LeaveJenis() {
    const std::string code = Left(Trim(TxtJenis.Text()), TypeCode);
    std::string shown;
    Resume([&] {
        ado::Recordset type("Select * from JenisProduk Where KodeJenisProduk =" + Quoted(code), connection_);
        if (!type.Eof()) shown = TypeItem(TextOf(type["KodeJenisproduk"]), TextOf(type["JenisProduk"]));
    });
    Combo1.SetText(shown);
}

void fProduk::LeaveCategory() {
    TxtJenis.SetText(Left(Trim(Combo1.Text()), TypeCode));
    LeaveJenis();
    if (mode_ != Idle) SetFocus(TxtSatuan);
}

void fProduk::SumOnHand() { TxtOnHand.SetText(Masked(Number(TxtQGudang) + Number(txtQCounter))); }

// Both forms of an item, with "-" from the list and with "." from a record, begin with the code.
std::string fProduk::SupplierCode() const { return Trim(Left(TxtKodeSup.Text(), SupplierKey)); }

// ---- The row ----

bool fProduk::Exists() {
    return !ado::Recordset("Select * From Produk Where KodeBrg = " + Quoted(Code()), connection_).Eof();
}

void fProduk::InsertRecord() {
    if (Exists()) return;
    const std::string cost = Amount(TxtHPPRata); // one cost in all three columns
    Resume([&] {
        Execute("INSERT INTO Produk "
                "(KodeBrg ,NamaBrg ,Jasa ,JenisBrg ,QAwal ,QJual ,QBeli ,HPPAwal ,HPPAkhir ,HPPRata , "
                "Pecahan ,Satuan ,PecahanBeli ,SatuanBeli ,HargaBeli ,PecahanJual ,SatuanJual ,HargaJual , "
                "QCounter ,QGudang ,OnHand ,OnOrder ,KodeSup ,KodeRef ,Ket ) "
                " VALUES (" +
                Quoted(Code()) + "," + Quoted(txtNama) + (Check1.Checked() ? ",True , " : ",False, ") +
                Quoted(TxtJenis) + "," + Amount(TxtQAwal) + ",0,0," + cost + "," + cost + "," + cost + "," +
                Amount(txtPecahan) + "," + Quoted(TxtSatuan) + "," + Amount(TxtPecahanBeli) + "," +
                Quoted(TxtSatuanBeli) + "," + Amount(txtHargaBeli) + "," + Amount(TxtPecahanJual) + "," +
                Quoted(TxtSatuanJual) + "," + Amount(TxtHargaJual) + "," + Amount(txtQCounter) + "," +
                Amount(TxtQGudang) + "," + Amount(TxtOnHand) + "," + Amount(txtOnOrder) + "," +
                Quoted(SupplierCode()) + "," + Quoted(txtKodeRef) + "," + Quoted(txtket) + ")");
    });
    RefreshUnitLists();
}

// Pecahan and Satuan are not written, and OnHand is the sum of the two places whatever its box shows: wanted.
void fProduk::UpdateRecord() {
    if (!Exists()) return;
    const std::string cost = Amount(TxtHPPRata);
    Resume([&] {
        Execute("UPDATE Produk  Set NamaBrg = " + Quoted(txtNama) +
                (Check1.Checked() ? ",Jasa = True ," : ",Jasa = False,") + "JenisBrg = " + Quoted(TxtJenis) +
                ",QAwal = " + Amount(TxtQAwal) + ",HPPAkhir = " + cost + ",HPPRata = " + cost +
                ",PecahanBeli = " + Amount(TxtPecahanBeli) + ",SatuanBeli =  " + Quoted(TxtSatuanBeli) +
                ",HargaBeli = " + Amount(txtHargaBeli) + ",PecahanJual = " + Amount(TxtPecahanJual) +
                ",SatuanJual = " + Quoted(TxtSatuanJual) + ",HargaJual = " + Amount(TxtHargaJual) +
                ",QCounter = " + Amount(txtQCounter) + ",QGudang = " + Amount(TxtQGudang) + ",OnHand = " +
                SqlNumber(Number(TxtQGudang) + Number(txtQCounter)) + ",OnOrder = " + Amount(txtOnOrder) +
                ",KodeRef = " + Quoted(txtKodeRef) + ",Ket = " + Quoted(txtket) +
                ",KodeSup = " + Quoted(SupplierCode()) + "  Where KodeBrg = " + Quoted(Code()));
    });
    RefreshUnitLists();
}

} // namespace varnik
