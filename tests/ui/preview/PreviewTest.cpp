// The preview on a report of 100,000 rows, without a display.

#include "tests/unit/reports/ReportCases.h"
#include "ui/preview/PagePainter.h"
#include "ui/preview/PageView.h"
#include "ui/preview/PreviewWindow.h"
#include "ui/preview/WriteReport.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMessageBox>
#include <QPainter>
#include <QPrinter>
#include <QProgressDialog>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <gtest/gtest.h>

using namespace varnik;
using namespace varnik::reports;
using namespace varnik::ui;

namespace {

constexpr int ManyRows = 100'000;

std::unique_ptr<Report> ManyProducts(int count) {
    Rows rows(
        {"KodeBrg", "NamaBrg", "JenisBrg", "JenisProduk", "Satuan", "OnHand", "HargaBeli", "HargaJual"});
    for (int i = 1; i <= count; ++i)
        rows.Add(std::array<Value, 8>{Value("B" + std::to_string(1'000'000 + i)),
                                      Value("Product number " + std::to_string(i)),
                                      Value(i <= count / 2 ? "001" : "002"), Value("Category"), Value("PCS"),
                                      Value(i % 500), Value(123456.0 * i), Value(150000.0 * i)});
    return std::make_unique<Report>(LoadDefinition("Report", "persediaan.rpt"), std::move(rows), FactsOf());
}

class Preview : public testing::Test {
protected:
    static void SetUpTestSuite() {
        static int count = 1;
        static char name[] = "preview_test";
        static char* arguments[] = {name, nullptr};
        if (QCoreApplication::instance() == nullptr) {
            qputenv("QT_QPA_PLATFORM", "offscreen");
            application = new QApplication(count, arguments);
        }
    }
    static void TearDownTestSuite() {
        delete application;
        application = nullptr;
    }
    void Open(int rows) {
        window = std::make_unique<PreviewWindow>(ManyProducts(rows));
        window->setAttribute(Qt::WA_DeleteOnClose, false);
        window->resize(1000, 800);
        window->show();
        QCoreApplication::processEvents();
    }
    void Press(QWidget* target, int key) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &press);
        QCoreApplication::processEvents();
    }
    inline static QApplication* application = nullptr;
    std::unique_ptr<PreviewWindow> window;
};

} // namespace

TEST_F(Preview, BuildsOnlyThePagesThatCanBeSeen) {
    Open(ManyRows);
    ASSERT_GT(window->Shown().PageCount(), 1000);
    const int atFirst = window->Pages().PagesBuilt();
    EXPECT_GE(atFirst, 1);
    EXPECT_LE(atFirst, 3);
    Press(&window->Pages(), Qt::Key_End);
    EXPECT_EQ(window->Pages().CurrentPage(), window->Shown().PageCount());
    Press(&window->Pages(), Qt::Key_PageUp);
    EXPECT_EQ(window->Pages().CurrentPage(), window->Shown().PageCount() - 1);
    window->grab();
    EXPECT_LE(window->Pages().PagesBuilt(), atFirst + 6);
}

TEST_F(Preview, FindMovesToThePageAndRoundTheEnd) {
    Open(2000);
    ASSERT_TRUE(window->Find("product NUMBER 1999"));
    EXPECT_GT(window->Pages().CurrentPage(), window->Shown().PageCount() - 5);
    ASSERT_TRUE(window->Find("B1000003"));
    EXPECT_EQ(window->Pages().CurrentPage(), 1);
    EXPECT_FALSE(window->Find("no such text"));
}

TEST_F(Preview, ZoomsAndTurnsPagesFromItsFields) {
    Open(500);
    auto* zoom = window->findChild<QComboBox*>();
    ASSERT_NE(zoom, nullptr);
    zoom->lineEdit()->setText("200%");
    emit zoom->lineEdit()->returnPressed();
    EXPECT_EQ(window->Pages().Percent(), 200);
    zoom->setCurrentIndex(1);
    emit zoom->activated(1);
    EXPECT_EQ(window->Pages().CurrentZoom(), PageView::Zoom::FitPage);
    for (QLineEdit* field : window->findChildren<QLineEdit*>()) {
        if (field->accessibleName() != "Page number") continue;
        field->setText("4");
        emit field->returnPressed();
    }
    EXPECT_EQ(window->Pages().CurrentPage(), 4);
}

