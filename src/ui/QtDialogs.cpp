// The boxes and dialogs of QtDesktop.

#include "ui/Icons.h"
#include "ui/QtDesktop.h"
#include "ui/QtText.h"
#include "ui/Style.h"

#include <QApplication>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QPushButton>

namespace varnik::ui {

namespace {

struct ButtonPair {
    QMessageBox::StandardButton button;
    Answer answer;
};
constexpr ButtonPair Answers[] = {
    {QMessageBox::Ok, Answer::Ok},         {QMessageBox::Cancel, Answer::Cancel},
    {QMessageBox::Yes, Answer::Yes},       {QMessageBox::No, Answer::No},
    {QMessageBox::Abort, Answer::Abort},   {QMessageBox::Retry, Answer::Retry},
    {QMessageBox::Ignore, Answer::Ignore},
};

QMessageBox::StandardButtons ButtonsOf(Buttons buttons) {
    switch (buttons) {
    case Buttons::OkCancel:
        return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case Buttons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case Buttons::AbortRetryIgnore:
        return QMessageBox::Abort | QMessageBox::Retry | QMessageBox::Ignore;
    default:
        return QMessageBox::Ok;
    }
}

// The answer when a person closes the box without pressing a button: the one that does least.
Answer WithoutAnswer(Buttons buttons) {
    switch (buttons) {
    case Buttons::YesNo:
        return Answer::No;
    case Buttons::AbortRetryIgnore:
        return Answer::Abort;
    case Buttons::Ok:
        return Answer::Ok;
    default:
        return Answer::Cancel;
    }
}

QPixmap PictureOf(Icon icon, qreal ratio) {
    const Colours& colours = CurrentColours();
    const auto draw = [ratio](const char* name, const QColor& colour) {
        constexpr int size = 40;
        return DrawnIcon(QString::fromLatin1(name), colour).pixmap(QSize(size, size), ratio);
    };
    switch (icon) {
    case Icon::Information:
        return draw("info", colours.accent);
    case Icon::Exclamation:
        return draw("warning", colours.warning);
    case Icon::Question:
        return draw("help", colours.accent);
    case Icon::Critical:
        return draw("stop", colours.danger);
    default:
        return {};
    }
}

// "Backup files (*.bck)|*.bck" as "Backup files (*.bck)": name and pattern in pairs.
QString FilterOf(const std::string& filter) {
    const QStringList parts = ToQt(filter).split(QLatin1Char('|'));
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2)
        filters << QStringLiteral("%1 (%2)").arg(
            parts[i].section(QLatin1Char('('), 0, 0).trimmed(),
            QString(parts[i + 1]).replace(QLatin1Char(';'), QLatin1Char(' ')));
    return filters.join(QStringLiteral(";;"));
}

// Boxes show an arrow, also while the program is at work.
class ArrowCursor {
public:
    ArrowCursor() { QApplication::setOverrideCursor(Qt::ArrowCursor); }
    ~ArrowCursor() { QApplication::restoreOverrideCursor(); }
    ArrowCursor(const ArrowCursor&) = delete;
    ArrowCursor& operator=(const ArrowCursor&) = delete;
};

} // namespace

Answer QtDesktop::MessageBox(const Box& box) {
    const ArrowCursor arrow;
    QString text = ToQt(box.text);
    text.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    QMessageBox window(QMessageBox::NoIcon, ToQt(box.title), text, ButtonsOf(box.buttons), Front());
    window.setIconPixmap(PictureOf(box.icon, window.devicePixelRatioF()));
    window.setTextFormat(Qt::PlainText); // a text of the shop is no markup
    window.setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (box.buttons == Buttons::AbortRetryIgnore) window.setDefaultButton(QMessageBox::Retry);
    window.exec();
    const QMessageBox::StandardButton pressed = window.standardButton(window.clickedButton());
    for (const ButtonPair& pair : Answers)
        if (pair.button == pressed) return pair.answer;
    return WithoutAnswer(box.buttons);
}

std::optional<std::string> QtDesktop::InputBox(const std::string& prompt, const std::string& title) {
    const ArrowCursor arrow;
    bool accepted = false;
    const QString text =
        QInputDialog::getText(Front(), ToQt(title), ToQt(prompt), QLineEdit::Normal, QString(), &accepted);
    if (!accepted) return std::nullopt;
    return FromQt(text);
}

std::optional<std::string> QtDesktop::OpenFile(const std::string& title, const std::string& filter) {
    const ArrowCursor arrow;
    const QString path = QFileDialog::getOpenFileName(Front(), ToQt(title), QString(), FilterOf(filter));
    if (path.isEmpty()) return std::nullopt;
    return FromQt(path);
}

std::optional<std::string> QtDesktop::SaveFile(const std::string& title, const std::string& filter) {
    const ArrowCursor arrow;
    QFileDialog dialog(Front(), ToQt(title), QString(), FilterOf(filter));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    // A name without an ending gets the filter's, before the dialog asks about a file that is there.
    dialog.setDefaultSuffix(ToQt(filter).section(QLatin1Char('|'), 1, 1).section(QLatin1Char('.'), -1));
    if (dialog.exec() != QDialog::Accepted) return std::nullopt;
    return FromQt(dialog.selectedFiles().value(0));
}

bool QtDesktop::PrintDialog(const std::string& title) {
    const ArrowCursor arrow;
    QPrinter printer;
    QPrintDialog dialog(&printer, Front());
    dialog.setWindowTitle(ToQt(title));
    return dialog.exec() == QDialog::Accepted;
}

} // namespace varnik::ui
