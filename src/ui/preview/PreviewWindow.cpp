#include "ui/preview/PreviewWindow.h"

#include "platform/ado/Ado.h"
#include "ui/preview/PageView.h"
#include "ui/preview/PreviewIcons.h"
#include "ui/preview/WriteReport.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QIntValidator>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProgressDialog>
#include <QScreen>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>
#include <QToolButton>

namespace varnik::ui {

namespace {

constexpr int FitWidthItem = 0, FitPageItem = 1;
constexpr int MessageTime = 6000; // ms

QWidget* Spacer(QWidget* parent) {
    auto* spacer = new QWidget(parent);
    spacer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    return spacer;
}

} // namespace

PreviewWindow::PreviewWindow(std::unique_ptr<reports::Report> report, QWidget* parent)
    : QMainWindow(parent), report_(std::move(report)), view_(new PageView(*report_, this)) {
    setWindowTitle(QString::fromStdString(report_->WindowTitle()));
    setAttribute(Qt::WA_DeleteOnClose);
    setCentralWidget(view_);
    BuildToolBar();
    statusBar()->setSizeGripEnabled(true);
    view_->onMoved = [this] { ShowPlace(); };
    const QSize screen = this->screen()->availableSize();
    resize(std::min(1080, screen.width() - 40), std::min(900, screen.height() - 60));
    setMinimumSize(480, 360);
    view_->setFocus();
    ShowPlace();
    const long rows = report_->RowCount();
    statusBar()->addPermanentWidget(new QLabel(
        rows == 1 ? QStringLiteral("1 row ") : QStringLiteral("%L1 rows ").arg(rows), statusBar()));
}

PreviewWindow::~PreviewWindow() = default;

void PreviewWindow::ShowAsAsked() {
    constexpr int Maximised = 2;
    if (report_->About().request.WindowState == Maximised)
        showMaximized();
    else
        show();
}

QAction* PreviewWindow::AddAction(QToolBar& bar, PreviewIcon icon, const QString& text, const QString& hint,
                                  const QList<QKeySequence>& keys, std::function<void()> run, bool caption) {
    auto* action = new QAction(DrawPreviewIcon(icon, palette().color(QPalette::WindowText)), text, &bar);
    action->setShortcuts(keys);
    const QString key = keys.isEmpty() ? "" : " (" + keys.front().toString(QKeySequence::NativeText) + ")";
    action->setToolTip(hint + key);
    connect(action, &QAction::triggered, this, std::move(run));
    bar.addAction(action);
    auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(action));
    button->setAccessibleName(hint);
    button->setFocusPolicy(Qt::TabFocus);
    if (caption) button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    return action;
}

void PreviewWindow::BuildToolBar() {
    QToolBar& bar = *addToolBar("Report");
    bar.setObjectName("previewBar");
    bar.setMovable(false);
    bar.setContextMenuPolicy(Qt::PreventContextMenu);
    bar.setIconSize(QSize(20, 20));
    bar.setStyleSheet(
        "QToolBar { border: none; border-bottom: 1px solid rgba(128, 128, 128, 90); padding: 4px 6px; "
        "spacing: 3px; } QToolButton { padding: 4px 6px; }");
    AddAction(
        bar, PreviewIcon::Print, "Print", "Print the report", {QKeySequence::Print}, [this] { Print(); },
        true);
    AddAction(
        bar, PreviewIcon::Pdf, "PDF", "Save as PDF", {QKeySequence("Ctrl+S")}, [this] { SavePdf(); }, true);
    AddAction(
        bar, PreviewIcon::Sheet, "Spreadsheet", "Save the rows as a spreadsheet", {QKeySequence("Ctrl+E")},
        [this] { SaveXlsx(); }, true);
    AddAction(
        bar, PreviewIcon::Csv, "CSV", "Save the rows as CSV", {QKeySequence("Ctrl+Shift+E")},
        [this] { SaveCsv(); }, true);
    bar.addSeparator();
    BuildPageField(bar);
    bar.addSeparator();
    BuildZoomField(bar);
    bar.addWidget(Spacer(&bar));
    BuildFindField(bar);
    // What a narrow window has no room for stands behind a button that the toolkit makes.
    if (auto* more = bar.findChild<QToolButton*>("qt_toolbar_ext_button"))
        more->setAccessibleName("More commands");
    auto* close = new QAction(this);
    close->setShortcuts({QKeySequence("Ctrl+W"), QKeySequence(Qt::Key_Escape)});
    connect(close, &QAction::triggered, this, [this] {
        if (findField_->hasFocus())
            view_->setFocus();
        else
            this->close();
    });
    addAction(close);
}

