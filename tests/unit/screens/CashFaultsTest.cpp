// Faults in the middle of posting and deleting vouchers of the cash book: nothing binds the two writes, so
// what was written when the user aborts stays. A trigger makes each table refuse in turn.

#include "cashbook/OtherPayment.h"
#include "cashbook/OtherReceive.h"
#include "tests/support/ClerkTest.h"

namespace varnik {
namespace {

// One account with 1000, one receipt of 250 into it, one payment of 300 and 150 out of it.
class CashFaults : public ClerkTest {
public:
    CashFaults() {
        shop.Execute("INSERT INTO Bank (RekID,NamaBank,NoRek,SaldoAwal,SaldoAkhir,DefaultKas) "
                     "VALUES ('1','Cash','',0,1000,True)");
        shop.Execute("INSERT INTO JenisBiaya (KodeJenisBiaya,JenisBiaya) VALUES ('001','Wages')");
        for (const char* cost : {"A", "B"})
            shop.Execute("INSERT INTO Biaya (KodeBiaya,Diskripsi,KodeJenisBiaya) VALUES ('" +
                         std::string(cost) + "','Wages','001')");
    }

    void NewVoucher() {
        Click("bttnNew");
        Fill("TxtCaraBayar", "CASH");
        Fill("TxtRekening", "1");
    }
    void Receive() {
        Open(std::make_unique<OtherReceive>(shop.services));
        NewVoucher();
        Fill("TxtJumlah", "250");
        Click("bttnSave");
    }
    void Pay() {
        Open(std::make_unique<OtherPayment>(shop.services));
        NewVoucher();
        for (const auto& [cost, amount] : {std::pair{"A", "300"}, {"B", "150"}}) {
            Fill("TxtBiaya", cost);
            Fill("TxtJumlah", amount);
            Click("bttnAddLine");
        }
        Click("bttnSave");
    }
    void Remove() {
        Click("bttnDel");
        Fill("txtNoBukti", "000000000100");
        Click("bttnSave");
    }
    // The account, the receipts, the lines of payments.
    std::string Books() {
        return shop.Table("Select SaldoAkhir From Bank") + "; " + shop.Table("Select Jumlah From BKM") +
               "; " + shop.Table("Select JumlahBiaya From BKK Order By JumlahBiaya");
    }
};

struct Fault {
    const char *routine, *doing, *table;
    Answer answer;
    const char* books; // afterwards
};
void PrintTo(const Fault& fault, std::ostream* out) {
    const char* answer = fault.answer == Answer::Abort   ? "abort"
                         : fault.answer == Answer::Retry ? "retry"
                                                         : "ignore";
    *out << fault.routine << " " << fault.doing << " " << fault.table << " " << answer;
}

class EachCashFault : public CashFaults, public testing::WithParamInterface<Fault> {};

TEST_P(EachCashFault, LeavesTheBooksAsTold) {
    const Fault& fault = GetParam();
    const std::string routine = fault.routine;
    if (routine == "receipt deleted") Receive();
    if (routine == "payment deleted") Pay();
    shop.Refuse(fault.doing, fault.table);
    int asked = 0;
    shop.desktop.meanwhile = [&] {
        if (shop.desktop.boxes.back().buttons != Buttons::AbortRetryIgnore) return;
        ++asked;
        shop.Allow(); // Retry meets an open shelf
    };
    shop.desktop.answers = {fault.answer};
    if (routine == "receipt")
        Receive();
    else if (routine == "payment")
        Pay();
    else
        Remove();
    EXPECT_EQ(asked, 1);
    EXPECT_TRUE(shop.desktop.boxes.back().text.starts_with("Err No "));
    EXPECT_EQ(Books(), fault.books);
    EXPECT_TRUE(screen->FindControl("FrameBawah")->Visible());
}

using enum Answer;
INSTANTIATE_TEST_SUITE_P(, EachCashFault,
                         testing::Values(Fault{"receipt", "UPDATE", "Bank", Abort, "1000; ; "},
                                         Fault{"receipt", "UPDATE", "Bank", Retry, "1250; 250; "},
                                         Fault{"receipt", "UPDATE", "Bank", Ignore, "1000; 250; "},
                                         Fault{"receipt", "INSERT", "BKM", Abort, "1250; ; "},
                                         Fault{"receipt", "INSERT", "BKM", Retry, "1250; 250; "},
                                         Fault{"receipt", "INSERT", "BKM", Ignore, "1250; ; "},
                                         Fault{"receipt deleted", "UPDATE", "Bank", Retry, "1000; ; "},
                                         Fault{"receipt deleted", "DELETE", "BKM", Abort, "1000; 250; "},
                                         Fault{"payment", "UPDATE", "Bank", Abort, "1000; ; "},
                                         Fault{"payment", "UPDATE", "Bank", Retry, "550; ; 150\n300"},
                                         Fault{"payment", "INSERT", "BKK", Abort, "550; ; "},
                                         Fault{"payment", "INSERT", "BKK", Ignore, "550; ; 150"},
                                         Fault{"payment deleted", "UPDATE", "Bank", Ignore, "550; ; 150"},
                                         Fault{"payment deleted", "DELETE", "BKK", Retry, "1000; ; 150"}));

} // namespace
} // namespace varnik
