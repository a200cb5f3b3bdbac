#include "list/Message_Filling.h"
#include "list/Table_Builder.h"
#include "list/Table_File.h"

#include <gtest/gtest.h>

namespace {

struct Filling
{
    const char* message;
    const char* text;
    const char* fault = "";
};

class Message_Without_Values : public testing::TestWithParam<Filling>
{
};

class Message_With_Values : public testing::TestWithParam<Filling>
{
};

void Expect(const Filled_Message& filled, const Filling& wanted)
{
    EXPECT_EQ(filled.text.toStdString(), wanted.text);
    EXPECT_EQ(filled.fault.toStdString(), wanted.fault);
}

} // namespace

TEST_P(Message_Without_Values, Is_As_Written)
{
    Expect(Message_Filling(QString::fromUtf8(GetParam().message)).Without_Values(), GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Messages, Message_Without_Values,
    testing::Values(Filling{"", ""}, Filling{"Plain { and } text", "Plain { and } text"},
                    Filling{"Dear {{Name|friend}}, hi", "Dear friend, hi"},
                    Filling{"Dear {{Name}}, hi", "Dear {{Name}}, hi", "unknown-field"}, Filling{"{{A|}}", ""},
                    Filling{"{{A| }}{{B|x}}", " x"}, Filling{"{{A|b|c}}", "b|c"}, Filling{"{{{{Name}}", "{{Name}}"},
                    Filling{"{{{{", "{{"}, Filling{"{{{{{{A|b}}}}", "{{b}}"}, Filling{"{{not closed", "{{not closed"},
                    Filling{"{{A}} {{B|c}}", "{{A}} c", "unknown-field"}, Filling{"a{{", "a{{"},
                    Filling{"{{}}", "{{}}", "unknown-field"}, Filling{"}}{{", "}}{{"}, Filling{"{{A|b}}{{c", "b{{c"}));

TEST_P(Message_With_Values, Has_Them)
{
    const Contact_Table table =
        Table_Of_Bytes("First Name,City,Tip\nAnn, ,{{City}}\n", QStringLiteral("a.csv"), {}).table;
    Expect(Message_Filling(QString::fromUtf8(GetParam().message), table).For_Row(table, 0), GetParam());
}

INSTANTIATE_TEST_SUITE_P(
    Messages, Message_With_Values,
    testing::Values(Filling{"Dear {{First Name}}!", "Dear Ann!"}, Filling{"{{ firstname }}{{FIRST\tNAME|x}}", "AnnAnn"},
                    Filling{"{{City}}", "{{City}}", "empty-field"}, Filling{"{{City|here}}", "here"},
                    Filling{"<{{City|}}>", "<>"}, Filling{"{{Town}}", "{{Town}}", "unknown-field"},
                    Filling{"{{Town|here}}", "here"}, Filling{"{{City}}{{Town}}", "{{City}}{{Town}}", "unknown-field"},
                    Filling{"{{Town}}{{City}}", "{{Town}}{{City}}", "unknown-field"}, Filling{"{{Tip}}", "{{City}}"},
                    Filling{"{{{{First Name}}", "{{First Name}}"}, Filling{"{{First Name", "{{First Name"},
                    Filling{"no place", "no place"}));

TEST(Message_Filling, Knows_A_Name_That_Two_Columns_Have)
{
    const Contact_Table table = Table_Of_Bytes("Name,Tel,name\nAnn,1,Ann Smith\n", {}, {}).table;
    EXPECT_EQ(Message_Filling(QStringLiteral("{{Tel}} {{NAME|x}}"), table).Ambiguous(), "{{NAME|x}}");
    EXPECT_EQ(Message_Filling(QStringLiteral("{{Tel}}"), table).Ambiguous(), "");
}

TEST(Message_Filling, Openings_Without_End_Take_No_Time)
{
    const QString openings = QStringLiteral("{{x").repeated(300'000);
    EXPECT_EQ(Message_Filling(openings).Without_Values().text, openings);
}

// Characters of one and two bytes are put in place without a decoder; all others, and what is no character at all, end
// as they do in a field that is read alone.
TEST(Message_Filling_Test, A_Value_In_Any_Characters_Is_The_Field_As_It_Is_Read)
{
    const char* const values[] = {"Jörg",
                                  "Yıldız Müller",
                                  "Ñandú",
                                  "\xC2\x80",
                                  "\xDF\xBF",
                                  "10 €",
                                  "\xEF\xBB\xBF Ann",
                                  "日本語",
                                  "a😀ö",
                                  "ö\xF0\x9F\x98\x80",
                                  "\xC3",
                                  "ö\xC3",
                                  "\xC0\xAF",
                                  "\xC3(",
                                  "\x80",
                                  "\xE2\x82",
                                  "\xED\xA0\x80",
                                  "\xF8\x88\x80",
                                  "Zoë\xFF",
                                  "Bartholomew Ann-Catherine",
                                  "Bartholomäus",
                                  "Bartholo\xFF"};
    Filled_Message used_again;
    for (const char* const value : values) {
        Table_Builder builder;
        builder.Add_Field("Name");
        ASSERT_TRUE(builder.End_Row(1));
        builder.Add_Field(value);
        ASSERT_TRUE(builder.End_Row(2));
        const Contact_Table table = builder.Take();
        const Message_Filling filling(QStringLiteral("<{{Name}}|{{Name}}>"), table);
        const QString field = QString::fromUtf8(value);
        EXPECT_EQ(filling.For_Row(table, 0).text, u'<' + field + u'|' + field + u'>') << value;
        filling.Fill(used_again, table, 0);
        EXPECT_EQ(used_again.text, filling.For_Row(table, 0).text) << value;
    }
}

// Characters of one byte are put eight at a time, and all others between them.
TEST(Message_Filling, Values_Of_Every_Length_Are_Filled_In)
{
    const QStringList between{"", "\u00FC", "\u0151", "\u20AC", "\U0001F600", "\u00FC\u20AC\u00FC"};
    QByteArray text = "A,B\n";
    QStringList values;
    for (int length = 1; length < 20; ++length)
        for (int place = 0; place <= length; ++place)
            for (const QString& other : between) {
                values.append(QString(length, u'x').insert(place, other));
                text += values.last().toUtf8() + ',' + values.last().toUtf8() + '\n';
            }
    const Contact_Table table = Table_Of_Bytes(text, QStringLiteral("a.csv"), {}).table;
    ASSERT_EQ(table.Row_Count(), values.size());
    const Message_Filling filling(QStringLiteral("<{{A}}-{{B}}>"), table);
    Filled_Message filled;
    for (int row = 0; row < table.Row_Count(); ++row) {
        filling.Fill(filled, table, row);
        EXPECT_EQ(filled.text, u'<' + values[row] + u'-' + values[row] + u'>');
    }
}
