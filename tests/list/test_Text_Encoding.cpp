#include "list/Shown_Table.h"
#include "list/Text_Encoding.h"

#include <QStringEncoder>
#include <gtest/gtest.h>

namespace {

const QString Sample = QStringLiteral("Name;Tel\nM\u00FCller;0170\nS\u00F8ren \u20AC;0171\n");

struct Encoded_Text
{
    const char* encoding;
    const char* mark = "";
    const char* guessed = nullptr; ///< where another name stands for it
};

class Encodings : public testing::TestWithParam<Encoded_Text>
{
protected:
    static QByteArray Encoded()
    {
        QStringEncoder encoder(GetParam().encoding, QStringConverter::Flag::Stateless);
        return QByteArray::fromHex(GetParam().mark) + QByteArray(encoder.encode(Sample));
    }
};

struct Spoilt_Text
{
    const char* name;
    QByteArray bytes;
    const char* words;
    const char* encoding = "";
};

void PrintTo(const Spoilt_Text& text, std::ostream* out)
{
    *out << text.name;
}

class Spoilt_Texts : public testing::TestWithParam<Spoilt_Text>
{
};

} // namespace

TEST_P(Encodings, Are_Guessed_And_Read)
{
    const auto file = Table_Of_Bytes(Encoded(), QStringLiteral("a.csv"), {});
    EXPECT_EQ(file.facts.encoding, GetParam().encoding);
    EXPECT_EQ(Shown(file), QStringLiteral("Name|Tel/M\u00FCller|0170/S\u00F8ren \u20AC|0171").toStdString());
}

INSTANTIATE_TEST_SUITE_P(Texts, Encodings,
                         testing::Values(Encoded_Text{"UTF-8"}, Encoded_Text{"UTF-8", "EFBBBF"},
                                         Encoded_Text{"UTF-16LE"}, Encoded_Text{"UTF-16LE", "FFFE"},
                                         Encoded_Text{"UTF-16BE"}, Encoded_Text{"UTF-16BE", "FEFF"},
                                         Encoded_Text{"UTF-32LE", "FFFE0000"}, Encoded_Text{"UTF-32BE", "0000FEFF"},
                                         Encoded_Text{"windows-1252"}));

TEST(Text_Encoding, That_The_Bytes_Do_Not_Tell_Is_The_Usual_One_Of_The_Language)
{
    const struct
    {
        const char* locale;
        const char* encoding;
        QString text;
    } cases[] = {
        {"pl_PL", "windows-1250", QStringLiteral("\u0141ukasz \u017B\u00F3\u0142\u0107")},
        {"cs_CZ", "windows-1250", QStringLiteral("Ji\u0159\u00ED \u017Dert")},
        {"sr_Latn_RS", "windows-1250", QStringLiteral("\u0110or\u0111e")},
        {"sr_RS", "windows-1251", QStringLiteral("\u0402\u043E\u0440\u0452\u0435")},
        {"ru_RU", "windows-1251", QStringLiteral("\u0410\u043D\u043D\u0430")},
        {"el_GR", "windows-1253", QStringLiteral("\u0391\u03B8\u03AE\u03BD\u03B1")},
        {"tr_TR", "windows-1254", QStringLiteral("\u015Eeyma Y\u0131ld\u0131z")},
        {"lt_LT", "windows-1257", QStringLiteral("\u017Dydr\u016Bn\u0117")},
        {"ja_JP", "Shift_JIS", QStringLiteral("\u5C71\u7530")},
        {"de_DE", "windows-1252", QStringLiteral("J\u00F6rg")},
        {"C", "windows-1252", QStringLiteral("Ren\u00E9")},
    };
    for (const auto& one : cases) {
        const QString usual = Usual_Encoding(QLocale(QLatin1String(one.locale)));
        EXPECT_EQ(usual, one.encoding) << one.locale;
        QStringEncoder encoder(one.encoding, QStringConverter::Flag::Stateless);
        const QByteArray bytes = "Name;Tel\n" + QByteArray(encoder.encode(one.text)) + ";1\n";
        Table_Choices choices;
        choices.usual_encoding = usual;
        const auto file = Table_Of_Bytes(bytes, {}, choices);
        EXPECT_EQ(file.facts.encoding, one.encoding);
        EXPECT_FALSE(file.facts.encoding_is_told);
        EXPECT_EQ(Shown(file), "Name|Tel/" + one.text.toStdString() + "|1");
    }
}

