#include "ui/preview/WriteReport.h"

#include "platform/ado/Ado.h"
#include "ui/preview/PagePainter.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QSaveFile>

namespace varnik::ui {

namespace {

QPageLayout Paper(const reports::Report& report) {
    const bool across = report.PageWidth() > report.PageHeight();
    QPageLayout paper(QPageSize(QPageSize::A4), across ? QPageLayout::Landscape : QPageLayout::Portrait,
                      QMarginsF());
    paper.setMode(QPageLayout::FullPageMode);
    return paper;
}

} // namespace

bool WritePdf(const reports::Report& report, const std::filesystem::path& file,
              const reports::Progress& progress) {
    const QString name = QString::fromStdU16String(file.u16string());
    QSaveFile target(name); // takes its name when it is whole
    const auto fail = [&]() {
        throw ado::DataError(reports::CannotWrite,
                             "The file \"" + name.toStdString() +
                                 "\" cannot be written: " + target.errorString().toStdString() + ".");
    };
    if (!target.open(QIODevice::WriteOnly)) fail();
    {
        QPdfWriter writer(&target);
        writer.setPageLayout(Paper(report));
        writer.setTitle(QString::fromStdString(report.Title()));
        writer.setCreator("Varnik");
        constexpr int DotsPerInch = 600;
        writer.setResolution(DotsPerInch);
        QPainter painter;
        if (!painter.begin(&writer)) fail();
        painter.scale(DotsPerInch / 25.4, DotsPerInch / 25.4);
        for (int page = 1; page <= report.PageCount(); ++page) {
            if (progress && !progress(page - 1, report.PageCount())) {
                target.cancelWriting();
                return false;
            }
            if (page > 1) writer.newPage();
            PaintPage(painter, report.BuildPage(page));
        }
    }
    if (!target.commit()) fail();
    return true;
}

void SetUpPaper(const reports::Report& report, QPrinter& printer) {
    printer.setPageLayout(Paper(report));
    printer.setDocName(QString::fromStdString(report.WindowTitle()));
}

bool PrintReport(const reports::Report& report, QPrinter& printer, const reports::Progress& progress) {
    const int from = printer.fromPage() > 0 ? printer.fromPage() : 1;
    const int upTo =
        printer.toPage() > 0 ? std::min(printer.toPage(), report.PageCount()) : report.PageCount();
    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    const bool backwards = printer.pageOrder() == QPrinter::LastPageFirst;
    QPainter painter;
    if (!painter.begin(&printer)) return false;
    // The printer's units per millimetre, across and down.
    painter.scale(printer.logicalDpiX() / 25.4, printer.logicalDpiY() / 25.4);
    const int pages = upTo - from + 1;
    for (int copy = 0; copy < copies; ++copy)
        for (int i = 0; i < pages; ++i) {
            const long done = static_cast<long>(copy) * pages + i;
            if (progress && !progress(done, static_cast<long>(copies) * pages)) {
                printer.abort();
                return false;
            }
            if (done > 0 && !printer.newPage()) return false;
            PaintPage(painter, report.BuildPage(backwards ? upTo - i : from + i));
        }
    return painter.end();
}

} // namespace varnik::ui
