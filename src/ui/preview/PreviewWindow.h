#pragma once
// The window in which every report comes up: its pages, and what can be done with them.

#include "reports/engine/Report.h"

#include <QMainWindow>
#include <memory>

class QAction;
class QComboBox;
class QLabel;
class QLineEdit;
class QToolBar;

namespace varnik::ui {

class PageView;
enum class PreviewIcon;

class PreviewWindow : public QMainWindow {
public:
    explicit PreviewWindow(std::unique_ptr<reports::Report> report, QWidget* parent = nullptr);
    ~PreviewWindow() override;

    // Normal or maximised, as the request asked. The first page is there at once.
    void ShowAsAsked();

    const reports::Report& Shown() const { return *report_; }
    PageView& Pages() { return *view_; }
    bool Find(const QString& text, bool forward = true); // moves to it and marks it
    // Without a file the person is asked for one.
    void SavePdf(QString file = {});
    void SaveXlsx(QString file = {});
    void SaveCsv(QString file = {});
    void Print();
    // How much work in milliseconds goes by before its bar with the Stop button shows.
    void ShowBarAfter(int milliseconds) { waitForBar_ = milliseconds; }

private:
    QAction* AddAction(QToolBar& bar, PreviewIcon icon, const QString& text, const QString& hint,
                       const QList<QKeySequence>& keys, std::function<void()> run, bool caption = false);
    void BuildToolBar();
    void BuildPageField(QToolBar& bar);
    void BuildZoomField(QToolBar& bar);
    void BuildFindField(QToolBar& bar);
    void ShowPlace();
    void FindAgain(bool forward);
    QString AskForFile(const QString& title, const QString& filter, const QString& suffix);
    // Runs a long piece of work with a bar and a way to stop it; failures go into a box.
    void Save(const QString& file, const QString& doing,
              const std::function<bool(const reports::Progress&)>& work);

    std::unique_ptr<reports::Report> report_;
    PageView* view_ = nullptr;
    QLineEdit* pageField_ = nullptr;
    QComboBox* zoomField_ = nullptr;
    QLineEdit* findField_ = nullptr;
    QLabel* pageCount_ = nullptr;
    QAction *first_ = nullptr, *previous_ = nullptr, *next_ = nullptr, *last_ = nullptr;
    std::optional<reports::Hit> hit_;
    QString lastFound_;
    int waitForBar_ = 400;
};

} // namespace varnik::ui
