#include "list/Markup_Reader.h"

#include <gtest/gtest.h>

namespace {

using Token = Markup_Reader::Token;

// The tokens of a document whose source gives so many bytes at a time: <name>, </name>, texts in one piece, "." at its
// end and "!" where it fails.
std::string Tokens(const std::string& document, std::size_t at_a_time)
{
    std::size_t at = 0;
    Markup_Reader xml([&](char* bytes, std::size_t most) {
        const std::size_t count = document.copy(bytes, std::min(most, at_a_time), at);
        at += count;
        return count;
    });
    std::string tokens;
    for (;;) {
        switch (xml.Next()) {
        case Token::Begin:
            tokens += "<" + std::string(xml.Name()) + ">";
            break;
        case Token::End:
            tokens += "</" + std::string(xml.Name()) + ">";
            break;
        case Token::Text:
            tokens += xml.Text();
            break;
        case Token::Finished:
            return tokens + ".";
        case Token::Failed:
            return tokens + "!";
        }
    }
}

struct Document
{
    const char* text;
    const char* tokens;
};

class Documents : public testing::TestWithParam<Document>
{
};

} // namespace

TEST_P(Documents, Are_Read_However_They_Come)
{
    for (const std::size_t at_a_time : {1, 2, 3, 7, 1000})
        EXPECT_EQ(Tokens(GetParam().text, at_a_time), GetParam().tokens) << at_a_time;
}

INSTANTIATE_TEST_SUITE_P(
    Documents, Documents,
    testing::Values(Document{"<a/>", "<a></a>."},
                    Document{"<?xml version='1.0'?><!-- <b> --><x:a  y='1'>t</x:a >", "<a>t</a>."},
                    Document{"<a b='>' c=\"/\">1<d/>2</a>", "<a>1<d></d>2</a>."},
                    Document{"<a>&lt;&#65;&#x42;&amp;amp;&quot;&apos;&gt;</a>", "<a><AB&amp;\"'></a>."},
                    Document{"<a>&#xF6;&#8364;&#x1F600;</a>", "<a>\xC3\xB6\xE2\x82\xAC\xF0\x9F\x98\x80</a>."},
                    Document{"<a>&nope;&;&#0;&#xD800;&#x110000;&#99999999999;& b</a>",
                             "<a>&nope;&;&#0;&#xD800;&#x110000;&#99999999999;& b</a>."},
                    Document{"<a><![CDATA[<b>&lt;]]]]><![CDATA[>]]></a>", "<a><b>&lt;]]></a>."},
                    Document{"<a><![CDATA[x", "<a>!"}, Document{"<a", "!"}, Document{"<a>", "<a>!"},
                    Document{"</a>", "!"}, Document{"<>", "!"}, Document{"", "!"}, Document{"<a><!-- ", "<a>!"},
                    Document{"<!DOCTYPE a><a/>", "!"}, Document{"<?xml encoding='UTF-16'?><a/>", "!"},
                    Document{"<?xml encoding='utf-8'?><a/>", "<a></a>."}));

TEST(Markup_Reader, Finds_Attributes)
{
    bool was_read = false;
    const std::string document = "<a r='1' x:r = \"2 &amp; 3\" n='17' m='-1' l='99999999999' e='' b>";
    Markup_Reader xml([&](char* bytes, std::size_t most) {
        const std::size_t count = was_read ? 0 : document.copy(bytes, most);
        was_read = true;
        return count;
    });
    ASSERT_EQ(xml.Next(), Token::Begin);
    EXPECT_EQ(xml.Attribute("r"), "1");
    EXPECT_EQ(xml.Attribute("x:r"), "2 & 3");
    EXPECT_EQ(xml.Number("n", 5), 17);
    for (const char* name : {"m", "l", "e", "b", "missing"})
        EXPECT_EQ(xml.Number(name, 5), 5) << name;
}

TEST(Markup_Reader, Passes_Over_Elements)
{
    std::string document = "<a><b><c/><b>x</b></b>y</a>";
    Markup_Reader xml([&](char* bytes, std::size_t most) {
        const std::size_t count = document.copy(bytes, most);
        document.clear();
        return count;
    });
    ASSERT_EQ(xml.Next(), Token::Begin);
    ASSERT_EQ(xml.Next(), Token::Begin);
    xml.Skip();
    ASSERT_EQ(xml.Next(), Token::Text);
    EXPECT_EQ(xml.Text(), "y");
}
