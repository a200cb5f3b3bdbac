#include "platform/Rich_Text.h"
#include "platform/Text_Files.h"

#include <QDir>
#include <QRegularExpression>
#include <gtest/gtest.h>
#include <random>

namespace {

// Of word processors, two converters, and a desktop's text classes, with what each shows beside it.
const QDir Documents(QStringLiteral(CORVANE_TEST_DATA "/rich_text"));

QStringList Document_Names()
{
    return Documents.entryList({"*.rtf"}, QDir::Files, QDir::Name);
}

QByteArray Document(const QString& name)
{
    return Read_File(Documents.filePath(name)).value_or(QByteArray());
}

QString Shown(const QString& name)
{
    return Read_Utf8_File(Documents.filePath(QString(name).replace(".rtf", ".txt"))).value_or(QString());
}

/// The text of a document, for comparing with text in UTF-8; below, of one with this body.
std::string Plain(const QByteArray& document)
{
    return Plain_Text_Of_Rich_Text(document).toStdString();
}

std::string Text_Of(const QByteArray& body, const QByteArray& head = "{\\rtf1\\ansi ")
{
    return Plain(head + body + '}');
}

/// A document of one body: the head, then the piece as often as it takes to fill that many bytes.
QByteArray Filled(const QByteArray& head, const QByteArray& piece, qsizetype size)
{
    return head + piece.repeated(size / piece.size());
}

void Expect_All(std::initializer_list<std::pair<const char*, const char*>> bodies_and_texts)
{
    for (const auto& [body, text] : bodies_and_texts)
        EXPECT_EQ(Text_Of(body), text) << body;
}

} // namespace

TEST(Rich_Text, The_Documents_Of_Five_Programs_Give_What_They_Show_And_Cut_Off_What_Stands_Before_The_Cut)
{
    const QStringList names = Document_Names();
    ASSERT_EQ(names.size(), 8);
    for (const QString& name : names) {
        const QByteArray document = Document(name);
        const QString whole = Shown(name);
        ASSERT_FALSE(whole.isEmpty()) << name.toStdString();
        EXPECT_EQ(Plain_Text_Of_Rich_Text(document), whole) << name.toStdString();
        for (qsizetype size = 5; size < document.size(); ++size) {
            QString text = Plain_Text_Of_Rich_Text(document.left(size));
            text.chop(1); // the cut may have gone through its last character
            ASSERT_TRUE(whole.startsWith(text)) << name.toStdString() << " at " << size;
        }
    }
}

TEST(Rich_Text, A_Real_Document_Reads_The_Same_From_Its_Code_Page_Alone)
{
    const QString name = "libreoffice_windows_1251.rtf";
    const QByteArray document = Document(name);
    // Every character is in the file twice, as Unicode and as the byte for older readers: take the first away.
    const QString older = QString::fromLatin1(document).remove(QRegularExpression("\\\\u\\d+"));
    ASSERT_LT(older.size(), document.size() - 100);
    EXPECT_EQ(Plain_Text_Of_Rich_Text(older.toLatin1()), Shown(name));
}

TEST(Rich_Text, Paragraphs_Lines_And_Cells_End_A_Line)
{
    Expect_All({
        {"1\\par 2\\line 3\\row 4\\sect 5\\page 6", "1\n2\n3\n4\n5\n6"},
        {"1\\par\\par\n2", "1\n\n2"},
        {"1\\\n2\\\r\n3\\\r4", "1\n2\n3\n4"},
        {"1\n2\r\n3", "123"},
        {"\\trowd 1\\cell 2\\cell\\row 3\\cell\\row", "1\n2\n3\n"},
        {"1\\cell\\cell\\row\\row 2\\par 3\\cell 4\\row 5", "1\n\n2\n3\n4\n5"},
        {"1{\\nestcell 2\\nestcell{\\*\\nesttableprops\\nestrow}{\\nonesttables\\par}}3\\cell\\row", "1\n2\n3\n"},
        {"\\u8364\\cell 1", "€\n1"},
        {"1\\tab 2\\\t3\t4", "1\t2\t3\t4"},
        {"1\\pard 2\\pararsid7 3\\PAR 4", "1234"},
    });
}

