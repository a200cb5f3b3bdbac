#include "list/Written_Number.h"

#include "list/Number_Rules.h"
#include "texts/Table_Texts.h"

#include <QStringList>
#include <algorithm>
#include <optional>

namespace {

constexpr qsizetype Longest_Written = 100;
constexpr qsizetype Digits_Of_One_Of_Several = 7;
constexpr qsizetype Fewest_International = 7; // with the country's code
constexpr qsizetype Most_International = 15;  // ITU-T E.164, 6.2.1
constexpr qsizetype All_North_American = 11;  // every one with the code 1 has as many
constexpr qsizetype Fewest_National = 3;
constexpr int More_Or_Less_Than_A_Mobile = 3; // digits that a number of another kind may have

QLatin1String Latin(const char* text)
{
    return QLatin1String(text);
}

bool Is_Invisible(QChar character)
{
    return character.category() == QChar::Other_Format || character == QChar(QChar::SoftHyphen);
}

bool Is_Passed_Over(QChar character)
{
    constexpr QStringView between = u".\u00B7\u2022\u2212_~";
    return character.isSpace() || Is_Invisible(character) || character.category() == QChar::Punctuation_Dash ||
           between.contains(character);
}

QStringView Without_Link(QStringView written)
{
    for (const QLatin1String scheme : {Latin("tel:"), Latin("sms:"), Latin("smsto:"), Latin("callto:")}) {
        if (!written.startsWith(scheme, Qt::CaseInsensitive))
            continue;
        const QStringView rest = written.mid(scheme.size());
        const auto end =
            std::find_if(rest.begin(), rest.end(), [](QChar each) { return each == u';' || each == u'?'; });
        return rest.left(end - rest.begin()); // its parameters do not belong to the number
    }
    return written;
}

// What stands for itself, in the characters of ASCII; nothing where there is something else.
std::optional<QString> In_Plain_Characters(QStringView written)
{
    QString plain;
    for (const QChar character : written) {
        if (character.category() == QChar::Number_DecimalDigit)
            plain += QLatin1Char(static_cast<char>('0' + character.digitValue()));
        else if (character == u'+' || character == u'\uFF0B')
            plain += u'+';
        else if (character == u'(' || character == u'[' || character == u'\uFF08')
            plain += u'(';
        else if (character == u')' || character == u']' || character == u'\uFF09')
            plain += u')';
        else if (character == u'/' || character == u'\n' || character == u'\r')
            plain += u'/';
        else if (!Is_Passed_Over(character))
            return std::nullopt;
    }
    return plain;
}

// 4.9170E+11 and 4,9170E+11
bool Is_Rounded(QStringView written)
{
    const qsizetype letter = written.indexOf(u'E', 0, Qt::CaseInsensitive);
    if (letter <= 0)
        return false;
    int marks = 0;
    for (const QChar character : written.left(letter)) {
        marks += character == u'.' || character == u',' ? 1 : 0;
        if (!character.isDigit() && character != u'.' && character != u',' && character != u'+')
            return false;
    }
    QStringView exponent = written.mid(letter + 1);
    if (exponent.startsWith(u'+') || exponent.startsWith(u'-'))
        exponent = exponent.mid(1);
    return marks <= 1 && !exponent.isEmpty() && exponent.size() <= 3 &&
           std::all_of(exponent.begin(), exponent.end(), [](QChar each) { return each.isDigit(); });
}

// A number that some program took for a fraction: 447700900100.0
QStringView Without_Fraction_Of_Zero(QStringView written)
{
    const QStringView whole = written.chopped(std::min<qsizetype>(2, written.size()));
    const bool is_one = written.endsWith(QLatin1String(".0")) && whole.size() >= Digits_Of_One_Of_Several &&
                        std::all_of(whole.begin(), whole.end(), [](QChar each) { return each.isDigit(); });
    return is_one ? whole : written;
}

// Whether a line end or a slash, which may stand in a number, stands between two.
bool Are_Several(QStringView plain)
{
    const auto count_digits = [](QStringView part) {
        return std::count_if(part.begin(), part.end(), [](QChar each) { return each.isDigit(); });
    };
    for (qsizetype slash = plain.indexOf(u'/'); slash >= 0; slash = plain.indexOf(u'/', slash + 1)) {
        const QStringView after = plain.mid(slash + 1);
        if (count_digits(plain.left(slash)) >= Digits_Of_One_Of_Several &&
            count_digits(after) >= Digits_Of_One_Of_Several)
            return true;
    }
    const qsizetype second_plus = plain.lastIndexOf(u'+');
    return second_plus > 0 && count_digits(plain.left(second_plus)) >= Digits_Of_One_Of_Several;
}

struct Digits
{
    QString digits;
    bool has_plus = false;
    Number_Reading fault = Number_Reading::As_Written;
};

Digits Digits_Of(QStringView written)
{
    QStringView trimmed = written.trimmed();
    while (!trimmed.isEmpty() && (Is_Invisible(trimmed.front()) || trimmed.front() == u'\''))
        trimmed = trimmed.mid(1).trimmed(); // the apostrophe says in spreadsheets that this is a text
    while (!trimmed.isEmpty() && Is_Invisible(trimmed.back()))
        trimmed = trimmed.chopped(1).trimmed();
    if (trimmed.isEmpty())
        return {{}, false, Number_Reading::Empty};
    if (trimmed.size() > Longest_Written)
        return {{}, false, Number_Reading::Too_Long};
    if (Is_Rounded(trimmed))
        return {{}, false, Number_Reading::Rounded};
    const auto plain = In_Plain_Characters(Without_Fraction_Of_Zero(Without_Link(trimmed)));
    if (!plain)
        return {{}, false, Number_Reading::Not_A_Number};
    if (Are_Several(*plain))
        return {{}, false, Number_Reading::Several};
    Digits read;
    QString kept = *plain;
    if (kept.startsWith(u'+') || kept.startsWith(QLatin1String("(+")) || kept.startsWith(QLatin1String("00")))
        kept.remove(QStringLiteral("(0)")); // it is for callers from within the country
    kept.remove(u'(').remove(u')').remove(u'/');
    read.has_plus = kept.startsWith(u'+');
    read.digits = kept.mid(read.has_plus ? 1 : 0);
    if (read.digits.isEmpty() || read.digits.contains(u'+'))
        read.fault = Number_Reading::Not_A_Number;
    return read;
}

Read_Number As_It_Is(const Digits& read)
{
    const QString number = read.has_plus ? QLatin1String("00") + read.digits : read.digits;
    if (number.size() > Number_Rules::Longest_Number)
        return {{}, Number_Reading::Too_Long};
    return {number, Number_Reading::As_Written};
}

// For the digits after the "+" or what stands for it.
Read_Number International(QString digits, Number_Reading reading)
{
    const int code = Length_Of_Code_Of(digits);
    if (code == 0)
        return {{}, Number_Reading::Unknown_Code};
    const Country* country = Country_With_Code_Of(digits);
    while (country && Latin(country->trunk) == Latin("0") && digits.size() > code && digits[code] == u'0')
        digits.remove(code, 1);                             // a zero that only callers from within the country dial
    const bool is_north_american = digits.startsWith(u'1'); // or dialled in a country where 001 is the "+"
    if (digits.size() < (is_north_american ? All_North_American : Fewest_International))
        return {{}, Number_Reading::Too_Short};
    if (digits.size() > (is_north_american ? All_North_American : Most_International))
        return {{}, Number_Reading::Too_Long};
    return {QLatin1String("00") + digits, reading};
}

Read_Number National(const QString& digits, const Country& country, Number_Reading reading)
{
    const bool is_north_american = Latin(country.code).startsWith(u'1');
    const qsizetype whole = digits.size() + Latin(country.code).size();
    if (digits.size() < Fewest_National || whole < (is_north_american ? All_North_American : Fewest_International) ||
        digits.size() + More_Or_Less_Than_A_Mobile < country.fewest_digits)
        return {{}, Number_Reading::Too_Short};
    if (digits.size() > country.most_digits + More_Or_Less_Than_A_Mobile ||
        whole > (is_north_american ? All_North_American : Most_International))
        return {{}, Number_Reading::Too_Long};
    return {QLatin1String("00") + Latin(country.code) + digits, reading};
}

// The digits after a prefix of national numbers; nothing where there is none. Prefixes other than zeros are digits that
// a number may begin with, too: its length tells.
std::optional<QString> After_Prefix(const QString& digits, const Country& country)
{
    const QString prefixes = Latin(country.trunk);
    for (const QString& prefix : prefixes.split(u' ', Qt::SkipEmptyParts))
        if (digits.startsWith(prefix) &&
            (prefix.startsWith(u'0') || digits.size() - prefix.size() >= country.fewest_digits))
            return digits.mid(prefix.size());
    if (prefixes.isEmpty() && digits.startsWith(u'0') && digits.size() > country.most_digits)
        return digits.mid(1); // as it was dialled in earlier times
    return std::nullopt;
}

bool Lacks_Its_Plus(const QString& digits, const Country& country)
{
    if (!digits.startsWith(Latin(country.code)) || Latin(country.code) == Latin(country.trunk))
        return false;
    QStringView rest = QStringView(digits).mid(Latin(country.code).size());
    if (Latin(country.trunk) == Latin("0") && rest.startsWith(u'0'))
        rest = rest.mid(1);
    return rest.size() >= country.fewest_digits && rest.size() <= country.most_digits;
}

Read_Number Of_Country(const Digits& read, const Country& country)
{
    const QString& digits = read.digits;
    const QLatin1String other_prefix = Other_International_Prefix(country);
    if (read.has_plus)
        return International(digits.startsWith(Latin("00")) ? digits.mid(2) : digits, Number_Reading::International);
    if (!other_prefix.isEmpty() && digits.startsWith(other_prefix) &&
        digits.size() > other_prefix.size() + Fewest_International)
        return International(digits.mid(other_prefix.size()), Number_Reading::International);
    if (digits.startsWith(Latin("00")))
        return International(digits.mid(2), Number_Reading::International);
    if (Lacks_Its_Plus(digits, country))
        return International(digits, Number_Reading::Plus_Missing);
    if (const auto national = After_Prefix(digits, country))
        return National(*national, country, Number_Reading::National);
    const bool has_zero = Latin(country.trunk).startsWith(u'0') && country.mobiles_have_prefix;
    return National(digits, country, has_zero ? Number_Reading::Zero_Missing : Number_Reading::Code_Added);
}

} // namespace

