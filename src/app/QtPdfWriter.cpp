#include "app/PdfWriter.h"
#include "ui/preview/WriteReport.h"

#include <QGuiApplication>

namespace varnik {

namespace {

// Fonts need an application; it is made for the first PDF, so that other scripts start without it.
void NeedApplication() {
    static int count = 1;
    static char name[] = "varnik-console";
    static char* words[] = {name, nullptr};
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    static const QGuiApplication application(count, words);
}

} // namespace

std::function<void(const reports::Report&, const std::filesystem::path&)> PdfWriter() {
    return [](const reports::Report& report, const std::filesystem::path& file) {
        NeedApplication();
        ui::WritePdf(report, file);
    };
}

} // namespace varnik
