#include "device/Delivery_Reports.h"

#include "device/Device_Memory.h"
#include "device/Listed_Values.h"
#include "handset/Report_Line.h"
#include "platform/Waiting.h"

#include <QByteArrayList>
#include <algorithm>
#include <set>

namespace {

constexpr double Usual_Answer = At_Conversation::Usual_Answer;
constexpr double Longest_List = 30; // a full memory over a slow line
constexpr int Most_Places = 255;
constexpr qsizetype Most_Waiting = 10'000; // of a device that never stops

constexpr char Reports[] = "SR"; // 27.005, 3.1 <mem>

// Announces its reports in the wrong memory and hands out other messages from there.
constexpr char Maker_Without_Memory[] = "Quectel";

// The values of +CNMI=<mode>,<mt>,<bm>,<ds>,<bfr> (27.005, 3.4.1) to be tried, the best first: reports on the line,
// then through the memory; mode 2 before 1, since it holds back what comes while a command runs. Some devices take what
// they do not list, and some refuse what they do: what is not listed is tried as well, but last.
QByteArrayList Ways(const Listed_Values& listed, bool may_use_memory)
{
    enum Field
    {
        Mode,
        Mt,
        Bm,
        Ds,
        Bfr
    };
    const bool must_announce_messages = listed.Has(Mt, 1) && !listed.Has(Mt, 0);
    QByteArrayList ways;
    QByteArrayList not_listed;
    for (const int delivery : {1, 2}) {
        for (const int buffer : {0, 1}) {
            for (const int mode : {2, 1}) {
                const bool is_listed = listed.Has(Mode, mode) && listed.Has(Ds, delivery) && listed.Has(Bfr, buffer);
                const QByteArray way = QByteArray::number(mode) + (must_announce_messages ? ",1,0," : ",0,0,") +
                                       QByteArray::number(delivery) + ',' + QByteArray::number(buffer);
                if (delivery == 1 || may_use_memory)
                    (is_listed ? ways : not_listed).append(way);
            }
        }
    }
    return ways + not_listed;
}

// The memory and the place in "+CDSI: <mem>,<index>" (27.005, 3.4.1).
std::optional<Report_Place> Announced_Place(const QByteArray& line)
{
    QByteArrayList fields = line.mid(line.indexOf(':') + 1).split(',');
    for (QByteArray& field : fields)
        field = field.trimmed().replace('"', "");
    bool is_number = false;
    const int index = fields.value(1).toInt(&is_number);
    if (fields.size() != 2 || !is_number || index < 0)
        return std::nullopt;
    return Report_Place{fields.first(), index};
}

// What a memory says of an entry: its values behind the status, and the line below them. The values of a report in text
// mode stand as they do behind "+CDS:"; in PDU mode the frame is all there is to it.
std::optional<Handset::Status_Report> Report_Of(const QByteArray& values, const QByteArray& below)
{
    if (const auto report = Handset::Decode_Status_Report(below.toStdString()).m_report)
        return report;
    return Handset::Read_Report("+CDS: " + values.toStdString()).m_report;
}

// The part behind the first comma.
QByteArray Behind_Comma(const QByteArray& text)
{
    const qsizetype comma = text.indexOf(',');
    return comma < 0 ? QByteArray() : text.mid(comma + 1);
}

// What "+CMGR: <stat>,..." and the line below it are. Only the first line that begins so is looked at: others are a
// message's text, which anybody may have written.
std::optional<Handset::Status_Report> Entry_Read(const QByteArrayList& lines)
{
    constexpr QByteArrayView prefix = "+CMGR:";
    const auto head =
        std::find_if(lines.begin(), lines.end(), [&](const QByteArray& line) { return line.startsWith(prefix); });
    if (head == lines.end())
        return std::nullopt;
    return Report_Of(Behind_Comma(head->mid(prefix.size())), std::next(head) == lines.end() ? "" : *std::next(head));
}

// What "+CMGL: <index>,<stat>,..." and the lines below are, entry by entry (27.005, 3.4.2).
QList<Told_Report> Entries_Listed(const QByteArrayList& lines, const QByteArray& memory)
{
    constexpr QByteArrayView prefix = "+CMGL:";
    QList<Told_Report> reports;
    for (qsizetype at = 0; at < lines.size(); ++at) {
        if (!lines[at].startsWith(prefix))
            continue;
        const QByteArray values = lines[at].mid(prefix.size());
        bool is_number = false;
        const int index = values.first(std::max<qsizetype>(values.indexOf(','), 0)).trimmed().toInt(&is_number);
        if (const auto report = Report_Of(Behind_Comma(Behind_Comma(values)), lines.value(at + 1));
            report && is_number && index >= 0)
            reports.append({*report, Report_Place{memory, index}});
    }
    return reports;
}

} // namespace