TEST(Rich_Text, Symbols_And_Words_For_Characters_Are_Those_Characters)
{
    Expect_All({
        {"+44\\_7700\\-900\\~123", "+44-7700900\u00A0123"},
        {"\\{a\\}\\\\b", "{a}\\b"},
        {"\\emdash\\endash\\bullet\\lquote\\rquote\\ldblquote\\rdblquote", "—–•‘’“”"},
        {"\\emdash  x\\bullet-1", "— x•"},
        {"a\\emspace b\\enspace c\\qmspace d", "a\u2003b\u2002c\u2005d"},
        {"a\\ltrmark\\rtlmark\\zwj\\zwnj b", "a\u200E\u200F\u200D\u200Cb"},
        {"a\\:b\\|c\\;d", "abcd"},
        {"1\\b\\b0 2{\\i 3}{\\fs24\\cf1 4}\\lang-1 5", "12345"},
    });
}

TEST(Rich_Text, Bytes_Are_Read_In_The_Code_Page_Of_The_Document)
{
    EXPECT_EQ(Text_Of("\\'e9\\'80\\'FC"), "é€ü");
    EXPECT_EQ(Text_Of("\\'cf\\'f0\\'e8\\'e2\\'e5\\'f2 1", "{\\rtf1\\ansi\\ansicpg1251 "), "Привет 1");
    EXPECT_EQ(Text_Of("\xCF\xF0\xE8 1", "{\\rtf1\\ansi\\ansicpg1251 "), "При 1") << "bytes as they are";
    EXPECT_EQ(Text_Of("\\'8e", "{\\rtf1\\mac "), "é");
    EXPECT_EQ(Text_Of("\\'82", "{\\rtf1\\pc "), "é");
    EXPECT_EQ(Text_Of("\\'82\\'d5", "{\\rtf1\\pca "), "éı");
    EXPECT_EQ(Text_Of("\\'c3\\'a9 \\'f0\\'9f\\'98\\'80", "{\\rtf1\\ansicpg65001 "), "é 😀");
    EXPECT_EQ(Text_Of("\\'c3 \\'a9", "{\\rtf1\\ansicpg65001 "), "\uFFFD \uFFFD") << "not one character";
    EXPECT_EQ(Text_Of("\\'e9", "{\\rtf1\\ansicpg4711 "), "é") << "a code page nobody knows";
    EXPECT_EQ(Text_Of("\\'e9", "{\\rtf1\\ansicpg0 "), "é");
    EXPECT_EQ(Text_Of("\\'e9", "{\\rtf1\\ansicpg-99999999999 "), "é");
}

TEST(Rich_Text, Characters_Of_Several_Bytes_Are_Put_Together)
{
    const QByteArray japanese = "{\\rtf1\\ansi\\ansicpg932 ";
    EXPECT_EQ(Text_Of("\\'93\\'fa\\'96\\'7b", japanese), "日本") << "the second half of the second is a brace";
    EXPECT_EQ(Text_Of("\\'83\\\\\\'83A\\'83\\'41", japanese), "ソアア") << "second halves that are ASCII";
    EXPECT_EQ(Text_Of("\\'93\r\n\\'fa7", japanese), "日7") << "a line of the file ends between the halves";
    EXPECT_EQ(Text_Of("1\\'93", japanese), "1\uFFFD") << "the document ends between them";
    EXPECT_EQ(Text_Of("\\'93\\par 1", japanese), "\uFFFD\n1");
    EXPECT_EQ(Text_Of("\\'b1\\'b2 12", japanese), "ｱｲ 12") << "half-width ones are one byte each";
    EXPECT_EQ(Text_Of("\\'c4\\'e3\\'ba\\'c3", "{\\rtf1\\ansi\\ansicpg936 "), "你好");
    EXPECT_EQ(Text_Of("\\'a7\\'41\\'a6\\'6e", "{\\rtf1\\ansi\\ansicpg950 "), "你好");
    EXPECT_EQ(Text_Of("\\'be\\'c8", "{\\rtf1\\ansi\\ansicpg949 "), "안");
}

