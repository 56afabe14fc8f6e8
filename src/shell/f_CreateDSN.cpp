#include "shell/f_CreateDSN.h"

#include "common/Files.h"
#include "data/DataSource.h"
#include "platform/desktop/Failure.h"
#include "platform/registry/Registry.h"

namespace varnik {

namespace {

constexpr const char* SourceName = "Varnik";
constexpr int FileDriver = 1;
constexpr int AllUsers = 3; // what tells the requests for the machine from those for the user

} // namespace

f_CreateDSN::f_CreateDSN(Services& services)
    : ProgramScreen(services, "f_CreateDSN", "Varnik-Databases Connection") {
    Frame1.Hold({&Label1, &Text1, &Command4});
    Frame2.Hold({&Option0[0], &Option0[1], &Option0[2]});
    Option0[0].SetChecked(true);
    cmdCreate.onClick = [this] { CreateClick(); };
    Command4.onClick = [this] { BrowseClick(); };
    cmdShowOM.onClick = [this] { ShowDataSources(); };
    cmdVerify.onClick = [this] { VerifyClick(); };
    cmdModify.onClick = [this] { Configure(Work::Change); };
    cmdDelete.onClick = [this] { Configure(Work::Remove); };
}

void f_CreateDSN::Load() {
    const std::filesystem::path folder = (Desk().ProgramFolder() / "").parent_path(); // no "/" at its end
    Text1.SetText(PathText(folder) + "\\Data\\Varnik.Mdb");
}

void f_CreateDSN::CreateClick() {
    if (data::CreateDataSource(services_, Trim(Text1.Text()))) Say("Databases ODBC Created ...");
}

void f_CreateDSN::BrowseClick() {
    if (const auto file = Desk().OpenFile("Open", "Access Database (*.mdb)|*.mdb")) Text1.SetText(*file);
}

void f_CreateDSN::VerifyClick() {
    const bool opened = Resume([this] { ado::Connection(services_.data, "DSN=Varnik"); });
    Say(opened ? "Varnik Connection valid " : "Varnik Connection Falided");
}

// Stands for the platform's own window of data sources: what is registered, and where it leads.
void f_CreateDSN::ShowDataSources() {
    std::string list;
    for (const std::string& name : data::DataSourceNames(services_.registry)) {
        std::string file;
        if (!Resume([&] { file = PathText(data::ResolveConnection(services_.registry, "DSN=" + name)); }))
            continue;
        list += (list.empty() ? "" : std::string(CrLf)) + name + ": " + file;
    }
    Say(list.empty() ? "There is no data source." : list, Icon::Information, "Data Sources");
}

void f_CreateDSN::Configure(Work work) {
    const std::string dsn = std::string("DSN=") + SourceName;
    int request = static_cast<int>(work);
    std::string attributes;
    if (Option0[2].Checked()) {
        // It names no data source to change, so only removing, which adds the name, goes through: wanted.
        attributes = "FIL=MS Access|DBQ=" + Text1.Text() + "|UID=sa|Description=" + Text1.Text();
        if (work == Work::Remove) attributes = dsn + "|" + attributes;
    } else {
        attributes = dsn + '\0' + "DBQ=" + Text1.Text() + '\0' + "DESCRIPTION=" + Text1.Text() + '\0';
        if (Option0[1].Checked()) request += AllUsers;
    }
    data::clsOdbc odbc(services_);
    const std::string error = odbc.ExecuteDSN(request, FileDriver, attributes);
    if (error.empty())
        Say("Done");
    else
        Say(error, Icon::Critical, "Error");
}

} // namespace varnik
