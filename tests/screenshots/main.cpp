// varnik-screenshots DATA PICTURES: pictures of every screen as a user sees it, on the data of a program
// folder, at the size at load and grown by 1.3. script/screenshots prepares the folder and calls it.

#include "app/Program.h"
#include "app/ProgramFolder.h"
#include "ui/QtDesktop.h"
#include "ui/ScreenWindow.h"
#include "ui/Style.h"
#include "ui/preview/PreviewWindow.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <functional>
#include <iostream>

namespace varnik {
namespace {

class Photographer {
public:
    Photographer(const std::filesystem::path& data, const QString& pictures)
        : pictures_(QDir().absoluteFilePath(pictures)), // the program moves into its folder
          desktop_(PrepareProgramFolder(data), regional_),
          program_(desktop_, regional_) {
        QDir().mkpath(pictures_);
        desktop_.SetServices(program_.Access());
        program_.Start();
    }
    ~Photographer() { desktop_.DropScreens(); }
    Photographer(const Photographer&) = delete;
    Photographer& operator=(const Photographer&) = delete;

    void TakeAll() {
        Both("fLogin");
        Keys("fLogin", "txtUserId", "varnik");
        Press("fLogin", Qt::Key_Return);
        Keys("fLogin", "txtPassword", "kemiri");
        Press("fLogin", Qt::Key_Return);
        Settle([&] { return Window("frmMainCode"); });
        Both("frmMainCode");
        Menu("lblFile");
        Menu("lblTool");
        Menu("lblHelp");
        Box();
        for (const auto& [key, entry] : program_.Access().screens) {
            Open(key, entry.name);
            Both(entry.name.c_str());
        }
        Product();
        User();
        Masters();
        Reports(); // before what is entered for its picture alone
        StockAndCost();
        Books();
        Invoice();
        Receipts();
        Receipt();
        PostedReceipts();
        Return();
        Purchase();
        PurchaseReturn();
        Payment();
        OtherReceipt();
        OtherPayment();
    }

private:
    void Product() {
        if (!Open("F01", "fProduk")) return;
        Keys("fProduk", "txtKode", "0000000001");
        Press("fProduk", Qt::Key_Return);
        Both("fProduk", "record");
        Click("fProduk", "bttnEdit");
        Both("fProduk", "edit");
        Window("fProduk")->Screen().MoveFocus(*Window("fProduk")->Screen().FindControl("TxtSatuan"));
        PopUp("fProduk", "TxtSatuan", Qt::Key_F4, "units");
        Click("fProduk", "bttnCancel");
        Click("fProduk", "bttnFind");
        Click("fProduk", "cmdExecute");
        Both("fProduk", "search");
    }

    void User() {
        if (!Open("mnuToolUser", "fuser")) return;
        Click("fuser", "bttnAdd");
        Click("fuser", "bttnCancel"); // shows the first user
        Click("fuser", "bttnEdit");
        Both("fuser", "edit");
        Click("fuser", "bttnCancel");
    }

    // Each with a record, the ones with a search with what it finds, and the list on paper.
    void Masters() {
        const struct {
            const char *key, *screen, *box, *code;
            bool searches;
        } masters[] = {{"F02", "fCustomer", "txtKode", "0000000002", true},
                       {"F03", "fSupplier", "txtKode", "0000000001", true},
                       {"F04", "fBank", "txtRekID", "2", true},
                       {"F08", "fAccJenisProduk", "txtKode", "DRK", false},
                       {"F09", "frmJenisCustomer", "txtKode", "OFF", false},
                       {"F06", "fJenisBiaya", "txtKode", "002", false},
                       {"F07", "fBiaya", "txtKode", "0000000002", false}};
        for (const auto& master : masters) {
            if (!Open(master.key, master.screen)) continue;
            Keys(master.screen, master.box, master.code);
            Press(master.screen, Qt::Key_Return);
            Both(master.screen, "record");
            Click(master.screen, "bttnPrint");
            Preview((std::string(master.screen) + "-print").c_str());
            if (!master.searches) continue;
            Click(master.screen, "bttnFind");
            Click(master.screen, "cmdExecute");
            Both(master.screen, "search");
        }
    }

