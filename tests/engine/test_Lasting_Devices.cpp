#include "engine/Confirmed_Test.h"
#include "platform/Waiting.h"
#include "texts/Confirmed_Texts.h"

#include <atomic>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

constexpr double Job_Pace = 50;
constexpr double Seconds_To_Come_Back = 30;

/// A job on a device whose number is another one whenever it is plugged in, while the first free number goes to another
/// phone; its link by id stays the same.
class Lasting_Devices : public Confirmed_Test
{
protected:
    Lasting_Devices()
    {
        Set_Pace(Job_Pace);
        QDir(m_folder.path()).mkdir(QStringLiteral("by-id"));
        m_options.device_links = m_folder.filePath(QStringLiteral("by-id"));
        Plug_In("ttyUSB0", m_phone.Path());
        m_order.device_path = Node("ttyUSB0");
        for (const char* text : {"One", "Two", "Three"})
            Add(QStringLiteral("0700900100"), QString::fromLatin1(text));
        Phone_Moods moods;
        moods.m_hang_up_at = 2; // in place of the prompt
        m_phone.Set_Moods(moods);
    }

    QString Node(const char* name) const { return m_folder.filePath(QString::fromLatin1(name)); }
    QString Lasting() const { return m_options.device_links + QStringLiteral("/usb-Modem-if00"); }

    void Plug_In(const char* name, const std::string& path) const
    {
        ASSERT_TRUE(QFile::link(QString::fromStdString(path), Node(name)));
        ASSERT_TRUE(QFile::link(QStringLiteral("../") + QLatin1String(name), Lasting()));
    }

    void Pull()
    {
        m_pulled_at = Now_Seconds();
        QFile::remove(Lasting());
        QFile::remove(Node("ttyUSB0"));
        QFile::link(QString::fromStdString(m_other.Path()), Node("ttyUSB0"));
    }

    void Come_Back()
    {
        m_phone.Set_Moods({});
        Plug_In("ttyUSB1", m_phone.Plug_In_Again());
    }

    Virtual_Phone m_other;               // a stranger's
    std::atomic<double> m_pulled_at = 0; // the phone's thread writes it
};

} // namespace

TEST_F(Lasting_Devices, Are_Found_Again_Under_Another_Number)
{
    m_phone.Set_Listeners({{}, {}, [this] {
                               Pull();
                               Come_Back();
                           }});
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Sent, Row_State::Sent, Row_State::Sent));
    EXPECT_THAT(m_witness.m_held, IsEmpty());
    EXPECT_THAT(Texts(), ElementsAre("One", "Two", "Three"));
    EXPECT_THAT(m_other.Heard(), IsEmpty());
}

TEST_F(Lasting_Devices, That_Stay_Away_Are_Waited_For_Half_A_Minute_And_Then_Held_For)
{
    m_phone.Set_Listeners({{}, {}, [this] { Pull(); }});
    double held_after = 0;
    m_witness.m_on_held = [&] {
        held_after = (Now_Seconds() - m_pulled_at) * Job_Pace;
        Come_Back();
    };
    Run();
    EXPECT_GE(held_after, Seconds_To_Come_Back);
    EXPECT_THAT(m_witness.m_held, ElementsAre(QString(Texts::Confirmed::Device_Is_Gone)));
    EXPECT_EQ(m_witness.m_goes_on, 1);
    EXPECT_THAT(Texts(), ElementsAre("One", "Two", "Three"));
    EXPECT_THAT(m_other.Heard(), IsEmpty());
}

TEST_F(Lasting_Devices, Are_Named_In_The_Journal_By_What_Finds_Them_At_The_Next_Start)
{
    m_phone.Set_Listeners({{}, {}, [this] { Pull(); }});
    m_options.hold_seconds = 5;
    Run();
    EXPECT_THAT(m_witness.States(), ElementsAre(Row_State::Sent));
    const auto unfinished = Unfinished_Jobs(m_options.folder);
    ASSERT_EQ(unfinished.size(), 1);
    EXPECT_EQ(unfinished.first().counts.not_tried, 2);
    EXPECT_EQ(unfinished.first().device, Lasting());
    Come_Back();
    m_options.resumed_path = unfinished.first().path;
    m_order.device_path = unfinished.first().device;
    Run();
    EXPECT_THAT(Texts(), ElementsAre("One", "Two", "Three"));
    EXPECT_THAT(m_other.Heard(), IsEmpty());
}
