#include "reports/LedgerBook.h"

namespace varnik {

namespace {

constexpr int CodeWidth = 10; // characters of an item in front of its name

constexpr Book Books[] = {
    // Both balances go to one parameter, the closing one last: the report tells the opening one back from
    // the movements. Wanted.
    {"BukuBank", "Cahs and Bank Book", "Select RekID, NamaBank From Bank Order By RekID", "QueryBank",
     "RekID", "Select  SaldoAwal , SaldoAkhir From Bank Where RekID ='",
     "SELECT  NamaBank,RekID, NoRek, Tanggal, NoBukti, Debit, Kredit  From    QueryBank ", "Tanggal", "RekID",
     "", "Cash And Bank Book", "Cash And Bank Book", "\\BukuBank.rpt", 0},
    {"BukuPiutang", "Account Receivables", "Select KodeCus, NamaCus From Customer Order By KodeCus",
     "QueryPiutang", "KodeCus", "Select  SaldoAwal , SaldoAkhir From Customer Where KodeCus ='",
     // The query has no NoJurnal: that column comes back empty.
     "SELECT    Customer.KodeCus, Customer.NamaCus,    QueryPiutang.NoJurnal, QueryPiutang.Tanggal, "
     "QueryPiutang.NoBukti, QueryPiutang.Debit, QueryPiutang.Kredit From    Customer LEFT OUTER JOIN "
     "QueryPiutang ON        Customer.KodeCus = QueryPiutang.KodeCus ",
     "QueryPiutang.Tanggal", "Customer.KodeCus", "  Order By QueryPiutang.Tanggal",
     "Customer Payments History ", "Customer Payments History", "\\BukuPiutang.rpt", 1},
    {"BukuHutang", "Account Payables", "Select KodeSup, NamaSup From Supplier Order By KodeSup",
     "QueryHutang", "KodeSup", "Select  SaldoAwal , SaldoAkhir From SUpplier Where KodeSup ='",
     "SELECT    Supplier.KodeSup, Supplier.NamaSup,    QueryHutang.NoJurnal, QueryHutang.Tanggal, "
     "QueryHutang.NoBukti, QueryHutang.Debit, QueryHutang.Kredit From    Supplier LEFT OUTER JOIN "
     "QueryHutang ON        Supplier.KodeSup = QueryHutang.KodeSup ",
     "QueryHutang.Tanggal", "Supplier.KodeSup", "", "Supplier Payment History", "Supplier Payment History",
     "\\BukuHutang.rpt", 1},
};

} // namespace

BukuBank::BukuBank(Services& services) : LedgerBook(services, Books[0]) {}
BukuPiutang::BukuPiutang(Services& services) : LedgerBook(services, Books[1]) {}
BukuHutang::BukuHutang(Services& services) : LedgerBook(services, Books[2]) {}

LedgerBook::LedgerBook(Services& services, const Book& book)
    : ReportDialog(services, book.name, book.caption), book_(book) {
    for (forms::TextBox* number : {&Text1, &Text2})
        number->onKeyPress = [](forms::KeyPress& press) {
            const bool digit = press.character >= U'0' && press.character <= U'9';
            if (!digit && press.character != U'\b') press.Discard();
        };
    Wire(OKButton, CancelButton, [this] { Print(); });
    SetDefault(nullptr); // Enter goes on from the account to the month and the year
}

void LedgerBook::Load() { FillFilter(Combo1, book_.items, CodeForm::Padded); }

std::string LedgerBook::Code() const { return Trim(Left(Combo1.Text(), CodeWidth)); }

std::string LedgerBook::InMonth(const std::string& date) const {
    return "month(" + date + ")= " + Text1.Text() + " And Year (" + date + ") = " + Text2.Text();
}

LedgerBook::Movement LedgerBook::Sum(ado::Connection& connection, const std::string& condition) const {
    const std::string query = book_.query;
    ado::Recordset sums("SELECT    Sum(" + query + ".Debit) as D, Sum(" + query + ".Kredit) as K From   " +
                            query + "  Where " + condition,
                        connection, ado::CursorType::Static);
    if (sums.Eof()) return {};
    return {NullToNumber(sums["D"], services_.regional), NullToNumber(sums["K"], services_.regional)};
}

// Debit adds and Kredit subtracts in all three; which side a document stands on is the query's business.
void LedgerBook::Print() {
    Launch([this] {
        const std::string query = book_.query;
        const std::string account = query + "." + book_.key + " = '" + Code() + "' ";
        ado::Connection connection(services_.data, Sess().ConnectionString);
        // The first of the month is written day first, whatever the machine's order: where months come
        // first it is another day. Wanted.
        const Movement before = Sum(connection, query + ".Tanggal < Datevalue('01/ " + Text1.Text() + "/ " +
                                                    Text2.Text() + "')  and " + account + " ");
        ado::Recordset master(book_.balances + Code() + "' ", connection, ado::CursorType::Static);
        double opening = 0;
        if (!master.Eof()) opening = NullToNumber(master["SaldoAwal"], services_.regional);
        opening = opening + before.debit - before.kredit;
        const Movement during = Sum(connection, InMonth(query + ".Tanggal") + " And " + account);
        const double closing = opening + during.debit - during.kredit;

        ReportRequest request = RequestFor(book_.file);
        request.Connect = Sess().ConnectionString;
        request.SQLQuery = std::string(book_.rows) + "Where " + InMonth(book_.date) + " And " + book_.code +
                           " = '" + Code() + "'" + book_.order;
        request.WindowTitle = book_.windowTitle;
        request.ReportTitle = book_.reportTitle;
        request.ParameterFields[0] = ParameterText("SaldoAwal", Masked(opening));
        request.ParameterFields[book_.closingIndex] = ParameterText("SaldoAkhir", Masked(closing));
        return request;
    });
}

} // namespace varnik
