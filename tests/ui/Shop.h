#pragma once
// The whole program on a fresh folder, logged in by keyboard.

#include "app/Program.h"
#include "tests/ui/Desk.h"

#include <QTemporaryDir>
#include <memory>

namespace varnik::test {

// Keeps what would be handed to the shell, but for a help file, which is not there.
class QuietDesktop : public ui::QtDesktop {
public:
    using QtDesktop::QtDesktop;
    bool OpenWithShell(const std::string& target) override {
        if (target == "help.exe") return false;
        shell.push_back(target);
        return true;
    }
    std::vector<std::string> shell;
};

class ShopTest : public ::testing::Test {
protected:
    ShopTest() {
        desktop.SetServices(program.Access());
        program.Start();
        LogIn();
    }
    ~ShopTest() override { desktop.DropScreens(); }

    void LogIn() {
        ASSERT_TRUE(Until([&] { return desktop.WindowOf("fLogin"); }));
        Type("fLogin", "txtUserId", "varnik", Qt::Key_Return);
        Type("fLogin", "txtPassword", "kemiri", Qt::Key_Return);
        ASSERT_TRUE(Until([&] { return desktop.WindowOf("frmMainCode") && !desktop.WindowOf("fLogin"); }));
    }

    // Opens a screen by its menu key, as the main window does.
    ui::ScreenWindow& Open(const std::string& key) {
        const ScreenEntry& entry = program.Access().screens.at(key);
        OpenScreen(program.Access(), key, entry.name);
        ui::ScreenWindow* window = desktop.WindowOf(entry.name);
        EXPECT_TRUE(window) << key;
        EXPECT_TRUE(Until([&] { return window->isActiveWindow(); }));
        return *window;
    }
    template <typename WidgetType = QWidget>
    WidgetType* Find(const std::string& screen, const char* name) {
        ui::ScreenWindow* window = desktop.WindowOf(screen);
        auto* widget = window ? window->findChild<WidgetType*>(QString::fromLatin1(name)) : nullptr;
        if (!widget) ADD_FAILURE() << screen << "." << name << " has no such widget";
        return widget;
    }
    // Types into the field that has the focus, which must be this one, then presses the key.
    void Type(const std::string& screen, const char* name, const char* text, Qt::Key then = Qt::Key(0)) {
        ASSERT_EQ(Focused(screen), name);
        QWidget* widget = Find(screen, name);
        QTest::keyClicks(widget, QString::fromUtf8(text));
        if (then != Qt::Key(0)) QTest::keyClick(widget, then);
    }
    void Press(const std::string& screen, Qt::Key key, Qt::KeyboardModifier with = Qt::NoModifier) {
        QTest::keyClick(desktop.WindowOf(screen)->focusWidget(), key, with);
    }
    // Enter from field to field, as far as this one.
    void EnterUpTo(const std::string& screen, const char* field) {
        for (int step = 0; step < 14 && Focused(screen) != field; ++step) Press(screen, Qt::Key_Return);
        ASSERT_EQ(Focused(screen), field);
    }
    void TypeThere(const std::string& screen, const char* field, const char* text) {
        EnterUpTo(screen, field);
        QTest::keyClicks(desktop.WindowOf(screen)->focusWidget(), QString::fromUtf8(text));
    }
    void Click(const std::string& screen, const char* name) {
        QTest::mouseClick(Find(screen, name), Qt::LeftButton);
    }
    std::string Focused(const std::string& screen) {
        ui::ScreenWindow* window = desktop.WindowOf(screen);
        const forms::Control* focused = window ? window->Screen().Focused() : nullptr;
        return focused ? focused->Name() : "";
    }
    std::string Text(const std::string& screen, const char* name) {
        auto* edit = Find<QLineEdit>(screen, name);
        return edit ? edit->text().toStdString() : "";
    }
    void Execute(const std::string& sql) {
        ado::Connection connection(program.Access().data, program.Access().session.ConnectionString);
        connection.Execute(sql);
    }
    long Rows(const std::string& sql) {
        ado::Connection connection(program.Access().data, program.Access().session.ConnectionString);
        return ado::Recordset(sql, connection, ado::CursorType::Static).RecordCount();
    }

    QTemporaryDir folder;
    Regional regional;
    Boxes boxes;
    QuietDesktop desktop{folder.path().toStdString(), regional};
    Program program{desktop, regional};
};

} // namespace varnik::test
