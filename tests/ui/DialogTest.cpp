// The dialogs that the desktop opens for a screen.

#include "tests/ui/Desk.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QProgressDialog>
#include <QTemporaryDir>

namespace varnik::test {
namespace {

class Dialogs : public UiTest {
protected:
    // Types a name into the file dialog that is about to open, and closes it with this key.
    static void Meet(const QString& name, Qt::Key key) {
        auto* clock = new QTimer(qApp);
        QObject::connect(clock, &QTimer::timeout, clock, [clock, name, key] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog) return;
            clock->deleteLater();
            EXPECT_EQ(dialog->nameFilters(), QStringList{QStringLiteral("Backup files (*.bck)")});
            dialog->selectFile(name);
            QTest::keyClick(dialog, key);
        });
        clock->start(2);
    }
    static constexpr const char* Filter = "Backup files (*.bck) |*.bck|";
};

TEST_F(Dialogs, ANameToSaveUnderGetsTheEndingOfTheFilter) {
    const QTemporaryDir folder;
    const QString path = QDir(folder.path()).absoluteFilePath(QStringLiteral("today"));
    Meet(path, Qt::Key_Return);
    EXPECT_EQ(desktop.SaveFile("Back Up", Filter), path.toStdString() + ".bck");
    Meet(path + QStringLiteral(".old"), Qt::Key_Return);
    EXPECT_EQ(desktop.SaveFile("Back Up", Filter), path.toStdString() + ".old");
    Meet(path, Qt::Key_Escape);
    EXPECT_EQ(desktop.SaveFile("Back Up", Filter), std::nullopt);
}

// Short work shows nothing; what takes longer shows what is done, and can be stopped.
TEST_F(Dialogs, LongWorkShowsAndIsStopped) {
    QElapsedTimer running;
    running.start();
    const std::unique_ptr<Waiting> waiting = desktop.Wait("Looking for rows ...");
    const auto bar = [] { return qobject_cast<QProgressDialog*>(QApplication::activeModalWidget()); };
    ASSERT_TRUE(Until([&] { return waiting->GoOn() && bar(); }));
    EXPECT_GE(running.elapsed(), 400) << "milliseconds that work may take unseen";
    EXPECT_EQ(bar()->labelText(), "Looking for rows ...");
    QTest::keyClick(bar(), Qt::Key_Escape);
    EXPECT_TRUE(Until([&] { return !waiting->GoOn(); }));
    EXPECT_FALSE(waiting->GoOn());
}

} // namespace
} // namespace varnik::test