void PreviewWindow::BuildPageField(QToolBar& bar) {
    first_ = AddAction(bar, PreviewIcon::First, "First", "First page", {QKeySequence("Ctrl+Home")},
                       [this] { view_->GoTo(1); });
    previous_ = AddAction(bar, PreviewIcon::Previous, "Previous", "Previous page", {QKeySequence("Alt+Left")},
                          [this] { view_->GoTo(view_->CurrentPage() - 1); });
    pageField_ = new QLineEdit(&bar);
    pageField_->setAccessibleName("Page number");
    pageField_->setAlignment(Qt::AlignRight);
    pageField_->setValidator(new QIntValidator(1, report_->PageCount(), pageField_));
    const int digits = static_cast<int>(std::to_string(report_->PageCount()).size());
    pageField_->setFixedWidth(fontMetrics().horizontalAdvance(QString(std::max(3, digits), '0')) + 26);
    connect(pageField_, &QLineEdit::returnPressed, this, [this] {
        view_->GoTo(pageField_->text().toInt());
        view_->setFocus();
    });
    connect(pageField_, &QLineEdit::editingFinished, this, [this] { ShowPlace(); });
    bar.addWidget(pageField_);
    pageCount_ = new QLabel(QStringLiteral(" of %1 ").arg(report_->PageCount()), &bar);
    bar.addWidget(pageCount_);
    next_ = AddAction(bar, PreviewIcon::Next, "Next", "Next page", {QKeySequence("Alt+Right")},
                      [this] { view_->GoTo(view_->CurrentPage() + 1); });
    last_ = AddAction(bar, PreviewIcon::Last, "Last", "Last page", {QKeySequence("Ctrl+End")},
                      [this] { view_->GoTo(report_->PageCount()); });
}

void PreviewWindow::BuildZoomField(QToolBar& bar) {
    AddAction(bar, PreviewIcon::Farther, "Smaller", "Show smaller", {QKeySequence::ZoomOut},
              [this] { view_->ZoomBy(0.8); });
    zoomField_ = new QComboBox(&bar);
    zoomField_->setAccessibleName("Zoom");
    zoomField_->setEditable(true);
    zoomField_->setInsertPolicy(QComboBox::NoInsert);
    zoomField_->addItems({"Page width", "Whole page", "50%", "75%", "100%", "125%", "150%", "200%", "300%"});
    zoomField_->setMinimumContentsLength(10);
    const auto choose = [this] {
        const int item = zoomField_->findText(zoomField_->currentText(), Qt::MatchFixedString);
        if (item == FitWidthItem) return view_->SetZoom(PageView::Zoom::FitWidth);
        if (item == FitPageItem) return view_->SetZoom(PageView::Zoom::FitPage);
        const double percent = zoomField_->currentText().remove('%').trimmed().toDouble();
        if (percent > 0)
            view_->SetZoom(PageView::Zoom::Percent, percent);
        else
            ShowPlace();
    };
    connect(zoomField_, &QComboBox::activated, this, choose);
    connect(zoomField_->lineEdit(), &QLineEdit::returnPressed, this, choose);
    bar.addWidget(zoomField_);
    AddAction(bar, PreviewIcon::Closer, "Larger", "Show larger",
              {QKeySequence::ZoomIn, QKeySequence("Ctrl+=")}, [this] { view_->ZoomBy(1.25); });
}

void PreviewWindow::BuildFindField(QToolBar& bar) {
    findField_ = new QLineEdit(&bar);
    findField_->setAccessibleName("Find in the report");
    findField_->setPlaceholderText("Find in the report");
    findField_->setClearButtonEnabled(true);
    findField_->setMinimumWidth(130);
    findField_->setMaximumWidth(320);
    findField_->addAction(DrawPreviewIcon(PreviewIcon::Find, palette().color(QPalette::PlaceholderText)),
                          QLineEdit::LeadingPosition);
    bar.addWidget(findField_);
    connect(findField_, &QLineEdit::returnPressed, this,
            [this] { FindAgain(!QApplication::keyboardModifiers().testFlag(Qt::ShiftModifier)); });
    connect(findField_, &QLineEdit::textEdited, this, [this](const QString& text) {
        if (text.isEmpty()) view_->ClearHit();
    });
    connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, this, [this] {
        findField_->setFocus();
        findField_->selectAll();
    });
    connect(new QShortcut(QKeySequence::FindNext, this), &QShortcut::activated, this,
            [this] { FindAgain(true); });
    connect(new QShortcut(QKeySequence::FindPrevious, this), &QShortcut::activated, this,
            [this] { FindAgain(false); });
}

void PreviewWindow::ShowPlace() {
    if (!pageField_ || !zoomField_) return; // still being built
    const int page = view_->CurrentPage(), pages = report_->PageCount();
    if (!pageField_->hasFocus() || !pageField_->isModified()) pageField_->setText(QString::number(page));
    first_->setEnabled(page > 1);
    previous_->setEnabled(page > 1);
    next_->setEnabled(page < pages);
    last_->setEnabled(page < pages);
    const QSignalBlocker quiet(zoomField_);
    switch (view_->CurrentZoom()) {
    case PageView::Zoom::FitWidth:
        zoomField_->setCurrentIndex(FitWidthItem);
        break;
    case PageView::Zoom::FitPage:
        zoomField_->setCurrentIndex(FitPageItem);
        break;
    case PageView::Zoom::Percent:
        zoomField_->setEditText(QStringLiteral("%1%").arg(qRound(view_->Percent())));
        break;
    }
}

