#include "master/fBank.h"

namespace varnik {

namespace {

constexpr std::string_view criteria[] = {"Code"};
constexpr SearchClause clauses[] = {{"CODE", " Where RekID Like '%"}, {"", " Where NamaBank Like '%"}};
constexpr ListColumn searchColumns[] = {{"RekId", 8}, {"NamaBank", 32}, {"NoRek", 20}, {"SaldoAkhir", 16}};
constexpr SearchRow searchRow{.select = "Select RekId,NamaBank,NoRek,SaldoAkhir From Bank ",
                              .criteria = criteria,
                              .clauses = clauses,
                              .order = "Order By NamaBank ",
                              .columns = searchColumns,
                              .amount = 3};

// An empty table proposes "000": its Max is a row without a value, which is no number. Wanted.
constexpr MasterRow row{
    .name = "fBank",
    .caption = "Cash And Bank Account",
    .codeColumn = "RekID",
    .main = "SELECT * FROM Bank",
    .nextCode = {.statement = "Select max(RekId) as Kode From Bank ", .width = 3},
    .duplicate = {true, "Item with this already exist ..."},
    .missing = {true, "Unable to find record ...\r\nOr Others. ", true},
    .cancelShows = Shows::SavedRow,
    .editNotFound = "Unable to find record ...",
    .escapeCancels = false,
    .unknownCodeClears = true,
    .nameMessage = "This account should not be empty ...",
    .nameReturns = true,
    // The confirmation starts without its first letter, as it always has.
    .remove = {.guard = "SaldoAkhir",
               .refused = "The balance is not zero, This item may not deleted ...",
               .notFound = "Unable to find record ...",
               .confirm = "re you sure you want to delete the selected record ?",
               .failed = "This item can not deleted. Error :",
               .notFoundShows = Shows::CurrentRow,
               .requeries = true},
    .report = {.file = "bank.rpt",
               .statement = "SELECT RekID, NamaBank, NoRek, SaldoAwal, SaldoAkhir From   Bank order by RekID",
               .title = "Report Of Cash And Bank"},
    .search = &searchRow};

constexpr const char* Decimals = "#,##0.#0";

} // namespace

fBank::fBank(Services& services) : MasterScreen(services, row) {
    // The notes are never read, so saving an edit empties them unless they are typed again: wanted.
    Carries(txtRekID, TxtNamaBank,
            {{&TxtNamaBank, "NamaBank", "", "", true},
             {&txtNoRek, "NoRek"},
             {&txtJenisRek, "JenisRek"},
             {&txtNamaPemilik, "NamaPemilik"},
             {&txtSaldoAwal, "SaldoAwal", "0", Decimals},
             {&txtSaldoAkhir, "SaldoAkhir", "0", Decimals},
             {&txtket, ""},
             {&Check1, "DefaultKas"}});
    txtSaldoAwal.SetRightAligned(true);
    txtSaldoAkhir.SetRightAligned(true);
    Capitals(txtJenisRek);
    // The screens of receipts and payments look an account up by the first characters of its code.
    txtRekID.SetToolTip(
        "Receipts from customers read the first character, supplier payments the first three");
}

// The balances go in with the mask: from 1,000 on a comma stands in the statement, which then fails in
// silence. Such a balance is entered with Edit. Wanted.
void fBank::InsertRecord() {
    Resume([&] {
        Execute("INSERT INTO BANK (RekID,NamaBank,NoRek,JenisRek,NamaPemilik,SaldoAwal,SaldoAkhir,"
                "Keterangan,DefaultKas ) Values (" +
                Quoted(txtRekID) + "," + Quoted(TxtNamaBank) + "," + Quoted(txtNoRek) + "," +
                Quoted(txtJenisRek) + "," + Quoted(txtNamaPemilik) + "," + MaskedInSql(Number(txtSaldoAwal)) +
                "," + MaskedInSql(Number(txtSaldoAkhir)) + "," + Quoted(txtket) +
                (Check1.Checked() ? ",True)" : ",False)"));
    });
    main_.Requery();
}

void fBank::UpdateRecord() {
    ChangeInMain({{"NamaBank", TxtNamaBank.Text()},
                  {"NoRek", txtNoRek.Text()},
                  {"JenisRek", txtJenisRek.Text()},
                  {"NamaPemilik", txtNamaPemilik.Text()},
                  {"Keterangan", txtket.Text()},
                  {"DefaultKas", Check1.Checked()},
                  {"SaldoAwal", Number(txtSaldoAwal)},
                  {"SaldoAkhir", Number(txtSaldoAkhir)}});
}

} // namespace varnik
