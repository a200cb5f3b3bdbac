#include "windows/main/Line_Oracle.h"

#include "windows/main/Expected_Session.h"

namespace {

enum class Mode
{
    None,
    Pdu,
    Text
};

constexpr int Too_Long_For_One = 154; // octets of a PDU behind its service centre

// The octets of an SMS-SUBMIT behind the service centre, 3GPP TS 23.040 9.2.2.2, with a validity period of one octet.
int Tpdu_Octets(const QString& number, qsizetype characters, bool unicode, bool has_header)
{
    const auto address = 2 + (number.size() + 1) / 2;
    const auto data = (has_header ? 7 : 0) + (unicode ? 2 * characters : (7 * characters + 7) / 8);
    return static_cast<int>(1 + 1 + address + 1 + 1 + 1 + 1 + data);
}

QStringList Cut(const QString& text, qsizetype length)
{
    QStringList pieces;
    for (qsizetype at = 0; at < text.size(); at += length)
        pieces.append(text.mid(at, length));
    return pieces;
}

class Expected_Job : Expected_Session
{
public:
    Expected_Job(const Phone_Moods& moods, const Line_Way& way, const Line_Pull& pull)
        : Expected_Session(moods), m_way(way), m_pull(pull)
    {
    }

    Line_Outcome Run(const std::vector<Line_Item>& items)
    {
        m_outcome.box = Take_All_Steps(items);
        m_outcome.commands = m_phone.Commands();
        m_outcome.inbox = m_phone.Inbox();
        m_outcome.parts = m_phone.Parts();
        m_outcome.is_hung_up = m_phone.Is_Hung_Up();
        m_outcome.is_lost = m_phone.Is_Lost();
        return m_outcome;
    }

private:
    Line_Box Take_All_Steps(const std::vector<Line_Item>& items)
    {
        if (!Checks_Connection())
            return Line_Box::No_Modem;
        const Mode mode = Asks_For_Mode();
        if (mode == Mode::None)
            return Line_Box::No_Modem;
        Prepares(mode);
        for (const auto& item : items) {
            ++m_outcome.shown;
            if (!(mode == Mode::Pdu ? Sends_By_Pdu(item) : Sends_By_Text(item)))
                return Line_Box::Connection_Error;
            ++m_outcome.recorded;
        }
        return Line_Box::Completed;
    }

    Mode Asks_For_Mode()
    {
        bool all_went_well = Writes("AT\r\n");
        all_went_well = Reads("OK") && all_went_well;
        all_went_well = Writes("AT+CMGF=?\r\n") && all_went_well;
        if (!Reads("OK"))
            return Mode::None;
        const bool takes_pdu = m_answer.contains(u'0');
        const bool takes_text = m_answer.contains(u'1');
        if (takes_pdu)
            m_outcome.log.append(takes_text ? "Both PDU Mode and Text Mode\n" : "Only PDU Mode\n");
        else if (takes_text)
            m_outcome.log.append("Only Text Mode\n");
        if (takes_text && !takes_pdu)
            return Mode::Text;
        return takes_pdu || all_went_well ? Mode::Pdu : Mode::None;
    }

    // The first step that goes wrong is the last one; what came of it is not asked.
    void Prepares(Mode mode)
    {
        for (const char* command : {"AT\r\n", "AT+CSMS=0\r\n", mode == Mode::Pdu ? "AT+CMGF=0\r\n" : "AT+CMGF=1\r\n"}) {
            if (!Writes(command) || !Reads("OK"))
                return;
        }
    }

    bool Goes_As_One(const Line_Item& item) const
    {
        const auto length = item.message.size();
        return length <= (m_way.unicode ? 70 : 160) &&
               Tpdu_Octets(item.number, length, m_way.unicode, false) < Too_Long_For_One;
    }

    bool Sends_By_Pdu(const Line_Item& item)
    {
        if (Goes_As_One(item))
            return Submits_Pdu({item.number, item.message}, false);
        const auto pieces = Cut(item.message, m_way.unicode ? 66 : 152);
        const int parts = static_cast<int>(pieces.size());
        for (int part = 1; part <= parts; ++part) {
            Logs_Part(part, parts);
            if (!Submits_Pdu({item.number, pieces.at(part - 1), part, parts}, true))
                return false;
        }
        return true;
    }

