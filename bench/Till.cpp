#include "bench/Till.h"

#include "common/Regional.h"
#include "platform/forms/Controls.h"
#include "platform/forms/Grid.h"

#include <algorithm>
#include <cstdio>
#include <stdexcept>

namespace varnik::bench {

namespace {

// The documents of the bench stand in a series of their own, whose user keeps the proposed number free.
constexpr const char* OwnUser = "98";
constexpr int VisibleRows = 25;

const std::map<std::string, std::string> NumberFields{
    {"T01", "TxtNoInvoice"}, {"T02", "txtNoBukti"},  {"T03", "TxtReturID"}, {"T04", "TxtNoFaktur"},
    {"T05", "txtNoBukti"},   {"T06", "TxtNoFaktur"}, {"T08", "txtNoBukti"}, {"T09", "txtNoBukti"}};

} // namespace

Till::Till(std::filesystem::path folder) : desktop_(std::make_unique<TestDesktop>()) {
    desktop_->folder = std::move(folder);
    std::filesystem::create_directory_symlink(VARNIK_SOURCE "/Report", desktop_->folder / "Report");
    program_ = std::make_unique<Program>(*desktop_, Regional{});
    program_->Start();
    auto& login = *desktop_->FindScreen("fLogin");
    dynamic_cast<forms::TextControl&>(On(login, "txtUserId")).SetText("varnik");
    dynamic_cast<forms::TextControl&>(On(login, "txtPassword")).SetText("kemiri");
    login.Click(On(login, "cmdOK"));
    if (!Access().session.LoggedIn) throw std::runtime_error("the login failed");
    Access().session.NoUser = OwnUser;
    std::set<std::string> met;
    for (const std::string& code :
         Column("Select KodeBrg From FakturDetail Where QtySisa > 40 and NoFaktur > '0000000010'")) {
        if (met.insert(code).second &&
            Asked("Select KodeBrg From FakturDetail Where QtySisa > 0 and QtySisa < 41 and KodeBrg = '" +
                  code + "'")
                .empty())
            goods_.push_back(code);
        if (goods_.size() == 10) break;
    }
    if (goods_.size() < 10) throw std::runtime_error("the shop has no goods in stock");
}

Till::~Till() {
    desktop_->screens.clear();
    desktop_->answers.clear();
    program_.reset();
}

std::vector<std::string> Till::Column(const std::string& sql) {
    ado::Connection connection(Access().data, Access().session.ConnectionString);
    std::vector<std::string> cells;
    for (ado::Recordset rows(sql, connection); !rows.Eof() && cells.size() < 5000; rows.MoveNext())
        cells.push_back(ShowValue(rows[0].Value(), Access().regional));
    return cells;
}

std::string Till::Asked(const std::string& sql) {
    ado::Connection connection(Access().data, Access().session.ConnectionString);
    ado::Recordset rows(sql, connection);
    return rows.Empty() ? "" : ShowValue(rows[0].Value(), Access().regional);
}

// ---- Screens ----

forms::Screen& Till::Open(const std::string& key) {
    const std::string& name = Access().screens.at(key).name;
    if (forms::Screen* open = desktop_->FindScreen(name)) return *open;
    OpenScreen(Access(), key, name);
    return *desktop_->FindScreen(name);
}

// As it was opened, whatever was done on it before.
forms::Screen& Till::Fresh(const std::string& key) {
    Close(key);
    return Open(key);
}

void Till::Close(const std::string& key) {
    if (forms::Screen* open = desktop_->FindScreen(Access().screens.at(key).name)) open->Close();
}

void Till::ShowAnother(const std::string& key) {
    desktop_->Show(Access().screens.at(key).make(Access()));
    shown_ = desktop_->screens.back().get();
}

void Till::CloseShown() { shown_->Close(); }

forms::Control& Till::On(forms::Screen& screen, const std::string& control) {
    forms::Control* found = screen.FindControl(control);
    if (!found) throw std::runtime_error(screen.Name() + " has no " + control);
    return *found;
}

void Till::Enter(forms::Screen& screen, const std::string& control, const std::string& text) {
    auto& field = dynamic_cast<forms::TextControl&>(On(screen, control));
    screen.MoveFocus(field);
    field.SetText(text);
    screen.MoveNext();
}

// ---- Documents ----

void Till::CheckLines(forms::Screen& screen, int lines) {
    if (dynamic_cast<forms::Grid&>(On(screen, "OrderGrid")).Rows() == lines + 2) return;
    const std::vector<Box>& boxes = desktop_->boxes;
    throw std::runtime_error(screen.Name() + ": the document was not entered, " +
                             std::to_string(dynamic_cast<forms::Grid&>(On(screen, "OrderGrid")).Rows()) +
                             " rows" + (boxes.empty() ? "" : ": " + boxes.back().text));
}

namespace {
std::string OwnNumber(long count) {
    char number[32];
    std::snprintf(number, sizeof number, "A%09ld%s", count, OwnUser);
    return number;
}
} // namespace

void Till::EnterSale(int lines) {
    forms::Screen& sale = Fresh("T01");
    sale.Click(On(sale, "bttnNew"));
    Enter(sale, "TxtNoInvoice", saved_["T01"] = OwnNumber(++documents_));
    Enter(sale, "TxtPPN", "10");
    Enter(sale, "TxtKodeCus", "C000000001");
    auto& grid = dynamic_cast<forms::Grid&>(On(sale, "OrderGrid"));
    for (int line = 0; line < lines; ++line) {
        sale.MoveFocus(grid);
        grid.SelectRow(grid.Rows() - 1);
        sale.DoubleClick(grid);
        dynamic_cast<forms::TextControl&>(On(sale, "txtKodeBrg"))
            .SetText(goods_[static_cast<std::size_t>(line)]);
        Enter(sale, "txtQty", "2");
        sale.Click(On(sale, "bttnAddLine"));
    }
    CheckLines(sale, lines);
}

void Till::EnterPurchase(int lines) {
    forms::Screen& purchase = Fresh("T04");
    purchase.Click(On(purchase, "bttnNew"));
    Enter(purchase, "TxtNoFaktur", saved_["T04"] = OwnNumber(++documents_));
    Enter(purchase, "TxtKodeSup", "S000000001");
    auto& grid = dynamic_cast<forms::Grid&>(On(purchase, "OrderGrid"));
    for (int line = 0; line < lines; ++line) {
        purchase.MoveFocus(grid);
        grid.SelectRow(grid.Rows() - 1);
        purchase.Click(grid);
        Enter(purchase, "txtKodeBrg", goods_[static_cast<std::size_t>(line)]);
        Enter(purchase, "txtQty", "2");
        Enter(purchase, "txtHarga", "12000");
        purchase.Click(On(purchase, "bttnAddLine"));
    }
    CheckLines(purchase, lines);
}

void Till::EnterReceipt(int invoices) {
    forms::Screen& receipt = Fresh("T02");
    receipt.Click(On(receipt, "bttnNew"));
    Enter(receipt, "txtNoBukti", saved_["T02"] = OwnNumber(++documents_));
    Enter(receipt, "TxtCaraBayar", "CASH");
    auto& account = dynamic_cast<forms::ComboBox&>(On(receipt, "TxtRekening"));
    account.SetText(account.Items().front());
    const std::vector<std::string> open = Column("Select NoInvoice From Invoice Where Saldo > 1000");
    for (int line = 0; line < invoices; ++line) {
        Enter(receipt, "TxtNoInvoice", open.at(static_cast<std::size_t>(line)));
        receipt.Click(On(receipt, "bttnAddLine"));
    }
    CheckLines(receipt, invoices);
}

void Till::ChooseToDelete(const std::string& key) {
    forms::Screen& screen = Open(key);
    const std::string& number = saved_.at(key);
    if (key == "T02") { // a receipt goes with the click itself
        Enter(screen, NumberFields.at(key), number);
        desktop_->answers.push_back(Answer::Yes);
        return;
    }
    screen.Click(On(screen, "bttnDel"));
    Enter(screen, NumberFields.at(key), number);
    if (key == "T04") desktop_->answers.push_back(Answer::Yes);
}

void Till::Save(const std::string& key) {
    forms::Screen& screen = Open(key);
    forms::Control& save = On(screen, "bttnSave");
    screen.Click(save.IsShown() ? save : On(screen, "bttnDel"));
}

// A purchase is read by its number where one is chosen to be deleted.
void Till::ReadyToLoad(const std::string& key) {
    forms::Screen& screen = Fresh(key);
    if (key == "T04") screen.Click(On(screen, "bttnDel"));
}

void Till::Load(const std::string& key, const std::string& number) {
    forms::Screen& screen = Open(key);
    auto& field = dynamic_cast<forms::TextControl&>(On(screen, NumberFields.at(key)));
    screen.MoveFocus(field);
    field.SetText(number);
    screen.MoveNext();
}

// ---- Reports ----

std::vector<std::string> Till::Kinds(const std::string& key) {
    std::vector<std::string> kinds;
    forms::Screen& dialog = Open(key);
    for (const char* name : {"opLap1", "opLap2", "opLap3", "opLap4", "opLap5"})
        if (dialog.FindControl(name)) kinds.emplace_back(name);
    if (kinds.empty()) kinds.emplace_back();
    return kinds;
}

std::string Till::CaptionOf(const std::string& key, const std::string& control) {
    return On(Open(key), control).Caption();
}

void Till::Choose(const std::string& key, const std::string& kind) {
    forms::Screen& dialog = Fresh(key);
    if (!kind.empty()) dialog.Click(On(dialog, kind));
    auto* month = dynamic_cast<forms::TextControl*>(dialog.FindControl("Text1"));
    if (!month) return;
    auto& account = dynamic_cast<forms::ComboBox&>(On(dialog, "Combo1"));
    account.SetText(account.Items().front());
    month->SetText("10");
    dynamic_cast<forms::TextControl&>(On(dialog, "Text2")).SetText("2026");
}

ReportRequest Till::Print(const std::string& key) {
    forms::Screen& dialog = Open(key);
    desktop_->reports.clear();
    dialog.Click(On(dialog, "OKButton"));
    if (desktop_->reports.empty()) throw std::runtime_error(dialog.Name() + " printed nothing");
    return desktop_->reports.back();
}

// ---- Lists ----

const std::vector<Till::Panel>& Till::Panels() {
    static const std::vector<Panel> panels{
        {"frmCari", "txtKreteria", "txtValue", "cmdExecute", "grdCari"},
        {"FrmCari2", "TxtKreteria2", "txtValue2", "bttnExecute2", "grdCari2"}};
    return panels;
}

std::vector<std::string> Till::Criteria(const std::string& key, const Panel& panel) {
    forms::Screen& screen = Open(key);
    if (!screen.FindControl(panel.frame)) return {};
    return dynamic_cast<forms::ComboBox&>(On(screen, panel.criterion)).Items();
}

void Till::PrepareSearch(const std::string& key, const Panel& panel, const std::string& criterion,
                         const std::string& value) {
    forms::Screen& screen = Fresh(key);
    On(screen, panel.frame).SetVisible(true);
    dynamic_cast<forms::TextControl&>(On(screen, panel.criterion)).SetText(criterion);
    dynamic_cast<forms::TextControl&>(On(screen, panel.value)).SetText(value);
}

int Till::Execute(const std::string& key, const Panel& panel) {
    forms::Screen& screen = Open(key);
    screen.Click(On(screen, panel.execute));
    const auto& list = dynamic_cast<forms::ListGrid&>(On(screen, panel.list));
    Look(list);
    return list.Rows();
}

// Every cell of the rows that a person sees.
void Till::Look(const forms::ListGrid& list) {
    for (int row = 0; row < std::min(list.Rows(), VisibleRows); ++row)
        for (int column = 0; column < static_cast<int>(list.Columns().size()); ++column)
            list.Cell(row, column);
}

const std::vector<LookUp>& Till::LookUps() {
    static const std::vector<LookUp> lookUps{
        {"customers", "T01", "", "", "TxtKodeCus", "GridCari"},
        {"customers by part of the name", "T01", "TxtNamaCus", "Merak", "TxtKodeCus", "GridCari"},
        {"products of a sale", "T01", "", "", "bttnSearch", "GridCari", true},
        {"products by part of the name", "T01", "TxtDiskripsi", "Merak", "bttnSearch", "GridCari", true},
        {"suppliers", "T04", "", "", "TxtKodeSup", "GridCari"},
        {"products of a purchase", "T04", "", "", "bttnSearch(1)", "GridCari", true},
    };
    return lookUps;
}

void Till::PrepareLookUp(const LookUp& lookUp) {
    forms::Screen& screen = Fresh(lookUp.key);
    screen.Click(On(screen, "bttnNew"));
    On(screen, "FrameIsiBarang").SetVisible(true);
    if (!lookUp.field.empty())
        dynamic_cast<forms::TextControl&>(On(screen, lookUp.field)).SetText(lookUp.part);
    if (!lookUp.button) screen.MoveFocus(On(screen, lookUp.asks));
}

int Till::OpenLookUp(const LookUp& lookUp) {
    forms::Screen& screen = Open(lookUp.key);
    if (lookUp.button)
        screen.Click(On(screen, lookUp.asks));
    else
        screen.PressKey({.code = forms::KeyCode::F5});
    const auto& list = dynamic_cast<forms::ListGrid&>(On(screen, lookUp.list));
    if (!list.Visible()) throw std::runtime_error("the list of " + lookUp.label + " did not open");
    Look(list);
    return list.Rows();
}

} // namespace varnik::bench
