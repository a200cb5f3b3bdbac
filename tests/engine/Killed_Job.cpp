#include "engine/Killed_Job.h"

#include "handset/Submit_Decoder.h"
#include "records/Job_Shelf.h"
#include "support/Files.h"

#include <QFileInfo>
#include <algorithm>
#include <gtest/gtest.h>

namespace {

constexpr char End_Of_Message = '\x1A';

// A command that was cut off in front of its end begins none.
int Messages_Begun_In(const std::string& heard)
{
    const std::string command = "AT+CMGS=";
    int count = 0;
    for (auto at = heard.find(command); at != std::string::npos; at = heard.find(command, at + 1)) {
        const auto end = heard.find_first_not_of("0123456789", at + command.size());
        count += end != std::string::npos && heard[end] == '\r' ? 1 : 0;
    }
    return count;
}

// A number by its end, for a refusal after the message or for silence.
Message_Manner Manner_Of(const Killed_Row& row)
{
    Message_Manner manner;
    manner.m_kind =
        row.end == Row_State::Refused ? Message_Manner::Kind::Refused : Message_Manner::Kind::Without_Result;
    manner.m_number_end = row.number;
    manner.m_text = "+CMS ERROR: 195";
    return manner;
}

Phone_Moods Moods_For(const Killed_List& list)
{
    Phone_Moods moods;
    moods.m_first_reference = 100; // so that all have as many digits
    moods.m_reports_in_memory_alone = true;
    moods.m_report_after_seconds = 0;
    moods.m_network_lost_at = list.network_lost_at;
    moods.m_network_back_after_queries = 7;
    for (const Killed_Row& row : list.rows) {
        for (Message_Manner manner : row.meanwhile) {
            manner.m_number_end = row.number;
            moods.m_message_manners.push_back(manner);
        }
        if (row.end != Row_State::Sent)
            moods.m_message_manners.push_back(Manner_Of(row));
    }
    return moods;
}

std::string Told(int row, Row_State state, bool is_earlier)
{
    return std::to_string(row - 1) + ' ' + std::to_string(static_cast<int>(state)) + (is_earlier ? " earlier" : "");
}

// What a sync has not reached at the journal's end, from what a life did to its files.
qint64 Unsynced_After(const Job_Life& life, qint64 before)
{
    qint64 unsynced = before;
    for (const std::string& line : life.made) {
        const QByteArrayList words = QByteArray::fromStdString(line).split(' '); // name, file, bytes, ok
        if (words.value(3) != "ok" || !words[1].contains(".journal"))
            continue;
        if (words[0] == "write")
            unsynced += words[2].toLongLong();
        else if (words[0] == "sync")
            unsynced = 0;
    }
    return unsynced;
}

// Whether the journal got its name in this life, and the folder was not synced afterwards.
bool Has_Unsynced_Name(const Job_Life& life)
{
    bool is_unsynced = false;
    for (const std::string& line : life.made)
        is_unsynced = line.starts_with("rename ") || (is_unsynced && !line.starts_with("sync Jobs 0 ok"));
    return is_unsynced;
}

} // namespace

Killed_Job::Killed_Job(const Killed_List& list) : m_rows(list.rows), m_phone(Moods_For(list))
{
    m_options.job.report_seconds = list.asks_for_reports ? 60 : -1;
    m_options.folder = m_folder.filePath(QStringLiteral("Jobs"));
    m_order.device_path = QString::fromStdString(m_phone.Path());
    for (const Killed_Row& row : m_rows) {
        m_order.recipients.Append(QLatin1String(row.number), row.text);
        for (int part = 1; part <= row.parts; ++part)
            m_at_most[{row.number, part}] = 1;
    }
}

Job_Life Killed_Job::Live_Until(const Job_Death& death, Disk_After disk, bool sends_unknown)
{
    if (Is_Over())
        return {};
    const Job_Life life = Live_On(death, sends_unknown);
    if (life.was_killed && disk != Disk_After::As_Written)
        Lose_Power(life, disk);
    Look_At_The_Journal();
    return life;
}

void Killed_Job::Live_To_The_End(bool sends_unknown)
{
    if (Is_Over())
        return;
    const std::vector<Sending_State> before = States();
    const Parts handed_before = Handed_Over();
    const Job_Life life = Live_On({}, sends_unknown);
    EXPECT_FALSE(life.was_killed);
    Look_At_The_Journal();
    Check_Told(life, before, sends_unknown);
    Check_Inbox(life);
    const Parts handed_over = Handed_Over();
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        for (int part = 1; part <= m_rows[i].parts; ++part) {
            const auto count_in = [key = std::pair(std::string(m_rows[i].number), part)](const Parts& parts) {
                return parts.contains(key) ? parts.at(key) : 0;
            };
            const bool is_left_alone = May_Have_Been_Sent(before[i]) && !sends_unknown;
            EXPECT_GE(count_in(handed_over), is_left_alone ? 0 : 1) << "forgotten";
            EXPECT_LE(count_in(handed_over),
                      is_left_alone ? count_in(handed_before) : m_at_most.at({m_rows[i].number, part}));
        }
    }
}

