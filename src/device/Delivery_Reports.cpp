#include "device/Delivery_Reports.h"

namespace {

constexpr double Usual_Answer = 5;

// Announces its reports in the wrong memory and hands out other messages from there.
constexpr char Maker_Without_Memory[] = "Quectel";

// The memory and the place in "+CDSI: <mem>,<index>" (3GPP TS 27.005, 3.4.1).
QByteArrayList Announced_Place(const QByteArray& line)
{
    QByteArrayList fields = line.mid(line.indexOf(':') + 1).split(',');
    for (QByteArray& field : fields)
        field = field.trimmed().replace('"', "");
    return fields.size() == 2 ? fields : QByteArrayList();
}

} // namespace

Delivery_Reports::Delivery_Reports(At_Conversation& conversation) : m_conversation(conversation)
{
    m_conversation.Set_Report_Listener([this](const Raw_Report& report) { Take_In(report); });
}

// With CSMS at 0 no report asks for an acknowledgement. On the line first (2 in front, which some devices list and
// refuse), then through the memory.
bool Delivery_Reports::Ask_For(const QString& maker)
{
    m_conversation.Ask("AT+CSMS=0", Usual_Answer);
    QByteArrayList ways{"2,0,0,1,0", "1,0,0,1,0", "2,0,0,1,1", "1,0,0,1,1"};
    if (!maker.contains(QLatin1String(Maker_Without_Memory), Qt::CaseInsensitive))
        ways.append({"2,0,0,2,0", "1,0,0,2,0", "2,0,0,2,1", "1,0,0,2,1"});
    for (const QByteArray& way : std::as_const(ways))
        if (m_conversation.Ask("AT+CNMI=" + way, Usual_Answer).m_end == At_End::Ok)
            return true;
    return false;
}

void Delivery_Reports::Take_In(const Raw_Report& report)
{
    if (!report.m_line.startsWith("+CDSI:")) {
        m_reports.append(report);
        return;
    }
    const QByteArrayList place = Announced_Place(report.m_line);
    bool is_number = false;
    const int index = place.value(1).toInt(&is_number);
    if (is_number)
        m_stored.append({place.first(), index});
}

void Delivery_Reports::Fetch_Stored()
{
    if (m_stored.isEmpty())
        return;
    const QByteArrayList before = m_conversation.Ask("AT+CPMS?", Usual_Answer, "+CPMS:").m_lines;
    const QList<Place> stored = std::exchange(m_stored, {});
    for (const Place& place : stored)
        Fetch(place);
    if (before.isEmpty())
        return;
    const QByteArray memory = before.first().mid(before.first().indexOf(':') + 1).split(',').first().trimmed();
    m_conversation.Ask("AT+CPMS=" + memory, Usual_Answer);
}

void Delivery_Reports::Fetch(const Place& place)
{
    if (m_conversation.Ask("AT+CPMS=\"" + place.m_memory + '"', Usual_Answer).m_end != At_End::Ok)
        return;
    const QByteArray index = QByteArray::number(place.m_index);
    const At_Answer answer = m_conversation.Ask("AT+CMGR=" + index, Usual_Answer, At_Conversation::Any_Value);
    if (answer.m_end != At_End::Ok || answer.m_lines.isEmpty())
        return;
    m_reports.append({"+CDS:", answer.m_lines.first()});
    m_conversation.Ask("AT+CMGD=" + index, Usual_Answer);
}
