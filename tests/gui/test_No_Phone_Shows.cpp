#include "gui/Sending_Program.h"
#include "windows/phone/Phone_List_Wnd.h"
#include "windows/phone/Virtual_Phone_Offer.h"

// The way of somebody whose phone does not show: from the help through the doctor to the wizard, click by click.
class No_Phone_Shows : public Sending_Program
{
protected:
    No_Phone_Shows()
    {
        Set_Pace(2); // the virtual phone is a process of its own, which answers when it gets its turn
        Phone_Moods moods;
        moods.m_pin = "1234";
        Get_A_Phone(moods);
        Set_Extra_Device_Paths({QString::fromStdString(phone->Path())});
    }

    void Choose_In_Menu(const char* entry)
    {
        QTimer::singleShot(0, m_delegate.get(), [this, entry] {
            auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
            ASSERT_TRUE(menu);
            QTest::mouseClick(menu, Qt::LeftButton, {},
                              menu->actionGeometry(&In<QAction>(*m_delegate, entry)).center());
        });
        Click("_Menu_Btn");
    }
    static QStringList Texts(const QWidget& window, const char* name)
    {
        QStringList texts;
        for (const auto* label : window.findChildren<QLabel*>(name))
            texts.append(label->text());
        return texts;
    }
    static void Await_End(const QWidget& doctor)
    {
        EXPECT_TRUE(Serve_Until([&] { return In<QPushButton>(doctor, "Look_Again").isEnabled(); }, 60));
    }
    void Pick_The_Virtual_Phone(QWidget& wizard)
    {
        auto& table = In<QTableView>(wizard, "idPortList");
        const QModelIndex row = Row_Of(Virtual_Phone_Offer::Path());
        ASSERT_TRUE(row.isValid()) << "the wizard does not list it";
        Click_At(*table.viewport(), table.visualRect(row).center());
        EXPECT_TRUE(Serve_Until([&] { return !In<QLineEdit>(wizard, "_model_edit").text().isEmpty(); }, 60));
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }, 60));
        EXPECT_EQ(Details(), Usual_Details());
        Click_In_Wizard("_Select_Btn");
        EXPECT_TRUE(Serve_Until([this] { return !Wizard_Is_Open(); }, 60));
    }
};

TEST_F(No_Phone_Shows, The_Help_Leads_To_The_Doctor_And_The_Doctor_To_The_Virtual_Phone)
{
    ASSERT_TRUE(Virtual_Phone_Offer::Is_Installed());
    QString report;
    user.When_Opens("Help_Wnd", [](QWidget& help) { Click_In(help, "Why_No_Phone"); });
    user.When_Opens("Doctor_Wnd", [&](QWidget& doctor) {
        Await_End(doctor);
        EXPECT_TRUE(Texts(doctor, "finding_sentence").contains("The SIM card wants its PIN."));
        EXPECT_FALSE(Texts(doctor, "finding_remedy").isEmpty());
        EXPECT_TRUE(In<QLabel>(doctor, "_Progress_Text").text().startsWith("No device could send"));
        Click_In(doctor, "Copy_Report");
        report = QApplication::clipboard()->text();
        const auto& offer = In<QLabel>(doctor, "virtual_text");
        EXPECT_TRUE(offer.isVisible());
        EXPECT_EQ(offer.text(), "Try the program with a virtual phone: nothing is really sent.");
        Click_In(doctor, "Try_Virtual_Phone");
        EXPECT_FALSE(doctor.isVisible());
    });
    Will_Click_In(user, "Connection_Info", "Continue_Btn");
    user.When_Opens("Phone_List_Wnd", [this](QWidget& wizard) { Pick_The_Virtual_Phone(wizard); });

    Choose_In_Menu("Help_Btn_Action");

    EXPECT_TRUE(report.contains("The SIM card wants its PIN.")) << report.toStdString();
    EXPECT_FALSE(Is_Shown("Help_Wnd"));
    EXPECT_EQ(sel_port_bsd_str, Virtual_Phone_Offer::Path());
    EXPECT_EQ(The<QLabel>("_Device_Name_Ticker").text(), sel_port_name_str);
    EXPECT_FALSE(The<QWidget>("_NO_Device_Ticker").isVisible());
    EXPECT_TRUE(The<QLabel>("_Device_Facts").text().contains("Virtual Phone"));
    for (const auto& command : phone->Heard())
        EXPECT_FALSE(QByteArray::fromStdString(command).startsWith("AT+CPIN=")) << "no PIN is tried";
    End_Shared_Instances(); // the virtual phone goes with the windows
}

TEST_F(No_Phone_Shows, Who_Closes_The_Doctor_Is_In_The_Help_Again_And_No_Wizard_Opens)
{
    bool is_help_there = false;
    user.When_Opens("Help_Wnd", [&](QWidget& help) {
        Click_In(help, "Why_No_Phone");
        is_help_there = help.isVisible();
        Click_In(help, "OKPressed");
    });
    user.When_Opens("Doctor_Wnd", [](QWidget& doctor) {
        Await_End(doctor);
        const QStringList before = Texts(doctor, "finding_sentence");
        Click_In(doctor, "Look_Again");
        Await_End(doctor);
        EXPECT_EQ(Texts(doctor, "finding_sentence"), before);
        Click_In(doctor, "CancelPressed");
    });
    Choose_In_Menu("Help_Btn_Action");
    EXPECT_TRUE(is_help_there);
    EXPECT_FALSE(Is_Shown("Phone_List_Wnd"));
    EXPECT_EQ(Virtual_Phone_Offer::Path(), QString());
}
