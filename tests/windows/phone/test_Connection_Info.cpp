#include "windows/phone/Connection_Info.h"

#include "support/Serve_Until.h"
#include "support/User.h"
#include "toolkit/Shared_Instance.h"
#include "toolkit/Window_Look.h"

#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QScrollArea>
#include <QTest>
#include <QWindow>
#include <gmock/gmock.h>

namespace {

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

    QWidget& Box() { return *m_window.findChild<QGroupBox*>("advice_box"); }
    QStringList Commands()
    {
        QStringList commands;
        const auto fields = m_window.findChildren<QLineEdit*>("advice_command");
        for (const auto* field : fields)
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
        [this] {
            auto* button = m_window.findChild<QPushButton*>("Continue_Btn");
            QTest::mouseClick(m_window.windowHandle(), Qt::LeftButton, {},
                              button->mapTo(&m_window, button->rect().center()));
        },
        [this] { QTest::keyClick(m_window.windowHandle(), Qt::Key_Return); },
        [this] { QTest::keyClick(m_window.windowHandle(), Qt::Key_Escape); },
        [this] { m_window.windowHandle()->close(); },
    };
    for (const auto& way : ways)
        EXPECT_EQ(Run([&] {
                      way();
                      EXPECT_FALSE(m_window.isVisible());
                  }),
                  1);
}

TEST_F(Connection_Info_Test, How_A_Phone_Is_Switched_Is_Always_Told)
{
    Run([&] {
        for (const char* name : {"usb_text", "bluetooth_text"})
            EXPECT_TRUE(m_window.findChild<QLabel*>(name)->isVisible()) << name;
        EXPECT_TRUE(m_window.findChild<QLineEdit*>("bind_command")->text().contains("rfcomm bind"));
    });
}

TEST_F(Connection_Info_Test, Where_Nothing_Stands_In_The_Way_Nothing_Is_Said)
{
    Run([&] { EXPECT_FALSE(Box().isVisible()); });
}

TEST_F(Connection_Info_Test, What_Applies_Is_Found_Out_Anew_At_Each_Opening)
{
    m_facts = {1, {{"/dev/ttyUSB0", "dialout"}}, true};
    Run([&] {
        EXPECT_TRUE(Box().isVisible());
        EXPECT_EQ(Commands(), QStringList({"sudo usermod -aG dialout $USER", "sudo systemctl stop ModemManager"}));
    });
    m_facts = {0, {}, false};
    Run([&] {
        EXPECT_TRUE(Box().isVisible());
        EXPECT_EQ(Commands(), QStringList());
        EXPECT_EQ(m_window.findChildren<QLabel*>("advice_text").size(), 1);
    });
    m_facts = {1, {}, false};
    Run([&] { EXPECT_FALSE(Box().isVisible()); });
}

TEST_F(Connection_Info_Test, A_Command_Can_Be_Selected_But_Not_Changed_And_Text_Is_Plain)
{
    m_facts = {1, {{"/dev/<b>x</b>", "dialout"}}, false};
    Run([&] {
        EXPECT_TRUE(m_window.findChild<QLineEdit*>("advice_command")->isReadOnly());
        const auto* label = m_window.findChild<QLabel*>("advice_text");
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
        EXPECT_TRUE(label->text().contains("<b>x</b>"));
    });
}

TEST_F(Connection_Info_Test, Without_Much_To_Say_The_Window_Needs_No_Scrolling)
{
    Run([&] {
        QApplication::processEvents();
        auto* body = m_window.findChild<QScrollArea*>("body");
        EXPECT_LE(body->widget()->height(), body->viewport()->height());
        EXPECT_EQ(m_window.palette().color(QPalette::Window), QColor(241, 244, 250));
    });
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

} // namespace
