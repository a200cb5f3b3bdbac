#include "list/Markup_Reader.h"

#include <algorithm>
#include <charconv>
#include <cstring>

namespace {

constexpr std::string_view Begin_Of_Cdata("<![CDATA[");
constexpr std::string_view End_Of_Cdata("]]>");
constexpr std::size_t Longest_Entity = 12;

bool Is_Space(char byte)
{
    return byte == ' ' || byte == '\t' || byte == '\n' || byte == '\r';
}

std::string_view Without_Prefix(std::string_view name)
{
    const std::size_t colon = name.find(':');
    return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

void Append_Utf8(std::string& text, unsigned code)
{
    const auto add = [&](unsigned byte) { text += static_cast<char>(byte); };
    if (code < 0x80) {
        add(code);
        return;
    }
    const int more = code < 0x800 ? 1 : code < 0x10000 ? 2 : 3;
    add((0xFF00U >> (more + 1) & 0xFFU) | code >> (6 * more));
    for (int i = more - 1; i >= 0; --i)
        add(0x80 | (code >> (6 * i) & 0x3F));
}

// The character that the inside of &...; stands for; 0 for none.
unsigned Character_Of(std::string_view entity)
{
    struct Known
    {
        std::string_view name;
        char character;
    };
    for (const Known& known : {Known{"amp", '&'}, {"lt", '<'}, {"gt", '>'}, {"quot", '"'}, {"apos", '\''}})
        if (entity == known.name)
            return static_cast<unsigned char>(known.character);
    if (!entity.starts_with('#'))
        return 0;
    const bool is_hex = entity.starts_with("#x");
    entity.remove_prefix(is_hex ? 2 : 1);
    unsigned code = 0;
    const auto read = std::from_chars(entity.data(), entity.data() + entity.size(), code, is_hex ? 16 : 10);
    const bool is_character = code < 0x110000 && (code < 0xD800 || code > 0xDFFF);
    return read.ec == std::errc() && read.ptr == entity.data() + entity.size() && is_character ? code : 0;
}

} // namespace

Markup_Reader::Markup_Reader(Source source) : m_source(std::move(source)) {}

Markup_Reader::Token Markup_Reader::Next()
{
    if (m_has_failed)
        return Token::Failed;
    if (m_is_empty_element) {
        m_is_empty_element = false;
        --m_depth;
        return Token::End;
    }
    for (;;) {
        if (m_at == m_buffer.size() && !Read_More())
            return m_depth == 0 && m_has_begun && !m_is_in_cdata ? Token::Finished : Fail();
        if (m_is_in_cdata || m_buffer[m_at] != '<')
            return Read_Text();
        if (Starts_With("<!--")) {
            if (!Pass_Over("-->", 4))
                return Fail();
        } else if (Starts_With("<?")) {
            if (!Pass_Over_Declaration())
                return Fail();
        } else if (Starts_With(Begin_Of_Cdata)) {
            m_at += Begin_Of_Cdata.size();
            m_is_in_cdata = true;
        } else {
            return Read_Tag();
        }
    }
}

std::string_view Markup_Reader::Attribute(std::string_view name)
{
    const bool is_qualified = name.find(':') != std::string_view::npos;
    std::string_view rest = m_attributes;
    for (;;) {
        const std::size_t equals = rest.find('=');
        if (equals == std::string_view::npos)
            return {};
        std::string_view found = rest.substr(0, equals);
        while (!found.empty() && Is_Space(found.front()))
            found.remove_prefix(1);
        while (!found.empty() && Is_Space(found.back()))
            found.remove_suffix(1);
        rest.remove_prefix(equals + 1);
        const std::size_t open = rest.find_first_of("\"'");
        const std::size_t close = open == std::string_view::npos ? open : rest.find(rest[open], open + 1);
        if (close == std::string_view::npos)
            return {};
        if ((is_qualified ? found : Without_Prefix(found)) == name)
            return Decoded(rest.substr(open + 1, close - open - 1));
        rest.remove_prefix(close + 1);
    }
}

int Markup_Reader::Number(std::string_view name, int otherwise)
{
    const std::string_view digits = Attribute(name);
    int number = 0;
    const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return read.ec == std::errc() && read.ptr == digits.data() + digits.size() && number >= 0 ? number : otherwise;
}

void Markup_Reader::Skip()
{
    const int depth = m_depth;
    while (!m_has_failed && m_depth >= depth)
        if (Next() == Token::Finished)
            return;
}

// Makes room by dropping what was read; what m_at points to stays.
bool Markup_Reader::Read_More()
{
    if (m_is_at_end)
        return false;
    m_buffer.erase(0, m_at);
    m_at = 0;
    const std::size_t size = m_buffer.size();
    m_buffer.resize(size + Piece);
    const std::size_t count = m_source(m_buffer.data() + size, Piece);
    m_buffer.resize(size + count);
    m_is_at_end = count == 0;
    return count > 0;
}

Markup_Reader::Token Markup_Reader::Fail()
{
    m_has_failed = true;
    return Token::Failed;
}

bool Markup_Reader::Starts_With(std::string_view text)
{
    while (Left() < text.size() && Read_More()) {
    }
    return std::string_view(m_buffer).substr(m_at).starts_with(text);
}

bool Markup_Reader::Pass_Over(std::string_view end, std::size_t from)
{
    m_at += from;
    for (;;) {
        const std::size_t found = m_buffer.find(end, m_at);
        if (found != std::string::npos) {
            m_at = found + end.size();
            return true;
        }
        m_at = std::max(m_at, m_buffer.size() - std::min(m_buffer.size(), end.size() - 1));
        if (!Read_More())
            return false;
    }
}

// The first may name an encoding.
bool Markup_Reader::Pass_Over_Declaration()
{
    const std::size_t end = End_Of_Tag();
    if (end == std::string::npos)
        return false;
    const std::string_view inside = std::string_view(m_buffer).substr(m_at, end - m_at);
    if (inside.starts_with("<?xml ") && inside.find("encoding") != std::string_view::npos) {
        std::string lower(inside);
        std::transform(lower.begin(), lower.end(), lower.begin(),
                       [](char byte) { return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 0x20) : byte; });
        if (lower.find("utf-8") == std::string::npos && lower.find("us-ascii") == std::string::npos)
            return false;
    }
    return Pass_Over("?>", 2);
}

