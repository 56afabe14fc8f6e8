#include "bench/BenchShop.h"

#include "bench/Fill.h"
#include "data/Numbering.h"
#include "platform/forms/Controls.h"
#include "platform/forms/Grid.h"

#include "reports/engine/Report.h"

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <stdexcept>

namespace varnik::bench {

namespace {
// The sales of the bench stand in a series of their own, whose letter keeps the proposed number free.
constexpr const char* OwnUser = "98";
} // namespace

BenchShop::BenchShop(long sales, long masters) : filled_(sales), masters_(masters) {
    std::string name = (std::filesystem::temp_directory_path() / "varnik-bench-XXXXXX").string();
    if (!mkdtemp(name.data())) throw std::runtime_error("no temporary folder");
    folder_ = name;
    desktop_ = std::make_unique<TestDesktop>();
    desktop_->folder = folder_;
    program_ = std::make_unique<Program>(*desktop_, Regional{});
    program_->Start();
    auto& login = *desktop_->FindScreen("fLogin");
    dynamic_cast<forms::TextControl&>(*login.FindControl("txtUserId")).SetText("varnik");
    dynamic_cast<forms::TextControl&>(*login.FindControl("txtPassword")).SetText("kemiri");
    login.Click(*login.FindControl("cmdOK"));
    if (!Access().session.LoggedIn) throw std::runtime_error("the login failed");
    Access().session.NoUser = OwnUser;
    FillShop(Database(), sales);
    FillMasters(Database(), masters);
    bare_ = std::make_unique<BareLoop>(Database());
}

BenchShop::~BenchShop() {
    bare_.reset();
    desktop_->screens.clear();
    program_.reset();
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
}

void BenchShop::OpenAndClose(const std::string& key) {
    desktop_->Show(Access().screens.at(key).make(Access())); // a second one beside the screen that enters
    desktop_->screens.back()->Close();
}

forms::Screen& BenchShop::Master(const std::string& key, const std::string& screen) {
    OpenScreen(Access(), key, screen);
    return *desktop_->FindScreen(screen);
}

void BenchShop::Search(const std::string& key, const std::string& screen) {
    forms::Screen& master = Master(key, screen);
    if (master.FindControl("bttnFind")->Enabled()) master.Click(*master.FindControl("bttnFind"));
    master.Click(*master.FindControl("cmdExecute"));
    if (dynamic_cast<forms::ListGrid&>(*master.FindControl("grdCari")).Rows() != masters_)
        throw std::runtime_error("the search of " + screen + " does not find every row");
}

void BenchShop::Edit(const std::string& key, const std::string& screen, const std::string& code) {
    forms::Screen& master = Master(key, screen);
    auto& box = dynamic_cast<forms::TextControl&>(*master.FindControl("txtKode"));
    master.MoveFocus(box);
    box.SetText(code);
    master.MoveNext();
    master.Click(*master.FindControl("bttnEdit"));
    if (!master.FindControl("bttnOK")->Enabled()) throw std::runtime_error(screen + " does not edit " + code);
}

void BenchShop::SaveRecord(const std::string& screen) {
    forms::Screen& master = *desktop_->FindScreen(screen);
    master.Click(*master.FindControl("bttnOK"));
}

void BenchShop::PrepareLookUp() {
    if (!invoice_) {
        OpenScreen(Access(), "T01", "Sales");
        invoice_ = desktop_->FindScreen("Invoice");
        invoice_->Click(On("bttnNew"));
    }
    invoice_->MoveFocus(On("TxtKodeCus"));
}

void BenchShop::LookUpCustomers() {
    invoice_->PressKey({.code = forms::KeyCode::F5});
    if (dynamic_cast<forms::ListGrid&>(On("GridCari")).Rows() != masters_)
        throw std::runtime_error("the look-up does not list every customer");
}

int BenchShop::FirstPageOfSales(long rows) {
    constexpr const char* Columns = R"(title = "Sales"
[[column]]
heading = "Number"
field = "NoInvoice"
[[column]]
heading = "Customer"
field = "NamaCus"
flex = true
[[column]]
heading = "Date"
field = "TglInvoice"
[[column]]
heading = "Total"
field = "Total"
total = true
[[column]]
heading = "Balance"
field = "Saldo"
total = true
)";
    std::ofstream(folder_ / "Sales.rpt") << Columns;
    char last[16];
    std::snprintf(last, sizeof last, "%010ld00", rows);
    ReportRequest request;
    request.ReportFileName = (folder_ / "Sales.rpt").string();
    request.SQLQuery = "SELECT KodeCus,NamaCus,NoInvoice,TglInvoice,Total,Bayar,Saldo From QryInvCustomer "
                       "Where NoInvoice <= '" +
                       std::string(last) + "'";
    const auto report = reports::OpenReport(request, Access());
    if (report->RowCount() != std::min(rows, filled_) || report->BuildPage(1).runs.empty())
        throw std::runtime_error("the report is not whole");
    return report->PageCount();
}

forms::Control& BenchShop::On(const std::string& control) {
    forms::Control* found = invoice_->FindControl(control);
    if (!found) throw std::runtime_error("Invoice has no " + control);
    return *found;
}

void BenchShop::Type(const std::string& control, const std::string& text) {
    auto& field = dynamic_cast<forms::TextControl&>(On(control));
    invoice_->MoveFocus(field);
    field.SetText(text);
}

void BenchShop::EnterSale(int lines) {
    if (!invoice_) {
        OpenScreen(Access(), "T01", "Sales");
        invoice_ = desktop_->FindScreen("Invoice");
    }
    invoice_->Click(On("bttnNew"));
    char number[32];
    std::snprintf(number, sizeof number, "A%09ld98", ++sales_);
    Type("TxtNoInvoice", number);
    invoice_->MoveNext(); // the number's leaving goes to the date
    Type("TxtPPN", "10");
    invoice_->MoveNext(); // the tax's leaving goes to the customer
    Type("TxtKodeCus", "C000000001");
    auto& grid = dynamic_cast<forms::Grid&>(On("OrderGrid"));
    for (int line = 0; line < lines; ++line) {
        invoice_->MoveFocus(grid);
        grid.SelectRow(grid.Rows() - 1);
        invoice_->DoubleClick(grid);
        char code[16];
        std::snprintf(code, sizeof code, "%010d", line + 1);
        Type("txtKodeBrg", code);
        Type("txtQty", "2");
        invoice_->Click(On("bttnAddLine"));
    }
    if (grid.Rows() != lines + 2)
        throw std::runtime_error("the sale was not entered" +
                                 (desktop_->boxes.empty() ? "" : ": " + desktop_->boxes.back().text));
}

void BenchShop::Save() { invoice_->Click(On("bttnSave")); }

std::string BenchShop::NextNumber() {
    Access().session.NoUser = "00"; // the user of the filled documents
    const std::string number = data::NextNumber(Access(), Document::Invoice);
    Access().session.NoUser = OwnUser;
    return number;
}

} // namespace varnik::bench
