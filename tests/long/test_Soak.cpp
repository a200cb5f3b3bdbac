#include "windows/main/Sending_Test.h"

#include <random>

namespace {

int Entries_In(const char* folder)
{
    return static_cast<int>(
        QDir(QLatin1String(folder)).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size());
}

/// What the process holds in memory, in KiB.
long Resident_Memory()
{
    QFile status("/proc/self/status");
    EXPECT_TRUE(status.open(QIODevice::ReadOnly));
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmRSS:"))
            return line.simplified().split(' ').at(1).toLong();
    }
    return 0;
}

// Jobs of thousands of recipients through a phone whose manners change every hundred. Every message must arrive, and
// every record and template be kept, exactly once and in order, whatever the manners are.
class Soak : public Sending_Test
{
protected:
    struct Expected
    {
        std::vector<std::string> inbox;
        QByteArray records;
        QByteArray templates;
        int handled = 0;
    };

    Soak()
    {
        Set_Pace(1000);
        m_progress.m_at_step = [this](const QString& step) {
            const QString position = step.section(" / ", 0, 0);
            bool is_number = false;
            const int item = position.toInt(&is_number);
            if (is_number && step.contains(" / ") && item % 100 == 0)
                m_phone.Set_Moods(Manners(item / 100));
        };
    }

    /// Manners under which every message still arrives.
    static Phone_Moods Manners(int which)
    {
        static constexpr bool Phone_Moods::*Kinds[] = {
            &Phone_Moods::m_no_echo, &Phone_Moods::m_split_answers,        &Phone_Moods::m_unsolicited,
            &Phone_Moods::m_cr_only, &Phone_Moods::m_prompt_without_blank, &Phone_Moods::m_no_prompt};
        Phone_Moods moods;
        if (which % 7 > 0)
            moods.*Kinds[which % 7 - 1] = true;
        return moods;
    }

    QString Random_Text(bool is_unicode)
    {
        // A long 7-bit message keeps only what has one code in both alphabets.
        const QString letters = is_unicode ? QString::fromUtf8("abc žluťoučký кириллица 漢字 \n")
                                           : QString::fromUtf8("abcdefgh ABC 123 \n");
        std::uniform_int_distribution<qsizetype> any_letter(0, letters.size() - 1);
        std::uniform_int_distribution<int> any_length(1, 20);
        const int length = any_length(m_random) == 20 ? 400 : any_length(m_random);
        QString text = "x";
        for (int at = 0; at < length; ++at)
            text += letters.at(any_letter(m_random));
        return text + u'x'; // no blanks at the ends, which a template would keep and a handset show
    }

    Expected Fill(int items, bool is_unicode)
    {
        QSet<QString> numbers;
        QSet<QString> templates;
        Expected expected;
        std::uniform_int_distribution<int> any_number(1000, 1000 + items * 2);
        const QByteArray date = Today().toString("dd/MM/yyyy").toUtf8();
        for (int item = 0; item < items; ++item) {
            const QString number = QString::number(any_number(m_random));
            const QString message = Random_Text(is_unicode);
            Add(number, message);
            const bool is_excluded = number.endsWith(u'7');
            if (is_excluded && m_window.m_exclusions.Count_Of(number) == 0)
                Exclude(number);
            const bool is_repeated = numbers.contains(number);
            numbers.insert(number);
            if (is_excluded || is_repeated)
                continue;
            ++expected.handled;
            const QByteArray line = QString(message).replace(u'\n', "|AP*|DX/").toUtf8();
            expected.inbox.push_back(number.toStdString() + ": " + message.toStdString());
            expected.records += "\a" + number.toUtf8() + "\v" + line + "\a" + date + "\v\n";
            if (!templates.contains(message))
                expected.templates += line + '\n';
            templates.insert(message);
        }
        Send_Choices choices;
        choices.composer_text = m_window.m_previous_message;
        choices.batch_size = "500";
        choices.pause_choice = "10 Seconds";
        choices.exclusion = choices.skip_duplicates = choices.delayed_delivery = true;
        choices.save_sent_items = choices.save_templates = true;
        choices.unicode = is_unicode;
        m_window.m_choices = choices;
        return expected;
    }

    /// Sends the list, compares what came of it, and leaves everything empty for the next job.
    void Send_And_Compare(int items, bool is_unicode)
    {
        const Expected expected = Fill(items, is_unicode);
        m_user.Will_Press("OK");
        m_runner.Send_SMS_Btn();
        ASSERT_TRUE(Serve_Until([] { return sms_thread_var == 0 && Workers_Running() == 0; }, 3000));
        Expect_Everything_Tidy();
        EXPECT_EQ(m_user.Was_Shown().last(), Completed);
        const auto inbox = m_phone.Inbox();
        ASSERT_EQ(inbox.size(), expected.inbox.size());
        for (std::size_t message = 0; message < inbox.size(); ++message)
            ASSERT_EQ(inbox[message].m_number + ": " + inbox[message].m_text, expected.inbox[message]) << message;
        EXPECT_EQ(Bytes_Of(Sent_Item_Path), expected.records);
        EXPECT_EQ(Bytes_Of(Templates_Path), expected.templates);
        EXPECT_EQ(m_progress.Steps().count("pause"), (expected.handled - 1) / 500);
        m_progress.Forget_Steps();
        m_phone.Forget();
        m_calls.Forget_Writes();
        m_window.m_recipients.Clear();
        Exclude_Nobody();
        for (const auto& path : {Sent_Item_Path, Templates_Path})
            ASSERT_TRUE(QFile::resize(path, 0));
    }

    std::mt19937 m_random{20261120};
};

TEST_F(Soak, Ten_Thousand_Messages_Arrive_And_Are_Kept_Exactly_Once_And_Nothing_Is_Left_Behind)
{
    Send_And_Compare(300, false); // whatever is made once is made now
    const int descriptors = Entries_In("/proc/self/fd");
    const int threads = Entries_In("/proc/self/task");
    const long memory = Resident_Memory();
    Send_And_Compare(5000, false);
    Send_And_Compare(5000, true);
    EXPECT_EQ(Entries_In("/proc/self/fd"), descriptors);
    EXPECT_EQ(Entries_In("/proc/self/task"), threads);
    EXPECT_LT(Resident_Memory(), memory + 64 * 1024);
}

} // namespace
