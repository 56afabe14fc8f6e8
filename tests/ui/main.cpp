#include "ui/Style.h"

#include <QApplication>
#include <QLocale>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale::c());
    QApplication application(argc, argv);
    varnik::ui::ApplyStyle(application, false);
    // Tests of how it looks stand on the letters of the program itself.
    if (!qEnvironmentVariableIsSet("VARNIK_OWN_LETTERS")) {
        QFont font(QStringLiteral("DejaVu Sans"));
        font.setPixelSize(14);
        QApplication::setFont(font);
    }
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
