#include "long/Wizard_Oracle.h"

#include "windows/main/Expected_Session.h"

#include <array>

namespace {

constexpr char Not_Working[] = "Selected device is not working properly.";
constexpr char Default_Centre_Blank[] = "Default SMSC No. details should not be blanked.";
constexpr char No_Sending[] =
    "Selected device do not provide a modem in the computer or the modem does not support SMS sending command.";
constexpr char No_Battery[] = "Device does not have a battery connected.";

// The nine questions, with the other words for those that may be answered "Undefined".
struct Question
{
    const char* command;
    const char* in_other_words;
};

constexpr std::array Questions = {
    Question{"AT+GMI\r\n", "AT+CGMI\r"}, Question{"AT+GMM\r", "AT+CGMM\r"}, Question{"AT+CGSN\r", "AT+GSN\r"},
    Question{"AT+CIMI\r", nullptr},      Question{"AT+CBC\r", nullptr},     Question{"AT+CSQ\r", nullptr},
    Question{"AT+COPS?\r", nullptr},     Question{"AT+GMR\r", "AT+CGMR\r"}, Question{"AT+CSCA?\r", nullptr}};
constexpr std::size_t Battery = 4;
constexpr qsizetype Default_Centre = 8;

class Expected_Wizard : Expected_Session
{
public:
    Expected_Wizard(const Phone_Moods& moods, const QString& custom_centre)
        : Expected_Session(moods), m_moods(moods), m_custom_centre(custom_centre)
    {
        m_outcome.details.resize(static_cast<qsizetype>(Questions.size()));
    }

    Wizard_Outcome Visit()
    {
        m_outcome.told_at_click = Click();
        m_phone.Is_Left();
        m_outcome.told_at_select = Select();
        m_outcome.commands = m_phone.Commands();
        m_outcome.is_lost = m_phone.Is_Lost();
        return m_outcome;
    }

private:
    QString Click()
    {
        if (!Checks_Connection())
            return Not_Working;
        if (!Writes("AT\r\n"))
            return {};
        Reads("OK");
        for (std::size_t place = 0; place < Questions.size(); ++place) {
            if (!Asks(place))
                break; // what was told before it stays
        }
        return {};
    }

    // Whether the line took the question. A refusal leaves the detail empty, but for the battery's.
    bool Asks(std::size_t place)
    {
        const Question& question = Questions.at(place);
        if (!Writes(question.command))
            return false;
        bool is_told = Reads("OK");
        // Only the word alone is asked for in other words.
        const bool is_word_alone = !m_moods.m_unsolicited && !m_moods.m_never_stops_talking;
        if (is_told && question.in_other_words && m_moods.m_undefined_identity && is_word_alone) {
            if (!Writes(question.in_other_words))
                return false;
            is_told = Reads("OK");
        }
        const QString refused = place == Battery ? QString::fromLatin1(No_Battery) : QString();
        m_outcome.details[static_cast<qsizetype>(place)] = is_told ? Detail(static_cast<qsizetype>(place)) : refused;
        return true;
    }

    QString Detail(qsizetype place) const
    {
        const QString battery = m_moods.m_battery_status == 2 ? No_Battery : "85%";
        const QString signal = m_moods.m_signal == 99 ? "Unknown" : "High (20)";
        const QString own_centre = m_moods.m_no_smsc ? QString() : QString::fromStdString(m_moods.m_smsc);
        const QString centre = m_moods.m_smsc_not_supported ? "COMMAND NOT SUPPORT" : own_centre;
        const QStringList details = {"Corvane",         "Virtual Phone", "490154203237518",
                                     "001010123456789", battery,         signal,
                                     "Corvane Test",    "1.0",           centre};
        return details.at(place);
    }

    QString Select()
    {
        if (!Checks_Connection())
            return Not_Working;
        if (m_custom_centre.isEmpty() && m_outcome.details.at(Default_Centre).isEmpty())
            return Default_Centre_Blank;
        for (const char* command : {"AT\r\n", "AT+CSMS=?\r", "AT+CMGS=?\r"}) {
            if (!Writes(command) || !Reads("OK"))
                return No_Sending;
        }
        if (Writes("AT\r\n") && Reads("OK"))
            Writes("AT+CMMS=2\r");
        return {};
    }

    const Phone_Moods m_moods;
    const QString m_custom_centre;
    Wizard_Outcome m_outcome;
};

} // namespace

Wizard_Outcome Expected_Visit(const Phone_Moods& moods, const QString& custom_centre)
{
    return Expected_Wizard(moods, custom_centre).Visit();
}
