#include "master/fAccJenisProduk.h"

#include "master/TypeLists.h"

namespace varnik {

namespace {

constexpr ListColumn columns[] = {{"Code", 12}, {"Product Category", 40}};
constexpr ListRow listRow{.statement = "Select KodeJenisProduk, JenisProduk From QryJenisProduk "
                                       "Group By KodeJenisProduk, JenisProduk",
                          .columns = columns,
                          .repeatsBlank = true};

constexpr MasterRow row{
    .name = "fAccJenisProduk",
    .caption = "Product Category",
    .codeColumn = "KodeJenisProduk",
    .select = "Select * from JenisProduk Where KodeJenisProduk =",
    .saveLookup = Lookup::Statement,
    .editLookup = Lookup::Statement,
    .cancelShows = Shows::CodeInBox,
    .editNotFound = "Unable to find record ...",
    .editNotFoundShows = Shows::CodeInBox,
    .remove = {.lookup = Lookup::Statement,
               .statement = "DELETE FROM JenisProduk Where  KodeJenisProduk = ",
               .notFound = "Unable to find record ...",
               .confirm = "Are you sure you want to delete this record ?",
               .failed = "Unable to delete  record ..., Error :",
               .notFoundShows = Shows::CodeInBox,
               .shows = Shows::CodeInBox},
    .report = {.file = "JenisProduk.rpt",
               .statement =
                   "Select KodeJenisProduk, JenisProduk From QryJenisProduk Order By KodeJenisProduk",
               .title = "Product Category",
               .firstTitle = 1,
               .reportsFailure = false},
    .list = &listRow};

} // namespace

fAccJenisProduk::fAccJenisProduk(Services& services) : MasterScreen(services, row) {
    Carries(txtKode, txtNama, {{&txtNama, "JenisProduk"}});
    Capitals(txtNama);
    txtNama.onKeyDown = [this](forms::Key& key) { SaveAndAddNext(key); };
}

void fAccJenisProduk::Unload() {
    LoadProductTypes(services_);
    MasterScreen::Unload();
}

void fAccJenisProduk::InsertRecord() {
    Resume([this] {
        Execute("INSERT INTO  JenisProduk (KodeJenisProduk, JenisProduk) Values (" + Quoted(txtKode) + "," +
                Quoted(txtNama) + ")");
    });
    LoadProductTypes(services_);
}

void fAccJenisProduk::UpdateRecord() {
    Resume([this] {
        Execute("Update  JenisProduk  Set  JenisProduk = " + Quoted(txtNama) +
                " Where KodeJenisProduk = " + Quoted(txtKode));
    });
    LoadProductTypes(services_);
}

// ---- Shortcut keys ----

void fAccJenisProduk::PreviewKeyDown(forms::Key& key) {
    if (key.Is(forms::KeyCode::F1)) {
        key.handled = true;
        ShowHelp();
    } else {
        Shortcut(key);
    }
}

void fAccJenisProduk::Shortcut(forms::Key& key) {
    using Action = void (fAccJenisProduk::*)();
    struct Row {
        char letter;
        Action action;
    };
    // The last eight are known and do nothing, whatever the help promises.
    static const Row rows[] = {{'N', &fAccJenisProduk::Add},
                               {'E', &fAccJenisProduk::Edit},
                               {'S', &fAccJenisProduk::Save},
                               {'U', &fAccJenisProduk::Cancel},
                               {'D', &fAccJenisProduk::Delete},
                               {'X', &fAccJenisProduk::Close},
                               {'P', nullptr},
                               {'H', nullptr},
                               {'F', nullptr},
                               {'I', nullptr},
                               {'Y', nullptr},
                               {'T', nullptr},
                               {'R', nullptr},
                               {'C', nullptr}};
    if (key.Is(forms::KeyCode::Escape)) {
        key.handled = true;
        Cancel();
    }
    for (const Row& shortcut : rows) {
        if (!key.IsAlt(shortcut.letter)) continue;
        key.handled = true;
        if (shortcut.action) (this->*shortcut.action)();
        return;
    }
}

void fAccJenisProduk::ShowHelp() const {
    std::string text;
    for (const char* line :
         {"Informasi Penggunaan keyboard (Shortcut) ", " ",
          "ALT-N=New, ALT-E=Edit, ALT-S=Save, ALT-U=Cancel, ALT-D=Delete",
          "ALT-F=Find ALT-X=Exit, ALT-P=Print", " ", "Left Arrow=Previous Records, Right Arrow=Next Records",
          "Top Arrow=Top Record, Down Arrow=Last Record", " ", "Tag/Return Item Selection Key Shortcuts.",
          "ALT-T=Tag, ALT-R=Return, ALT-C=Close"})
        text += (text.empty() ? "" : std::string(CrLf)) + line;
    Say(text);
}

} // namespace varnik
