#include "support/Strict_Json.h"

#include "handset/Unicode_Text.h"

#include <charconv>
#include <stdexcept>

namespace {

class Reader
{
public:
    explicit Reader(std::string_view json) : m_json(json) {}

    std::vector<Json_Object> Array()
    {
        std::vector<Json_Object> objects;
        Items('[', ']', [&] { objects.push_back(Object()); });
        return objects;
    }

    Json_Object Object()
    {
        Json_Object object;
        Items('{', '}', [&] {
            const std::string name = Text();
            Expect(':');
            if (!object.emplace(name, Value()).second)
                Fail("a name twice");
        });
        return object;
    }

    void End()
    {
        Skip_Blanks();
        if (m_at != m_json.size())
            Fail("text behind the end");
    }

private:
    template <typename Item>
    void Items(char open, char close, const Item& item)
    {
        Expect(open);
        if (Takes(close))
            return;
        do
            item();
        while (Takes(','));
        Expect(close);
    }

    Json_Value Value()
    {
        Skip_Blanks();
        Json_Value value;
        if (m_json.substr(m_at).starts_with("null")) {
            m_at += 4;
            value.m_is_null = true;
        } else if (Peek() == '"') {
            value.m_text = Text();
        } else {
            value.m_number = Number();
        }
        return value;
    }

    int Number()
    {
        int number = 0;
        const char* begin = m_json.data() + m_at;
        const auto [end, error] = std::from_chars(begin, m_json.data() + m_json.size(), number);
        if (error != std::errc() || (*begin == '0' && end - begin > 1))
            Fail("no whole number");
        m_at += std::size_t(end - begin);
        return number;
    }

    std::string Text()
    {
        std::string units; // UTF-16, most significant octet first, of a run of \u escapes
        std::string text;
        Expect('"');
        for (char letter = Next(); letter != '"'; letter = Next()) {
            if (letter == '\\' && Peek() == 'u') {
                units += Escaped_Unit();
                continue;
            }
            text += Text_Of(units);
            units.clear();
            if (static_cast<unsigned char>(letter) < 0x20)
                Fail("a bare control character");
            text += letter == '\\' ? Escaped() : letter;
        }
        text += Text_Of(units);
        if (!Handset::Code_Points_Of(text))
            Fail("no UTF-8");
        return text;
    }

    char Escaped()
    {
        constexpr std::string_view names = "\"\\/bfnrt";
        constexpr std::string_view letters = "\"\\/\b\f\n\r\t";
        const auto found = names.find(Next());
        if (found == std::string_view::npos)
            Fail("an unknown escape");
        return letters[found];
    }

    std::string Escaped_Unit()
    {
        Next();
        const auto octets = Handset::Octets_Of_Hex(m_json.substr(m_at, 4));
        if (!octets || octets->size() != 2)
            Fail("not four hexadecimal digits");
        m_at += 4;
        return {octets->begin(), octets->end()};
    }

    static std::string Text_Of(const std::string& units)
    {
        return Handset::Text_Of_Utf16_Octets({units.begin(), units.end()});
    }

    void Skip_Blanks() { m_at = std::min(m_json.find_first_not_of(" \t\r\n", m_at), m_json.size()); }
    char Peek() const { return m_at < m_json.size() ? m_json[m_at] : '\0'; }
    char Next()
    {
        if (m_at == m_json.size())
            Fail("it ends too early");
        return m_json[m_at++];
    }
    bool Takes(char letter)
    {
        Skip_Blanks();
        const bool is_there = Peek() == letter;
        m_at += is_there ? 1 : 0;
        return is_there;
    }
    void Expect(char letter)
    {
        if (!Takes(letter))
            Fail(std::string("no ") + letter);
    }
    [[noreturn]] void Fail(const std::string& what) const
    {
        throw std::runtime_error("JSON, character " + std::to_string(m_at) + ": " + what);
    }

    std::string_view m_json;
    std::size_t m_at = 0;
};

} // namespace

Json_Object Read_Json_Object(std::string_view json)
{
    Reader reader(json);
    auto object = reader.Object();
    reader.End();
    return object;
}

std::vector<Json_Object> Read_Json_Objects(std::string_view json)
{
    Reader reader(json);
    auto objects = reader.Array();
    reader.End();
    return objects;
}
