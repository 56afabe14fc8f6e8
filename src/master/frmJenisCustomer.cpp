#include "master/frmJenisCustomer.h"

#include "master/TypeLists.h"

namespace varnik {

namespace {

constexpr ListColumn columns[] = {{"Code", 12}, {"Customer Type", 40}};
constexpr ListRow listRow{.statement = "Select KodeJenisCus, JenisCus From JenisCustomer "
                                       "Group By KodeJenisCus, JenisCus",
                          .columns = columns,
                          .repeatsBlank = true};

constexpr MasterRow row{
    .name = "frmJenisCustomer",
    .caption = "Customer Type",
    .codeColumn = "KodeJenisCus",
    .main = "SELECT * FROM JenisCustomer Order By KodeJenisCus",
    .duplicate = LastErrorAlone,
    .missing = LastErrorAlone,
    .cancelShows = Shows::SavedRow,
    .editNotFound = "Unable to find record ...",
    .remove = {.notFound = "Item with this code is not found ...",
               .confirm = "Are you sure you want delele this record ?",
               .failed = "Unable to delete  record ..., Error :"},
    // No blank stands before this "From": wanted, the report runs on its own query.
    .report = {.file = "JenisCustomer.rpt",
               .statement = "Select KodeJenisCus, JenisCusFrom JenisCustomer Order By KodeJenisCus",
               .title = "Reports",
               .firstTitle = 1,
               .reportsFailure = false},
    .list = &listRow};

} // namespace

frmJenisCustomer::frmJenisCustomer(Services& services) : MasterScreen(services, row) {
    Carries(txtKode, txtNama, {{&txtNama, "JenisCus"}});
    Capitals(txtNama);
    txtNama.onKeyDown = [this](forms::Key& key) { SaveAndAddNext(key); };
}

void frmJenisCustomer::Unload() {
    LoadCustomerTypes(services_);
    MasterScreen::Unload();
}

void frmJenisCustomer::InsertRecord() {
    AddToMain({{"KodeJenisCus", txtKode.Text()}, {"JenisCus", txtNama.Text()}});
    LoadCustomerTypes(services_);
}

void frmJenisCustomer::UpdateRecord() {
    ChangeInMain({{"JenisCus", txtNama.Text()}});
    LoadCustomerTypes(services_);
}

} // namespace varnik