    void Invoice() {
        if (!Open("T01", "Invoice")) return;
        Click("Invoice", "bttnNew");
        EnterUpTo("Invoice", "TxtTglInvoice");
        PopUp("Invoice", "TxtTglInvoice", Qt::Key_F4, "calendar");
        EnterUpTo("Invoice", "TxtKodeCus");
        Press("Invoice", Qt::Key_F5);
        Press("Invoice", Qt::Key_Down);
        Both("Invoice", "lookup");
        QTest::keyClicks(Window("Invoice")->focusWidget(), QStringLiteral("war"));
        Both("Invoice", "narrowed");
        Press("Invoice", Qt::Key_Return);
        for (const char* line : {"0000000001", "0000000002", "0000000003"}) {
            EnterUpTo("Invoice", "txtKodeBrg");
            Keys("Invoice", "txtKodeBrg", line);
            Press("Invoice", Qt::Key_Return);
            Keys("Invoice", "txtQty", "2");
            if (line[9] == '3') break; // the third stays on the entry line
            EnterUpTo("Invoice", "bttnAddLine");
            Press("Invoice", Qt::Key_Return); // adds it
            Press("Invoice", Qt::Key_Return); // opens the next
        }
        Both("Invoice", "entry");
        EnterUpTo("Invoice", "bttnAddLine");
        Press("Invoice", Qt::Key_Return);
        Click("Invoice", "bttnSave");
        Both("Invoice", "saved");
        invoice_ = Text("Invoice", "TxtNoInvoice");
        Click("Invoice", "bttnPrint");
        Preview("Invoice-print");
        Click("Invoice", "bttnFind");
        Click("Invoice", "cmdExecute");
        Both("Invoice", "search");
        Click("Invoice", "cmdTutup");
    }

    // The receipt for the invoice that stands on its screen.
    void Receipt() {
        Keys("Invoice", "TxtNoInvoice", invoice_.c_str());
        Click("Invoice", "bttnBayar");
        Settle([&] { return Window("Bayar"); });
        Keys("Bayar", "TxtNamaPenerima", "Tini");
        Both("Bayar");
        Click("Bayar", "bttnSave");
        Click("Bayar", "bttnPrint");
        Preview("Bayar-print");
        Click("Bayar", "bttnClose");
    }

    // While the invoice is still owed.
    void Receipts() {
        if (!Open("T02", "BayarInvoice")) return;
        Click("BayarInvoice", "bttnNew");
        Keys("BayarInvoice", "TxtCaraBayar", "CHEQUE");
        Keys("BayarInvoice", "TxtRekening", "2");
        Keys("BayarInvoice", "TxtNamaBank", "Bank Nusa");
        Keys("BayarInvoice", "TxtNoCek", "CQ-0091");
        Keys("BayarInvoice", "TxtPemilik", "Warung Bu Tini");
        Keys("BayarInvoice", "TxtNoInvoice", invoice_.c_str());
        Press("BayarInvoice", Qt::Key_Return);
        Click("BayarInvoice", "bttnAddLine");
        Both("BayarInvoice", "entry");
        Click("BayarInvoice", "Command1");
        Click("BayarInvoice", "cmdExecute");
        Both("BayarInvoice", "invoices");
        Click("BayarInvoice", "cmdTutup");
        Click("BayarInvoice", "bttnCancel");
    }

    void PostedReceipts() {
        Click("BayarInvoice", "bttnFind");
        Click("BayarInvoice", "bttnExecute2");
        Both("BayarInvoice", "search");
    }

