#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <algorithm>

#include "Pdu_Test.h"
#include "device/Submission_Rules.h"
#include "handset/Gsm_Alphabet.h"
#include "handset/Submit_Decoder.h"

// What people type, encoded here, and what a handset shows of it, decoded by the phone from the standards alone.

namespace {

// What the user guide and the help window write about characters that go out without Unicode, read from their own
// sources, so that it can be held against what the encoder does.

struct Written_Lists
{
    QString everywhere;        // with the letters, the digits, the blank and the line break, which stand in words
    QString but_for_text_mode; // unless the device knows text mode only
    QString in_a_short_text;   // the same, and in a short text
};

struct Typed_And_Shown
{
    QString typed;
    QString shown;
};

QString Source(const char* path)
{
    QFile file(QStringLiteral(CORVANE_SOURCE_DIR "/") + QLatin1String(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    return QString::fromUtf8(file.readAll());
}

QString Guide_On_Characters()
{
    return Source("docs/USER_GUIDE.md")
        .section(u"### Which characters arrive without Unicode"_s, 1)
        .section(u"\n## "_s, 0, 0);
}

// Three lists, each between the same marks.
Written_Lists Lists_Between(const QString& text, const QString& begin, const QString& end)
{
    QString lists[3];
    for (int list = 0; list < 3; ++list) {
        lists[list] = text.section(begin, list + 1, list + 1).section(end, 0, 0).remove(QRegularExpression(u"\\s"_s));
        EXPECT_FALSE(lists[list].isEmpty()) << list;
    }
    QString in_words = u" \n"_s;
    for (char16_t letter = u'a'; letter <= u'z'; ++letter)
        in_words += QString(QChar(letter)) + QChar(letter).toUpper();
    return {in_words + u"0123456789"_s + lists[0], lists[1], lists[2]};
}

QStringList Cells(const QString& row)
{
    QStringList cells = row.split(u'|');
    for (QString& cell : cells)
        cell = cell.trimmed();
    return cells.size() < 3 ? QStringList()
                            : cells.mid(2, cells.size() - 3); // without what is before and behind, and the head
}

Written_Lists Lists_In_The_Guide()
{
    const QString lists = Guide_On_Characters().replace(QRegularExpression(u"```\n([^`]*)```"_s), u"<tt>\\1</tt>"_s);
    return Lists_Between(lists, u"<tt>"_s, u"</tt>"_s);
}

Written_Lists Lists_In_The_Help_Window()
{
    QXmlStreamReader reader(Source("src/windows/main/Help_Wnd.ui"));
    QString html;
    while (html.isEmpty() && reader.readNext() != QXmlStreamReader::EndDocument && !reader.hasError()) {
        if (reader.isStartElement() && reader.attributes().value(u"name"_s) == u"html"_s &&
            reader.readNextStartElement())
            html = reader.readElementText();
    }
    Written_Lists lists = Lists_Between(html, u"<tt>"_s, u"</tt>"_s);
    lists.everywhere.replace(u"&lt;"_s, u"<"_s).replace(u"&gt;"_s, u">"_s).replace(u"&amp;"_s, u"&"_s);
    return lists;
}

std::vector<Typed_And_Shown> Changes_In_The_Guide(const QString& second_row)
{
    const QStringList lines = Guide_On_Characters().split(u'\n');
    std::vector<Typed_And_Shown> changes;
    for (qsizetype line = 2; line < lines.size(); ++line) {
        if (!lines.at(line).startsWith(u"| "_s + second_row))
            continue;
        const QStringList typed = Cells(lines.at(line - 2));
        const QStringList shown = Cells(lines.at(line));
        EXPECT_EQ(typed.size(), shown.size());
        for (qsizetype column = 0; column < std::min(typed.size(), shown.size()); ++column)
            changes.push_back({typed.at(column), shown.at(column)});
    }
    EXPECT_FALSE(changes.empty());
    return changes;
}

// The frame as the phone understands it; a malformed one fails the test.
Handset::Submit_Frame Received(const QString& pdu)
{
    const Handset::Submit_Result result = Handset::Decode_Submit(pdu.toStdString());
    EXPECT_TRUE(result.m_frame.has_value()) << result.m_reason << ": " << pdu.toStdString();
    return result.m_frame.value_or(Handset::Submit_Frame());
}

QString Shown_Single(const QString& typed, bool unicode = false)
{
    return QString::fromStdString(Received(Single(typed, {.unicode = unicode})).Text());
}

// Parts joined as a handset joins them: by their units, so that what a cut took apart is whole again.
QString Shown_Long(const QString& typed, bool unicode = false)
{
    const qsizetype in_a_part = unicode ? 66 : 152;
    const int total = static_cast<int>((typed.size() + in_a_part - 1) / in_a_part);
    Handset::Coding_Scheme coding;
    std::vector<std::uint8_t> units;
    for (int part = 1; part <= total; ++part) {
        const Handset::Submit_Frame frame = Received(Part(typed, total, part, {.unicode = unicode}));
        const Handset::Concatenation concatenation = frame.m_concatenation.value_or(Handset::Concatenation());
        EXPECT_TRUE(frame.m_concatenation.has_value() && concatenation.m_wide);
        EXPECT_EQ(concatenation.m_reference, 0);
        EXPECT_EQ(concatenation.m_parts, total);
        EXPECT_EQ(concatenation.m_part, part);
        coding = frame.m_coding;
        units.insert(units.end(), frame.m_units.begin(), frame.m_units.end());
    }
    return QString::fromStdString(Handset::Shown_Text(coding.m_alphabet, units));
}

void Expect_Shown(QString (*show)(const QString&, bool), const std::vector<Typed_And_Shown>& rows)
{
    for (const Typed_And_Shown& row : rows)
        EXPECT_EQ(show(row.typed, false), row.shown) << row.typed.toStdString();
}

// Letters and digits, which every alphabet here leaves as they are.
QString Plain_Text(qsizetype length)
{
    const QString letters = u"The quick brown fox jumps over the lazy dog 0123456789.\n"_s;
    return letters.repeated(length / letters.size() + 1).first(length);
}

} // namespace

TEST(Round_Trip, A_Short_Messages_Characters_Are_Shown_As_This_Table_Says)
{
    const QString as_typed = u"@£$¥èéìòÇØøÅåΔ_ΦΓ^ΩΠΨΣΘΞÆæßÉ!#¤%&{}*+,-.\\:;[=]~?|ÄÖÑÜ§äñüà"
                             "ABCXYZabcxyz0123456789 \n\r\"'()/<>"_s;
    for (const QChar character : as_typed)
        EXPECT_EQ(Shown_Single(QString(character)), QString(character));
    EXPECT_EQ(Shown_Single(as_typed), as_typed);

    Expect_Shown(
        Shown_Single,
        {{u"ú"_s, u"ù"_s}, {u"“"_s, u"\""_s}, {u"‘"_s, u"'"_s}, {u"¡"_s, u"@"_s}, {u"¿"_s, u"€"_s}, {u"ö"_s, u"¡"_s}});
    // Without a row in the alphabet. Of a lambda the low seven bits are the escape code.
    Expect_Shown(Shown_Single,
                 {{u"`"_s, u"¿"_s},  {u"€"_s, u","_s},       {u"ù"_s, u"y"_s},           {u"\f"_s, u"ø"_s},
                  {u"\t"_s, u"Ç"_s}, {QChar(u'\0'), u"@"_s}, {u"\x7F"_s, u"à"_s},        {u"Λ"_s, u" "_s},
                  {u"Λe"_s, u"€"_s}, {u"”"_s, u"æ"_s},       {u"’"_s, u"Θ"_s},           {u"á"_s, u"a"_s},
                  {u"â"_s, u"b"_s},  {u"ç"_s, u"g"_s},       {u"ê"_s, u"j"_s},           {u"í"_s, u"m"_s},
                  {u"ó"_s, u"s"_s},  {u"À"_s, u"¡"_s},       {u"ŀ"_s, u"@"_s},           {u"ż"_s, u"¡"_s},
                  {u"中"_s, u"-"_s}, {u"Ж"_s, u"Π"_s},       {u"\U0001F600"_s, u"=@"_s}, {QChar(0xD83D), u"="_s}});
}

TEST(Round_Trip, A_Long_Messages_Characters_Are_Shown_As_This_Table_Says)
{
    for (const QChar character : u"@!\"#%&'()*+,-./0123456789:;<=>?ABCXYZabcxyz \n\r"_s)
        EXPECT_EQ(Shown_Long(QString(character)), QString(character));
    Expect_Shown(Shown_Long, {{u"$"_s, u"¤"_s}, {u"["_s, u"Ä"_s}, {u"\\"_s, u"Ö"_s}, {u"]"_s, u"Ñ"_s}, {u"^"_s, u"Ü"_s},
                              {u"_"_s, u"§"_s}, {u"`"_s, u"¿"_s}, {u"{"_s, u"ä"_s},  {u"|"_s, u"¡"_s}, {u"}"_s, u"ñ"_s},
                              {u"~"_s, u"ü"_s}, {u"£"_s, u"#"_s}, {u"¡"_s, u"!"_s},  {u"¿"_s, u"?"_s}, {u"Ä"_s, u"D"_s},
                              {u"ß"_s, u"§"_s}, {u"à"_s, u"¿"_s}, {u"ä"_s, u"d"_s},  {u"è"_s, u"h"_s}, {u"é"_s, u"i"_s},
                              {u"ö"_s, u"v"_s}, {u"ü"_s, u"ö"_s}, {u"Ω"_s, u")"_s},  {u"€"_s, u","_s}, {u"ŀ"_s, u"¡"_s},
                              {u"ż"_s, u"ö"_s}, {u"中"_s, u"-"_s}});
}

TEST(Round_Trip, Ucs2_Shows_Everything_As_Typed_But_Half_A_Pair)
{
    const QString typed = u"@|¡¿öù€Λ`中Жש\U0001F600\n[]{}"_s;
    EXPECT_EQ(Shown_Single(typed, true), typed);
    EXPECT_EQ(Shown_Long(typed, true), typed);
    EXPECT_EQ(Shown_Single(u"a"_s + QChar(0xD83D) + u"b"_s, true), u"a\uFFFDb"_s);
    EXPECT_EQ(Shown_Single(u"a"_s + QChar(0xDE00), true), u"a\uFFFD"_s);
    const QString cut_in_two = Plain_Text(65) + u"\U0001F600 and on"_s; // by the end of a part, and joined again
    EXPECT_EQ(Shown_Long(cut_in_two, true), cut_in_two);
}

TEST(Round_Trip, Single_Messages_Of_Every_Length_Are_Shown_As_Typed)
{
    for (qsizetype length = 0; length <= 160; ++length)
        EXPECT_EQ(Shown_Single(Plain_Text(length)), Plain_Text(length)) << length;
    for (qsizetype length = 0; length <= 70; ++length)
        EXPECT_EQ(Shown_Single(Plain_Text(length), true), Plain_Text(length)) << length;
}

TEST(Round_Trip, Long_Messages_Of_Every_Length_Are_Shown_As_Typed_But_For_The_Trailing_At)
{
    for (qsizetype length = 1; length <= 1600; ++length) {
        const bool one_too_many = length % 152 % 8 == 7;
        ASSERT_EQ(Shown_Long(Plain_Text(length)), Plain_Text(length) + (one_too_many ? u"@"_s : QString())) << length;
        ASSERT_EQ(Shown_Long(Plain_Text(length), true), Plain_Text(length)) << length;
    }
}

TEST(Round_Trip, Every_Field_Arrives_As_It_Was_Given)
{
    for (const QString& smsc : {QString(), u"05550009999"_s, u"+15550009999"_s}) {
        for (const QString& to : {u"1"_s, u"0123456789"_s, u"0015550001234"_s, u"+15550001234"_s}) {
            for (int flags = 0; flags < 4; ++flags) {
                const bool flash = (flags & 1) != 0;
                const bool unicode = (flags & 2) != 0;
                const QString text = Single(u"Hello"_s, {to, smsc, flash, unicode});
                const Handset::Submit_Frame frame = Received(text);
                EXPECT_EQ(QString::fromStdString(frame.m_smsc), smsc);
                EXPECT_EQ(QString::fromStdString(frame.m_number), to);
                EXPECT_EQ(QString::fromStdString(frame.Text()), u"Hello"_s);
                EXPECT_EQ(frame.m_coding.m_class, flash ? 0 : -1);
                EXPECT_EQ(frame.m_coding.m_alphabet, unicode ? Handset::Alphabet::Ucs2 : Handset::Alphabet::Gsm_7_Bit);
                EXPECT_EQ(frame.m_validity, std::vector<std::uint8_t>{0xFF});
                EXPECT_EQ(frame.m_protocol, 0);
                EXPECT_EQ(frame.m_message_reference, 0);
                EXPECT_EQ(static_cast<qsizetype>(frame.m_tpdu_octets), Measured(text, smsc));
            }
        }
    }
}

TEST(Round_Trip, The_Guide_And_The_Help_Window_List_The_Same_Characters)
{
    const Written_Lists guide = Lists_In_The_Guide();
    const Written_Lists help = Lists_In_The_Help_Window();
    EXPECT_EQ(guide.everywhere, help.everywhere);
    EXPECT_EQ(guide.but_for_text_mode, help.but_for_text_mode);
    EXPECT_EQ(guide.in_a_short_text, help.in_a_short_text);
}

TEST(Round_Trip, A_Short_Text_Changes_Exactly_The_Characters_That_The_Guide_Does_Not_List)
{
    const Written_Lists guide = Lists_In_The_Guide();
    const QString listed = guide.everywhere + guide.but_for_text_mode + guide.in_a_short_text;
    EXPECT_EQ(Shown_Single(listed), listed);
    for (char16_t unit = u' '; unit < 0xD800; ++unit) // to where the halves of pairs begin
        EXPECT_EQ(Shown_Single(QString(QChar(unit))) == QChar(unit), listed.contains(QChar(unit))) << int{unit};
    Expect_Shown(Shown_Single, Changes_In_The_Guide(u"a short text shows"_s));
}

TEST(Round_Trip, A_Longer_Text_Changes_Exactly_The_Characters_That_The_Guide_Says)
{
    const Written_Lists guide = Lists_In_The_Guide();
    const QString listed = guide.everywhere + guide.but_for_text_mode;
    EXPECT_EQ(Shown_Long(listed.repeated(4)), listed.repeated(4));
    for (char16_t unit = u' '; unit < 0xD800; ++unit)
        EXPECT_EQ(Shown_Long(QString(QChar(unit))) == QChar(unit), listed.contains(QChar(unit))) << int{unit};
    Expect_Shown(Shown_Long, Changes_In_The_Guide(u"a longer text shows"_s));
}

// In text mode a message's UTF-8 octets go out as they are. A device reads them as ASCII or as the alphabet's codes.
TEST(Round_Trip, Every_Device_With_Text_Mode_Alone_Reads_The_First_List_As_It_Is_Written)
{
    const Written_Lists guide = Lists_In_The_Guide();
    for (const QChar character : guide.everywhere) {
        const auto octet = static_cast<std::uint8_t>(character.unicode());
        ASSERT_LT(character.unicode(), 0x80);
        EXPECT_EQ(Handset::Text_Of_Septets({octet}), std::string(1, static_cast<char>(octet)));
    }
    for (const QChar character : guide.but_for_text_mode + guide.in_a_short_text) {
        std::vector<std::uint8_t> octets;
        for (const char octet : QString(character).toUtf8())
            octets.push_back(static_cast<std::uint8_t>(octet) & 0x7F);
        EXPECT_NE(Handset::Text_Of_Septets(octets), QString(character).toStdString());
    }
}

TEST(Round_Trip, What_The_Guide_Calls_A_Short_Text_Goes_As_One_To_The_Longest_Number)
{
    for (const QString& text : {Plain_Text(150), QString(75, u'['), QString(50, u'|') + QString(50, u'x')})
        EXPECT_LT(Measured(Single(text, {.to = QString(20, u'1')})), Too_Long_For_One) << text.toStdString();
}
