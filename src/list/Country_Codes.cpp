#include "list/Country_Codes.h"

#include "texts/Reading_Language.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <array>

namespace {

// Where plans have changed within some years, or sources differ, a row takes both forms: the length of a number tells a
// prefix of 8 from its first digit.
//   LT  8 until 2025, 0 since; and TJ and UZ 8 and, of late, none: lists keep the old form for long.
//   KI  eight digits since 2013, and five before, which are near enough to be let pass; prefix 0.
//   RW  nine digits behind the 0, which most write.
//   SO  seven to nine digits, by operator; most write the 0.
//   TA  four digits and, by the plan that it shares with SH, five; NU and TK four, mobile ones up to seven; TV five,
//       mobile ones six or seven.
constexpr std::array Countries{Country{"AC", "247", "", 5, 5},
                               Country{"AD", "376", "", 6, 9},
                               Country{"AE", "971", "0", 9, 9},
                               Country{"AF", "93", "0", 9, 9},
                               Country{"AG", "1", "1", 10, 10},
                               Country{"AI", "1", "1", 10, 10},
                               Country{"AL", "355", "0", 9, 9},
                               Country{"AM", "374", "0", 8, 8},
                               Country{"AO", "244", "", 9, 9},
                               Country{"AR", "54", "0", 10, 11, false},
                               Country{"AS", "1", "1", 10, 10},
                               Country{"AT", "43", "0", 10, 13},
                               Country{"AU", "61", "0", 9, 9},
                               Country{"AW", "297", "", 7, 7},
                               Country{"AX", "358", "0", 9, 10},
                               Country{"AZ", "994", "0", 9, 9},
                               Country{"BA", "387", "0", 8, 9},
                               Country{"BB", "1", "1", 10, 10},
                               Country{"BD", "880", "0", 10, 10},
                               Country{"BE", "32", "0", 9, 9},
                               Country{"BF", "226", "", 8, 8},
                               Country{"BG", "359", "0", 8, 9},
                               Country{"BH", "973", "", 8, 8},
                               Country{"BI", "257", "", 8, 8},
                               Country{"BJ", "229", "", 8, 10},
                               Country{"BL", "590", "0", 9, 9},
                               Country{"BM", "1", "1", 10, 10},
                               Country{"BN", "673", "", 7, 7},
                               Country{"BO", "591", "0", 8, 8, false},
                               Country{"BQ", "599", "", 7, 7},
                               Country{"BR", "55", "0", 10, 11, false},
                               Country{"BS", "1", "1", 10, 10},
                               Country{"BT", "975", "", 8, 8},
                               Country{"BW", "267", "", 8, 8},
                               Country{"BY", "375", "80 8 0", 9, 9},
                               Country{"BZ", "501", "", 7, 7},
                               Country{"CA", "1", "1", 10, 10},
                               Country{"CC", "61", "0", 9, 9},
                               Country{"CD", "243", "0", 9, 9},
                               Country{"CF", "236", "", 8, 8},
                               Country{"CG", "242", "", 9, 9},
                               Country{"CH", "41", "0", 9, 9},
                               Country{"CI", "225", "", 10, 10},
                               Country{"CK", "682", "", 5, 5},
                               Country{"CL", "56", "", 9, 9},
                               Country{"CM", "237", "", 9, 9},
                               Country{"CN", "86", "0", 11, 11, false},
                               Country{"CO", "57", "", 10, 10},
                               Country{"CR", "506", "", 8, 8},
                               Country{"CU", "53", "0", 8, 8, false},
                               Country{"CV", "238", "", 7, 7},
                               Country{"CW", "599", "", 7, 8},
                               Country{"CX", "61", "0", 9, 9},
                               Country{"CY", "357", "", 8, 8},
                               Country{"CZ", "420", "", 9, 9},
                               Country{"DE", "49", "0", 10, 11},
                               Country{"DJ", "253", "", 8, 8},
                               Country{"DK", "45", "", 8, 8},
                               Country{"DM", "1", "1", 10, 10},
                               Country{"DO", "1", "1", 10, 10},
                               Country{"DZ", "213", "0", 9, 9},
                               Country{"EC", "593", "0", 9, 9},
                               Country{"EE", "372", "", 7, 8},
                               Country{"EG", "20", "0", 10, 10},
                               Country{"EH", "212", "0", 9, 9},
                               Country{"ER", "291", "0", 7, 7},
                               Country{"ES", "34", "", 9, 9},
                               Country{"ET", "251", "0", 9, 9},
                               Country{"FI", "358", "0", 9, 10},
                               Country{"FJ", "679", "", 7, 7},
                               Country{"FK", "500", "", 5, 5},
                               Country{"FM", "691", "", 7, 7},
                               Country{"FO", "298", "", 6, 6},
                               Country{"FR", "33", "0", 9, 9},
                               Country{"GA", "241", "0", 7, 8},
                               Country{"GB", "44", "0", 10, 10},
                               Country{"GD", "1", "1", 10, 10},
                               Country{"GE", "995", "0", 9, 9, false},
                               Country{"GF", "594", "0", 9, 9},
                               Country{"GG", "44", "0", 10, 10},
                               Country{"GH", "233", "0", 9, 9},
                               Country{"GI", "350", "", 8, 8},
                               Country{"GL", "299", "", 6, 6},
                               Country{"GM", "220", "", 7, 7},
                               Country{"GN", "224", "", 9, 9},
                               Country{"GP", "590", "0", 9, 9},
                               Country{"GQ", "240", "", 9, 9},
                               Country{"GR", "30", "", 10, 10},
                               Country{"GT", "502", "", 8, 8},
                               Country{"GU", "1", "1", 10, 10},
                               Country{"GW", "245", "", 9, 9},
                               Country{"GY", "592", "", 7, 7},
                               Country{"HK", "852", "", 8, 8},
                               Country{"HN", "504", "", 8, 8},
                               Country{"HR", "385", "0", 8, 9},
                               Country{"HT", "509", "", 8, 8},
                               Country{"HU", "36", "06", 9, 9},
                               Country{"ID", "62", "0", 9, 12},
                               Country{"IE", "353", "0", 9, 9},
                               Country{"IL", "972", "0", 9, 9},
                               Country{"IM", "44", "0", 10, 10},
                               Country{"IN", "91", "0", 10, 10, false},
                               Country{"IO", "246", "", 7, 7},
                               Country{"IQ", "964", "0", 10, 10},
                               Country{"IR", "98", "0", 10, 10},
                               Country{"IS", "354", "", 7, 9},
                               Country{"IT", "39", "", 9, 10},
                               Country{"JE", "44", "0", 10, 10},
                               Country{"JM", "1", "1", 10, 10},
                               Country{"JO", "962", "0", 9, 9},
                               Country{"JP", "81", "0", 10, 10},
                               Country{"KE", "254", "0", 9, 9},
                               Country{"KG", "996", "0", 9, 9},
                               Country{"KH", "855", "0", 8, 9},
                               Country{"KI", "686", "0", 8, 8},
                               Country{"KM", "269", "", 7, 7},
                               Country{"KN", "1", "1", 10, 10},
                               Country{"KP", "850", "0", 10, 10},
                               Country{"KR", "82", "0", 9, 10},
                               Country{"KW", "965", "", 8, 8},
                               Country{"KY", "1", "1", 10, 10},
                               Country{"KZ", "7", "8", 10, 10},
                               Country{"LA", "856", "0", 9, 10},
                               Country{"LB", "961", "0", 7, 8},
                               Country{"LC", "1", "1", 10, 10},
                               Country{"LI", "423", "0", 7, 9},
                               Country{"LK", "94", "0", 9, 9},
                               Country{"LR", "231", "0", 7, 9},
                               Country{"LS", "266", "", 8, 8},
                               Country{"LT", "370", "8 0", 8, 8},
                               Country{"LU", "352", "", 9, 9},
                               Country{"LV", "371", "", 8, 8},
                               Country{"LY", "218", "0", 9, 9},
                               Country{"MA", "212", "0", 9, 9},
                               Country{"MC", "377", "0", 8, 9},
                               Country{"MD", "373", "0", 8, 8},
                               Country{"ME", "382", "0", 8, 9},
                               Country{"MF", "590", "0", 9, 9},
                               Country{"MG", "261", "0", 9, 9},
                               Country{"MH", "692", "1", 7, 7},
                               Country{"MK", "389", "0", 8, 8},
                               Country{"ML", "223", "", 8, 8},
                               Country{"MM", "95", "0", 8, 10},
                               Country{"MN", "976", "0", 8, 8, false},
                               Country{"MO", "853", "", 8, 8},
                               Country{"MP", "1", "1", 10, 10},
                               Country{"MQ", "596", "0", 9, 9},
                               Country{"MR", "222", "", 8, 8},
                               Country{"MS", "1", "1", 10, 10},
                               Country{"MT", "356", "", 8, 8},
                               Country{"MU", "230", "", 8, 8},
                               Country{"MV", "960", "", 7, 7},
                               Country{"MW", "265", "0", 9, 9},
                               Country{"MX", "52", "", 10, 10},
                               Country{"MY", "60", "0", 9, 10},
                               Country{"MZ", "258", "", 9, 9},
                               Country{"NA", "264", "0", 9, 9},
                               Country{"NC", "687", "", 6, 6},
                               Country{"NE", "227", "", 8, 8},
                               Country{"NF", "672", "", 5, 6},
                               Country{"NG", "234", "0", 10, 10},
                               Country{"NI", "505", "", 8, 8},
                               Country{"NL", "31", "0", 9, 9},
                               Country{"NO", "47", "", 8, 8},
                               Country{"NP", "977", "0", 10, 10, false},
                               Country{"NR", "674", "", 7, 7},
                               Country{"NU", "683", "", 4, 7},
                               Country{"NZ", "64", "0", 8, 10},
                               Country{"OM", "968", "", 8, 8},
                               Country{"PA", "507", "", 8, 8},
                               Country{"PE", "51", "0", 9, 9, false},
                               Country{"PF", "689", "", 8, 8},
                               Country{"PG", "675", "", 8, 8},
                               Country{"PH", "63", "0", 10, 10},
                               Country{"PK", "92", "0", 10, 10},
                               Country{"PL", "48", "", 9, 9},
                               Country{"PM", "508", "0", 6, 9},
                               Country{"PR", "1", "1", 10, 10},
                               Country{"PS", "970", "0", 9, 9},
                               Country{"PT", "351", "", 9, 9},
                               Country{"PW", "680", "", 7, 7},
                               Country{"PY", "595", "0", 9, 9},
                               Country{"QA", "974", "", 8, 8},
                               Country{"RE", "262", "0", 9, 9},
                               Country{"RO", "40", "0", 9, 9},
                               Country{"RS", "381", "0", 8, 10},
                               Country{"RU", "7", "8", 10, 10},
                               Country{"RW", "250", "0", 9, 9},
                               Country{"SA", "966", "0", 9, 9},
                               Country{"SB", "677", "", 7, 7},
                               Country{"SC", "248", "", 7, 7},
                               Country{"SD", "249", "0", 9, 9},
                               Country{"SE", "46", "0", 9, 9},
                               Country{"SG", "65", "", 8, 8},
                               Country{"SH", "290", "", 5, 5},
                               Country{"SI", "386", "0", 8, 8},
                               Country{"SJ", "47", "", 8, 8},
                               Country{"SK", "421", "0", 9, 9},
                               Country{"SL", "232", "0", 8, 8},
                               Country{"SM", "378", "", 8, 10},
                               Country{"SN", "221", "", 9, 9},
                               Country{"SO", "252", "0", 7, 9},
                               Country{"SR", "597", "", 7, 7},
                               Country{"SS", "211", "0", 9, 9},
                               Country{"ST", "239", "", 7, 7},
                               Country{"SV", "503", "", 8, 8},
                               Country{"SX", "1", "1", 10, 10},
                               Country{"SY", "963", "0", 9, 9},
                               Country{"SZ", "268", "", 8, 8},
                               Country{"TA", "290", "", 4, 5},
                               Country{"TC", "1", "1", 10, 10},
                               Country{"TD", "235", "", 8, 8},
                               Country{"TG", "228", "", 8, 8},
                               Country{"TH", "66", "0", 9, 9},
                               Country{"TJ", "992", "8", 9, 9},
                               Country{"TK", "690", "", 4, 7},
                               Country{"TL", "670", "", 8, 8},
                               Country{"TM", "993", "8", 8, 8},
                               Country{"TN", "216", "", 8, 8},
                               Country{"TO", "676", "", 7, 7},
                               Country{"TR", "90", "0", 10, 10},
                               Country{"TT", "1", "1", 10, 10},
                               Country{"TV", "688", "", 5, 7},
                               Country{"TW", "886", "0", 9, 9},
                               Country{"TZ", "255", "0", 9, 9},
                               Country{"UA", "380", "0", 9, 9},
                               Country{"UG", "256", "0", 9, 9},
                               Country{"US", "1", "1", 10, 10},
                               Country{"UY", "598", "0", 8, 8},
                               Country{"UZ", "998", "8", 9, 9},
                               Country{"VA", "39", "", 9, 10},
                               Country{"VC", "1", "1", 10, 10},
                               Country{"VE", "58", "0", 10, 10},
                               Country{"VG", "1", "1", 10, 10},
                               Country{"VI", "1", "1", 10, 10},
                               Country{"VN", "84", "0", 9, 9},
                               Country{"VU", "678", "", 7, 7},
                               Country{"WF", "681", "", 6, 6},
                               Country{"WS", "685", "", 7, 7},
                               Country{"XK", "383", "0", 8, 8},
                               Country{"YE", "967", "0", 9, 9},
                               Country{"YT", "262", "0", 9, 9},
                               Country{"ZA", "27", "0", 9, 9},
                               Country{"ZM", "260", "0", 9, 9},
                               Country{"ZW", "263", "0", 9, 9}};

// Countries that share a code are found by the one of them that it is known for.
constexpr std::array Known_For{"US", "GB", "RU", "IT", "AU", "NO", "FI", "MA", "GP", "RE", "SH", "CW"};

// Satellites, networks across borders, and services that belong to no country.
constexpr std::array Codes_Of_No_Country{"800", "808", "870", "878", "881", "882", "883", "888", "979"};

struct Other_Prefix
{
    const char* code;
    const char* prefix;
};

constexpr std::array Other_Prefixes{Other_Prefix{"1", "011"},   Other_Prefix{"7", "810"},   Other_Prefix{"53", "119"},
                                    Other_Prefix{"61", "0011"}, Other_Prefix{"81", "010"},  Other_Prefix{"254", "000"},
                                    Other_Prefix{"255", "000"}, Other_Prefix{"256", "000"}, Other_Prefix{"375", "810"},
                                    Other_Prefix{"992", "810"}, Other_Prefix{"993", "810"}, Other_Prefix{"998", "810"}};

} // namespace