TEST(Text_Encoding, What_Does_Not_Fit_The_Usual_One_Or_Tells_Its_Own_Is_Not_Read_In_It)
{
    EXPECT_EQ(Guess_Encoding("A;B\nJ\xF6rg;1\n", "Shift_JIS").name, "windows-1252");
    EXPECT_EQ(Guess_Encoding("A;B\nJ\xF6rg;1\n", "klingon").name, "windows-1252");
    const auto utf8 = Guess_Encoding("A;B\nJ\xC3\xB6rg;1\n", "windows-1250");
    EXPECT_EQ(utf8.name, "UTF-8");
    EXPECT_TRUE(utf8.is_told);
    EXPECT_TRUE(Table_Of_Bytes("A;B\nJ\xF6rg;1\n", {}, {"windows-1250", {}, 0}).facts.encoding_is_told);
}

TEST(Text_Encoding, Is_Taken_As_Given)
{
    const QByteArray greek = "Name;Tel\n\xC1\xE8\xDE\xED\xE1;1\n";
    EXPECT_EQ(Shown(Table_Of_Bytes(greek, {}, {"ISO-8859-7", {}, 0})),
              QStringLiteral("Name|Tel/\u0391\u03B8\u03AE\u03BD\u03B1|1").toStdString());
    EXPECT_EQ(Shown(Table_Of_Bytes("A;B\n\xFC;1\n", {}, {"latin1", {}, 0})), "A|B/\xC3\xBC|1");
    EXPECT_EQ(Shown(Table_Of_Bytes("A;B\n\x80;1\n", {}, {"cp1252", {}, 0})), "A|B/\xE2\x82\xAC|1");
    EXPECT_EQ(Shown(Table_Of_Bytes("\xEF\xBB\xBF"
                                   "A;B\n1;2\n",
                                   {}, {"utf-8", {}, 0})),
              "A|B/1|2");
}

TEST(Text_Encoding, A_French_Text_In_Capitals_Is_No_Mixture)
{
    const auto guess = Guess_Encoding("Nom;Tel\n\xAB"
                                      "CAF\xC9\xBB;1\n\xE9\xE8\xEA\xE0\xE9\xE8\xEA\xE0\xE9\xE8\xEA\xE0;2\n");
    EXPECT_EQ(guess.name, "windows-1252") << guess.trouble.toStdString();
}

TEST_P(Spoilt_Texts, Are_Refused_In_Words)
{
    EXPECT_EQ(Shown(Table_Of_Bytes(GetParam().bytes, QStringLiteral("a.csv"), {GetParam().encoding, {}, 0})),
              GetParam().words);
}

INSTANTIATE_TEST_SUITE_P(
    Texts, Spoilt_Texts,
    testing::Values(
        Spoilt_Text{"two encodings", "A;B\nM\xC3\xBCller;1\nM\xFCller;2\n",
                    "it mixes UTF-8 with another encoding; line 3 is not UTF-8"},
        Spoilt_Text{"UTF-8 that is none", "A;B\nM\xFCller;1\n", "it is not encoded in UTF-8", "UTF-8"},
        Spoilt_Text{"an encoding that is none", "A;B\n1;2\n", "the encoding \"klingon\" is not known", "klingon"},
        Spoilt_Text{"half a pair of UTF-16",
                    QByteArray("\xFF\xFE"
                               "A\0\n\0\x01\xD8\n\0",
                               10),
                    "it is not encoded in UTF-16LE"},
        Spoilt_Text{"half a character of UTF-16",
                    QByteArray("\xFF\xFE"
                               "A\0\n\0x",
                               7),
                    "it is not encoded in UTF-16LE"},
        Spoilt_Text{"a zero", QByteArray("A;B\n1;\0\n", 8), "it is no text: line 2 holds characters that no list has"},
        Spoilt_Text{"control characters", "A;B\n1;2\n\x01\xFF\xFE\n",
                    "it is no text: line 3 holds characters that no list has"},
        Spoilt_Text{"a program",
                    QByteArray("\x7F"
                               "ELF\x02\x01\x01\0\0",
                               9),
                    "it is a program, and no list"},
        Spoilt_Text{"another program", QByteArray("MZ\x90\0\x03\0", 6), "it is a program, and no list"},
        Spoilt_Text{"a PDF document", "%PDF-1.7\n", "it is a PDF document, and no list"},
        Spoilt_Text{"a picture", "\x89PNG\r\n\x1A\n", "it is a picture, and no list"},
        Spoilt_Text{"rich text", "{\\rtf1 Phone\\par}",
                    "it is rich text; its numbers can be imported under a name that ends in .rtf"},
        Spoilt_Text{"a web page", "<html><table><tr><td>1", "it is a web page, and no list"},
        Spoilt_Text{"XML", "<?xml version=\"1.0\"?><list/>", "it is an XML document, and no list"},
        Spoilt_Text{"something compressed", QByteArray("\x1F\x8B\x08\0", 4), "it is a compressed file, and no list"}));
