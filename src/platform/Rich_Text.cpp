#include "platform/Rich_Text.h"

#include "platform/Rich_Text_Decoder.h"
#include "platform/Rich_Text_Words.h"
#include <QFileInfo>
#include <QHash>
#include <algorithm>
#include <limits>
#include <optional>
#include <utility>
#include <vector>

namespace {

constexpr int Ansi_Code_Page = 1252;
constexpr int No_Font = -1;
constexpr int Most_Fallback = 32767;
constexpr qsizetype Most_Fonts = 65536;

// Reads one document from front to back, once. A group costs nothing until it changes something, so that no depth of
// nesting takes more memory than the document itself. Lives for one call, on its caller's thread.
class Rich_Text_Reader
{
public:
    explicit Rich_Text_Reader(std::string_view document) : m_document(document)
    {
        m_text.reserve(static_cast<qsizetype>(document.size() / 4));
    }

    QString Read()
    {
        while (m_at < m_document.size() && !m_is_over)
            Read_Next();
        m_decoder.Finish(m_text);
        return std::move(m_text);
    }

private:
    // What a group may change and its end restores.
    struct State
    {
        int font = No_Font;
        int fallback = 1;
        bool is_hidden = false;
        bool is_deleted = false;
    };
    struct Saved_State
    {
        std::size_t depth;
        State state;
    };

    void Read_Next()
    {
        const char byte = m_document[m_at++];
        switch (byte) {
        case '{':
            ++m_depth;
            m_fallback_left = 0;
            break;
        case '}':
            End_Group();
            break;
        case '\\':
            Read_Control();
            break;
        case '\r':
        case '\n':
        case '\0':
            break;
        default:
            Put_Byte(byte);
        }
    }

    void End_Group()
    {
        m_fallback_left = 0;
        if (!m_saved.empty() && m_saved.back().depth == m_depth) {
            m_state = m_saved.back().state;
            m_saved.pop_back();
        }
        --m_depth;
        if (m_depth < m_skip_from)
            m_skip_from = m_font_table_from = Nowhere;
        m_is_over = m_depth == 0;
    }

    State& Changing_State()
    {
        if (m_saved.empty() || m_saved.back().depth != m_depth)
            m_saved.push_back({m_depth, m_state});
        return m_state;
    }

    bool Is_Skipping() const { return m_skip_from != Nowhere; }

    // The outermost group is the document: a word in it that begins no group of its own hides nothing.
    void Skip_This_Group()
    {
        if (m_depth > 1 && !Is_Skipping())
            m_skip_from = m_depth;
    }

    void Read_Control()
    {
        if (m_at == m_document.size())
            return;
        if (Is_Letter(m_document[m_at]))
            Read_Word();
        else
            Read_Symbol(m_document[m_at++]);
    }

    void Read_Symbol(char symbol)
    {
        switch (symbol) {
        case '\'':
            Read_Hexadecimal();
            break;
        case '*':
            Skip_This_Group();
            break;
        case '\r':
        case '\n':
            Put_Character('\n');
            break;
        case '\t':
            Put_Character('\t');
            break;
        case '~':
            Put_Character(QChar::Nbsp);
            break;
        case '_':
            Put_Character('-');
            break;
        case '\\':
        case '{':
        case '}':
            Put_Byte(symbol);
            break;
        default: // "\-", a possible hyphenation point, and unknown ones
            break;
        }
    }

    void Read_Hexadecimal()
    {
        int value = 0;
        for (std::size_t i = 0; i < 2; ++i) {
            const int digit = m_at + i < m_document.size() ? Hexadecimal_Digit(m_document[m_at + i]) : -1;
            if (digit < 0)
                return;
            value = value * 16 + digit;
        }
        m_at += 2;
        if (value == '\r' || value == '\n')
            Put_Character('\n');
        else
            Put_Byte(static_cast<char>(value));
    }