    void Return() {
        if (!Open("T03", "InvoiceRetur")) return;
        Click("InvoiceRetur", "bttnNew");
        Keys("InvoiceRetur", "TxtNoInvoice", invoice_.c_str());
        Press("InvoiceRetur", Qt::Key_Return);
        Both("InvoiceRetur", "loaded");
        Click("InvoiceRetur", "bttnSave");
        Both("InvoiceRetur", "saved");
        Click("InvoiceRetur", "bttnPrint");
        Preview("InvoiceRetur-print");
        Click("InvoiceRetur", "bttnFind");
        Click("InvoiceRetur", "bttnExecute2");
        Both("InvoiceRetur", "search");
    }

    void Purchase() {
        if (!Open("T04", "Faktur")) return;
        Click("Faktur", "bttnNew");
        Press("Faktur", Qt::Key_Return);
        Keys("Faktur", "TxtKodeSup", "0000000001");
        Press("Faktur", Qt::Key_Return); // goes to the lines
        const struct {
            const char *code, *price;
        } lines[] = {{"0000000004", "198000"}, {"0000000007", "290000"}, {"0000000009", "92000"}};
        for (const auto& line : lines) {
            Press("Faktur", Qt::Key_Return); // opens the next
            Keys("Faktur", "txtKodeBrg", line.code);
            Press("Faktur", Qt::Key_Return);
            Keys("Faktur", "txtQty", "4");
            Press("Faktur", Qt::Key_Return);
            Keys("Faktur", "txtHarga", line.price);
            if (&line == &lines[2]) break; // the third stays on the entry line
            Click("Faktur", "bttnAddLine");
        }
        Both("Faktur", "entry");
        Click("Faktur", "bttnAddLine");
        Click("Faktur", "bttnSave");
        Both("Faktur", "saved");
        purchase_ = Text("Faktur", "TxtNoFaktur");
        Click("Faktur", "bttnPrint");
        Preview("Faktur-print");
    }

    void PurchaseReturn() {
        if (!Open("T06", "FakturRetur")) return;
        Click("FakturRetur", "bttnNew");
        Keys("FakturRetur", "txtNoPO", purchase_.c_str());
        Press("FakturRetur", Qt::Key_Return);
        Both("FakturRetur", "loaded");
        Click("FakturRetur", "bttnCancel");
    }

    void Payment() {
        if (!Open("T05", "BayarFaktur")) return;
        Click("BayarFaktur", "bttnNew");
        Keys("BayarFaktur", "TxtCaraBayar", "CHEQUE");
        Keys("BayarFaktur", "TxtRekening", "300");
        Keys("BayarFaktur", "TxtNoCek", "NB-41020");
        Keys("BayarFaktur", "TxtNamaPenerima", "Ratna");
        Keys("BayarFaktur", "TxtNoFaktur", purchase_.c_str());
        Press("BayarFaktur", Qt::Key_Return);
        Click("BayarFaktur", "bttnAddLine");
        Both("BayarFaktur", "entry");
        Click("BayarFaktur", "bttnCancel");
    }

    void OtherReceipt() {
        if (!Open("T08", "OtherReceive")) return;
        Click("OtherReceive", "bttnNew");
        Keys("OtherReceive", "TxtCaraBayar", "CHEQUE");
        Keys("OtherReceive", "TxtRekening", "2");
        Keys("OtherReceive", "TxtNamaPenerima", "Ibu Sari");
        Keys("OtherReceive", "TxtMemo", "Rent of the shelf beside the door, November");
        Keys("OtherReceive", "TxtNoCek", "CQ-0117");
        Keys("OtherReceive", "TxtJumlah", "1250000.50");
        Press("OtherReceive", Qt::Key_Return);
        Both("OtherReceive", "entry");
        Click("OtherReceive", "bttnSave");
        Click("OtherReceive", "bttnPrint");
        Preview("OtherReceive-print");
        Click("OtherReceive", "bttnFind");
        Click("OtherReceive", "cmdExecute");
        Both("OtherReceive", "search");
    }

