// The connection wizard with the keyboard alone.
#include "support/Keys.h"
#include "windows/phone/Wizard_Test.h"

class Wizard_Keys : public Wizard_Test, public testing::WithParamInterface<Qt::Key>
{
};

TEST_P(Wizard_Keys, An_Only_Device_Is_Chosen_And_Selected_Without_The_Mouse)
{
    const int result = Run([&] {
        EXPECT_EQ(m_window->focusWidget(), &Table());
        EXPECT_EQ(Selected_Row(), -1);
        Press_Key(Qt::Key_Return);
        EXPECT_TRUE(m_window->isVisible()) << "Return does nothing while no device is selected";
        Press_Key(GetParam());
        EXPECT_EQ(Selected_Row(), 0);
        ASSERT_TRUE(Wait_For_Sheets_End(0)); // the probe that a click begins
        EXPECT_FALSE(Text("_imei_edit").isEmpty());
        Press_Key(Qt::Key_Return);
        EXPECT_FALSE(m_window->isVisible());
    });
    EXPECT_EQ(result, 1);
    EXPECT_EQ(sel_port_bsd_str.toStdString(), m_phone.Path());
    Expect_Told({});
}

INSTANTIATE_TEST_SUITE_P(Keys, Wizard_Keys, testing::Values(Qt::Key_Down, Qt::Key_Up, Qt::Key_Home));

TEST_F(Wizard_Test, The_Return_Key_Presses_No_Button)
{
    Run([&] {
        for (const char* control : {"idPortList", "_comport_edit", "_Search_Btn", "_Select_Btn", "_Cancel_Btn"}) {
            Control(control).setFocus();
            Press(Qt::Key_Return);
            Press(Qt::Key_Enter);
            EXPECT_TRUE(m_window->isVisible()) << control;
        }
        EXPECT_EQ(ph_find_thread, 0);
    });
    EXPECT_EQ(m_finder.m_searches, 1);
}

TEST_F(Wizard_Test, The_First_Of_Two_Devices_Is_Reached_By_The_First_Key)
{
    const Virtual_Phone second;
    Plug_In(m_phone, second);
    Run([&] {
        for (int row = 0; row < 2; ++row) {
            const int before = Sheets_So_Far();
            Press_Key(Qt::Key_Down);
            EXPECT_EQ(Selected_Row(), row);
            ASSERT_TRUE(Wait_For_Sheets_End(before));
            EXPECT_EQ(Text("_port_det_edit").toStdString(), (row == 0 ? m_phone : second).Path());
        }
    });
}
