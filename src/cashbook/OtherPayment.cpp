#include "cashbook/OtherPayment.h"

namespace varnik {

using document::EntryMode;

namespace {

constexpr int MemoLength = 100; // what the column can hold

constexpr cashbook::CashTexts Texts{
    .document = Document::OtherPayment,
    .payee = "Paid To",
    .table = "BKK",
    .number = "NoBKK",
    .accounts = "Select RekID, NamaBank,NoRek,NamaPemilik From QryDaftarKasBank Order By RekID",
    .numberStands = "Double payment number ...",
    .unknown = "Item with this code is not found ...",
    .unknownNow = "Item with this code is not found ...",
    .noAccount = "Account Cash or bank  should not be empty ...",
    .strangeAccount = "Account Cash or bank is not registered ...",
    .noCheque = "Number cheque can not be empty...",
};

// Wanted: the list offers other words than the search tests, so that "Payment No" and "Cost Detail" find all.
constexpr std::string_view Offered[] = {"Payment No", "Payment Date", "Cash or Bank", "Cost Detail"};
constexpr document::SearchChoice Choices[] = {
    {"Payment ID", " Where noBKK Like '%", "%' Order By NoBKK,KodeBiaya"},
    {"Payment Date", " Where TglBKK= datevalue ('", "') Order By NoBKK,KodeBiaya"},
    {"Cash or Bank", " Where NamaBank Like  '%", "%' Order By NoBKK,KodeBiaya"},
    {"Cost Category", " Where KodeJenisBiaya Like  '%", "%' Order By NoBKK,KodeBiaya"},
    {"Cost Name", " Where KodeBiaya Like  '%", "%' Order By NoBKK,KodeBiaya"},
};

document::SearchLayout Search() {
    using forms::Align;
    return {
        .select =
            " SELECT NoBKK, TglBKK, RekID,   NamaBank, NoRek, JenisBiaya,Diskripsi, JumlahBiaya, Penerima, "
            " Keterangan, CaraBayar,NoCek, Jumlah,  Terbilang, TglJTP,    KodeJenisBiaya,JenisBiaya, "
            "NamaPemilik  From QryBKK ",
        .choices = Choices,
        .columns = {{"Payment ID", Align::Left, 14},
                    {"Date", Align::Left, 11},
                    {"Account", Align::Left, 10},
                    {"Cash or Bank", Align::Left, 18},
                    {"Account No", Align::Left, 14},
                    {"Cost Type", Align::Left, 16},
                    {"Cost", Align::Left, 24},
                    {"Amount", Align::Right, 13},
                    {"Paid To", Align::Left, 18},
                    {"Memo", Align::Left, 24},
                    {"Method", Align::Left, 9},
                    {"Cheque No", Align::Left, 12},
                    {"Payment Total", Align::Right, 15}},
        .mask = "#,##0.#0",
        .offered = Offered};
}

} // namespace

OtherPayment::OtherPayment(Services& services)
    : CashVoucher(services, "OtherPayment", "Other Payments - Varnik", Texts),
      lines_(*this, services.regional),
      frmCari(*this, Search()) {
    head_.TxtMemo.SetMaxLength(MemoLength);
    MovesBack({&lines_.TxtBiaya, &lines_.TxtJenisBiaya, &lines_.TxtJumlah, &lines_.bttnAddLine});
    lines_.TxtBiaya.onChange = [this] { CostChanged(); };
    lines_.bttnAddLine.onClick = [this] { AddLine(); };
    lines_.cmdBatalLine.onClick = [this] { CancelLine(); };
    lines_.OrderGrid.onClick = [this] {
        if (Mode() == EntryMode::New) lines_.TakeBack();
    };
    Serve(frmCari);
}

void OtherPayment::Load() {
    CashVoucher::Load();
    const auto list = [this](forms::ComboBox& box, const char* sql) {
        ado::Recordset rows(sql, Data(), ado::CursorType::Static);
        document::ListItems(box, rows, services_.regional);
    };
    list(lines_.TxtJenisBiaya,
         "SELECT KodeJenisBiaya, JenisBiaya FROM  QryDaftarJenisBiaya Order By KodejenisBiaya ");
    list(lines_.TxtBiaya, "SELECT KodeBiaya, Diskripsi FROM  Biaya Order By KodeBiaya ");
    EntryEnded();
}

void OtherPayment::PreviewKeyDown(forms::Key& key) {
    using forms::KeyCode;
    CashVoucher::PreviewKeyDown(key);
    if (key.handled || Mode() != EntryMode::New || !Focused()) return;
    const bool inGrid = Focused() == &lines_.OrderGrid;
    const bool inLine = Focused()->Container() == &lines_.FrameIsiBarang;
    if (inGrid && key.Is(KeyCode::Enter))
        OpenRow();
    else if (inGrid && key.Is(KeyCode::Delete))
        lines_.RemoveCurrentRow();
    else if (inLine && key.Is(KeyCode::Escape))
        CancelLine();
    else
        return;
    key.handled = true;
}

// ---- The buttons ----

void OtherPayment::StartNew() {
    lines_.FrameIsiBarang.SetEnabled(true);
    CashVoucher::StartNew();
}

void OtherPayment::StartDelete() {
    lines_.FrameIsiBarang.SetVisible(false);
    CashVoucher::StartDelete();
}

void OtherPayment::EntryEnded() {
    lines_.FrameIsiBarang.SetVisible(true);
    lines_.FrameIsiBarang.SetEnabled(false);
}

bool OtherPayment::TestsPassed() {
    return Passes(lines_.JumBayar() > 0, "Payment total equal to zero. There are no payment...",
                  lines_.TxtBiaya) &&
           MethodGiven() &&
           Passes(lines_.AmountsAreNumeric(), "collumn of amount  isnot number ...", lines_.OrderGrid) &&
           MeansStand();
}

void OtherPayment::Reverse() {
    ReversePayment();
    ClearVoucher();
}

void OtherPayment::ClearVoucher() {
    ClearHead();
    lines_.Clear();
}

void OtherPayment::Print() {
    ReportRequest request = ReportOf("\\BKK2.rpt");
    request.Connect = Sess().ConnectionString;
    request.SQLQuery = "SELECT NoBKK, TglBKK, CaraBayar, Keterangan,RekID,NoCek,Jumlah,Penerima,KodeBiaya,"
                       "JumlahBiaya,Diskripsi,NamaBank,NoRek From  qryBKK Where NoBKK ='" +
                       head_.txtNoBukti.Text() + "'";
    request.SetTitles(0, Sess().CompanyName, Sess().CompanyLine1, Sess().CompanyLine2, Sess().CompanyLine3);
    Desk().LaunchReport(request);
}

// ---- The line ----

// A cost brings its type.
void OtherPayment::CostChanged() {
    const std::string code = document::KeyOf(lines_.TxtBiaya);
    ado::Recordset cost;
    if (code.empty() ||
        !Found(cost, "Select KodejenisBiaya From QryDaftarBiaya Where KodeBiaya ='" + code + "'"))
        return;
    document::ShowItem(lines_.TxtJenisBiaya, TextOf(cost["KodejenisBiaya"]));
}

// A row of a cost or type that is not registered would be posted and never be shown or reported again.
bool OtherPayment::CostStands() {
    const auto stands = [this](const char* before, const std::string& code) {
        ado::Recordset rows;
        return Found(rows, before + code + "'");
    };
    const std::string type = document::KeyOf(lines_.TxtJenisBiaya);
    return Passes(stands("Select KodeBiaya From Biaya Where KodeBiaya ='", document::KeyOf(lines_.TxtBiaya)),
                  "Cost is not registered ...", lines_.TxtBiaya) &&
           Passes(type.empty() ||
                      stands("Select KodeJenisBiaya From JenisBiaya Where KodeJenisBiaya ='", type),
                  "Cost type is not registered ...", lines_.TxtJenisBiaya);
}

void OtherPayment::AddLine() {
    if (Mode() != EntryMode::New || !Numeric(lines_.TxtJumlah.Text()) || !CostStands()) return;
    if (Trim(head_.TxtMemo.Text()).empty()) head_.TxtMemo.SetText("PAYMENT ");
    // Asked for each row that holds the cost already.
    for (int row = lines_.Editing() ? 0 : lines_.Repeated(); row > 0; --row)
        if (!Ask("This cost have in table," + std::string(CrLf) + "Added again ?", "Double")) return;
    lines_.Write();
    CancelLine();
}

void OtherPayment::CancelLine() {
    lines_.ClearLine();
    SetFocus(lines_.TxtBiaya);
}

void OtherPayment::OpenRow() {
    lines_.TakeBack();
    SetFocus(lines_.Editing() ? static_cast<forms::Control&>(lines_.TxtJumlah) : lines_.TxtBiaya);
}

} // namespace varnik
