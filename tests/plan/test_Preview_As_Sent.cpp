#include "device/MFCSMS.h"
#include "engine/Confirmed_Test.h"
#include "engine/Fixed_Wait_Manner.h"
#include "engine/Job_State.h"
#include "plan/Message_Preview.h"
#include "plan/Random_Texts.h"
#include "platform/Interface_Thread.h"

// What a preview shows is what the handset shows when the real job has sent the message: letter for letter.

namespace {

constexpr int Texts_In_All = 5000;

struct Sent_How
{
    const char* name;
    bool fixed_waits;
    Job_Alphabet_Choice alphabet;
    bool is_flash;
    int texts; ///< in the ordinary run
};

void PrintTo(const Sent_How& how, std::ostream* out)
{
    *out << how.name;
}

// Of one length: a frame's own length decides what goes out as a single message.
QString Number_Of(int index)
{
    return QString::number(4'477'009'000'000 + index);
}

int Texts_To_Send(const Sent_How& how)
{
    return qgetenv("CORVANE_TEXTS") == "all" ? Texts_In_All : how.texts;
}

class Previewed_Job : public Confirmed_Test, public testing::WithParamInterface<Sent_How>
{
protected:
    Previewed_Job()
    {
        Set_Pace(10'000);
        m_options.folder.clear();
        m_options.job.alphabet = GetParam().alphabet;
        m_order.choices.unicode = GetParam().alphabet == Job_Alphabet_Choice::Unicode;
        m_order.choices.flash = GetParam().is_flash;
    }

    void Send_All()
    {
        if (!GetParam().fixed_waits) {
            Run();
            return;
        }
        MFCSMS session;
        Fixed_Wait_Manner manner(m_order, session);
        Send_Job(m_order, manner, m_witness, m_witness, Stop_SMS_Sending_Now).Send_SMS_Func();
        Finish_Workers();
    }

    Plan_Manner Manner() const
    {
        Plan_Manner manner;
        manner.fixed_waits = GetParam().fixed_waits;
        manner.alphabet = GetParam().alphabet;
        manner.is_flash = GetParam().is_flash;
        return manner;
    }
};

} // namespace

TEST_P(Previewed_Job, Shows_What_Arrives)
{
    const int count = Texts_To_Send(GetParam());
    Random_Texts texts;
    for (int index = 0; index < count; ++index)
        Add(Number_Of(index), texts.Next());
    Send_All();
    ASSERT_TRUE(m_phone.Wait_For_Messages(static_cast<std::size_t>(count), std::chrono::seconds(10)));
    const auto inbox = m_phone.Inbox();
    ASSERT_EQ(inbox.size(), static_cast<std::size_t>(count));
    for (int index = 0; index < count; ++index) {
        const QString text = m_order.recipients.Message_At(index);
        const auto& arrived = inbox[static_cast<std::size_t>(index)];
        const Message_Preview preview = Preview_Of_Message(text, Number_Of(index), Manner());
        ASSERT_EQ(arrived.m_number, Number_Of(index).toStdString());
        ASSERT_EQ(preview.row.shown.toStdString(), arrived.m_text) << index << ": " << text.toStdString();
        ASSERT_EQ(preview.row.parts, arrived.m_parts) << index << ": " << text.toStdString();
        ASSERT_EQ(With_Changes(text, preview.row.changed).toStdString(), arrived.m_text) << text.toStdString();
    }
}

// A described message takes as long as its reads do, whatever they bring.
// clang-format off
INSTANTIATE_TEST_SUITE_P(Sent, Previewed_Job, testing::Values(
    Sent_How{"Described_7_Bit", true, Job_Alphabet_Choice::Gsm, false, 40},
    Sent_How{"Described_Unicode", true, Job_Alphabet_Choice::Unicode, false, 20},
    Sent_How{"Described_Notification", true, Job_Alphabet_Choice::Gsm, true, 10},
    Sent_How{"Confirmed", false, Job_Alphabet_Choice::Auto, false, 500},
    Sent_How{"Confirmed_7_Bit", false, Job_Alphabet_Choice::Gsm, false, 300},
    Sent_How{"Confirmed_Unicode", false, Job_Alphabet_Choice::Unicode, false, 200},
    Sent_How{"Confirmed_Notification", false, Job_Alphabet_Choice::Auto, true, 100}),
    [](const auto& test) { return test.param.name; });
// clang-format on