    bool Submits_Pdu(const Expected_Part& part, bool has_header)
    {
        const int octets = Tpdu_Octets(part.number, part.text.size(), m_way.unicode, has_header);
        if (!Writes("AT+CMGS=" + QByteArray::number(octets) + "\r\n"))
            return false;
        Reads(">");
        if (!Writes_Pdu(octets, part) || !Ends_Message())
            return false;
        Reads("OK");
        Logs_Label(has_header ? "Long SMS PDU Response:: " : "Standard SMS PDU Response:: ");
        return true;
    }

    bool Sends_By_Text(const Line_Item& item)
    {
        if (!m_way.unicode && !Asks("AT+CSMP=17,255,0,0\r\n"))
            return false;
        if (Goes_As_One(item)) {
            if (!Submits_Text(item.number, item.message))
                return false;
            Logs_Label("Short SMS Text :: ");
            return true;
        }
        const auto pieces = Cut(item.message, m_way.unicode ? 70 : 160);
        for (qsizetype part = 0; part < pieces.size(); ++part) {
            Logs_Part(static_cast<int>(part) + 1, static_cast<int>(pieces.size()));
            if (!Submits_Text(item.number, pieces.at(part)))
                return false;
            Logs_Label(m_way.unicode ? "Long SMS Text Response:: " : "Long SMS Text :: ");
        }
        return true;
    }

    bool Submits_Text(const QString& number, const QString& text)
    {
        bool as_hex = false;
        if (m_way.unicode) {
            if (!Asks("AT+CSCS=?\r\n"))
                return false;
            const bool has_hex = m_answer.contains(QLatin1String("HEX"));
            const bool has_ucs2 = m_answer.contains(QLatin1String("UCS2"));
            as_hex = has_hex || has_ucs2;
            if (as_hex && !Asks(has_hex ? "AT+CSCS=\"HEX\"\r\n" : "AT+CSCS=\"UCS2\"\r\n"))
                return false;
            if (!Asks("AT+CSMP=17,255,0,8\r\n"))
                return false;
        }
        if (!Writes("AT+CMGS=\"" + number.toLatin1() + "\"\r\n"))
            return false;
        Reads(">");
        if (!Writes(as_hex ? Hex_Utf16_Of(text).toLatin1() : text.toUtf8()) || !Ends_Message())
            return false;
        if (!m_way.unicode)
            Reads("OK");
        return true;
    }

    // ---- The session

    bool Writes(const QByteArray& bytes) override
    {
        const QString text = QString::fromUtf8(bytes);
        m_outcome.log.append("Write \"" + text + "\"\n");
        return Goes_Out(text, [&] { return m_phone.Hears(bytes); });
    }

    bool Writes_Pdu(int octets, const Expected_Part& part)
    {
        m_outcome.log.append(QStringLiteral("Write \"PDU\"\n"));
        return Goes_Out(QStringLiteral("PDU"), [&] { return m_phone.Hears_Pdu(octets, part); });
    }

    // Too short to be logged.
    bool Ends_Message()
    {
        const QByteArray terminator("\x1A\r\n");
        return Goes_Out(QString::fromLatin1(terminator), [&] { return m_phone.Hears(terminator); });
    }

    template <typename Hears>
    bool Goes_Out(const QString& text, const Hears& hears)
    {
        m_outcome.writes.append(text);
        const bool is_pulled = m_outcome.writes.size() == m_pull.write;
        if (is_pulled && !m_pull.after_it)
            m_phone.Hangs_Up();
        const bool is_written = hears();
        if (is_pulled)
            m_phone.Hangs_Up();
        return is_written;
    }

    bool Asks(const QByteArray& command)
    {
        if (!Writes(command))
            return false;
        Reads("OK");
        return true;
    }

    void Logs_Part(int part, int parts)
    {
        m_outcome.log.append(QStringLiteral("\n------ %1 / %2 of message ------\n").arg(part).arg(parts));
    }

    void Logs_Label(const char* label)
    {
        m_outcome.log.append((m_way.unicode ? QStringLiteral("UNICODE ") : QString()) + QLatin1String(label));
    }

    const Line_Way m_way;
    const Line_Pull m_pull;
    Line_Outcome m_outcome;
};

} // namespace

Line_Outcome Expected_Outcome(const Phone_Moods& moods, const Line_Way& way, const std::vector<Line_Item>& items,
                              const Line_Pull& pull)
{
    Line_Outcome outcome = Expected_Job(moods, way, pull).Run(items);
    // The talk stops once an answer waits for its time; whether some of it came with the first echo nobody can say.
    outcome.may_give_up_at_once = moods.m_never_stops_talking && moods.m_answer_delay_ms > 0 && outcome.recorded == 0;
    return outcome;
}
