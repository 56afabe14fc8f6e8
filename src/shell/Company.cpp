#include "shell/Company.h"

#include "platform/desktop/Failure.h"

namespace varnik {

Company::Company(Services& services) : ProgramScreen(services, "Company", "Company Setup") {
    Command1.onClick = [this] {
        if (Reported(Desk(), [this] { SaveCompany(); }))
            Say("Company has been successfully records", Icon::Exclamation, "Company Setup");
    };
    Command2.onClick = [this] { Close(); };
    SetCancel(&Command2);
}

void Company::Load() {
    txtNama.SetText(Sess().CompanyName);
    txtket.SetText(Sess().CompanyLine1);
    TxtAlamat1.SetText(Sess().CompanyLine2);
    TxtAlamat2.SetText(Sess().CompanyLine3);
}

void Company::SaveCompany() {
    ado::Connection connection(services_.data, Sess().ConnectionString);
    // Of several rows only the first is ever read or written.
    ado::Recordset company("SELECT * FROM Company", connection);
    if (company.Eof()) company.AddNew();
    company["NamaPerusahaan"] = Trim(txtNama.Text());
    company["Ket1"] = Trim(txtket.Text());
    company["Ket2"] = TxtAlamat1.Text();
    company["Ket3"] = TxtAlamat2.Text();
    company.Update();

    Session& session = services_.session;
    session.CompanyName = TextOf(company["NamaPerusahaan"]);
    session.CompanyLine1 = Trim(TextOf(company["Ket1"]));
    session.CompanyLine2 = Trim(TextOf(company["Ket2"]));
    session.CompanyLine3 = Trim(TextOf(company["Ket3"]));
}

} // namespace varnik
