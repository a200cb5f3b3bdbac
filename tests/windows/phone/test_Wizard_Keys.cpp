#include "windows/phone/Wizard_Test.h"

#include "device/Chosen_Device.h"
#include "support/Keys.h"

// The connection wizard with the keyboard alone.

namespace {

class Wizard_Keys : public Wizard_Test, public testing::WithParamInterface<Qt::Key>
{
};

} // namespace

TEST_P(Wizard_Keys, An_Only_Device_Is_Chosen_And_Selected_Without_The_Mouse)
{
    Virtual_Phone phone;
    Plug_In(phone);
    const int result = Run([&] {
        EXPECT_EQ(m_window->focusWidget(), &Table());
        EXPECT_EQ(Selected_Row(), -1);
        Press_Key(GetParam());
        EXPECT_EQ(Selected_Row(), 0);
        ASSERT_TRUE(Wait_For_Sheets_End(0)); // the probe that a click begins
        EXPECT_FALSE(Text("_imei_edit").isEmpty());
        Press_Key(Qt::Key_Return);
        EXPECT_FALSE(m_window->isVisible());
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(sel_port_bsd_str.toStdString(), phone.Path());
}

INSTANTIATE_TEST_SUITE_P(Keys, Wizard_Keys, testing::Values(Qt::Key_Down, Qt::Key_Up, Qt::Key_Home));

TEST_F(Wizard_Test, Return_Does_Nothing_While_No_Device_Is_Selected)
{
    const Virtual_Phone phone;
    Plug_In(phone);
    Run([&] {
        Press_Key(Qt::Key_Return);
        EXPECT_TRUE(m_window->isVisible());
    });
    EXPECT_EQ(m_user.Was_Shown(), QStringList());
}

TEST_F(Wizard_Test, The_First_Of_Two_Devices_Is_Reached_By_The_First_Key)
{
    const Virtual_Phone first;
    const Virtual_Phone second;
    Plug_In(first, second);
    Run([&] {
        for (int row = 0; row < 2; ++row) {
            const int before = Sheets_So_Far();
            Press_Key(Qt::Key_Down);
            EXPECT_EQ(Selected_Row(), row);
            ASSERT_TRUE(Wait_For_Sheets_End(before));
            EXPECT_EQ(Text("_port_det_edit").toStdString(), (row == 0 ? first : second).Path());
        }
    });
}
