#include "phone/Command_Line.h"

namespace Handset {

namespace {

constexpr std::string_view Digits = "0123456789";
constexpr std::string_view Basic_Letters = "EFHILMQVXZCDKRSTW&";

std::string_view Taken(std::string_view& left, std::size_t count)
{
    const auto taken = left.substr(0, count);
    left.remove_prefix(taken.size());
    return taken;
}

std::size_t Digit_Count(std::string_view text)
{
    const auto end = text.find_first_not_of(Digits);
    return end == std::string_view::npos ? text.size() : end;
}

// Up to the semicolon outside quotes, which may be missing at the end of the line (V.250 5.4.1).
std::string_view Take_Extended(std::string_view& left)
{
    bool in_quotes = false;
    std::size_t end = 0;
    for (; end < left.size() && (left[end] != ';' || in_quotes); ++end)
        in_quotes = in_quotes != (left[end] == '"');
    return Taken(left, end);
}

// S<number>=<value>, S<number>? (V.250 5.3.2)
std::string Take_S_Register(std::string_view& left)
{
    std::string command(Taken(left, 1 + Digit_Count(left.substr(1))));
    if (left.starts_with('='))
        command += Taken(left, 1 + Digit_Count(left.substr(1)));
    if (left.starts_with('?'))
        command += Taken(left, 1);
    return command;
}

// A letter, or "&" and a letter, and its number (V.250 5.3.1)
std::string Take_Basic(std::string_view& left)
{
    std::string command(Taken(left, left.front() == '&' ? 2 : 1));
    const std::size_t digits = Digit_Count(left);
    command += digits == 0 ? "0" : Taken(left, digits);
    return command;
}

std::string Take_Command(std::string_view& left)
{
    // What is no basic command, "D" and its number among it, has the rest to itself.
    if (left.front() == 'D' || Basic_Letters.find(left.front()) == std::string_view::npos)
        return std::string(Take_Extended(left));
    return left.front() == 'S' ? Take_S_Register(left) : Take_Basic(left);
}

} // namespace

std::vector<std::string> Commands_Of(std::string_view line)
{
    std::vector<std::string> commands;
    for (auto left = line.substr(2); !left.empty();) {
        if (left.front() == ';')
            left.remove_prefix(1);
        else
            commands.push_back("AT" + Take_Command(left));
    }
    return commands;
}

} // namespace Handset
