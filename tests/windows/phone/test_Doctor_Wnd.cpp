#include "windows/phone/Doctor_Wnd.h"

#include "toolkit/Shared_Instance.h"
#include "windows/phone/Virtual_Phone_Offer.h"
#include "windows/phone/Wizard_Test.h"

#include <QClipboard>

namespace {

class Doctor_Wnd_Test : public testing::Test
{
protected:
    Doctor_Wnd_Test()
    {
        Apply_Application_Look(*qApp);
        Set_Pace(20);
        Set_Extra_Device_Paths({});
    }
    ~Doctor_Wnd_Test() override
    {
        Finish_Workers();
        End_Shared_Instances();
        Set_Extra_Device_Paths({});
        Set_Pace(1);
    }

    // A look at this phone alone, whatever else is plugged in here.
    int Run(const std::function<void(Doctor_Wnd&)>& steps)
    {
        Doctor_Wnd window(nullptr, [this](Port_Doctor::Wishes wishes) {
            ++m_looks;
            wishes.paths = {QString::fromStdString(m_phone.Path())};
            return Port_Doctor(wishes).Look();
        });
        m_user.When_Opens("Doctor_Wnd", [&](QWidget&) {
            steps(window);
            if (window.isVisible())
                window.CancelPressed();
        });
        return window.exec();
    }

    static void Await_End(const Doctor_Wnd& window)
    {
        EXPECT_TRUE(Serve_Until([&] { return In<QPushButton>(window, "Look_Again").isEnabled(); }));
    }
    static QStringList Texts(const Doctor_Wnd& window, const char* name)
    {
        QStringList texts;
        for (const auto* label : window.findChildren<QLabel*>(name))
            texts.append(label->text());
        return texts;
    }
    static QString Progress(const Doctor_Wnd& window) { return In<QLabel>(window, "_Progress_Text").text(); }

    Virtual_Phone m_phone;
    std::atomic<int> m_looks{0};
    User m_user;
};

TEST_F(Doctor_Wnd_Test, Each_Line_Has_Its_Sign_Its_Sentence_And_What_Helps)
{
    Phone_Moods moods;
    moods.m_pin = "1234";
    m_phone.Set_Moods(moods);
    EXPECT_EQ(Run([&](Doctor_Wnd& window) {
                  Await_End(window);
                  EXPECT_EQ(Texts(window, "finding_sign"), QStringList({"✓", "✓", "✗"}));
                  EXPECT_EQ(Texts(window, "finding_sentence").last(), "The SIM card wants its PIN.");
                  EXPECT_EQ(Texts(window, "finding_remedy").size(), 1);
                  EXPECT_EQ(In<QLabel>(window, "finding_sign").accessibleName(), "OK");
                  EXPECT_TRUE(Progress(window).startsWith("No device could send"));
                  EXPECT_FALSE(In<QWidget>(window, "_Progress").isVisible());
              }),
              0);
    for (const auto& command : m_phone.Heard())
        EXPECT_FALSE(QByteArray::fromStdString(command).startsWith("AT+CPIN="));
}

TEST_F(Doctor_Wnd_Test, Looking_Again_Begins_With_An_Empty_List)
{
    Run([&](Doctor_Wnd& window) {
        Await_End(window);
        const auto before = Texts(window, "finding_sentence");
        EXPECT_TRUE(Progress(window).startsWith("A device is there"));
        Click_In(window, "Look_Again");
        EXPECT_FALSE(In<QPushButton>(window, "Copy_Report").isEnabled());
        Await_End(window);
        EXPECT_EQ(Texts(window, "finding_sentence"), before);
        EXPECT_EQ(m_looks, 2);
    });
}

TEST_F(Doctor_Wnd_Test, The_Report_Is_Copied_Without_Numbers)
{
    m_phone.Will_Answer("AT+CGMM", "\r\nModel 490154203237518\r\n\r\nOK\r\n");
    Run([&](Doctor_Wnd& window) {
        Await_End(window);
        EXPECT_TRUE(Texts(window, "finding_sentence").join(' ').contains("490154203237518"));
        Click_In(window, "Copy_Report");
        const QString report = QGuiApplication::clipboard()->text();
        EXPECT_TRUE(report.contains("The SIM card is ready."));
        EXPECT_TRUE(report.contains("Model (number left out)")) << report.toStdString();
        EXPECT_FALSE(report.contains("4901"));
        EXPECT_TRUE(Progress(window).contains("copied"));
    });
}

TEST_F(Doctor_Wnd_Test, Escape_Ends_A_Look_At_A_Silent_Phone)
{
    Phone_Moods moods;
    moods.m_silent = true;
    m_phone.Set_Moods(moods);
    Set_Pace(1);
    EXPECT_EQ(Run([&](Doctor_Wnd& window) {
                  EXPECT_TRUE(Serve_Until([&] { return Progress(window).startsWith("Asking"); }));
                  QTest::keyClick(&window, Qt::Key_Escape);
                  EXPECT_FALSE(window.isVisible());
              }),
              0);
    EXPECT_EQ(Workers_Running(), 0);
    EXPECT_FALSE(m_phone.Somebody_Is_There());
}

TEST_F(Doctor_Wnd_Test, The_Virtual_Phone_Is_Started_Once_And_Found_By_Searches_Until_The_Windows_End)
{
    ASSERT_TRUE(Virtual_Phone_Offer::Is_Installed());
    const auto take_it = [](Doctor_Wnd& window) { Click_In(window, "Try_Virtual_Phone"); };
    const auto take_it_twice = [&](Doctor_Wnd& window) {
        // While it starts, as assistive tools can.
        QTimer::singleShot(0, &window, [&] { In<QPushButton>(window, "Try_Virtual_Phone").click(); });
        take_it(window);
    };
    EXPECT_EQ(Run(take_it_twice), Doctor_Wnd::Virtual_Phone_Is_There);
    const QString path = Virtual_Phone_Offer::Path();
    EXPECT_TRUE(QFileInfo::exists(path));
    EXPECT_EQ(Extra_Device_Paths(), QStringList(path));
    EXPECT_EQ(Run(take_it), Doctor_Wnd::Virtual_Phone_Is_There);
    EXPECT_EQ(Extra_Device_Paths(), QStringList(path)) << "it runs already";
    End_Shared_Instances();
    EXPECT_TRUE(Serve_Until([&] { return !QFileInfo::exists(path); }));
    EXPECT_EQ(Virtual_Phone_Offer::Path(), QString());
}

} // namespace