// Where the ">" stands that ends the tag, which may hold others in quotes.
std::size_t Markup_Reader::End_Of_Tag()
{
    char quote = 0;
    for (std::size_t offset = 1;; ++offset) {
        if (offset >= Left() && (offset > Longest_Tag || !Read_More()))
            return std::string::npos;
        const char byte = m_buffer[m_at + offset];
        if (quote != 0)
            quote = byte == quote ? '\0' : quote;
        else if (byte == '"' || byte == '\'')
            quote = byte;
        else if (byte == '>')
            return m_at + offset;
    }
}

Markup_Reader::Token Markup_Reader::Read_Tag()
{
    const std::size_t end = End_Of_Tag();
    if (end == std::string::npos || m_buffer[m_at + 1] == '!') // what declares entities
        return Fail();
    std::string_view inside = std::string_view(m_buffer).substr(m_at + 1, end - m_at - 1);
    m_at = end + 1;
    const bool is_end = inside.starts_with('/');
    if (is_end)
        inside.remove_prefix(1);
    m_is_empty_element = !is_end && inside.ends_with('/');
    if (m_is_empty_element)
        inside.remove_suffix(1);
    const auto* name_end = std::find_if(inside.begin(), inside.end(), Is_Space);
    m_name = Without_Prefix(inside.substr(0, static_cast<std::size_t>(name_end - inside.begin())));
    m_attributes = inside.substr(static_cast<std::size_t>(name_end - inside.begin()));
    m_depth += is_end ? -1 : 1;
    m_has_begun = true;
    if (m_name.empty() || m_depth < 0)
        return Fail();
    return is_end ? Token::End : Token::Begin;
}

Markup_Reader::Token Markup_Reader::Read_Text()
{
    const auto rest = [this] { return std::string_view(m_buffer).substr(m_at); };
    if (m_is_in_cdata) {
        while (Left() < End_Of_Cdata.size() && Read_More()) {
        }
        const std::size_t end = rest().find(End_Of_Cdata);
        const std::size_t size = std::min(end, Left() - std::min(Left(), End_Of_Cdata.size() - 1));
        if (end == std::string_view::npos && size == 0)
            return Fail();
        m_text = rest().substr(0, size);
        m_at += size;
        m_is_in_cdata = size != end;
        m_at += m_is_in_cdata ? 0 : End_Of_Cdata.size();
        return Token::Text;
    }
    std::size_t size = std::min(rest().find('<'), Left());
    if (size == Left() && !m_is_at_end) { // an entity is not torn apart
        const std::size_t ampersand = rest().rfind('&');
        if (ampersand != std::string_view::npos && Left() - ampersand < Longest_Entity && Read_More())
            return Read_Text();
    }
    m_text = Decoded(rest().substr(0, size));
    m_at += size;
    return Token::Text;
}

// What is no entity stays as it is.
std::string_view Markup_Reader::Decoded(std::string_view raw)
{
    std::size_t ampersand = raw.find('&');
    if (ampersand == std::string_view::npos)
        return raw;
    m_decoded.clear();
    while (ampersand != std::string_view::npos) {
        m_decoded += raw.substr(0, ampersand);
        raw.remove_prefix(ampersand);
        const std::size_t semicolon = raw.substr(0, Longest_Entity).find(';');
        const unsigned code = semicolon == std::string_view::npos ? 0 : Character_Of(raw.substr(1, semicolon - 1));
        if (code > 0)
            Append_Utf8(m_decoded, code);
        else
            m_decoded += '&';
        raw.remove_prefix(code > 0 ? semicolon + 1 : 1);
        ampersand = raw.find('&');
    }
    m_decoded += raw;
    return m_decoded;
}