    void OtherPayment() {
        if (!Open("T09", "OtherPayment")) return;
        Click("OtherPayment", "bttnNew");
        Keys("OtherPayment", "TxtCaraBayar", "CASH");
        Keys("OtherPayment", "TxtRekening", "1");
        Keys("OtherPayment", "TxtNamaPenerima", "Pak Udin");
        for (const auto& [cost, amount] : {std::pair{"0000000001", "300000"}, {"0000000002", "87500"}}) {
            Keys("OtherPayment", "TxtBiaya", cost);
            Keys("OtherPayment", "TxtJumlah", amount);
            if (cost[9] == '1') Click("OtherPayment", "bttnAddLine"); // the second stays on the entry line
        }
        Both("OtherPayment", "entry");
        Click("OtherPayment", "bttnAddLine");
        Click("OtherPayment", "bttnSave");
        Both("OtherPayment", "saved");
        Click("OtherPayment", "bttnPrint");
        Preview("OtherPayment-print");
        Click("OtherPayment", "bttnFind");
        Click("OtherPayment", "cmdExecute");
        Both("OtherPayment", "search");
    }

    // A kind with its list open and its report, for sales and for purchases.
    void Reports() {
        for (const auto& [key, screen] :
             {std::pair{"L01", "SalesReport"}, std::pair{"L04", "PurchasesReport"}}) {
            if (!Open(key, screen)) continue;
            Click(screen, "opLap1");
            Both(screen, "aged");
            Click(screen, "OKButton");
            Preview((std::string(screen) + "-aged-print").c_str());
            Click(screen, "opLap2");
            PopUp(screen, "Combo1", Qt::Key_F4, (std::string(screen) + "-list").c_str());
            Click(screen, "Option2");
            Both(screen, "types");
            Click(screen, "OKButton");
            Preview((std::string(screen) + "-types-print").c_str());
        }
    }

    void StockAndCost() {
        for (const auto& [option, name] :
             {std::pair{"opLap1", "balance"}, {"opLap2", "card"}, {"opLap3", "prices"}}) {
            if (!Open("L13", "LapPers1")) return;
            Click("LapPers1", option);
            Both("LapPers1", name);
            Click("LapPers1", "OKButton");
            Preview(("LapPers1-" + std::string(name) + "-print").c_str());
        }
        if (!Open("L21", "LapBiaya1")) return;
        Click("LapBiaya1", "Option2");
        Both("LapBiaya1", "detail");
        Click("LapBiaya1", "OKButton");
        Preview("LapBiaya1-print");
    }

    // This month of the first account, customer and supplier.
    void Books() {
        const QDate today = QDate::currentDate();
        for (const auto& [key, name] :
             {std::pair{"L16", "BukuBank"}, {"L18", "BukuPiutang"}, {"L17", "BukuHutang"}}) {
            if (!Open(key, name)) return;
            Press(name, Qt::Key_Down);
            Press(name, Qt::Key_Return);
            Keys(name, "Text1", QByteArray::number(today.month()));
            Keys(name, "Text2", QByteArray::number(today.year()));
            Both(name, "month");
            Click(name, "OKButton");
            Preview((std::string(name) + "-print").c_str());
        }
    }

    ui::ScreenWindow* Window(const std::string& screen) { return desktop_.WindowOf(screen); }
    bool Open(const std::string& key, const std::string& name) {
        if (!program_.Access().screens.contains(key)) return false;
        OpenScreen(program_.Access(), key, name);
        Settle([&] { return Window(name) && Window(name)->isVisible(); });
        return true;
    }
    static void Settle(const std::function<bool()>& condition) {
        if (!QTest::qWaitFor(condition, 5000)) std::cerr << "a window did not come up\n";
        QTest::qWait(60); // lets everything paint
    }
    QWidget* Find(const std::string& screen, const char* name) {
        ui::ScreenWindow* window = Window(screen);
        auto* widget = window ? window->findChild<QWidget*>(QString::fromLatin1(name)) : nullptr;
        if (!widget) std::cerr << screen << "." << name << " is not there\n";
        return widget;
    }
    void Keys(const std::string& screen, const char* name, const char* text) {
        QWidget* widget = Find(screen, name);
        if (!widget) return;
        Window(screen)->Screen().MoveFocus(*Window(screen)->Screen().FindControl(name));
        QTest::keyClicks(widget, QString::fromUtf8(text));
    }
    std::string Text(const std::string& screen, const char* name) {
        auto* edit = qobject_cast<QLineEdit*>(Find(screen, name));
        return edit ? edit->text().toStdString() : "";
    }
    void Press(const std::string& screen, Qt::Key key) {
        ui::ScreenWindow* window = Window(screen);
        if (!window) return;
        QTest::keyClick(window->focusWidget() ? window->focusWidget() : window, key);
    }
    void EnterUpTo(const std::string& screen, const std::string& control) {
        for (int step = 0; step < 15; ++step) {
            const forms::Control* focused = Window(screen)->Screen().Focused();
            if (focused && focused->Name() == control) return;
            Press(screen, Qt::Key_Return);
        }
        std::cerr << screen << "." << control << " was not reached\n";
    }
    void Click(const std::string& screen, const char* name) {
        if (QWidget* widget = Find(screen, name)) QTest::mouseClick(widget, Qt::LeftButton);
    }