Job_Life Killed_Job::Live_On(const Job_Death& death, bool sends_unknown)
{
    m_options.resumed_path = m_record ? Journal() : QString();
    m_options.sends_unknown = sends_unknown;
    for (int row = 1; sends_unknown && m_record && row <= m_record->Row_Count(); ++row)
        for (int part = 1; part <= m_record->Parts_Of(row); ++part)
            m_at_most[{m_rows[static_cast<std::size_t>(row - 1)].number, part}] +=
                May_Have_Been_Sent(m_record->Part(row, part).state) ? 1 : 0;
    const Job_Life life = Live(m_phone, m_order, m_options, death);
    m_unsynced = Unsynced_After(life, m_unsynced);
    return life;
}

void Killed_Job::Lose_Power(const Job_Life& life, Disk_After disk)
{
    const QString journal = Journal();
    if (journal.isEmpty())
        return;
    if (Has_Unsynced_Name(life)) {
        EXPECT_TRUE(QFile::rename(journal, New_Journal_Path(journal)));
        return;
    }
    const QByteArray bytes = Bytes_Of(journal);
    const qint64 header = bytes.indexOf('\n') + 1;
    const qint64 lost = disk == Disk_After::As_Synced ? m_unsynced : (m_unsynced + 1) / 2;
    Write_Bytes(journal, bytes.first(std::max(header, bytes.size() - lost)));
    m_unsynced = 0;
}

// Nothing was handed over more often than it may be, and whatever the journal does not state, it names as unknown.
void Killed_Job::Look_At_The_Journal()
{
    const Parts handed_over = Handed_Over();
    const Parts taken = Taken();
    for (const Parts* parts : {&handed_over, &taken})
        for (const auto& [part, count] : *parts)
            EXPECT_LE(count, m_at_most[part]) << "part " << part.second << " to " << part.first;
    const QString journal = Journal();
    const Job_Reading reading = Read_Job(journal);
    m_record = reading.record;
    if (journal.isEmpty()) {
        EXPECT_TRUE(handed_over.empty() || handed_over.size() == m_at_most.size()) << "it was removed before its end";
        return;
    }
    ASSERT_TRUE(m_record) << Job_Trouble_Sentence(reading.trouble).toStdString();
    for (int row = 1; row <= m_record->Row_Count(); ++row)
        Check_Row(row, handed_over, taken);
    Check_Reports();
}

// Each at most once, wherever its deletion from the memory was cut off.
void Killed_Job::Check_Reports() const
{
    std::map<std::pair<std::string, int>, int> reports;
    for (const Job_Report& report : m_record->Reports())
        EXPECT_EQ(++reports[std::pair(report.number.toStdString(), report.reference)], 1) << report.reference;
}

void Killed_Job::Check_Row(int row, const Parts& handed_over, const Parts& taken) const
{
    const Killed_Row& told = m_rows.at(static_cast<std::size_t>(row - 1));
    SCOPED_TRACE("row " + std::to_string(row));
    bool is_in_doubt = false;
    for (int part = 1; part <= told.parts; ++part) {
        const auto key = std::pair(std::string(told.number), part);
        const int handed = handed_over.contains(key) ? handed_over.at(key) : 0;
        const Sending_State state = m_record->Part(row, part).state;
        is_in_doubt = is_in_doubt || May_Have_Been_Sent(state);
        EXPECT_TRUE(state != Sending_State::Waiting || handed < m_at_most.at(key))
            << "part " << part << " waits, but was handed over";
        EXPECT_TRUE(state != Sending_State::Accepted || taken.contains(key)) << "part " << part << " was not sent";
        EXPECT_TRUE(state != Sending_State::Refused || !taken.contains(key)) << "part " << part << " was not refused";
    }
    EXPECT_EQ(May_Have_Been_Sent(m_record->State_Of(row).state), is_in_doubt);
}