TEST_F(Preview, EveryControlHasAnAccessibleName) {
    Open(3);
    window->resize(520, 500); // too narrow for the whole bar
    QCoreApplication::processEvents();
    for (const QToolButton* button : window->findChildren<QToolButton*>()) {
        // A field's own button for clearing it is no stop of its own.
        if (!button->isVisible() || qobject_cast<QLineEdit*>(button->parentWidget())) continue;
        EXPECT_FALSE(button->accessibleName().isEmpty()) << button->text().toStdString();
    }
    for (const QLineEdit* field : window->findChildren<QLineEdit*>())
        EXPECT_TRUE(!field->accessibleName().isEmpty() || qobject_cast<QComboBox*>(field->parentWidget()));
    for (const QComboBox* field : window->findChildren<QComboBox*>())
        EXPECT_FALSE(field->accessibleName().isEmpty());
}

TEST_F(Preview, WritesAPdfWholeOrNotAtAll) {
    const QTemporaryDir folder;
    const std::filesystem::path file = folder.filePath("list.pdf").toStdString();
    const auto report = ManyProducts(200);
    EXPECT_FALSE(WritePdf(*report, file, [](long done, long) { return done < 2; }));
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    EXPECT_TRUE(WritePdf(*report, file));
    EXPECT_EQ(FileText(file).substr(0, 5), "%PDF-");
    EXPECT_THROW(WritePdf(*report, folder.filePath("no/such/folder.pdf").toStdString()), ado::DataError);
}

TEST_F(Preview, SavesUnderTheNameGivenAndSaysSo) {
    const QTemporaryDir folder;
    Open(30);
    const std::pair<const char*, void (PreviewWindow::*)(QString)> kinds[] = {
        {"list.pdf", &PreviewWindow::SavePdf},
        {"list.xlsx", &PreviewWindow::SaveXlsx},
        {"list.csv", &PreviewWindow::SaveCsv}};
    for (const auto& [name, save] : kinds) {
        (*window.*save)(folder.filePath(name));
        EXPECT_GT(QFileInfo(folder.filePath(name)).size(), 1000) << name;
        EXPECT_TRUE(window->statusBar()->currentMessage().endsWith(name)) << name;
        QString told;
        QTimer::singleShot(0, window.get(), [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            told = box->text();
            box->accept();
        });
        (*window.*save)(folder.filePath("no/such/") + name);
        EXPECT_TRUE(told.contains("cannot be written")) << told.toStdString();
    }
}

TEST_F(Preview, LongWorkIsStoppedByItsButton) {
    const QTemporaryDir folder;
    Open(ManyRows);
    QTimer hand;
    QObject::connect(&hand, &QTimer::timeout, [] {
        if (auto* bar = qobject_cast<QProgressDialog*>(QApplication::activeModalWidget())) bar->cancel();
    });
    hand.start(0);
    window->ShowBarAfter(0); // however fast the machine is
    window->SavePdf(folder.filePath("list.pdf"));
    EXPECT_EQ(window->statusBar()->currentMessage(), "Stopped; nothing was saved.");
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    EXPECT_FALSE(window->Find("no such text"));
    EXPECT_EQ(window->statusBar()->currentMessage(), "The search was stopped.");
}

TEST_F(Preview, PrintsTheAskedPagesAndStops) {
    const QTemporaryDir folder;
    const auto report = ManyProducts(400);
    QPrinter printer(QPrinter::HighResolution);
    SetUpPaper(*report, printer);
    printer.setOutputFileName(folder.filePath("printed.pdf"));
    printer.setFromTo(2, 4);
    std::vector<long> done;
    EXPECT_TRUE(PrintReport(*report, printer, [&](long part, long total) {
        EXPECT_EQ(total, 3);
        done.push_back(part);
        return true;
    }));
    EXPECT_EQ(done, (std::vector<long>{0, 1, 2}));
    EXPECT_GT(std::filesystem::file_size(folder.filePath("printed.pdf").toStdString()), 1000u);
    EXPECT_FALSE(PrintReport(*report, printer, [](long part, long) { return part < 1; }));
}

// Ink may not reach beyond the box of a text, whatever the font: figures would run into each other.
TEST_F(Preview, ANarrowBoxNarrowsItsText) {
    Page page;
    page.runs.push_back({{20, 10, 15, 4}, "999,999,999,999.00", Align::Right, 9, true, 0x000000});
    QImage sheet(600, 300, QImage::Format_RGB32);
    sheet.fill(Qt::white);
    QPainter painter(&sheet);
    painter.scale(10, 10);
    PaintPage(painter, page);
    painter.end();
    int inside = 0, outside = 0;
    for (int y = 0; y < sheet.height(); ++y)
        for (int x = 0; x < sheet.width(); ++x)
            if (qGray(sheet.pixel(x, y)) < 128) ++(x >= 200 && x < 350 ? inside : outside);
    EXPECT_GT(inside, 100);
    EXPECT_EQ(outside, 0);
}