    void Read_Word()
    {
        const std::size_t begin = m_at;
        while (m_at < m_document.size() && Is_Letter(m_document[m_at]))
            ++m_at;
        const std::string_view word = m_document.substr(begin, m_at - begin);
        const std::optional<int> number = Read_Number();
        if (m_at < m_document.size() && m_document[m_at] == ' ')
            ++m_at;
        if (const Rich_Text_Word* known = Find_Rich_Text_Word(word))
            Do(*known, number);
    }

    // The number that belongs to a word, clamped to the range of an int; nothing when there is none.
    std::optional<int> Read_Number()
    {
        const bool is_negative =
            m_at + 1 < m_document.size() && m_document[m_at] == '-' && Is_Digit(m_document[m_at + 1]);
        if (is_negative)
            ++m_at;
        if (m_at == m_document.size() || !Is_Digit(m_document[m_at]))
            return std::nullopt;
        qint64 number = 0;
        for (; m_at < m_document.size() && Is_Digit(m_document[m_at]); ++m_at)
            number = std::min<qint64>(number * 10 + (m_document[m_at] - '0'), std::numeric_limits<int>::max());
        return static_cast<int>(is_negative ? -number : number);
    }

    void Do(const Rich_Text_Word& word, std::optional<int> number)
    {
        switch (word.action) {
        case Rich_Text_Action::Put:
            Put_Character(static_cast<char16_t>(word.value));
            break;
        case Rich_Text_Action::End_Cell:
            End_Line();
            break;
        case Rich_Text_Action::End_Row:
            if (!Is_At_Line_Begin())
                End_Line();
            break;
        case Rich_Text_Action::Pass_Over:
            Skip_This_Group();
            break;
        case Rich_Text_Action::Font_Table:
            Skip_This_Group();
            m_font_table_from = m_skip_from;
            break;
        case Rich_Text_Action::Binary:
            m_at += std::min(static_cast<std::size_t>(std::max(0, number.value_or(0))), m_document.size() - m_at);
            break;
        case Rich_Text_Action::Unicode:
            if (number && !Is_Skipping())
                Put_Unicode(*number);
            break;
        default:
            if (m_font_table_from != Nowhere)
                Describe_Font(word, number.value_or(0));
            else if (!Is_Skipping())
                Change_State(word, number);
        }
    }

    void Describe_Font(const Rich_Text_Word& word, int number)
    {
        if (word.action == Rich_Text_Action::Font)
            m_described_font = number;
        else if (word.action == Rich_Text_Action::Charset)
            Set_Code_Page_Of_Font(Rich_Text_Decoder::Code_Page_Of_Charset(number));
        else if (word.action == Rich_Text_Action::Font_Page)
            Set_Code_Page_Of_Font(number);
    }

    void Set_Code_Page_Of_Font(int code_page)
    {
        if (code_page > 0 && m_fonts.size() < Most_Fonts)
            m_fonts.insert(m_described_font, code_page);
    }

    void Change_State(const Rich_Text_Word& word, std::optional<int> number)
    {
        switch (word.action) {
        case Rich_Text_Action::Code_Page:
            m_code_page = word.value != 0 ? word.value : number.value_or(0);
            if (m_code_page <= 0)
                m_code_page = Ansi_Code_Page;
            break;
        case Rich_Text_Action::Default_Font:
            m_default_font = number.value_or(0);
            break;
        case Rich_Text_Action::Font:
            Changing_State().font = number.value_or(0);
            break;
        case Rich_Text_Action::Plain:
            Changing_State().font = No_Font;
            Changing_State().is_hidden = Changing_State().is_deleted = false;
            break;
        case Rich_Text_Action::Hidden:
            Changing_State().is_hidden = number != 0;
            break;
        case Rich_Text_Action::Deleted:
            Changing_State().is_deleted = number != 0;
            break;
        case Rich_Text_Action::Fallback:
            Changing_State().fallback = std::clamp(number.value_or(1), 0, Most_Fallback);
            break;
        default:
            break;
        }
    }

    int Code_Page() const
    {
        const int font = m_state.font == No_Font ? m_default_font : m_state.font;
        return m_fonts.value(font, m_code_page);
    }