std::span<const Country> All_Countries()
{
    return Countries;
}

QString Country::Name() const
{
    const QString name = Reading_Language::Is_English() ? QString() : QCoreApplication::translate("Country", letters);
    return name.isEmpty() || name == QLatin1String(letters)
               ? QLocale::territoryToString(QLocale::codeToTerritory(QString::fromLatin1(letters)))
               : name;
}

const Country* Country_With_Letters(QStringView letters)
{
    const QString upper = letters.toString().toUpper();
    const QString sought = upper == QLatin1String("UK") ? QStringLiteral("GB") : upper;
    const auto found = std::find_if(Countries.begin(), Countries.end(),
                                    [&](const Country& each) { return sought == QLatin1String(each.letters); });
    return found == Countries.end() ? nullptr : &*found;
}

const Country* Country_With_Code_Of(QStringView digits)
{
    const auto has_its_code = [&](const Country& each) { return digits.startsWith(QLatin1String(each.code)); };
    for (const char* letters : Known_For)
        if (const Country* country = Country_With_Letters(QString::fromLatin1(letters)); has_its_code(*country))
            return country;
    const auto found = std::find_if(Countries.begin(), Countries.end(), has_its_code);
    return found == Countries.end() ? nullptr : &*found;
}

int Length_Of_Code_Of(QStringView digits)
{
    if (const Country* country = Country_With_Code_Of(digits))
        return static_cast<int>(qstrlen(country->code));
    const bool is_other = std::any_of(Codes_Of_No_Country.begin(), Codes_Of_No_Country.end(),
                                      [&](const char* code) { return digits.startsWith(QLatin1String(code)); });
    return is_other ? 3 : 0;
}

QLatin1String Other_International_Prefix(const Country& country)
{
    for (const Other_Prefix& other : Other_Prefixes)
        if (QLatin1String(other.code) == QLatin1String(country.code))
            return QLatin1String(other.prefix);
    return QLatin1String("");
}
