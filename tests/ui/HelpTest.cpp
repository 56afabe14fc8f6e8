// The manual: every screen has its page, F1 opens it, and nothing in the pages leads nowhere.

#include "ui/Help.h"
#include "app/ProgramFolder.h"
#include "tests/ui/Shop.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <set>

namespace varnik::test {
namespace {

// Beside the programs, in the build tree as in an installation.
QDir Manual() { return QDir(QCoreApplication::applicationDirPath() + "/Help"); }

QString Read(const QString& file) {
    QFile page(Manual().filePath(file));
    EXPECT_TRUE(page.open(QIODevice::ReadOnly)) << file.toStdString();
    return QString::fromUtf8(page.readAll());
}

// "page.html#place", or a picture; a place must be an id of the page.
void ExpectThere(const QString& target, const std::string& from) {
    const QString file = target.section('#', 0, 0), place = target.section('#', 1);
    ASSERT_TRUE(Manual().exists(file)) << from << " leads to " << target.toStdString();
    if (place.isEmpty()) return;
    EXPECT_TRUE(Read(file).contains("id=\"" + place + "\"")) << from << " leads to " << target.toStdString();
}

TEST(Help, EveryLinkAndPictureIsThereAndEveryPictureIsShown) {
    std::set<QString> shown;
    const QStringList pages = Manual().entryList({"*.html"});
    EXPECT_GT(pages.size(), 10);
    const QRegularExpression reference("(?:href|src)=\"([^\"]+)\"");
    for (const QString& page : pages) {
        const QString text = Read(page);
        for (const auto& found : reference.globalMatch(text)) {
            QString target = found.captured(1);
            if (target.startsWith('#')) target.prepend(page);
            shown.insert(target);
            ExpectThere(target, page.toStdString());
        }
        EXPECT_FALSE(text.contains("://")) << page.toStdString() << " needs a network";
        EXPECT_TRUE(Read("index.html").contains("\"" + page + "\""))
            << page.toStdString() << " is not in the contents";
    }
    for (const QString& picture : QDir(Manual().filePath("pictures")).entryList(QDir::Files))
        EXPECT_TRUE(shown.contains("pictures/" + picture)) << picture.toStdString() << " stands on no page";
}

class HelpInTheShop : public ShopTest {
protected:
    std::string Page(const std::string& page) { return (desktop.ProgramFolder() / "Help" / page).string(); }
};

TEST_F(HelpInTheShop, EveryScreenHasAPageThatIsThere) {
    std::set<std::string> known;
    for (const auto& [screen, page] : ui::HelpPages()) {
        known.emplace(screen);
        ExpectThere(QString::fromStdString(std::string(page)), std::string(screen));
    }
    for (const auto& [key, entry] : program.Access().screens)
        EXPECT_TRUE(known.contains(entry.name)) << entry.name << " has no page";
    for (const char* further : {"fLogin", "frmMainCode", "Bayar"}) EXPECT_TRUE(known.contains(further));
}

TEST_F(HelpInTheShop, F1OpensThePageOfTheScreenWhereverTheFocusIs) {
    Open("F04");
    QTest::keyClick(Find("fBank", "txtRekID"), Qt::Key_F1);
    ui::ScreenWindow& invoice = Open("T01");
    QTest::keyClick(&invoice, Qt::Key_F1);
    EXPECT_EQ(desktop.shell,
              (std::vector<std::string>{Page("accounts.html#account"), Page("sales.html#invoice")}));
}

TEST_F(HelpInTheShop, AScreensOwnF1StaysItsOwnAndShiftF1OpensTheManual) {
    Open("F08");
    boxes.Answer(QMessageBox::Ok);
    QTest::keyClick(Find("fAccJenisProduk", "txtKode"), Qt::Key_F1);
    EXPECT_EQ(boxes.texts.size(), 1U);
    EXPECT_TRUE(desktop.shell.empty());
    QTest::keyClick(Find("fAccJenisProduk", "txtKode"), Qt::Key_F1, Qt::ShiftModifier);
    EXPECT_EQ(desktop.shell, std::vector<std::string>{Page("products.html#types")});
    EXPECT_EQ(boxes.texts.size(), 1U);
}

TEST_F(HelpInTheShop, AReportOpensThePageOfReports) {
    PrepareProgramFolder(desktop.ProgramFolder());
    Open("F04");
    Click("fBank", "bttnPrint");
    QWidget* preview = nullptr;
    ASSERT_TRUE(Until([&] {
        for (QWidget* window : QApplication::topLevelWidgets())
            if (window->isVisible() && window->findChild<QWidget*>("previewBar")) preview = window;
        return preview && preview->isActiveWindow();
    }));
    QTest::keyClick(preview, Qt::Key_F1);
    EXPECT_EQ(desktop.shell, std::vector<std::string>{Page("reports.html#preview")});
}

} // namespace
} // namespace varnik::test
