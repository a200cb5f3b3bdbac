#include "support/User.h"
#include "toolkit/Message_Boxes.h"

#include <QDialog>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace {

int Run_Dialog(const char* object_name)
{
    QDialog dialog;
    dialog.setObjectName(object_name);
    return dialog.exec();
}

bool Ask()
{
    return Show_YES_NO_MessageBox("Send to all?");
}

// Apart, since what is to fail may use nothing of its test.
void Leave_Somebody_Who_Will(const std::function<void(User&)>& do_what)
{
    User user;
    do_what(user);
}

void Ask_Somebody_Who_Will(const std::function<void(User&)>& do_what)
{
    Leave_Somebody_Who_Will([&](User& user) {
        do_what(user);
        EXPECT_FALSE(Ask());
    });
}

} // namespace

// The rest of what it does is told by all tests of windows.
TEST(User, A_Box_Or_An_Answer_That_Was_Not_Expected_Fails_The_Test)
{
    EXPECT_NONFATAL_FAILURE(Ask_Somebody_Who_Will([](User&) {}), "An unexpected box: \"Send to all?\"");
    EXPECT_NONFATAL_FAILURE(Ask_Somebody_Who_Will([](User& user) { user.Will_Press("Maybe"); }),
                            "No button \"Maybe\" to press in the box \"Send to all?\"");
    EXPECT_NONFATAL_FAILURE(Leave_Somebody_Who_Will([](User& user) { user.Will_Press("Yes"); }),
                            "No box ever asked for this answer: \"Yes\"");
    EXPECT_NONFATAL_FAILURE(Leave_Somebody_Who_Will([](User& user) { user.When_Opens("Wizard", [](QWidget&) {}); }),
                            "No window ever opened by this name: \"Wizard\"");
    EXPECT_NONFATAL_FAILURE(Ask(), "A box opened with nobody to answer it: \"Send to all?\"");
}

TEST(User, Windows_Are_Known_By_Name_And_Dialogs_Without_One_By_Their_Turn)
{
    User user;
    user.When_Opens("Second", [](QWidget& window) { static_cast<QDialog&>(window).done(2); });
    user.Will_Do([](QDialog* dialog) { dialog->done(1); });
    EXPECT_EQ(Run_Dialog("First"), 1);
    EXPECT_EQ(Run_Dialog("Second"), 2);
}
