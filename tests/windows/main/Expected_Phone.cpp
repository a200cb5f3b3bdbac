#include "windows/main/Expected_Phone.h"

namespace {

constexpr int Too_Late = 1000; // milliseconds; later than the end of any read at a fast pace

// An SMS-SUBMIT of so many octets (3GPP TS 23.040 9.2.2.2) that every phone takes: 8-bit data, to a number of 12
// digits.
QByteArray Pdu_Of(int octets)
{
    const QByteArray front = "0011000C91000000000000" // to the end of the address
                             "0004AA";
    const int data = octets - static_cast<int>(front.size()) / 2; // the centre's octet stands for that of the length
    return front + QByteArray::number(data, 16).rightJustified(2, '0') + QByteArray(2 * data, '0');
}

} // namespace

QString Hex_Utf16_Of(const QString& text)
{
    QString hex;
    for (const QChar unit : text)
        hex += QString::number(unit.unicode(), 16).toUpper().rightJustified(4, u'0');
    return hex;
}

bool Expected_Phone::Hears_Pdu(int octets, const Expected_Part& part)
{
    m_pdu = part;
    return Hears(Pdu_Of(octets));
}

bool Expected_Phone::Hears(const QByteArray& bytes)
{
    if (Is_Lost())
        return false;
    m_mind.Take(bytes.toStdString());
    const auto happened = m_mind.Take_Happenings();
    for (const auto& line : happened.m_lines)
        if (line.starts_with("AT")) // a body that no prompt preceded is heard as a line, too
            m_commands.append(QString::fromStdString(line));
    for (const auto& arrival : happened.m_arrivals)
        Shows(m_pdu.value_or(Expected_Part{QString::fromStdString(arrival.m_part.m_number),
                                           QString::fromStdString(arrival.m_part.m_text)}));
    for (const auto& said : happened.m_said) {
        m_is_kept_back = m_is_kept_back || said.m_delay_ms >= Too_Late;
        m_said += m_is_kept_back ? QByteArray() : QByteArray::fromStdString(said.m_bytes);
    }
    if (happened.m_hangs_up)
        Hangs_Up();
    return true; // also what the line took, but the phone takes no more of
}

QByteArray Expected_Phone::Says()
{
    QByteArray said = std::exchange(m_said, {});
    if (m_mind.Moods().m_never_stops_talking && !m_is_kept_back && !m_is_hung_up)
        said.prepend("\r\nRING\r\n\r\n+CMTI: \"SM\",1\r\n\r\n+CREG: 1\r\n");
    return said;
}

void Expected_Phone::Hangs_Up()
{
    m_is_hung_up = true;
    m_said.clear();
}

void Expected_Phone::Is_Left()
{
    m_is_kept_back = false;
    m_said.clear();
}

void Expected_Phone::Shows(const Expected_Part& part)
{
    ++m_parts;
    auto& parts = m_joined[part.number];
    parts[part.part] = part.text;
    if (static_cast<int>(parts.size()) < part.parts)
        return;
    QString whole;
    for (const auto& [number, text] : parts)
        whole += text;
    m_inbox.append(part.number + ": " + whole);
    parts.clear();
}
