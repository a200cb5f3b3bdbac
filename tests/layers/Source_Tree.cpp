#include "layers/Source_Tree.h"

#include <algorithm>
#include <cctype>
#include <fstream>
#include <regex>
#include <sstream>

namespace {

bool Is_Word(char character)
{
    return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '_';
}

// Where the comment or the literal that begins here ends; here when none does.
std::size_t End_Of_No_Code(const std::string& text, std::size_t at)
{
    const auto behind = [&](const std::string& end, std::size_t from) {
        const auto found = text.find(end, from);
        return found == std::string::npos ? text.size() : found + end.size();
    };
    const auto begins = [&](const std::string& with) { return text.compare(at, with.size(), with) == 0; };
    const char before = at > 0 ? text[at - 1] : ' ';
    if (begins("//"))
        return behind("\n", at);
    if (begins("/*"))
        return behind("*/", at + 2);
    if (begins("R\"") && !Is_Word(before)) {
        const auto open = text.find('(', at);
        return behind(")" + text.substr(at + 2, open - at - 2) + "\"", open);
    }
    if (text[at] != '"' && (text[at] != '\'' || std::isxdigit(static_cast<unsigned char>(before)) != 0))
        return at;
    auto end = at + 1;
    while (end < text.size() && text[end] != text[at] && text[end] != '\n')
        end += text[end] == '\\' ? 2 : 1;
    return std::min(end + 1, text.size());
}

std::vector<std::string> Lines_Of(std::istream& text)
{
    std::vector<std::string> lines;
    for (std::string line; std::getline(text, line);)
        lines.push_back(line);
    return lines;
}

} // namespace

Source_Tree Read_Source_Tree(const std::filesystem::path& top, const std::vector<std::string>& folders)
{
    Source_Tree tree;
    for (const auto& folder : folders) {
        for (const auto& entry : std::filesystem::recursive_directory_iterator(top / folder)) {
            const auto extension = entry.path().extension();
            const bool is_known = extension == ".h" || extension == ".cpp" || extension == ".ui" || extension == ".txt";
            if (!entry.is_regular_file() || !is_known)
                continue;
            std::ifstream file(entry.path());
            tree[std::filesystem::relative(entry.path(), top).generic_string()] = Lines_Of(file);
        }
    }
    return tree;
}

std::vector<std::string> Code_Of(const std::vector<std::string>& lines)
{
    std::string text;
    for (const auto& line : lines)
        text += line + '\n';
    for (std::size_t at = 0; at < text.size();) {
        const auto end = End_Of_No_Code(text, at);
        at += end == at ? 1 : 0;
        for (; at < end; ++at)
            text[at] = text[at] == '\n' ? '\n' : ' ';
    }
    std::istringstream code(text);
    return Lines_Of(code);
}

std::vector<Include> Includes_Of(const std::vector<std::string>& lines)
{
    static const std::regex include(R"re(^\s*#\s*include\s*(["<])([^">]*)[">])re");
    const auto code = Code_Of(lines);
    std::vector<Include> includes;
    for (std::size_t row = 0; row < lines.size(); ++row) {
        std::smatch found;
        if (code[row].find("include") != std::string::npos && std::regex_search(lines[row], found, include))
            includes.push_back({row + 1, found[2], found[1] == "\""});
    }
    return includes;
}

bool Is_Cpp(const std::string& path)
{
    return path.ends_with(".h") || path.ends_with(".cpp");
}
