#include "shell/Main.h"

#include "common/Text.h"
#include "data/Bootstrap.h"
#include "data/DataSource.h"
#include "platform/desktop/Failure.h"
#include "platform/desktop/Services.h"
#include "shell/Company.h"
#include "shell/fLogin.h"
#include "shell/f_CreateDSN.h"
#include "shell/frmAbout.h"
#include "shell/frmBackup.h"
#include "shell/frmMainCode.h"
#include "shell/frmSplash.h"
#include "shell/fuser.h"

#include <filesystem>
#include <system_error>
#include <type_traits>

namespace varnik {

namespace {

// A failure of start-up has no screen to fall back to: its description, then the end.
void EndOnFailure(Services& services, const std::function<void()>& steps) {
    std::string failure;
    if (Resume(steps, &failure)) return;
    services.desktop.MessageBox({.text = failure, .icon = Icon::Critical});
    services.desktop.Quit();
}

void SignOut(Session& session) {
    session.UserName = "Tamu"; // the guest, until the login screen closes
    session.NoUser = "00";
    session.LoggedIn = false;
    session.RightTambah = session.RightHapus = session.RightGanti = false;
    session.RightLihat = true;
}

void ReadCompany(Services& services) {
    Session& session = services.session;
    ado::Connection connection(services.data, session.ConnectionString);
    ado::Recordset company("SELECT NamaPerusahaan, Ket1, Ket2, Ket3  FROM Company", connection,
                           ado::CursorType::Static);
    if (company.Eof()) {
        // Not the texts that first run writes: the name is one letter shorter, "True " is missing.
        session.CompanyName = "Varnik Small Busines";
        session.CompanyLine1 = "Varnik Ledger Suite";
        session.CompanyLine2 = "Sendara-Indonesia";
        session.CompanyLine3 = Repeat(41, '=');
    } else {
        const auto text = [&](const char* column) { return NullToText(company[column], services.regional); };
        session.CompanyName = text("NamaPerusahaan");
        session.CompanyLine1 = Trim(text("Ket1"));
        session.CompanyLine2 = Trim(text("Ket2"));
        session.CompanyLine3 = Trim(text("Ket3"));
    }
}

void AfterLogin(Services& services) {
    Session& session = services.session;
    if (!session.LoggedIn) {
        services.desktop.Quit();
        return;
    }
    auto splash = std::make_unique<frmSplash>(services);
    const std::string splashName = splash->Name();
    services.desktop.Show(std::move(splash));
    if (forms::Screen* shown = services.desktop.FindScreen(splashName)) services.desktop.Repaint(*shown);

    session.LoggedIn = true;
    session.PaymentMethod = {"", "CASH", "CHEQUE", "BG"};
    session.WordOnes = {"",      "Satu ", "Dua ",   "Tiga ",    "Empat ",
                        "Lima ", "Enam ", "Tujuh ", "Delapan ", "Sembilan "};
    session.WordScale = {"", "Puluh", "Ratus", "Ribu", "Juta"};

    services.desktop.Show(std::make_unique<frmMainCode>(services));
    if (forms::Screen* covering = services.desktop.FindScreen(splashName)) covering->Close();
}

} // namespace

void Main(Services& services) {
    Session& session = services.session;
    session = Session{};
    session.DateMask = DateMaskOfMachine(services.regional);
    if (services.desktop.AnotherInstanceRuns()) {
        services.desktop.MessageBox({.text = "[Varnik] already running on your computer..."});
        services.desktop.Quit();
        return;
    }
    session.StockCostingMethod = 2;
    EndOnFailure(services, [&] {
        data::BootstrapDatabase(services);
        // A restore names the database relative to the working directory.
        std::error_code ignored;
        std::filesystem::current_path(data::DatabaseFile(services.desktop.ProgramFolder()).parent_path(),
                                      ignored);
        SignOut(session);
        session.ConnectionString = "DSN=VarNik";
        ReadCompany(services);
        services.desktop.ShowModal(std::make_unique<fLogin>(services), [&] { AfterLogin(services); });
    });
}

void RegisterShell(Services& services) {
    const auto add = [&]<typename Screen>(std::type_identity<Screen>, const char* item, const char* name) {
        services.screens[item] = {name, [](Services& s) { return std::make_unique<Screen>(s); }};
    };
    add(std::type_identity<frmAbout>{}, "mnuHelpAbout", "frmAbout");
    add(std::type_identity<Company>{}, "mnuSetupPerusahaan", "Company");
    add(std::type_identity<fuser>{}, "mnuToolUser", "fuser");
    add(std::type_identity<frmBackup>{}, "mnuFileBackup", "frmBackup");
    add(std::type_identity<f_CreateDSN>{}, "mnuConnect", "f_CreateDSN");
}

} // namespace varnik
