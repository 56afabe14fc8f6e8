#include "master/fBiaya.h"

namespace varnik {

namespace {

constexpr ListColumn columns[] = {{"Category", 10}, {"Cost Category", 24}, {"Code", 14}, {"Description", 40}};
constexpr ListRow listRow{.statement = "Select KodejenisBiaya,JenisBiaya,KodeBiaya,Diskripsi "
                                       "From QryDaftarBiaya Order By KodeBiaya",
                          .columns = columns,
                          .activated = 2};

// The proposed code ends in the user's number, two characters more than the column takes; the user corrects
// it before saving. Wanted.
constexpr MasterRow row{
    .name = "fBiaya",
    .caption = "Cost Detail",
    .codeColumn = "KodeBiaya",
    .main = "SELECT * FROM Biaya",
    .nextCode = {.statement = "Select Max(KodeBiaya) as Kode From Biaya ",
                 .start = "0000000001",
                 .userAppended = true},
    .keepsCode = true,
    .duplicate = LastErrorAlone,
    .missing = ItemNotFound,
    .reportsSave = true,
    .editNotFound = "Item with this code is not found ...",
    .nameMessage = "Enter  cost description, please ...",
    // The confirmation reads like a refusal; Yes deletes.
    .remove = {.notFound = "Unable to find record ...",
               .confirm = "Item with this code is not found ?",
               .failed = "This item may not deleted, Error :"},
    .report = {.file = "DetailBiaya.rpt",
               .statement = "Select KodeBiaya, Diskripsi,KodejenisBiaya,JenisBiaya,KodeAcc , NamaAcc "
                            "from QrydaftarBiaya Order By KodeBiaya",
               .title = "Cost Account",
               .reportsFailure = false},
    .list = &listRow};

constexpr int TypeKey = 3; // characters; a shorter code is padded, so that the text begins with the whole key

std::string TypeItem(const std::string& code, const std::string& name) {
    return PadRight(code, TypeKey) + " - " + name;
}

} // namespace

fBiaya::fBiaya(Services& services) : MasterScreen(services, row) {
    Carries(txtKode, txtNama, {{&txtNama, "Diskripsi"}, {&TxtKodeAcc, ""}});
    Capitals(txtNama);
    TxtKodeAcc.onLeave = [this] { LeaveType(); };
}

void fBiaya::FillLists() {
    const std::string statement =
        "SELECT KodeJenisBiaya, JenisBiaya  FROM JenisBiaya Order By KodeJenisBiaya";
    Resume([&] { types_.Open(statement, connection_); });
    TxtKodeAcc.SetItems(Items(statement, [this](ado::Recordset& type) {
        return TypeItem(TextOf(type["KodeJenisBiaya"]), TextOf(type["JenisBiaya"]));
    }));
}

void fBiaya::RecordShown(ado::Recordset& cost) {
    TxtKodeAcc.SetText(TextOf(cost["KodeJenisBiaya"]));
    LeaveType();
}

void fBiaya::LeaveType() {
    if (Trim(TxtKodeAcc.Text()).empty()) return;
    Resume([this] {
        types_.MoveFirst();
        types_.Find("KodeJenisBiaya=" + Quoted(TypeCode()));
        if (!types_.Eof())
            TxtKodeAcc.SetText(TypeItem(TextOf(types_["KodeJenisBiaya"]), TextOf(types_["JenisBiaya"])));
    });
}

std::string fBiaya::TypeCode() const { return Trim(Left(Trim(TxtKodeAcc.Text()), TypeKey)); }

void fBiaya::InsertRecord() {
    ado::Recordset type("Select KodejenisBiaya, KodeAcc From JenisBiaya Where KodeJenisBiaya =" +
                            Quoted(TypeCode()),
                        connection_);
    if (type.Eof()) {
        if (Desk().MessageBox({.text = "Type of cost will Enter  with blank ... ? ",
                               .icon = Icon::Question,
                               .buttons = Buttons::OkCancel}) == Answer::Ok)
            Execute("INSERT INTO BIAYA (KodeBiaya,Diskripsi,KodeJenisBiaya,KodeAcc) VALUES (" +
                    Quoted(txtKode) + "," + Quoted(txtNama) + ",'','' )");
    } else {
        Execute("INSERT INTO BIAYA (KodeBiaya,Diskripsi,KodeJenisBiaya) VALUES (" + Quoted(txtKode) + "," +
                Quoted(txtNama) + "," + Quoted(TextOf(type["KodeJenisBiaya"])) + ")");
    }
    main_.Requery();
}

void fBiaya::UpdateRecord() {
    ado::Recordset type("Select KodeAcc ,KodeJenisBiaya From JenisBiaya Where KodeJenisBiaya =" +
                            Quoted(TypeCode()),
                        connection_);
    if (type.Eof()) {
        Say("Type of cost not valid or not found ...");
        return;
    }
    Execute("UPDATE BIAYA set Diskripsi =" + Quoted(txtNama) +
            ",KodeJenisBiaya =" + Quoted(TextOf(type["KodeJenisBiaya"])) +
            ",KodeAcc =" + Quoted(TextOf(type["KodeAcc"])) + " Where KodeBiaya =" + Quoted(txtKode));
    main_.Requery();
}

} // namespace varnik