// Each row exactly once, with its end.
void Killed_Job::Check_Told(const Job_Life& life, const std::vector<Sending_State>& before, bool sends_unknown) const
{
    std::vector<std::string> expected;
    int unknown = 0;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const bool is_left_alone = May_Have_Been_Sent(before[i]) && !sends_unknown;
        const bool is_settled = before[i] == Sending_State::Accepted || before[i] == Sending_State::Refused;
        const Row_State state = is_left_alone ? Row_State::May_Have_Been_Sent : m_rows[i].end;
        expected.push_back(Told(static_cast<int>(i + 1), state, is_left_alone || is_settled));
        unknown += state == Row_State::May_Have_Been_Sent ? 1 : 0;
    }
    EXPECT_EQ(life.rows, expected);
    EXPECT_EQ(m_record.has_value(), unknown > 0) << "a journal stays as long as there is a doubt";
    EXPECT_EQ(m_record ? m_record->Counts().unknown : 0, unknown);
    Clear_Up_Jobs(m_options.folder);
    EXPECT_EQ(QDir(m_options.folder).entryList(QDir::Files).size(), unknown > 0 ? 2 : 0);
}

// Whole messages, and no other texts.
void Killed_Job::Check_Inbox(const Job_Life& life) const
{
    std::map<std::string, int> messages;
    for (const Handset_Message& message : m_phone.Inbox()) {
        const auto row = std::find_if(m_rows.begin(), m_rows.end(),
                                      [&](const Killed_Row& each) { return each.number == message.m_number; });
        ASSERT_NE(row, m_rows.end());
        EXPECT_EQ(message.m_text, row->text.toStdString());
        ++messages[message.m_number];
    }
    for (std::size_t i = 0; i < m_rows.size() && i < life.rows.size(); ++i) {
        const bool is_sent = life.rows[i].starts_with(Told(static_cast<int>(i + 1), Row_State::Sent, false));
        const int at_most = m_at_most.at({m_rows[i].number, m_rows[i].parts});
        EXPECT_GE(messages[m_rows[i].number], is_sent ? 1 : 0);
        EXPECT_LE(messages[m_rows[i].number], m_rows[i].end == Row_State::Refused ? 0 : at_most);
    }
}

// Its journal says that it has ended, or has been removed since.
bool Killed_Job::Is_Over() const
{
    return m_record ? m_record->Has_Ended() : !Handed_Over().empty();
}

// Empty where there is none.
QString Killed_Job::Journal() const
{
    const QStringList names = QDir(m_options.folder).entryList({QStringLiteral("*.journal")}, QDir::Files);
    EXPECT_LE(names.size(), 1);
    return names.isEmpty() ? QString() : m_options.folder + u'/' + names.first();
}

std::vector<Sending_State> Killed_Job::States() const
{
    std::vector<Sending_State> states(m_rows.size(), Sending_State::Waiting);
    for (int row = 1; m_record && row <= m_record->Row_Count(); ++row)
        states[static_cast<std::size_t>(row - 1)] = m_record->State_Of(row).state;
    return states;
}

// Whether a message, counted from 1 among all that were begun, is one that is tried again by itself.
bool Killed_Job::Is_Refused_For_Now(const std::string& number, int message) const
{
    const auto row =
        std::find_if(m_rows.begin(), m_rows.end(), [&](const auto& each) { return each.number == number; });
    return row != m_rows.end() &&
           std::any_of(row->meanwhile.begin(), row->meanwhile.end(), [&](const Message_Manner& manner) {
               return manner.m_kind == Message_Manner::Kind::Refused && message >= manner.m_from &&
                      message <= manner.m_to;
           });
}

// Every frame that the phone has heard to its end, but for those that it refused for now.
Killed_Job::Parts Killed_Job::Handed_Over() const
{
    Parts parts;
    const std::string heard = m_phone.Heard_Bytes();
    for (auto end = heard.find(End_Of_Message); end != std::string::npos; end = heard.find(End_Of_Message, end + 1)) {
        const auto begin = heard.find_last_of("\r\n\x1B", end) + 1;
        const auto decoded = Handset::Decode_Submit(heard.substr(begin, end - begin));
        EXPECT_TRUE(decoded.m_frame) << decoded.m_reason;
        if (decoded.m_frame && !Is_Refused_For_Now(decoded.m_frame->m_number, Messages_Begun_In(heard.substr(0, end))))
            ++parts[{decoded.m_frame->m_number,
                     decoded.m_frame->m_concatenation ? decoded.m_frame->m_concatenation->m_part : 1}];
    }
    return parts;
}

Killed_Job::Parts Killed_Job::Taken() const
{
    Parts parts;
    for (const Handset_Part& part : m_phone.Parts())
        ++parts[{part.m_number, part.m_part}];
    return parts;
}
