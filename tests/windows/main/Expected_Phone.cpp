#include "windows/main/Expected_Phone.h"

#include <algorithm>

namespace {

constexpr int Too_Late = 1000; // milliseconds; later than the end of any read at a fast pace
constexpr char Ok[] = "\r\nOK\r\n";
constexpr char Error[] = "\r\nERROR\r\n";
constexpr char End_Of_Message = 0x1A;
constexpr int Longest_7_Bit = 160; // septets, 3GPP TS 23.040 9.2.3.16
constexpr int Longest_Ucs2 = 70;

QString From_Ascii(const QByteArray& text)
{
    return QString::fromLatin1(text);
}

// UTF-16 written in hexadecimal digits; nothing where it is none.
std::optional<QString> From_Hex(const QByteArray& body)
{
    const bool is_hex = std::all_of(body.begin(), body.end(), [](char digit) { return isxdigit(digit) != 0; });
    if (!is_hex || body.size() % 4 != 0)
        return std::nullopt;
    QString text;
    for (qsizetype at = 0; at < body.size(); at += 4)
        text += QChar(body.mid(at, 4).toUShort(nullptr, 16));
    return text;
}

std::optional<QString> If_Not_Longer(const std::optional<QString>& text, int limit)
{
    return text && text->size() <= limit ? text : std::nullopt;
}

} // namespace

QString Hex_Utf16_Of(const QString& text)
{
    QString hex;
    for (const QChar unit : text)
        hex += QString::number(unit.unicode(), 16).toUpper().rightJustified(4, u'0');
    return hex;
}

Expected_Phone::Expected_Phone(const Phone_Moods& moods)
    : m_moods(moods), m_is_text_format(moods.m_text_only),
      m_charset(From_Ascii(QByteArray::fromStdString(moods.m_charsets)).remove(u'"').section(u',', 0, 0))
{
}

bool Expected_Phone::Has_Stopped_Reading() const
{
    const bool has_had_enough = m_moods.m_stop_reading_after >= 0 && m_taken >= m_moods.m_stop_reading_after;
    return has_had_enough || (m_stopped_at > 0 && m_stopped_at == m_moods.m_stop_reading_at);
}

bool Expected_Phone::Hears_Pdu(const QByteArray& bytes, const Expected_Part& part)
{
    m_pdu = part;
    return Hears(bytes);
}

bool Expected_Phone::Hears(const QByteArray& bytes)
{
    if (Is_Lost())
        return false;
    for (const char byte : bytes) {
        if (Is_Lost())
            break; // the line took the write, but the phone takes no more of it
        ++m_taken;
        Takes(byte);
    }
    return true;
}

