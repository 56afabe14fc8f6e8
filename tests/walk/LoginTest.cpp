// The way in: how many tries there are, and what cannot be got past the login screen.

#include "tests/walk/support/Walk.h"

#include <gtest/gtest.h>

namespace varnik::walk {
namespace {

class Login : public testing::Test {
protected:
    Login() {
        walk.Desktop().Quit();
        walk.Desktop().Settle();
    }
    void Begin() {
        walk.Desktop().SetRunning();
        walk.Act("starts", [&] { Program().Start(); });
    }
    void Try(const std::string& user, const std::string& password) {
        walk.Act("tries", [&] {
            forms::Screen& screen = *walk.Desktop().FindScreen("fLogin");
            Fill(screen, "txtUserId", user);
            Fill(screen, "txtPassword", password);
            screen.Click(*screen.FindControl("cmdOK"));
        });
    }
    static void Fill(forms::Screen& screen, const char* name, const std::string& text) {
        auto& field = dynamic_cast<forms::TextControl&>(*screen.FindControl(name));
        screen.MoveFocus(field);
        field.Type(text); // dropped there by the mouse: no key that a filter could stop
    }
    bool Inside() { return walk.Desktop().FindScreen("frmMainCode") != nullptr; }
    varnik::Program& Program() { return walk.TheProgram(); }

    Walk walk{11};
};

TEST_F(Login, ThreeFailuresInAnyOrderLeaveOneTry) {
    for (int order = 0; order < 16; ++order) {
        for (const bool goodInTheEnd : {true, false}) {
            Begin();
            for (int attempt = 0; attempt < (goodInTheEnd ? 3 : 4); ++attempt) {
                ASSERT_TRUE(walk.Desktop().FindScreen("fLogin")) << order << " at " << attempt;
                const bool knownName = (order >> attempt & 1) != 0;
                Try(knownName ? "varnik" : "nobody", "wrong");
                EXPECT_FALSE(Inside());
            }
            if (goodInTheEnd) Try("varnik", "kemiri");
            EXPECT_EQ(Inside(), goodInTheEnd) << order;
            EXPECT_EQ(walk.Desktop().Running(), goodInTheEnd) << order;
            walk.Desktop().Quit();
            walk.Desktop().Settle();
        }
    }
}

TEST_F(Login, NoTextThatReachesTheFieldsByMouseIsAWayIn) {
    std::vector<std::string> names = Intrusions;
    for (const char* name :
         {"x' UNION SELECT 'varnik','00','',-1,-1,-1,-1", "' OR Password=''='",
          "x' Union Select UserID, NoUser, '', True, True, True, True From T_User Where ''='", "varnik' --"})
        names.emplace_back(name);
    for (const std::string& name : names)
        for (const std::string& password : {std::string(), name}) {
            Begin();
            Try(name, password);
            EXPECT_FALSE(Inside()) << name;
            EXPECT_FALSE(Program().Access().session.LoggedIn) << name;
            walk.Desktop().Quit();
            walk.Desktop().Settle();
        }
    EXPECT_EQ(walk.Books(), walk.AtFirst());
}

} // namespace
} // namespace varnik::walk
