#include "list/Number_Rules.h"
#include "list/Written_Number.h"

#include <gtest/gtest.h>

namespace {

struct Written
{
    const char* country; ///< empty for none
    const char* written;
    const char* number; ///< empty where it cannot be used
    Number_Reading reading;
};

void PrintTo(const Written& written, std::ostream* out)
{
    *out << written.country << " " << written.written;
}

class Written_Numbers : public testing::TestWithParam<Written>
{
};

using enum Number_Reading;

} // namespace

TEST_P(Written_Numbers, Are_Read)
{
    const QString written = QString::fromUtf8(GetParam().written);
    const Country* country = Country_With_Letters(QString::fromLatin1(GetParam().country));
    ASSERT_EQ(country != nullptr, *GetParam().country != '\0');
    const Read_Number read = Number_As_Written(written, country);
    EXPECT_EQ(read.number.toStdString(), GetParam().number);
    EXPECT_EQ(read.reading, GetParam().reading);
    EXPECT_EQ(Number_Rules::Normalised_Number(read.number), read.number);
    if (!read.number.isEmpty()) {
        EXPECT_EQ(Number_As_Written(read.number, country).number, read.number)
            << "it stays as it is when it is read again";
    } else {
        EXPECT_FALSE(Words_For_Reading(read.reading, country).isEmpty());
    }
}

INSTANTIATE_TEST_SUITE_P(International, Written_Numbers,
                         testing::Values(Written{"GB", "+447700900123", "00447700900123", International},
                                         Written{"GB", "00447700900123", "00447700900123", International},
                                         Written{"GB", "+44 (0)7700 900123", "00447700900123", International},
                                         Written{"GB", "0044 (0) 7700 900 123", "00447700900123", International},
                                         Written{"GB", "(+44) 7700-900-123", "00447700900123", International},
                                         Written{"DE", "+44 7700 900123", "00447700900123", International},
                                         Written{"DE", "+49 0170 1234567", "00491701234567", International},
                                         Written{"DE", "+39 0612345678", "00390612345678", International},
                                         Written{"US", "011 44 7700 900123", "00447700900123", International},
                                         Written{"AU", "0011 44 7700 900123", "00447700900123", International},
                                         Written{"KE", "000 44 7700 900123", "00447700900123", International},
                                         Written{"HK", "+1 212 555 0123", "0012125550123", International},
                                         Written{"RU", "8 10 44 7700 900123", "00447700900123", International},
                                         Written{"JP", "010-44-7700-900123", "00447700900123", International},
                                         Written{"DE", "+881 6 31234567", "00881631234567", International},
                                         Written{"GB", "tel:+44-7700-900-123", "00447700900123", International},
                                         Written{"GB", "TEL:+447700900123;ext=5", "00447700900123", International},
                                         Written{"GB", "\xEF\xBC\x8B\xEF\xBC\x94\xEF\xBC\x94 7700 900123",
                                                 "00447700900123", International}));

INSTANTIATE_TEST_SUITE_P(Found, Written_Numbers,
                         testing::Values(Written{"GB", "+44 (0(0 900123", "0044900123", International},
                                         Written{"HK", "001 44 7700 900123", "", Too_Long},
                                         Written{"GB", "+1 555 0123", "", Too_Short},
                                         Written{"AC", "993", "", Too_Short}));