Delivery_Reports::Delivery_Reports(At_Conversation& conversation) : m_conversation(conversation)
{
    m_conversation.Set_Report_Listener([this](const Raw_Report& report) { Take_In(report); });
}

// With CSMS at 0 no report asks for an acknowledgement.
bool Delivery_Reports::Ask_For(const QString& maker)
{
    m_conversation.Ask("AT+CSMS=0", Usual_Answer);
    const QByteArrayList listed = m_conversation.Ask("AT+CNMI=?", Usual_Answer, "+CNMI:").m_lines;
    const bool may_use_memory = !maker.contains(QLatin1String(Maker_Without_Memory), Qt::CaseInsensitive);
    const QByteArrayList ways = Ways(Listed_Values(listed.value(0)), may_use_memory);
    for (const QByteArray& way : ways) {
        const At_End end = m_conversation.Ask("AT+CNMI=" + way, Usual_Answer).m_end;
        if (end == At_End::Ok)
            return true;
        if (end == At_End::Gone)
            return false;
    }
    m_conversation.Ask("AT+CNMI=2,0,0,0,0", Usual_Answer);
    return false;
}

void Delivery_Reports::Take_In(const Raw_Report& report)
{
    if (report.m_line.startsWith("+CDSI:")) {
        const auto place = Announced_Place(report.m_line);
        if (place && m_announced.size() < Most_Places && !m_announced.contains(*place))
            m_announced.append(*place);
        return;
    }
    const auto read = report.m_frame.isEmpty() ? Handset::Read_Report(report.m_line.toStdString())
                                               : Handset::Decode_Status_Report(report.m_frame.toStdString());
    if (read.m_report && m_reports.size() < Most_Waiting)
        m_reports.append({*read.m_report, std::nullopt});
}

QList<Told_Report> Delivery_Reports::Take()
{
    if (!m_announced.isEmpty()) {
        Device_Memory memory(m_conversation);
        const double end = Now_Seconds() + Paced_Read_Timeout(Longest_List); // the others come the next time
        while (!m_announced.isEmpty() && Now_Seconds() < end)
            Fetch(m_announced.takeFirst(), memory);
    }
    return std::exchange(m_reports, {});
}

// Some devices announce a report in another memory than the one where it lies.
void Delivery_Reports::Fetch(const Report_Place& place, Device_Memory& memory)
{
    std::set<QByteArray> tried;
    for (const QByteArray& name : {place.m_memory, QByteArray(Reports)}) {
        if (!tried.insert(name).second || !memory.Choose(name))
            continue;
        const QByteArray command = "AT+CMGR=" + QByteArray::number(place.m_index);
        const At_Answer answer = m_conversation.Ask(command, Usual_Answer, At_Conversation::Any_Line);
        if (const auto report = Entry_Read(answer.m_lines); report && answer.m_end == At_End::Ok) {
            m_reports.append({*report, Report_Place{name, place.m_index}});
            return;
        }
    }
}

QList<Told_Report> Delivery_Reports::Read_Memory(bool is_text_mode)
{
    Device_Memory memory(m_conversation);
    const auto places = memory.Choose(Reports);
    if (!places)
        return {};
    const At_Answer list =
        m_conversation.Ask(is_text_mode ? "AT+CMGL=\"ALL\"" : "AT+CMGL=4", Longest_List, At_Conversation::Any_Line);
    if (list.m_end != At_End::Refused)
        return Entries_Listed(list.m_lines, Reports);
    QList<Told_Report> reports; // some devices read what they do not list
    for (int index = 0; index <= std::min(*places, Most_Places); ++index) {
        const At_Answer answer =
            m_conversation.Ask("AT+CMGR=" + QByteArray::number(index), Usual_Answer, At_Conversation::Any_Line);
        if (answer.m_end == At_End::No_Answer || answer.m_end == At_End::Gone)
            break;
        if (const auto report = Entry_Read(answer.m_lines))
            reports.append({*report, Report_Place{Reports, index}});
    }
    return reports;
}

void Delivery_Reports::Delete(const QList<Report_Place>& places)
{
    if (places.isEmpty())
        return;
    Device_Memory memory(m_conversation);
    QByteArray chosen;
    for (const Report_Place& place : places) {
        if (place.m_memory != chosen && !memory.Choose(place.m_memory))
            continue;
        chosen = place.m_memory;
        if (m_conversation.Ask("AT+CMGD=" + QByteArray::number(place.m_index), Usual_Answer).m_end == At_End::Gone)
            return;
    }
}
