#pragma once

#include "phone/Phone_Moods.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Handset {

/// What a command does apart from being answered.
enum class Deed
{
    Nothing,
    Echo_Off,
    Echo_On,
    Start_Afresh,
    Set_Format,
    Set_Service,
    Set_More,
    Set_Centre,
    Set_Parameters,
    Set_Charset,
    Keep,         ///< a value that its query shows
    Set_Function, ///< the same; a restart, too
    Set_Operator,
    Ask_Registration,
    Enter_Pin,
    Set_Storages,
    List_Messages,
    Read_Message,
    Delete_Message,
    Write_Message,
    Take_Message
};

struct Manner
{
    std::string m_command; ///< as Normal_Command writes it; a "*" at its end stands for any rest
    Deed m_deed = Deed::Nothing;
    std::string m_answer;    ///< in a default or mood row, "{name}" stands for a value that the phone fills in
    bool m_as_given = false; ///< goes out byte for byte, whatever the moods
    std::string m_takes;     ///< of a value that is kept: what its fields may be, as the =? form shows it
    std::string m_start;     ///< what it is before a command sets it
};

/// Upper case and without blanks outside double quotes, as V.250 5.2.1 and 5.4.1 read a command line.
std::string Normal_Command(std::string_view command);

/// A phone's table of commands, their answers and effects. The first of three sources that knows a command wins: rows
/// set one at a time (Will_Answer), rows that the moods bring, and the default rows. Owned by the phone, used under its
/// lock.
class Phone_Manners
{
public:
    explicit Phone_Manners(const Phone_Moods& moods);

    void Set_Moods(const Phone_Moods& moods);
    void Will_Answer(std::string_view command, std::string answer);

    /// The row for a command in its normal form; ERROR where no row knows it.
    Manner Find(const std::string& command) const;

    /// A row for a line as a whole, which may hold several commands: one of one's own, or just this one of a mood.
    std::optional<Manner> Find_For_Line(const std::string& line) const;

    /// What +CLAC lists.
    static std::vector<std::string> Command_Names();

private:
    using Rows = std::map<std::string, Manner, std::less<>>;
    static const Manner* Find_In(const Rows& rows, const std::string& command);

    Rows m_given;
    Rows m_of_moods;
    bool m_command_not_support = false;
};

} // namespace Handset