INSTANTIATE_TEST_SUITE_P(
    National, Written_Numbers,
    testing::Values(Written{"GB", "07700 900123", "00447700900123", National},
                    Written{"uk", "07700.900.123", "00447700900123", National},
                    Written{"DE", "0170/1234567", "00491701234567", National},
                    Written{"DE", "(0170) 123 45 67", "00491701234567", National},
                    Written{"DE", "0170 \xE2\x80\x93 1234567", "00491701234567", National},
                    Written{"DE",
                            "0170\xC2\xA0"
                            "1234567",
                            "00491701234567", National},
                    Written{"DE",
                            "\xE2\x80\xAA"
                            "01701234567\xE2\x80\xAC",
                            "00491701234567", National},
                    Written{"DE", "'01701234567", "00491701234567", National},
                    Written{"DE", "030 12345", "00493012345", National},
                    Written{"EG",
                            "\xD9\xA0\xD9\xA1\xD9\xA0\xD9\xA1\xD9\xA2\xD9\xA3\xD9\xA4\xD9\xA5\xD9\xA6\xD9\xA7\xD9\xA8",
                            "00201012345678", National},
                    Written{"RU", "8 (912) 345-67-89", "0079123456789", National},
                    Written{"HU", "06 20 123 4567", "0036201234567", National},
                    Written{"LT", "8 612 34567", "0037061234567", National},
                    Written{"BY", "8 029 123-45-67", "00375291234567", National},
                    Written{"US", "1 (212) 555-0123", "0012125550123", National},
                    Written{"PL", "0 501 234 567", "0048501234567", National},
                    Written{"ES", "612 34 56 78", "0034612345678", Code_Added},
                    Written{"US", "(212) 555-0123", "0012125550123", Code_Added},
                    Written{"NO", "412 34 567", "004741234567", Code_Added},
                    Written{"IT", "06 1234 5678", "00390612345678", Code_Added},
                    Written{"IT", "391 234 5678", "00393912345678", Code_Added},
                    Written{"CI", "07 12 34 56 78", "002250712345678", Code_Added},
                    Written{"CN", "138 1234 5678", "008613812345678", Code_Added},
                    Written{"RU", "9123456789", "0079123456789", Code_Added}));

INSTANTIATE_TEST_SUITE_P(
    Of_Changed_Plans, Written_Numbers,
    testing::Values(
        Written{"TJ", "917 12 34 56", "00992917123456", Code_Added},
        Written{"TJ", "8 917 12 34 56", "00992917123456", National},
        Written{"TJ", "880 12 34 56", "00992880123456", Code_Added},
        Written{"TJ", "8 10 44 7700 900123", "00447700900123", International},
        Written{"UZ", "90 123 45 67", "00998901234567", Code_Added},
        Written{"UZ", "8 90 123 45 67", "00998901234567", National},
        Written{"UZ", "88 123 45 67", "00998881234567", Code_Added},
        Written{"UZ", "8 10 44 7700 900123", "00447700900123", International},
        Written{"UZ", "998901234567", "00998901234567", Plus_Missing},
        Written{"LT", "0 612 34567", "0037061234567", National},
        Written{"LT", "612 34567", "0037061234567", Code_Added},
        Written{"LT", "8 612 34567", "0037061234567", National},
        Written{"KI", "7201 2345", "0068672012345", Zero_Missing}, Written{"KI", "21234", "0068621234", Zero_Missing},
        Written{"KI", "68672012345", "0068672012345", Plus_Missing},
        Written{"RW", "0788 123 456", "00250788123456", National},
        Written{"RW", "788123456", "00250788123456", Zero_Missing},
        Written{"SO", "061 2345678", "00252612345678", National},
        Written{"SO", "61 2345678", "00252612345678", Zero_Missing},
        Written{"SO", "0 1234567", "002521234567", National}, Written{"TA", "8123", "002908123", Code_Added},
        Written{"TA", "81234", "0029081234", Code_Added}, Written{"NU", "4123", "006834123", Code_Added},
        Written{"NU", "888 4123", "006838884123", Code_Added}, Written{"TK", "3123", "006903123", Code_Added},
        Written{"TK", "7290 123", "006907290123", Code_Added}, Written{"TV", "20123", "0068820123", Code_Added},
        Written{"TV", "901234", "00688901234", Code_Added}, Written{"TV", "7012345", "006887012345", Code_Added},
        Written{"TV", "68820123", "0068820123", Plus_Missing}));

