#pragma once

#include "device/Device_Test.h"

/// What preparation and submission are in one of the two modes.
struct Submission_Mode
{
    const char* m_name;
    bool (MFCSMS::*m_prepare)(int descriptor);
    bool (MFCSMS::*m_send)(int descriptor, const QString& number, const QString& message, const QString& smsc_num,
                           bool flash_sms, bool unicode_sms);
};

inline constexpr Submission_Mode In_Pdu_Mode{"Pdu", &MFCSMS::Prepare_Modem_For_PDU_SMS, &MFCSMS::Send_PDU_SMS};
inline constexpr Submission_Mode In_Text_Mode{"Text", &MFCSMS::Prepare_Modem_For_Text_SMS, &MFCSMS::Send_Text_SMS};

inline std::string Marker(int part, int parts)
{
    return "\n------ " + std::to_string(part) + " / " + std::to_string(parts) + " of message ------\n";
}

/// A session that is connected and prepared for a mode.
class Submission_Test : public Session_Test
{
protected:
    explicit Submission_Test(const Submission_Mode& mode) : m_mode(mode)
    {
        Connect(m_session, m_phone);
        Prepare();
    }

    void Prepare()
    {
        ASSERT_TRUE((m_session.*m_mode.m_prepare)(No_Descriptor));
        m_phone.Forget();
        m_log.Forget();
    }

    bool Send(const QString& message, bool is_unicode = false, bool is_flash = false, const QString& smsc = {})
    {
        return (m_session.*m_mode.m_send)(No_Descriptor, m_number, message, smsc, is_flash, is_unicode);
    }

    /// Each of so many writes fails the submission when it fails, and is the last one then.
    void Expect_Each_Write_To_Count(int writes, bool is_unicode, const QString& smsc)
    {
        for (int failing = 1; failing <= writes; ++failing) {
            int turn = 0;
            m_calls.Will_Do("write", [&](void*) { return ++turn == failing ? Watched_Calls::Failed(EIO) : 1 << 20; });
            EXPECT_FALSE(Send("hello", is_unicode, false, smsc)) << failing;
            EXPECT_EQ(turn, failing);
        }
    }

    /// What the handset got, as many as expected; the phone may still be at its last answer.
    std::vector<Handset_Message> Inbox(size_t count)
    {
        EXPECT_TRUE(m_phone.Wait_For_Messages(count, std::chrono::seconds(5)));
        auto inbox = m_phone.Inbox();
        EXPECT_EQ(inbox.size(), count);
        inbox.resize(count);
        return inbox;
    }

    const Submission_Mode m_mode;
    QString m_number = "0123456789";
};

/// A number that there is no memory for: refused before it is looked at.
inline QString Endless_Number()
{
    static const QChar only = u'1';
    return QString::fromRawData(&only, qsizetype{1} << 62);
}