    void Save(QWidget& widget, const QString& name) {
        QTest::qWait(60);
        const QString file = QStringLiteral("%1/%2.png").arg(pictures_, name);
        if (!widget.grab().save(file)) std::cerr << "cannot write " << file.toStdString() << "\n";
    }
    void Both(const char* screen, const char* scene = nullptr) {
        ui::ScreenWindow* window = Window(screen);
        if (!window) return;
        QString name = QString::fromLatin1(screen);
        if (scene) name += QStringLiteral("-%1").arg(QLatin1String(scene));
        Save(*window, name);
        const QSize size = window->size();
        window->resize(size * 1.3);
        QTest::qWait(30);
        Save(*window, name + QStringLiteral("-130"));
        window->resize(size);
        QTest::qWait(30);
    }
    void PopUp(const char* screen, const char* control, Qt::Key key, const char* picture) {
        QTest::keyClick(Find(screen, control), key);
        if (!QTest::qWaitFor([] { return QApplication::activePopupWidget(); }, 2000)) {
            std::cerr << screen << "." << control << " opens nothing\n";
            return;
        }
        QWidget* list = QApplication::activePopupWidget();
        Save(*list, QString::fromLatin1(picture));
        list->close();
    }
    void Menu(const char* label) {
        Click("frmMainCode", label);
        if (!QTest::qWaitFor([] { return QApplication::activePopupWidget(); }, 2000)) return;
        QWidget* menu = QApplication::activePopupWidget();
        Save(*menu, QStringLiteral("frmMain-%1").arg(QLatin1String(label)));
        menu->close();
    }
    void Box() {
        QTimer::singleShot(150, &context_, [&] {
            QWidget* box = QApplication::activeModalWidget();
            if (!box) return;
            Save(*box, QStringLiteral("box"));
            box->close();
        });
        desktop_.MessageBox(
            {"This product always on table ,\r\nAdded again?", "Double", Icon::Question, Buttons::YesNo});
    }
    void Preview(const char* name) {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (auto* preview = dynamic_cast<ui::PreviewWindow*>(window); preview && preview->isVisible()) {
                Save(*preview, QString::fromLatin1(name));
                preview->close();
                return;
            }
        std::cerr << "no preview came up\n";
    }

    QString pictures_;
    std::string invoice_, purchase_; // the numbers of those that were entered for their pictures
    QObject context_;
    Regional regional_{.order = DateOrder::DayMonthYear}; // as the books ask for the first of a month
    ui::QtDesktop desktop_;
    Program program_;
};

} // namespace
} // namespace varnik

int main(int count, char** words) {
    QApplication application(count, words);
    if (count < 3) {
        std::cerr << "varnik-screenshots DATA PICTURES [dark]\n";
        return 2;
    }
    varnik::ui::ApplyStyle(application, count > 3 && std::string(words[3]) == "dark");
    varnik::Photographer(words[1], QString::fromLocal8Bit(words[2])).TakeAll();
    return 0;
}
