#pragma once

#include <functional>
#include <string>
#include <string_view>

// The elements and texts of an XML document in UTF-8 as spreadsheets hold them, from front to back: made for speed on
// documents of any length, in a fixed amount of memory. Knows no entities but the five of XML and those by number, and
// refuses documents that declare more; checks no more than that what was opened is closed. For one document and thread.
class Markup_Reader
{
public:
    enum class Token
    {
        Begin, ///< of an element; an empty one ends with the next token
        End,   ///< of an element
        Text,  ///< or a piece of one
        Finished,
        Failed ///< the document is cut off, malformed or not in UTF-8
    };

    /// The source puts at most so many bytes in a place and returns how many; 0 at the end.
    using Source = std::function<std::size_t(char* bytes, std::size_t most)>;
    explicit Markup_Reader(Source source);

    Token Next();

    // Valid until the next token.

    /// An element's name without its prefix.
    std::string_view Name() const { return m_name; }
    /// An attribute of the element that has just begun; empty where it has none. Its name is compared with the prefix
    /// when it has one here.
    std::string_view Attribute(std::string_view name);
    /// The number in an attribute, from 0 up; otherwise where there is none.
    int Number(std::string_view name, int otherwise);
    std::string_view Text() const { return m_text; }

    /// Passes over the rest of the element that has just begun.
    void Skip();

private:
    static constexpr std::size_t Piece = std::size_t{128} << 10;
    static constexpr std::size_t Longest_Tag = std::size_t{1} << 20;

    bool Read_More();
    Token Fail();
    Token Read_Tag();
    Token Read_Text();
    bool Pass_Over(std::string_view end, std::size_t from);
    bool Pass_Over_Declaration();
    std::size_t End_Of_Tag();
    std::size_t Left() const { return m_buffer.size() - m_at; }
    bool Starts_With(std::string_view text);
    std::string_view Decoded(std::string_view raw);

    Source m_source;
    std::string m_buffer;
    std::size_t m_at = 0;
    bool m_is_at_end = false;
    bool m_is_in_cdata = false;
    bool m_is_empty_element = false; // its end is the next token
    bool m_has_failed = false;
    bool m_has_begun = false;
    int m_depth = 0;
    std::string_view m_name;
    std::string_view m_attributes;
    std::string_view m_text;
    std::string m_decoded;
};