TEST(Rich_Text, The_Character_Set_Of_The_Font_Comes_Before_That_Of_The_Document)
{
    const QByteArray head = "{\\rtf1\\ansi\\ansicpg1252\\deff3{\\fonttbl{\\f0\\froman\\fcharset0 Roman;}"
                            "{\\f1\\fnil\\fcharset204{\\*\\fname x;}Kyr;}\\f2\\fcharset128 Gothic;"
                            "{\\f3\\fcharset161 Greek;}{\\f4\\cpg1250 East;}}";
    EXPECT_EQ(Text_Of("\\'e1", head), "α") << "the default font";
    EXPECT_EQ(Text_Of("\\f0\\'e1\\f1\\'e1\\f4\\'b9", head), "áбą");
    EXPECT_EQ(Text_Of("{\\f1\\'e1{\\f0\\'e1}\\'e1}\\'e1", head), "бáбα") << "the end of a group brings a font back";
    EXPECT_EQ(Text_Of("\\f1\\'e1\\plain\\'e1", head), "бα");
    EXPECT_EQ(Text_Of("\\f2\\'93\\'fa\\f77\\'e1", head), "日á") << "a font that the table lacks";
    EXPECT_EQ(Text_Of("\\f2\\'93\\f1\\'e1", head), "\uFFFDб") << "half a character, then another font";
}

TEST(Rich_Text, Unicode_Characters_Replace_Their_Fallback)
{
    Expect_All({
        {"\\u1055?\\u1088?1", "Пр1"},
        {"\\u8364\\'801", "€1"},
        {"\\uc0\\u8364\\u49 2", "€12"},
        {"\\uc2\\u26085\\'93\\'fa1", "日1"},
        {"\\uc3\\u8364 EUR1", "€1"},
        {"\\u-10179?\\u-8704?1", "😀1"},
        {"\\u55357?\\u56832?1", "😀1"},
        {"\\u128512?1", "😀1"},
        {"{\\uc0 {\\uc2\\u8364 ab}\\u8364 1}\\u8364 x2", "€€1€2"},
        {"{\\u8364}1\\u8364{2}3", "€1€23"},
        {"\\u8364\\~1\\u8364\\bullet 2\\u8364\\{3", "€1€2€3"},
        {"\\u8364\n?1", "€1"},
        {"\\u8364\\b ?1", "€1"},
        {"\\u8364\\par 1", "€\n1"},
        {"\\u 1\\u99999999999 ?2", "1\uFFFD2"},
        {"\\uc-5\\u8364 1\\uc99999999999\\u8364 2", "€1€"},
    });
}

TEST(Rich_Text, What_Is_No_Text_Of_The_Document_Or_Not_Shown_Is_Passed_Over)
{
    Expect_All({
        {"1{\\*\\generator Some;}2{\\*\\unheard{{\\b of}\\u8364 ?}}3", "123"},
        {"{\\colortbl;\\red255;}{\\stylesheet{\\s0 Normal;}{\\s1 Next;}}1", "1"},
        {"{\\info{\\title T}{\\author A}}{\\header h\\par}{\\footerf f}1{\\footnote n}2", "12"},
        {"{\\pict\\pngblip\n89504e47}{\\*\\shppict{\\pict 00}}{\\nonshppict{\\pict 00}}1", "1"},
        {"{\\field{\\*\\fldinst HYPERLINK \"tel:999\"}{\\fldrslt 123}}", "123"},
        {"{\\field{\\fldinst PAGE}{\\fldrslt{\\b 4}}}", "4"},
        {"{\\listtext\\tab 1.\\tab}+44{\\pntext 2.}", "+44"},
        {"{\\object{\\*\\objdata 0102}{\\result 5}}", "5"},
        {"1{\\pict\\bin5 }}}}}2}3", "13"},
        {"1\\bin3 \\}{2\\bin-4 3\\bin0 4", "1234"},
        {"1\\info 2\\*3", "123"},
        {"1{\\v 2}3", "13"},
        {"1\\v 2\\v0 3\\v1 4\\b 5\\plain 6", "136"},
        {"1{\\v 2{\\b 3{\\v0 4}5}}6", "146"},
        {"1\\v{2}\\v0{3\\v 4}5", "135"},
        {"1{\\deleted\\revauthdel1 2}3\\deleted 4\\deleted0 5", "135"},
        {"{\\v\\deleted 1\\v0 2\\deleted0 3}", "3"},
        {"1{\\v\\'e9\\u8364 ?\\emdash\\~\\{\\line\\tab 2}3", "13"},
        {"{\\v\\u8364}12{\\v\\u8364 ?}{\\u8364 ?}3", "12€3"},
        {"1\\par{\\v 2\\par}3\\par", "1\n3\n"},
        {"1\\cell{\\v 2\\cell}3\\cell{\\v 4\\row}5", "1\n\n3\n5"},
        {"1{\\*\\atnid A}{\\*\\atnauthor B}\\chatn{\\*\\annotation{\\*\\atndate 5}7}2", "12"},
        {"1{\\atnid A}{\\atnauthor B}{\\annotation{\\atndate 5}7}2{\\bkmkstart 8}{\\bkmkend 8}", "12"},
        {"1{\\*\\bkmkstart 2}3{\\*\\bkmkend 2}{\\aftnsep 4\\par}", "13"},
        {"1\\viewkind4 2\\vertalt 3\\deletedx 4", "1234"},
    });
}

