#pragma once

#include "phone/Phone_Errors.h"
#include "phone/Phone_Manners.h"
#include "phone/Phone_Moods.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Handset {

/// A phone's settings, which also fill in its answers. Owned by the phone's mind, used under the phone's lock. A
/// setting that no command has touched follows the moods.
class Phone_Settings
{
public:
    explicit Phone_Settings(const Phone_Moods& moods) : m_moods(moods) {}

    void Set_Moods(const Phone_Moods& moods) { m_moods = moods; }
    void Plug_In() { *this = Phone_Settings(m_moods); } ///< everything back at its start
    void Reset(); ///< ATZ and AT&F: everything but the service centre, which a phone keeps

    /// Carries out a setting command; argument is what follows "=". False when it is invalid.
    bool Do(Deed deed, std::string_view argument);

    /// Sets a value of one or more numbers, such as +CNMI's: what is left out keeps its value. False when a field is
    /// not one of those that the row takes; then nothing changes.
    bool Keep(const Manner& manner, std::string_view argument);

    /// Replaces every "{name}" that is one of these values.
    std::string Filled(std::string_view answer) const;
    std::optional<std::string> Value(std::string_view name) const;

    /// A value that was kept, or this one when no command has set it.
    std::string Kept(const std::string& name, std::string_view start) const;
    Error_Style Errors() const;

    /// +CNMI <ds>: 0 no delivery reports, 1 on the line, 2 in memory.
    int Report_Delivery() const;

    bool Echo() const { return m_echo.value_or(!m_moods.m_no_echo); }
    bool Is_Text_Format() const { return m_format.value_or(m_moods.m_text_only ? 1 : 0) == 1; }
    std::string Centre() const;
    std::string Charset() const;
    int First_Octet() const { return m_first_octet; } // +CSMP <fo>
    int Protocol() const { return m_protocol; }       // +CSMP <pid>
    int Coding() const { return m_coding; }           // +CSMP <dcs>

    /// A number in the current character set: digits as they are, or hexadecimal UCS2 where "UCS2" or "HEX" is set and
    /// the text is that. type 145 adds the "+" that is not written. Empty when it is no number that can be dialled.
    std::string Number(std::string_view text, std::string_view type) const;

private:
    bool Set_Centre(std::string_view argument);
    bool Set_Parameters(std::string_view argument);
    bool Set_Charset(std::string_view argument);
    bool Set_Operator(std::string_view argument);
    std::string Operator() const;

    Phone_Moods m_moods;
    std::map<std::string, std::string, std::less<>> m_kept;
    int m_operator_mode = 0;   // +COPS <mode>
    int m_operator_format = 0; // +COPS <format>
    std::optional<bool> m_echo;
    std::optional<int> m_format;
    std::optional<std::string> m_centre;
    std::optional<std::string> m_charset;
    int m_service = 0;
    int m_more = 0;
    int m_first_octet = 17; // SMS-SUBMIT with a relative validity period, 27.005 3.2.3
    std::string m_validity = "167";
    int m_protocol = 0;
    int m_coding = 0;
};

/// The answer with every "{name}" replaced that is a value; a brace that names none stays.
std::string Filled_In(std::string_view answer,
                      const std::function<std::optional<std::string>(std::string_view)>& value);

/// The text between double quotes; nothing where there are none around it.
std::optional<std::string_view> Unquoted(std::string_view text);

/// Cuts at commas outside quotes.
std::vector<std::string_view> Arguments_Of(std::string_view text);

/// A whole decimal number of at most nine digits.
std::optional<int> Number_Of(std::string_view digits);

} // namespace Handset
