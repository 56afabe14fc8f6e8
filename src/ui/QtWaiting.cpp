// Long work on the desktop: after a moment a small window says what is being done and offers to stop it.

#include "ui/QtDesktop.h"
#include "ui/QtText.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QProgressDialog>

namespace varnik::ui {

namespace {

constexpr int Moment = 400, Between = 50; // milliseconds

class QtWaiting : public Waiting {
public:
    QtWaiting(QString doing, QWidget* owner) : doing_(std::move(doing)), owner_(owner) { running_.start(); }

    bool GoOn() override {
        if (stopped_) return false;
        // What is done while the person is heard may wait for rows of its own: it waits unasked.
        if (asking_ || running_.elapsed() < (bar_ ? heard_ + Between : Moment)) return true;
        asking_ = true;
        if (!bar_) Show();
        QApplication::processEvents();
        heard_ = running_.elapsed();
        asking_ = false;
        stopped_ = bar_->wasCanceled();
        return !stopped_;
    }

private:
    void Show() {
        bar_ = std::make_unique<QProgressDialog>(doing_, QStringLiteral("Stop"), 0, 0, owner_);
        bar_->setObjectName(QStringLiteral("waiting"));
        bar_->setWindowTitle(QStringLiteral("Varnik"));
        bar_->setWindowModality(Qt::ApplicationModal);
        bar_->setMinimumDuration(0);
        bar_->setMinimumWidth(280);
        bar_->show();
    }

    QString doing_;
    QWidget* owner_;
    std::unique_ptr<QProgressDialog> bar_;
    QElapsedTimer running_;
    qint64 heard_ = 0;
    bool asking_ = false, stopped_ = false;
};

} // namespace

std::unique_ptr<Waiting> QtDesktop::Wait(const std::string& doing) {
    return std::make_unique<QtWaiting>(ToQt(doing), Front());
}

} // namespace varnik::ui
