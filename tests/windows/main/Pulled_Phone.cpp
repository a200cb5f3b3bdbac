#include "windows/main/Pulled_Phone.h"

namespace {

// For example "07_CMGS": which write it is, and of what.
std::string Name_Of_Write(qsizetype number, const QString& text)
{
    const QString command = text.section(u'=', 0, 0).trimmed();
    const QString name = text.startsWith(u'\x1A')                   ? QStringLiteral("End_Of_Message")
                         : command == u"AT"                         ? command
                         : command.startsWith(QLatin1String("AT+")) ? command.mid(3)
                                                                    : QStringLiteral("Body");
    return QStringLiteral("%1_%2").arg(number, 2, 10, QLatin1Char('0')).arg(name).toStdString();
}

} // namespace

Phone_Moods Pulled_Phone::Moods_For(const Line_Way& way)
{
    Phone_Moods moods;
    moods.m_text_only = way.text_mode;
    return moods;
}

void Pulled_Phone::Pull_At(const Line_Pull& pull)
{
    auto count = std::make_shared<int>(0);
    m_calls.m_before_write = [this, pull, count](const QByteArray&) {
        if (++*count == pull.write && !pull.after_it)
            Pull();
    };
    m_calls.m_after_write = [this, pull, count](const QByteArray&) {
        if (*count == pull.write && pull.after_it)
            Pull();
    };
}

void Pulled_Phone::Expect_A_Record_Of_Whatever_Arrived()
{
    const QByteArray records = Bytes_Of(Sent_Item_Path);
    for (const auto& item : m_items) {
        QString arrived;
        for (const auto& message : m_phone.Inbox())
            if (QString::fromStdString(message.m_number) == item.number)
                arrived += QString::fromStdString(message.m_text);
        const auto kept = records.count("\a" + item.number.toUtf8() + "\v" + item.message.toUtf8() + "\a");
        EXPECT_LE(kept, 1) << item.number.toStdString();
        EXPECT_TRUE(kept == 1 || arrived != item.message) << item.number.toStdString() << " has no record";
        EXPECT_LE(arrived.size(), item.message.size()) << "it arrived twice";
    }
}

void Pulled_Phone::Expect_That_Nothing_Opens()
{
    const auto heard = m_phone.Heard().size();
    Send_With_One_Box();
    EXPECT_EQ(m_user.Was_Shown().last(), Does_Not_Open);
    EXPECT_EQ(m_phone.Heard().size(), heard);
}

void Pulled_Phone::TestBody()
{
    Pull_At(m_pull);
    Send_And_Expect(Expected_Outcome(Moods_For(m_way), m_way, m_items, m_pull));
    Expect_A_Record_Of_Whatever_Arrived();
    Expect_That_Nothing_Opens();
    Plug_In_Again();
    Expect_The_Next_Job_To_Work();
}

bool Register_Pulls(const char* suite, const Line_Way& way)
{
    const auto writes = Expected_Outcome(Pulled_Phone::Moods_For(way), way, Line_Items(way)).writes;
    for (int write = 1; write <= writes.size(); ++write) {
        for (const bool after_it : {false, true}) {
            const std::string name =
                Name_Of(way) + (after_it ? "_After_" : "_Before_") + Name_Of_Write(write, writes.at(write - 1));
            testing::RegisterTest(suite, name.c_str(), nullptr, nullptr, __FILE__, __LINE__,
                                  [way, write, after_it]() -> Line_Test* {
                                      return new Pulled_Phone(way, {write, after_it});
                                  });
        }
    }
    return true;
}
