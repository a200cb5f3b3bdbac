// Kept by name; nothing in the program calls what stands here.

#include "device/KVSerialPort.h"

#include "device/Line_Speeds.h"

#include <cerrno>

namespace {

struct Data_Bits
{
    int m_bits;
    tcflag_t m_flag;
};

constexpr Data_Bits Data_Bits_Table[] = {{5, CS5}, {6, CS6}, {7, CS7}, {8, CS8}};

QString Text(const char* ascii)
{
    return QString::fromLatin1(ascii);
}

} // namespace

bool KVSerialPort::Refuse_If(bool on)
{
    errno = ENOTSUP;
    return Note_Result(on ? -1 : 0);
}

void KVSerialPort::clearError()
{
    m_got_error = false;
    m_last_error = 0;
}

void KVSerialPort::Set_Flag(tcflag_t termios::*field, tcflag_t flag, bool on)
{
    m_options.*field = on ? m_options.*field | flag : m_options.*field & ~flag;
}

long KVSerialPort::speed() const
{
    return Speed_Of_Code(cfgetospeed(&m_options));
}

bool KVSerialPort::setSpeed(long speed)
{
    const speed_t code = Code_Of_Speed(speed);
    if (code == B0) {
        errno = EINVAL;
        return Note_Result(-1);
    }
    return Note_Result(cfsetspeed(&m_options, code));
}

int KVSerialPort::dataBits() const
{
    for (const auto& row : Data_Bits_Table)
        if ((m_options.c_cflag & CSIZE) == row.m_flag)
            return row.m_bits;
    return 0;
}

bool KVSerialPort::setDataBits(int bits)
{
    for (const auto& row : Data_Bits_Table) {
        if (bits == row.m_bits) {
            Set_Flag(&termios::c_cflag, CSIZE, false);
            Set_Flag(&termios::c_cflag, row.m_flag, true);
            return true;
        }
    }
    errno = EINVAL;
    return Note_Result(-1);
}

KVSerialParity KVSerialPort::parity() const
{
    if (!(m_options.c_cflag & PARENB))
        return KVSerialParity::None;
    return m_options.c_cflag & PARODD ? KVSerialParity::Odd : KVSerialParity::Even;
}

void KVSerialPort::setParity(KVSerialParity parity)
{
    Set_Flag(&termios::c_cflag, PARENB, parity != KVSerialParity::None);
    Set_Flag(&termios::c_cflag, PARODD, parity == KVSerialParity::Odd);
}

int KVSerialPort::stopBits() const
{
    return m_options.c_cflag & CSTOPB ? 2 : 1;
}

bool KVSerialPort::setStopBits(int bits)
{
    if (bits != 1 && bits != 2) {
        errno = EINVAL;
        return Note_Result(-1);
    }
    Set_Flag(&termios::c_cflag, CSTOPB, bits == 2);
    return true;
}

bool KVSerialPort::echoEnabled() const
{
    return m_options.c_lflag & ECHO;
}

void KVSerialPort::setEchoEnabled(bool on)
{
    Set_Flag(&termios::c_lflag, ECHO, on);
}

bool KVSerialPort::RTSInputFlowControl() const
{
    return m_options.c_cflag & CRTSCTS;
}

void KVSerialPort::setRTSInputFlowControl(bool on)
{
    Set_Flag(&termios::c_cflag, CRTSCTS, on);
}

bool KVSerialPort::hangupOnClose() const
{
    return m_options.c_cflag & HUPCL;
}

void KVSerialPort::setHangupOnClose(bool on)
{
    Set_Flag(&termios::c_cflag, HUPCL, on);
}

bool KVSerialPort::localMode() const
{
    return m_options.c_cflag & CLOCAL;
}

void KVSerialPort::setLocalMode(bool on)
{
    Set_Flag(&termios::c_cflag, CLOCAL, on);
}

bool KVSerialPort::canonicalMode() const
{
    return m_options.c_lflag & ICANON;
}

void KVSerialPort::setCanonicalMode(bool on)
{
    Set_Flag(&termios::c_lflag, ICANON, on);
}

char KVSerialPort::endOfLineCharacter() const
{
    return static_cast<char>(m_options.c_cc[VEOL]);
}

void KVSerialPort::setEndOfLineCharacter(char character)
{
    m_options.c_cc[VEOL] = static_cast<cc_t>(character);
}

bool KVSerialPort::commitChanges()
{
    const std::lock_guard guard(m_line_lock);
    return Note_Result(m_calls.Set_Attributes(m_file_descriptor, m_options));
}

KVSerialOptions KVSerialPort::options()
{
    auto& texts = m_options_dictionary;
    texts.clear();
    texts[Text(KVSerialOptionServiceName)] = m_service_name;
    texts[Text(KVSerialOptionSpeed)] = QString::number(speed());
    texts[Text(KVSerialOptionDataBits)] = QString::number(dataBits());
    texts[Text(KVSerialOptionStopBits)] = QString::number(stopBits());
    if (parity() != KVSerialParity::None)
        texts[Text(KVSerialOptionParity)] = Text(parity() == KVSerialParity::Odd ? "Odd" : "Even");
    if (RTSInputFlowControl())
        texts[Text(KVSerialOptionInputFlowControl)] = Text("RTS");
    if (CTSOutputFlowControl())
        texts[Text(KVSerialOptionOutputFlowControl)] = Text("CTS");
    if (echoEnabled())
        texts[Text(KVSerialOptionEcho)] = Text("YES");
    if (canonicalMode())
        texts[Text(KVSerialOptionCanonicalMode)] = Text("YES");
    return texts;
}

bool KVSerialPort::setOptions(const KVSerialOptions& options)
{
    const auto value = [&](const char* key) { return options.value(Text(key)); };
    const auto has = [&](const char* key) { return options.contains(Text(key)); };
    clearError();
    if (has(KVSerialOptionSpeed))
        setSpeed(value(KVSerialOptionSpeed).toLong());
    if (has(KVSerialOptionDataBits))
        setDataBits(value(KVSerialOptionDataBits).toInt());
    if (has(KVSerialOptionStopBits))
        setStopBits(value(KVSerialOptionStopBits).toInt());
    const QString parity_text = value(KVSerialOptionParity);
    setParity(parity_text == u"Odd"    ? KVSerialParity::Odd
              : parity_text == u"Even" ? KVSerialParity::Even
                                       : KVSerialParity::None);
    const QString input = value(KVSerialOptionInputFlowControl);
    const QString output = value(KVSerialOptionOutputFlowControl);
    setRTSInputFlowControl(input == u"RTS" || output == u"CTS");
    setDTRInputFlowControl(input == u"DTR");
    setDSROutputFlowControl(output == u"DSR");
    setCAROutputFlowControl(output == u"CAR");
    setEchoEnabled(value(KVSerialOptionEcho) == u"YES");
    setCanonicalMode(value(KVSerialOptionCanonicalMode) == u"YES");
    return !gotError() && commitChanges();
}