INSTANTIATE_TEST_SUITE_P(
    Spoilt, Written_Numbers,
    testing::Values(
        Written{"DE", "1701234567", "00491701234567", Zero_Missing},
        Written{"GB", "7700900123", "00447700900123", Zero_Missing},
        Written{"GB", "447700900123", "00447700900123", Plus_Missing},
        Written{"DE", "491701234567", "00491701234567", Plus_Missing},
        Written{"GB", "4407700900123", "00447700900123", Plus_Missing},
        Written{"NO", "4741234567", "004741234567", Plus_Missing},
        Written{"RU", "79123456789", "0079123456789", Plus_Missing},
        Written{"GB", "447700900123.0", "00447700900123", Plus_Missing}, Written{"GB", "1.7E+10", "", Rounded},
        Written{"GB", "4,4770E+11", "", Rounded}, Written{"", "4.4770e11", "", Rounded},
        Written{"DE", "0170 1234567 / 0171 1234567", "", Several},
        Written{"DE", "01701234567\n01711234567", "", Several}, Written{"", "+447700900123+447700900124", "", Several},
        Written{"GB", "0170 1234567, 0171", "", Not_A_Number}, Written{"GB", "Ann", "", Not_A_Number},
        Written{"GB", "07700 900123 ext. 5", "", Not_A_Number}, Written{"GB", "07700 900123\xC2\xB2", "", Not_A_Number},
        Written{"GB", "44+7", "", Not_A_Number}, Written{"GB", "+", "", Not_A_Number},
        Written{"GB", "--", "", Not_A_Number}, Written{"GB", "-1\xE2\x82\xAC", "", Not_A_Number},
        Written{"GB", "", "", Empty}, Written{"GB", " \xC2\xA0\xE2\x80\x8B ", "", Empty}, Written{"", "'", "", Empty},
        Written{"GB", "12345", "", Too_Short}, Written{"GB", "07700 90", "", Too_Short},
        Written{"DE", "+49 12", "", Too_Short}, Written{"GB", "07700 9001234567", "", Too_Long},
        Written{"DE", "+49 1701234567890123", "", Too_Long}, Written{"", "123456789012345678901", "", Too_Long},
        Written{"GB", "+999 1234567", "", Unknown_Code}, Written{"GB", "00 0 1234567", "", Unknown_Code}));

INSTANTIATE_TEST_SUITE_P(Without_A_Country, Written_Numbers,
                         testing::Values(Written{"", "07700 900123", "07700900123", As_Written},
                                         Written{"", "+44 (0)7700 900123", "00447700900123", As_Written},
                                         Written{"", "441", "441", As_Written},
                                         Written{"", "0170/12.34-56", "0170123456", As_Written},
                                         Written{"", "+999 1", "009991", As_Written},
                                         Written{"", "1701234567", "1701234567", As_Written}));

TEST(Written_Number, The_Change_Is_Told)
{
    const Country* germany = Country_With_Letters(u"DE");
    EXPECT_EQ(Words_For_Reading(Zero_Missing, germany), "its first 0 may have been lost; taken as one of Germany");
    EXPECT_EQ(Words_For_Reading(International, germany), "");
    EXPECT_EQ(Words_For_Reading(Rounded, nullptr), "a spreadsheet has rounded it; its digits are lost");
}

TEST(Written_Number, A_Very_Long_One_Takes_No_Time)
{
    EXPECT_EQ(Number_As_Written(QString(10'000'000, u'/'), nullptr).reading, Too_Long);
}

// Each country reads its own numbers alike, however they are written.
TEST(Country_Codes, Lead_Every_Way_Of_Writing_To_The_Same_Number)
{
    int countries = 0;
    for (char first = 'A'; first <= 'Z'; ++first)
        for (char second = 'A'; second <= 'Z'; ++second) {
            const Country* country = Country_With_Letters(QString(QLatin1Char(first)) + QLatin1Char(second));
            if (!country || country->letters != std::string{first, second})
                continue;
            ++countries;
            const QString mobile = u'3' + QString(country->fewest_digits - 1, u'5');
            const QString code = QString::fromLatin1(country->code);
            const QString wanted = QStringLiteral("00") + code + mobile;
            const QString prefix = QString::fromLatin1(country->trunk).section(u' ', 0, 0);
            for (const QString& written : {u'+' + code + mobile, wanted, prefix + mobile, mobile, code + mobile})
                EXPECT_EQ(Number_As_Written(written, country).number, wanted)
                    << country->letters << " " << written.toStdString();
            EXPECT_EQ(Length_Of_Code_Of(code + mobile), code.size()) << country->letters;
            EXPECT_FALSE(country->Name().isEmpty());
        }
    EXPECT_EQ(countries, 245);
}

TEST(Country_Codes, Are_Found_By_Letters_Of_Either_Case_Alone)
{
    EXPECT_STREQ(Country_With_Letters(u"gb")->code, "44");
    EXPECT_STREQ(Country_With_Letters(u"UK")->letters, "GB");
    for (const auto letters : {u"", u"G", u"GBR", u"XX", u"ÄÖ"})
        EXPECT_EQ(Country_With_Letters(letters), nullptr);
    EXPECT_STREQ(Country_With_Code_Of(u"12125550123")->letters, "US");
    EXPECT_EQ(Country_With_Code_Of(u"999"), nullptr);
}