Read_Number Number_As_Written(QStringView written, const Country* country)
{
    const Digits read = Digits_Of(written);
    if (read.fault != Number_Reading::As_Written)
        return {{}, read.fault};
    return country ? Of_Country(read, *country) : As_It_Is(read);
}

QString Words_For_Reading(Number_Reading reading, const Country* country)
{
    const QString name = country ? country->Name() : QString();
    switch (reading) {
    case Number_Reading::As_Written:
    case Number_Reading::International:
        return {};
    case Number_Reading::National:
        return QString(Texts::Table::National).arg(name);
    case Number_Reading::Code_Added:
        return QString(Texts::Table::Code_Added).arg(name);
    case Number_Reading::Zero_Missing:
        return QString(Texts::Table::Zero_Missing).arg(name);
    case Number_Reading::Plus_Missing:
        return QString(Texts::Table::Plus_Missing).arg(name);
    case Number_Reading::Empty:
        return Texts::Table::No_Number;
    case Number_Reading::Rounded:
        return Texts::Table::Rounded;
    case Number_Reading::Not_A_Number:
        return Texts::Table::Not_A_Number;
    case Number_Reading::Several:
        return Texts::Table::Several_Numbers;
    case Number_Reading::Too_Short:
        return Texts::Table::Too_Short;
    case Number_Reading::Too_Long:
        return Texts::Table::Too_Long;
    case Number_Reading::Unknown_Code:
        return Texts::Table::Unknown_Code;
    }
    return {};
}