QByteArray Expected_Phone::Says()
{
    QByteArray said = std::exchange(m_said, {});
    if (m_moods.m_never_stops_talking && !m_is_kept_back && !m_is_hung_up)
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

void Expected_Phone::Takes(char byte)
{
    const bool is_rest_of_line_end = std::exchange(m_was_line_end, byte == '\r' && !m_is_in_body) && byte == '\n';
    if (is_rest_of_line_end)
        return;
    if (m_is_in_body) {
        Takes_Body(byte);
        return;
    }
    if (byte == '\r') {
        Takes_Line();
        return;
    }
    if (byte == '\n' || byte == End_Of_Message)
        return;
    m_line += byte;
    // It knows a command by its beginning and echoes from there on.
    if (!m_moods.m_no_echo && m_line.startsWith("AT"))
        Says_Now(m_line == "AT" ? QByteArray("AT") : QByteArray(1, byte));
}

void Expected_Phone::Takes_Line()
{
    const QByteArray line = std::exchange(m_line, {});
    if (!line.startsWith("AT"))
        return;
    m_commands.append(From_Ascii(line));
    if (!m_moods.m_no_echo)
        Says_Now("\r");
    if (m_moods.m_silent || m_moods.m_echo_only)
        return;
    if (m_moods.m_garbage)
        Answers("\x01~}\x1F{");
    else
        Obeys(From_Ascii(line));
}

std::optional<QString> Expected_Phone::Error_For(const QString& command) const
{
    for (const auto& [known, text] : m_moods.m_error_for) {
        QString beginning = QString::fromStdString(known);
        const bool is_any_rest = beginning.endsWith(u'*');
        if (is_any_rest)
            beginning.chop(1);
        if (is_any_rest ? command.startsWith(beginning) : command == beginning)
            return QString::fromStdString(text);
    }
    return std::nullopt;
}

void Expected_Phone::Obeys(const QString& command)
{
    if (const auto text = Error_For(command))
        Answers(("\r\nERROR: " + *text + "\r\n").toLatin1());
    else if (command.startsWith(QLatin1String("AT+CMGS=")) && command != u"AT+CMGS=?")
        Asks_For_Body(command.mid(8));
    else
        Answers(Answer_To(command).toLatin1());
}

QString Expected_Phone::Answer_To(const QString& command)
{
    const auto with_ok = [](const QString& text) { return "\r\n" + text + "\r\n" + Ok; };
    if (command == u"AT+CMGF=?")
        return with_ok(m_moods.m_text_only ? "+CMGF: (1)" : m_moods.m_pdu_only ? "+CMGF: (0)" : "+CMGF: (0,1)");
    if (command == u"AT+CMGF=0" || command == u"AT+CMGF=1") {
        const bool to_text = command.endsWith(u'1');
        if (to_text ? m_moods.m_pdu_only : m_moods.m_text_only)
            return Error;
        m_is_text_format = to_text;
        return Ok;
    }
    if (command == u"AT+CMGS=?")
        return m_moods.m_no_sms_sending ? Error : Ok;
    if (const QString value = Value_For(command); !value.isNull())
        return with_ok(value);
    if (command == u"AT+CSMS=0")
        return with_ok("+CSMS: 1,1,1");
    if (command == u"AT+CSCS=?")
        return with_ok("+CSCS: (" + QString::fromStdString(m_moods.m_charsets) + ")");
    if (command.startsWith(QLatin1String("AT+CSCS=")))
        return Takes_Charset(command.mid(8));
    if (command.startsWith(QLatin1String("AT+CSMP=")))
        m_is_ucs2 = command.endsWith(QLatin1String(",8")) || command.endsWith(QLatin1String(",24"));
    return Ok;
}

// What it tells about itself; null for any other command.
QString Expected_Phone::Value_For(const QString& command) const
{
    const QString centre = m_moods.m_no_smsc ? QString() : QString::fromStdString(m_moods.m_smsc);
    if (command == u"AT+CSCA?")
        return m_moods.m_smsc_not_supported ? QStringLiteral("COMMAND NOT SUPPORT")
                                            : "+CSCA: \"" + (m_moods.m_smsc_in_ucs2 ? Hex_Utf16_Of(centre) : centre) +
                                                  "\"," + (centre.startsWith(u'+') ? "145" : "129");
    const bool is_short = command == u"AT+GMI" || command == u"AT+GMM" || command == u"AT+CGSN" || command == u"AT+GMR";
    if (is_short && m_moods.m_undefined_identity)
        return QStringLiteral("Undefined");
    const std::map<QString, QString> values = {
        {"AT+GMI", "Corvane"},
        {"AT+CGMI", "Corvane"},
        {"AT+GMM", "Virtual Phone"},
        {"AT+CGMM", "Virtual Phone"},
        {"AT+CGSN", "490154203237518"},
        {"AT+GSN", "490154203237518"},
        {"AT+CIMI", "001010123456789"},
        {"AT+CBC", QStringLiteral("+CBC: %1,%2").arg(m_moods.m_battery_status).arg(m_moods.m_battery_charge)},
        {"AT+CSQ", QStringLiteral("+CSQ: %1,99").arg(m_moods.m_signal)},
        {"AT+COPS?", "+COPS: 0,0,\"Corvane Test\""},
        {"AT+GMR", "1.0"},
        {"AT+CGMR", "1.0"},
        {"AT+CSMS=?", "+CSMS: (0,1)"}};
    const auto value = values.find(command);
    return value == values.end() ? QString() : value->second;
}

QString Expected_Phone::Takes_Charset(const QString& charset)
{
    if (!QString::fromStdString(m_moods.m_charsets).split(u',').contains(charset))
        return Error;
    m_charset = QString(charset).remove(u'"');
    return Ok;
}

void Expected_Phone::Asks_For_Body(const QString& argument)
{
    m_number = QString(argument).remove(u'"');
    m_announced = argument.toInt();
    ++m_count;
    if (m_count == m_moods.m_hang_up_at) {
        Hangs_Up();
        return;
    }
    m_is_in_body = true;
    if (!m_moods.m_no_prompt) {
        m_is_kept_back = m_is_kept_back || m_moods.m_late_prompt_ms >= Too_Late;
        Says_Now("\r\n> ");
    }
    if (m_count == m_moods.m_stop_reading_at)
        m_stopped_at = m_count;
}

void Expected_Phone::Takes_Body(char byte)
{
    if (byte == End_Of_Message) {
        m_is_in_body = false;
        Ends_Message();
        m_line.clear();
        return;
    }
    m_line += byte;
    if (!m_moods.m_no_echo)
        Says_Now(QByteArray(1, byte));
    if (m_count == m_moods.m_hang_up_in_body_at && m_line.size() >= (m_is_text_format ? 1 : m_announced))
        Hangs_Up();
}

void Expected_Phone::Ends_Message()
{
    const auto error = m_moods.m_cms_error_at.find(m_count);
    if (error != m_moods.m_cms_error_at.end()) {
        Answers("\r\n+CMS ERROR: " + QByteArray::number(error->second) + "\r\n");
        return;
    }
    const auto shown = m_is_text_format ? Shown_Text() : m_pdu.text;
    if (!shown || m_moods.m_no_smsc) {
        Answers("\r\n+CMS ERROR: 500\r\n");
        return;
    }
    Shows(m_is_text_format ? Expected_Part{m_number, *shown} : m_pdu);
    Answers("\r\n+CMGS: 0\r\n\r\nOK\r\n");
}

// A text in text mode, after the character set and the coding that were set; nothing where the phone refuses it.
std::optional<QString> Expected_Phone::Shown_Text() const
{
    const int limit = m_is_ucs2 ? Longest_Ucs2 : Longest_7_Bit;
    if (m_charset == u"UCS2" || (m_charset == u"HEX" && m_is_ucs2))
        return If_Not_Longer(From_Hex(m_line), limit);
    // Each two digits are one septet. The texts of the tests have an octet above 127, or are no digits at all.
    if (m_charset == u"HEX")
        return std::nullopt;
    return If_Not_Longer(QString::fromUtf8(m_line), limit);
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

void Expected_Phone::Says_Now(const QByteArray& text)
{
    if (!m_moods.m_silent && !m_is_kept_back)
        m_said += text;
}

void Expected_Phone::Answers(const QByteArray& text)
{
    constexpr const char* status_lines[] = {"\r\nRING\r\n", "\r\n+CMTI: \"SM\",1\r\n", "\r\n+CREG: 1\r\n"};
    m_is_kept_back = m_is_kept_back || m_moods.m_answer_delay_ms >= Too_Late;
    Says_Now(text);
    if (m_moods.m_unsolicited)
        Says_Now(status_lines[m_status_lines++ % 3]);
}