TEST_F(Wizard_Test, The_Doctors_Virtual_Phone_Is_Searched_For_And_Its_Row_Is_Picked)
{
    Set_Pace(2); // it is a process of its own, which answers when it gets its turn
    Run([&] {
        m_user.When_Opens("Doctor_Wnd", [](QWidget& window) { Click_In(window, "Try_Virtual_Phone"); });
        const int sheets = Sheets_So_Far();
        Click("Why_No_Phone");
        ASSERT_TRUE(Wait_For_Sheets_End(sheets));
        EXPECT_EQ(Text("_port_det_edit"), Virtual_Phone_Offer::Path());
        EXPECT_FALSE(Text("_model_edit").isEmpty());
    });
    End_Shared_Instances();
    Set_Extra_Device_Paths({});
}

TEST_F(Wizard_Test, While_The_Doctor_Asks_The_Wizard_Begins_Nothing)
{
    // As assistive tools can, which do not mind what is in front.
    const auto press_everything = [this] {
        Table().selectRow(0);
        for (const char* button : {"_Search_Btn", "_Select_Btn", "Why_No_Phone"})
            Control<QPushButton>(button).click();
    };
    Run([&] {
        const int searches = m_finder.m_searches;
        const int sheets = Sheets_So_Far();
        int doctors = 0;
        m_user.When_Opens("Doctor_Wnd", [&](QWidget& doctor) {
            ++doctors;
            press_everything();
            EXPECT_TRUE(Serve_Until([&] { return In<QWidget>(doctor, "Look_Again").isEnabled(); }, 60));
            Click_In(doctor, "CancelPressed");
        });
        QTimer::singleShot(0, m_window.get(), press_everything); // while the port is let go of
        Click("Why_No_Phone");
        EXPECT_EQ(doctors, 1);
        EXPECT_EQ(Selected_Row(), -1);
        EXPECT_EQ(m_finder.m_searches, searches);
        EXPECT_EQ(Sheets_So_Far(), sheets);
        Expect_Told({});
        Probe_Row(0);
        EXPECT_FALSE(Text("_model_edit").isEmpty());
    });
}

TEST_F(Wizard_Test, While_A_Device_Is_Probed_The_Doctor_Does_Not_Ask_It)
{
    Run([&] {
        m_calls.m_gated_path = m_phone.Path();
        const int sheets = Sheets_So_Far();
        Click_Row(0);
        ASSERT_TRUE(Serve_Until([&] { return m_calls.m_gate.Is_Somebody_Waiting(); }));
        QTimer::singleShot(0, m_window.get(), [this] {
            if (auto* doctor = m_window->findChild<Doctor_Wnd*>()) {
                ADD_FAILURE() << "the doctor is there";
                doctor->reject();
            }
        });
        Control<QPushButton>("Why_No_Phone").click();
        QTest::qWait(0);
        m_calls.m_gate.Open();
        ASSERT_TRUE(Wait_For_Sheets_End(sheets));
        EXPECT_FALSE(Text("_model_edit").isEmpty());
    });
}

TEST_F(Wizard_Test, Beside_Each_Port_Stands_Whether_It_Is_Free)
{
    Run([&] {
        const auto* model = Table().model();
        ASSERT_EQ(model->rowCount(), 1);
        EXPECT_EQ(model->headerData(2, Qt::Horizontal, Qt::DisplayRole), "Device");
        EXPECT_EQ(model->headerData(3, Qt::Horizontal, Qt::DisplayRole), "State");
        EXPECT_EQ(model->index(0, 3).data().toString(), "✓ free");
        EXPECT_TRUE(model->index(0, 2).data().toString().isEmpty()) << "nobody knows what a terminal is";
    });
}