TEST(Rich_Text, Damage_Costs_What_Stands_Behind_It_And_Nothing_Before)
{
    const QByteArray ends =
        ",\\,\\',\\'4,\\'zz,{,{{{{\\b,{\\*,{\\pict 00,\\bin99999 x,\\bin9999999999999999999 x,}}}}}{\\b 4,"
        "\\u,\\u-,\\uc,{\\fonttbl{\\f,\\\xFF,\\ansicpg,}\\par 8,\\bin2 88,{\\info 8";
    for (const QByteArray& end : ends.split(',')) {
        const QString text = Plain_Text_Of_Rich_Text(QByteArray("{\\rtf1 07700900123\\par ") + end);
        EXPECT_TRUE(text.startsWith("07700900123\n")) << end.data();
        EXPECT_FALSE(text.contains(u'8')) << end.data();
    }
    EXPECT_EQ(Text_Of("1\\'zz2"), "1zz2");
    EXPECT_EQ(Plain(QByteArray("{\\rtf1 a\0b}", 11)), "ab") << "a NUL is nothing";
    EXPECT_EQ(Plain("{\\rtf1 1}2{\\b 3}"), "1") << "what follows the document";
    EXPECT_EQ(Plain("{\\rtf"), "");
}

TEST(Rich_Text, What_Is_No_Rich_Text_Is_Read_As_Utf8)
{
    EXPECT_EQ(Plain("+441\r\n+442\n"), "+441\r\n+442\n");
    EXPECT_EQ(Plain("Привет\n1"), "Привет\n1");
    EXPECT_EQ(Plain("1\xFF\n2"), "1\uFFFD\n2");
    EXPECT_EQ(Plain("\\par 1 {\\rtf1 2}"), "\\par 1 {\\rtf1 2}");
    EXPECT_EQ(Plain(QByteArray()), "");
    EXPECT_EQ(Plain(" \r\n"), " \r\n");
    EXPECT_EQ(Plain("\xEF\xBB\xBF\r\n {\\rtf1 1}"), "1") << "a mark and blanks before it";
}

TEST(Rich_Text, A_Million_Groups_And_More_Are_Read_Without_Going_Deeper)
{
    const qsizetype size = 16 << 20;
    EXPECT_EQ(Plain(Filled("{\\rtf1 1", "{", size)), "1");
    EXPECT_EQ(Plain(Filled("{\\rtf1 1", "{", size) + QByteArray(size, '}') + "2}3"), "12");
    EXPECT_EQ(Plain(Filled("{\\rtf1 1", "{\\*", size)), "1");
    EXPECT_EQ(Plain(Filled("{\\rtf1 1", "{\\f1\\uc0", size)), "1");
    EXPECT_EQ(Plain(Filled("{\\rtf1 1", "}{", size)), "1");
    EXPECT_EQ(Plain("{\\rtf1 1\\" + QByteArray(size, 'a') + " 2}"), "12");
    EXPECT_EQ(Plain("{\\rtf1 1\\b" + QByteArray(size, '9') + " 2}"), "12");
}

