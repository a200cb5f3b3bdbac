#include "layers/Source_Tree.h"

#include <cctype>
#include <fstream>

namespace {

bool Is_Word(char character)
{
    return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '_';
}

// Walks through the characters of a file and blanks out what is no code.
class Blanker
{
public:
    std::string Blank(const std::string& line)
    {
        m_line = line;
        for (m_at = 0; m_at < m_line.size();) {
            if (m_is_in_comment)
                Blank_Comment();
            else if (!m_raw_end.empty())
                Blank_Raw_Text();
            else
                Take_Code();
        }
        return m_line;
    }

private:
    bool Stands_Here(const std::string& text) const { return m_line.compare(m_at, text.size(), text) == 0; }

    void Blank_Up_To(std::size_t end)
    {
        for (; m_at < end && m_at < m_line.size(); ++m_at)
            m_line[m_at] = ' ';
    }

    void Blank_Comment()
    {
        const auto end = m_line.find("*/", m_at);
        m_is_in_comment = end == std::string::npos;
        Blank_Up_To(m_is_in_comment ? m_line.size() : end + 2);
    }

    void Blank_Raw_Text()
    {
        const auto end = m_line.find(m_raw_end, m_at);
        const bool goes_on = end == std::string::npos;
        Blank_Up_To(goes_on ? m_line.size() : end + m_raw_end.size());
        if (!goes_on)
            m_raw_end.clear();
    }

    void Take_Code()
    {
        const char before = m_at > 0 ? m_line[m_at - 1] : ' ';
        if (Stands_Here("//")) {
            Blank_Up_To(m_line.size());
        } else if (Stands_Here("/*")) {
            m_is_in_comment = true;
            Blank_Up_To(m_at + 2);
        } else if (Stands_Here("R\"") && !Is_Word(before)) {
            const auto open = m_line.find('(', m_at);
            m_raw_end = ")" + m_line.substr(m_at + 2, open - m_at - 2) + "\"";
            Blank_Up_To(open + 1);
        } else if (m_line[m_at] == '"' ||
                   (m_line[m_at] == '\'' && !std::isxdigit(static_cast<unsigned char>(before)))) {
            Blank_Literal(m_line[m_at]);
        } else {
            ++m_at;
        }
    }

    void Blank_Literal(char quote)
    {
        auto end = m_at + 1;
        while (end < m_line.size() && m_line[end] != quote)
            end += m_line[end] == '\\' ? 2 : 1;
        ++m_at; // the quotes themselves stay
        Blank_Up_To(end);
        if (m_at < m_line.size())
            ++m_at;
    }

    std::string m_line;
    std::size_t m_at = 0;
    bool m_is_in_comment = false;
    std::string m_raw_end;
};

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
            auto& lines = tree[std::filesystem::relative(entry.path(), top).generic_string()];
            std::ifstream file(entry.path());
            for (std::string line; std::getline(file, line);)
                lines.push_back(line);
        }
    }
    return tree;
}

std::vector<std::string> Code_Of(const std::vector<std::string>& lines)
{
    Blanker blanker;
    std::vector<std::string> code;
    code.reserve(lines.size());
    for (const auto& line : lines)
        code.push_back(blanker.Blank(line));
    return code;
}

std::vector<Include> Includes_Of(const std::vector<std::string>& lines)
{
    const auto code = Code_Of(lines);
    std::vector<Include> includes;
    for (std::size_t row = 0; row < lines.size(); ++row) {
        const auto hash = code[row].find_first_not_of(" \t");
        if (hash == std::string::npos || code[row][hash] != '#')
            continue;
        const auto word = code[row].find_first_not_of(" \t", hash + 1);
        if (word == std::string::npos || code[row].compare(word, 7, "include") != 0)
            continue;
        const auto open = code[row].find_first_of("\"<", word);
        if (open == std::string::npos)
            continue;
        const bool is_quoted = code[row][open] == '"';
        const auto close = lines[row].find(is_quoted ? '"' : '>', open + 1);
        if (close != std::string::npos)
            includes.push_back({static_cast<int>(row) + 1, lines[row].substr(open + 1, close - open - 1), is_quoted});
    }
    return includes;
}

bool Is_Cpp(const std::string& path)
{
    return path.ends_with(".h") || path.ends_with(".cpp");
}
