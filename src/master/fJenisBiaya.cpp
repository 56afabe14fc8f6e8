#include "master/fJenisBiaya.h"

namespace varnik {

namespace {

constexpr ListColumn columns[] = {{"Code", 12}, {"Cost Category", 40}};
constexpr ListRow listRow{.statement = "Select KodeJenisBiaya,JenisBiaya From QryDaftarJenisBiaya "
                                       "Order By KodeJenisBiaya",
                          .columns = columns,
                          .activated = 0};

constexpr MasterRow row{
    .name = "fJenisBiaya",
    .caption = "Cost Of Cost Category",
    .codeColumn = "KodeJenisBiaya",
    .main = "SELECT * FROM JenisBiaya",
    .nextCode = {.statement = "Select Max(KodeJenisBiaya) as Kode From JenisBiaya ",
                 .start = "001",
                 .width = 3},
    .duplicate = LastErrorAlone,
    .missing = ItemNotFound,
    .editNotFound = "Cost type with this id is not found ....",
    .nameMessage = "Enter  description, please ...!!",
    .remove = {.notFound = "Item with this code is not found ...",
               .confirm = "Are you sure you want delete this record ?",
               .failed = "This item can not deleting, Error :"},
    .report = {.file = "JenisBiaya.rpt",
               .statement =
                   "Select KodejenisBiaya,JenisBiaya  from QryDaftarJenisBiaya order By Kodejenisbiaya",
               .title = "Cost Type"},
    .list = &listRow};

} // namespace

fJenisBiaya::fJenisBiaya(Services& services) : MasterScreen(services, row) {
    Carries(txtKode, txtNama, {{&txtNama, "JenisBiaya"}});
    Capitals(txtNama);
}

void fJenisBiaya::InsertRecord() {
    AddToMain({{"KodeJenisBiaya", txtKode.Text()}, {"JenisBiaya", txtNama.Text()}});
}

void fJenisBiaya::UpdateRecord() { ChangeInMain({{"JenisBiaya", txtNama.Text()}}); }

void fJenisBiaya::Find() {
    Resume([this] {
        ado::Recordset type("Select KodeJenisBiaya, JenisBiaya From JenisBiaya Where KodeJenisBiaya =" +
                                Quoted(txtKode),
                            connection_);
        if (type.Eof()) return;
        txtKode.SetText(TextOf(type["KodeJenisBiaya"]));
        txtNama.SetText(TextOf(type["JenisBiaya"]));
    });
}

} // namespace varnik