TEST(Rich_Text, Large_Documents_Are_Read_To_Their_End)
{
    const qsizetype size = 16 << 20;
    const QByteArray head = "{\\rtf1\\ansi\\ansicpg1251{\\fonttbl{\\f1\\fcharset204 A;}{\\f2\\fcharset128 B;}}";
    const auto length = [&](const QByteArray& piece) {
        return Plain_Text_Of_Rich_Text(Filled(head, piece, size) + '}').size() / (size / piece.size());
    };
    EXPECT_EQ(length("7"), 1) << "one line";
    EXPECT_EQ(length("\\pard\\plain +447700900123\\par\r\n"), 14);
    EXPECT_EQ(length("\\'cf\\'f0\\'e8"), 3);
    EXPECT_EQ(length("\\f1\\'cf\\f2\\'83A"), 2) << "from one code page to another all the time";
    EXPECT_EQ(length("\\u1055?"), 1);
    EXPECT_EQ(length("\\f2\\'ff\\'ff"), 2) << "bytes that are no characters";
}

TEST(Rich_Text, Random_Damage_Neither_Crashes_Nor_Adds_Text)
{
    std::mt19937 random(20240117); // NOLINT(bugprone-random-generator-seed): the same damage every time
    const auto below = [&](qsizetype limit) { return static_cast<qsizetype>(random() % static_cast<unsigned>(limit)); };
    const QByteArrayList pieces =
        QByteArray(
            "\\,{,},\\',\\'e9,\\u,\\u-1,\\uc9,\\bin7,{\\*,\\f1,\\fonttbl,\\par,\\ansicpg,932 ,65001,\xFF,\xC3,\\upr,"
            "\\fcharset,128,\\deff,\r\n,-99999999999,\\*,\\plain,\\cell")
            .split(',');
    qsizetype total = 0;
    for (const QString& name : Document_Names()) {
        const QByteArray document = Document(name);
        for (int round = 0; round < 400; ++round) {
            QByteArray damaged = document;
            for (qsizetype count = 1 + below(20); count > 0; --count) {
                const qsizetype at = 5 + below(damaged.size() - 5);
                const std::function<void()> damages[]{
                    [&] { damaged[at] = static_cast<char>(below(256)); }, [&] { damaged.remove(at, 1 + below(30)); },
                    [&] { damaged.insert(at, damaged.mid(below(damaged.size()), below(100))); },
                    [&] { damaged.insert(at, pieces.at(below(pieces.size()))); }};
                damages[below(4)]();
                damaged.replace(0, 5, "{\\rtf");
            }
            const QString text = Plain_Text_Of_Rich_Text(damaged);
            ASSERT_LE(text.size(), damaged.size()) << name.toStdString() << ' ' << round;
            total += text.size();
        }
    }
    EXPECT_GT(total, 10000) << "most damage leaves much to read";
    const QByteArray alphabet = "\\\\\\{}'*~_-uicfbnpar0123456789 \r\n\t\xE9\x93\xFA;A";
    for (int round = 0; round < 3000; ++round) {
        QByteArray document = "{\\rtf1";
        for (int i = 0; i < 500; ++i)
            document += alphabet.at(below(alphabet.size()));
        ASSERT_LE(Plain_Text_Of_Rich_Text(document).size(), document.size()) << round;
    }
}

TEST(Rich_Text, The_Extension_Is_Known_In_Any_Case_Of_Letters)
{
    for (const char* path : {"a.rtf", "/b/a.RTF", "a.b.Rtf", "/x.txt/a.rTf"})
        EXPECT_TRUE(Is_Rich_Text_Path(path)) << path;
    for (const char* path : {"", "rtf", "a.rtf.txt", "a.rtfd", "/a.rtf/b", "a.rtf ", "a.txt", "a."})
        EXPECT_FALSE(Is_Rich_Text_Path(path)) << path;
}