void PreviewWindow::FindAgain(bool forward) {
    const QString text = findField_->text().trimmed();
    if (!text.isEmpty()) Find(text, forward);
}

bool PreviewWindow::Find(const QString& text, bool forward) {
    if (text != lastFound_) hit_.reset();
    lastFound_ = text;
    // A new search begins on the page that is looked at.
    const auto from = hit_ ? hit_ : std::optional(reports::Hit{view_->CurrentPage(), forward ? -1 : 1 << 30});
    QProgressDialog bar("Searching ...", "Stop", 0, report_->PageCount(), this);
    bar.setWindowTitle(windowTitle());
    bar.setWindowModality(Qt::WindowModal);
    bar.setMinimumDuration(waitForBar_);
    hit_ = report_->Find(text.toStdString(), from, forward, [&](long done, long) {
        bar.setValue(static_cast<int>(done));
        return !bar.wasCanceled();
    });
    const bool stopped = bar.wasCanceled();
    bar.reset();
    if (hit_) {
        statusBar()->clearMessage();
        view_->Reveal(*hit_);
    } else {
        view_->ClearHit();
        statusBar()->showMessage(stopped ? QStringLiteral("The search was stopped.")
                                         : QStringLiteral("\"%1\" is not in the report.").arg(text),
                                 MessageTime);
    }
    return hit_.has_value();
}

QString PreviewWindow::AskForFile(const QString& title, const QString& filter, const QString& suffix) {
    QString name = QString::fromStdString(report_->Title()).trimmed();
    for (const QChar forbidden : QStringLiteral("\\/:*?\"<>|")) name.replace(forbidden, ' ');
    QFileDialog dialog(this, title, QDir::homePath(), filter);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.selectFile((name.simplified().isEmpty() ? "Report" : name.simplified()) + "." + suffix);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

void PreviewWindow::Save(const QString& file, const QString& doing,
                         const std::function<bool(const reports::Progress&)>& work) {
    QProgressDialog bar(doing, "Stop", 0, 100, this);
    bar.setWindowTitle(windowTitle());
    bar.setWindowModality(Qt::WindowModal);
    bar.setMinimumDuration(waitForBar_);
    try {
        const bool done = work([&](long part, long total) {
            bar.setValue(total > 0 ? static_cast<int>(part * 100 / total) : 0);
            return !bar.wasCanceled();
        });
        bar.reset();
        if (file.isEmpty()) return;
        statusBar()->showMessage(done ? QStringLiteral("Saved as %1").arg(QDir::toNativeSeparators(file))
                                      : QStringLiteral("Stopped; nothing was saved."),
                                 MessageTime);
    } catch (const ado::DataError& failure) {
        bar.reset();
        QMessageBox::warning(this, "Varnik", QString::fromStdString(failure.Description()));
    }
}

void PreviewWindow::SavePdf(QString file) {
    if (file.isEmpty()) file = AskForFile("Save as PDF", "PDF documents (*.pdf)", "pdf");
    if (file.isEmpty()) return;
    Save(file, "Writing pages ...", [&](const reports::Progress& progress) {
        return WritePdf(*report_, file.toStdU16String(), progress);
    });
}

void PreviewWindow::SaveXlsx(QString file) {
    if (file.isEmpty()) file = AskForFile("Save as spreadsheet", "Spreadsheets (*.xlsx)", "xlsx");
    if (file.isEmpty()) return;
    Save(file, "Writing rows ...", [&](const reports::Progress& progress) {
        return report_->WriteXlsx(file.toStdU16String(), progress);
    });
}

void PreviewWindow::SaveCsv(QString file) {
    if (file.isEmpty()) file = AskForFile("Save as CSV", "Comma-separated values (*.csv)", "csv");
    if (file.isEmpty()) return;
    Save(file, "Writing rows ...", [&](const reports::Progress& progress) {
        return report_->WriteCsv(file.toStdU16String(), progress);
    });
}

void PreviewWindow::Print() {
    QPrinter printer(QPrinter::HighResolution);
    SetUpPaper(*report_, printer);
    QPrintDialog dialog(&printer, this);
    dialog.setWindowTitle("Print");
    dialog.setMinMax(1, report_->PageCount());
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintPageRange |
                      QAbstractPrintDialog::PrintCurrentPage);
    if (dialog.exec() != QDialog::Accepted) return;
    if (dialog.printRange() == QAbstractPrintDialog::CurrentPage)
        printer.setFromTo(view_->CurrentPage(), view_->CurrentPage());
    bool printed = false, stopped = false;
    Save({}, "Printing ...", [&](const reports::Progress& progress) {
        printed = PrintReport(*report_, printer, [&](long done, long total) {
            stopped = !progress(done, total);
            return !stopped;
        });
        return printed;
    });
    if (printed)
        statusBar()->showMessage(QStringLiteral("Sent to %1").arg(printer.printerName()), MessageTime);
    else if (stopped)
        statusBar()->showMessage("Printing was stopped.", MessageTime);
    else
        QMessageBox::warning(this, "Varnik", "The printer did not take the report.");
}

} // namespace varnik::ui
