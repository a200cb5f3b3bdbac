#include "windows/phone/Connection_Info.h"

#include "support/In_Windows.h"
#include "toolkit/Shared_Instance.h"
#include "toolkit/Window_Look.h"

class Connection_Info_Test : public testing::Test
{
protected:
    Connection_Info_Test() { Apply_Application_Look(*qApp); }

    int Run(const std::function<void()>& steps)
    {
        m_user.When_Opens("Connection_Info", [this, steps](QWidget&) {
            steps();
            if (m_window.isVisible())
                m_window.Continue_Btn();
        });
        return m_window.exec();
    }

    bool Advises() { return In<QGroupBox>(m_window, "advice_box").isVisible(); }
    QStringList Commands()
    {
        QStringList commands;
        for (const auto* field : m_window.findChildren<QLineEdit*>("advice_command"))
            commands.append(field->text());
        return commands;
    }

    Connection_Facts m_facts{1, {}, false};
    Connection_Info m_window{nullptr, [this] { return m_facts; }};
    User m_user;
};

TEST_F(Connection_Info_Test, Every_Way_Out_Ends_With_One)
{
    const std::function<void()> ways[] = {
        [&] { Click_Middle_Of(In<QPushButton>(m_window, "Continue_Btn")); },
        [&] { QTest::keyClick(m_window.windowHandle(), Qt::Key_Return); },
        [&] { QTest::keyClick(m_window.windowHandle(), Qt::Key_Escape); },
        [&] { m_window.windowHandle()->close(); },
    };
    for (const auto& way : ways) {
        const int result = Run([&] {
            way();
            EXPECT_FALSE(m_window.isVisible());
        });
        EXPECT_EQ(result, 1);
    }
}

TEST_F(Connection_Info_Test, How_A_Phone_Is_Switched_Is_Always_Told_Without_Much_To_Say_Without_Scrolling)
{
    Run([&] {
        for (const char* name : {"usb_text", "bluetooth_text"})
            EXPECT_TRUE(In<QLabel>(m_window, name).isVisible()) << name;
        EXPECT_TRUE(In<QLineEdit>(m_window, "bind_command").text().contains("rfcomm bind"));
        QApplication::processEvents();
        const auto& body = In<QScrollArea>(m_window, "body");
        EXPECT_LE(body.widget()->height(), body.viewport()->height());
    });
}

TEST_F(Connection_Info_Test, What_Applies_Is_Found_Out_Anew_At_Each_Opening_And_Is_Plain_Text)
{
    m_facts = {1, {{"/dev/<b>x</b>", "dialout"}}, true};
    Run([&] {
        EXPECT_TRUE(Advises());
        EXPECT_EQ(Commands(), QStringList({"sudo usermod -aG dialout $USER", "sudo systemctl stop ModemManager"}));
        EXPECT_TRUE(In<QLineEdit>(m_window, "advice_command").isReadOnly());
        EXPECT_EQ(In<QLabel>(m_window, "advice_text").textFormat(), Qt::PlainText);
        EXPECT_TRUE(In<QLabel>(m_window, "advice_text").text().contains("<b>x</b>"));
    });
    m_facts = {0, {}, false};
    Run([&] {
        EXPECT_TRUE(Advises());
        EXPECT_EQ(Commands(), QStringList());
        EXPECT_EQ(m_window.findChildren<QLabel*>("advice_text").size(), 1);
    });
    m_facts = {1, {}, false};
    Run([&] { EXPECT_FALSE(Advises()); });
}

TEST(Connection_Info, The_Shared_Instance_Finds_Out_About_This_Computer)
{
    User user;
    user.When_Opens("Connection_Info", [](QWidget& window) { window.close(); });
    const QPointer<Connection_Info> info = Connection_Info::defaultInstance();
    EXPECT_EQ(Connection_Info::defaultInstance(), info);
    EXPECT_EQ(info->exec(), 1);
    End_Shared_Instances();
    EXPECT_TRUE(info.isNull());
}