    bool Is_Shown() const { return !m_state.is_hidden && !m_state.is_deleted; }

    // Whether what comes next is text that the document does not show, or replaces a Unicode character already in the
    // text.
    bool Is_Passed_Over()
    {
        if (m_fallback_left > 0 && !Is_Skipping()) {
            --m_fallback_left;
            return true;
        }
        return Is_Skipping() || !Is_Shown();
    }

    void Put_Byte(char byte)
    {
        if (Is_Passed_Over())
            return;
        // ASCII is the same in all of them, and numbers consist of little else.
        if (static_cast<unsigned char>(byte) < 0x80 && !m_decoder.Is_Holding())
            m_text += QLatin1Char(byte);
        else
            m_decoder.Put(byte, Code_Page(), m_text);
    }

    void Put_Character(char16_t character)
    {
        // A line end never replaces a character: some writers leave the replacement out.
        if (character == '\n')
            m_fallback_left = 0;
        if (Is_Passed_Over())
            return;
        m_decoder.Finish(m_text);
        m_text += QChar(character);
    }

    bool Is_At_Line_Begin() const { return !m_decoder.Is_Holding() && (m_text.isEmpty() || m_text.endsWith(u'\n')); }

    // The end of a cell counts even where the cell's text is hidden.
    void End_Line()
    {
        m_fallback_left = 0;
        if (Is_Skipping())
            return;
        m_decoder.Finish(m_text);
        m_text += u'\n';
    }

    // Numbers above 32767 are written as negative ones; some writers write them, and whole code points, unchanged.
    void Put_Unicode(int number)
    {
        m_fallback_left = m_state.fallback;
        if (!Is_Shown())
            return;
        m_decoder.Finish(m_text);
        const int code = number < 0 ? number + 0x10000 : number;
        if (code >= 0 && code <= 0xFFFF)
            m_text += QChar(static_cast<char16_t>(code));
        else if (code > 0 && code <= static_cast<int>(QChar::LastValidCodePoint))
            m_text += QChar::fromUcs4(static_cast<char32_t>(code));
        else
            m_text += QChar::ReplacementCharacter;
    }

    static bool Is_Letter(char byte) { return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z'); }
    static bool Is_Digit(char byte) { return byte >= '0' && byte <= '9'; }
    static int Hexadecimal_Digit(char byte)
    {
        if (Is_Digit(byte))
            return byte - '0';
        const char lower = static_cast<char>(byte | 0x20);
        return lower >= 'a' && lower <= 'f' ? lower - 'a' + 10 : -1;
    }

    static constexpr std::size_t Nowhere = 0;

    std::string_view m_document;
    std::size_t m_at = 0;
    bool m_is_over = false;
    QString m_text;
    Rich_Text_Decoder m_decoder;

    std::size_t m_depth = 0;
    std::size_t m_skip_from = Nowhere;       // the depth of the outermost group being passed over
    std::size_t m_font_table_from = Nowhere; // the same if that is the font table
    State m_state;
    std::vector<Saved_State> m_saved;
    int m_fallback_left = 0;

    int m_code_page = Ansi_Code_Page;
    int m_default_font = No_Font;
    int m_described_font = No_Font;
    QHash<int, int> m_fonts; // the code pages of those that name one
};

} // namespace

QString Plain_Text_Of_Rich_Text(const QByteArray& bytes)
{
    std::string_view document(bytes.constData(), static_cast<std::size_t>(bytes.size()));
    constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
    if (document.starts_with(byte_order_mark))
        document.remove_prefix(byte_order_mark.size());
    document.remove_prefix(std::min(document.find_first_not_of(" \t\r\n"), document.size()));
    if (!document.starts_with("{\\rtf"))
        return QString::fromUtf8(bytes);
    return Rich_Text_Reader(document).Read();
}

bool Is_Rich_Text_Path(const QString& path)
{
    return QFileInfo(path).suffix().compare(QLatin1String("rtf"), Qt::CaseInsensitive) == 0;
}
