// A ledger book by keyboard, from the menu's leaf to the preview.

#include "app/ProgramFolder.h"
#include "tests/ui/Shop.h"
#include "ui/preview/PreviewWindow.h"

namespace varnik::test {
namespace {

ui::PreviewWindow* ShownPreview() {
    for (QWidget* window : QApplication::topLevelWidgets())
        if (auto* preview = dynamic_cast<ui::PreviewWindow*>(window); preview && preview->isVisible())
            return preview;
    return nullptr;
}

class Books : public ShopTest {
protected:
    Books() {
        PrepareProgramFolder(folder.path().toStdString());
        Execute("INSERT INTO Bank (RekID,NamaBank,NoRek,SaldoAwal,SaldoAkhir,DefaultKas) VALUES "
                "('1','Cash','',500,750,True)");
        Execute("INSERT INTO BKM (NoBKM,TglBKM,CaraBayar,RekID,Jumlah,Setor,Clear,TglJTP,TglSetor,TglClear) "
                "VALUES ('000000000100',#11/22/2026#,'CASH','1',250,False,False,#11/22/2026#,#11/22/2026#,"
                "#11/22/2026#)");
    }
};

} // namespace

TEST_F(Books, AMonthIsPrintedByKeyboardAlone) {
    Open("L16");
    ASSERT_EQ(Focused("BukuBank"), "Combo1");
    QTest::keyClick(Find("BukuBank", "Combo1"), Qt::Key_Down);
    QTest::keyClick(Find("BukuBank", "Combo1"), Qt::Key_Return);
    Type("BukuBank", "Text1", "1x1-", Qt::Key_Return);
    EXPECT_EQ(Text("BukuBank", "Text1"), "11");
    Type("BukuBank", "Text2", "2026", Qt::Key_Return);
    ASSERT_EQ(Focused("BukuBank"), "OKButton");
    QTest::keyClick(Find("BukuBank", "OKButton"), Qt::Key_Return);
    ASSERT_TRUE(Until([] { return ShownPreview() != nullptr; }));
    const std::string page = ShownPreview()->Shown().Text(1);
    EXPECT_NE(page.find("RECEIPT CASH ID - 000000000100"), std::string::npos) << page;
    EXPECT_NE(page.find("November 2026"), std::string::npos) << page;
    EXPECT_TRUE(Find("BukuBank", "Combo1")->isVisible()); // the dialog stays open beside it
    ShownPreview()->close();
}

} // namespace varnik::test
