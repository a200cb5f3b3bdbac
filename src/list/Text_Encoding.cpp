#include "list/Text_Encoding.h"

#include "platform/Text_Files.h"
#include "texts/Table_Texts.h"

#include <QStringDecoder>
#include <algorithm>
#include <array>
#include <cstring>
#include <iterator>

namespace {

constexpr char Western[] = "windows-1252";
constexpr qsizetype Looked_At = 4096; // bytes, for the zeros of UTF-16
constexpr int Most_Invalid_To_One_Valid = 10;

struct Mark
{
    QByteArrayView bytes;
    const char* encoding;
};

// The longer ones first: that of UTF-32 begins like that of UTF-16.
constexpr std::array Marks{Mark{"\xEF\xBB\xBF", "UTF-8"}, Mark{{"\xFF\xFE\0\0", 4}, "UTF-32LE"},
                           Mark{{"\0\0\xFE\xFF", 4}, "UTF-32BE"}, Mark{"\xFF\xFE", "UTF-16LE"},
                           Mark{"\xFE\xFF", "UTF-16BE"}};

struct Usage
{
    QLocale::Language language;
    const char* encoding;
    QLocale::Script script = QLocale::AnyScript;
};

// The first row that fits counts. Languages that are not here are western.
constexpr Usage Usages[] = {
    {QLocale::Polish, "windows-1250"},
    {QLocale::Czech, "windows-1250"},
    {QLocale::Slovak, "windows-1250"},
    {QLocale::Hungarian, "windows-1250"},
    {QLocale::Slovenian, "windows-1250"},
    {QLocale::Croatian, "windows-1250"},
    {QLocale::Romanian, "windows-1250"},
    {QLocale::Albanian, "windows-1250"},
    {QLocale::Bosnian, "windows-1251", QLocale::CyrillicScript},
    {QLocale::Bosnian, "windows-1250"},
    {QLocale::Serbian, "windows-1250", QLocale::LatinScript},
    {QLocale::Serbian, "windows-1251"},
    {QLocale::Russian, "windows-1251"},
    {QLocale::Ukrainian, "windows-1251"},
    {QLocale::Belarusian, "windows-1251"},
    {QLocale::Bulgarian, "windows-1251"},
    {QLocale::Macedonian, "windows-1251"},
    {QLocale::Kazakh, "windows-1251"},
    {QLocale::Kyrgyz, "windows-1251"},
    {QLocale::Mongolian, "windows-1251"},
    {QLocale::Tajik, "windows-1251"},
    {QLocale::Greek, "windows-1253"},
    {QLocale::Turkish, "windows-1254"},
    {QLocale::Azerbaijani, "windows-1254"},
    {QLocale::Hebrew, "windows-1255"},
    {QLocale::Arabic, "windows-1256"},
    {QLocale::Persian, "windows-1256"},
    {QLocale::Urdu, "windows-1256"},
    {QLocale::Lithuanian, "windows-1257"},
    {QLocale::Latvian, "windows-1257"},
    {QLocale::Estonian, "windows-1257"},
    {QLocale::Vietnamese, "windows-1258"},
    {QLocale::Thai, "windows-874"},
    {QLocale::Japanese, "Shift_JIS"},
    {QLocale::Chinese, "Big5", QLocale::TraditionalHanScript},
    {QLocale::Chinese, "GB18030"},
    {QLocale::Korean, "EUC-KR"},
};

QString Line_Of(const QByteArray& bytes, qsizetype at)
{
    return QString::number(std::count(bytes.begin(), bytes.begin() + at, '\n') + 1);
}

// Nothing where the zeros stand as in no UTF-16.
const char* Utf16_By_Zeros(const QByteArray& bytes)
{
    std::array<int, 2> zeros{};
    const qsizetype pairs = std::min(bytes.size(), Looked_At) / 2;
    for (qsizetype i = 0; i < 2 * pairs; ++i)
        zeros[static_cast<std::size_t>(i % 2)] += bytes[i] == 0 ? 1 : 0;
    for (const int high : {0, 1})
        if (zeros[static_cast<std::size_t>(high)] * 3 > pairs &&
            zeros[static_cast<std::size_t>(1 - high)] * 20 <= pairs)
            return high == 1 ? "UTF-16LE" : "UTF-16BE";
    return nullptr;
}

// The bytes of the character that begins here; 0 where that is none of UTF-8.
int Utf8_Bytes_At(const QByteArray& bytes, qsizetype at)
{
    const auto first = static_cast<unsigned char>(bytes[at]);
    const int count = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : first < 0xF5 ? 4 : 0;
    if (at + count > bytes.size())
        return 0;
    for (int i = 1; i < count; ++i)
        if ((static_cast<unsigned char>(bytes[at + i]) & 0xC0) != 0x80)
            return 0;
    return count;
}

// The line of the first byte that is not UTF-8, if so many others are that it is no coincidence.
QString Line_Of_A_Mixture(const QByteArray& bytes)
{
    qsizetype first_invalid = -1;
    qint64 valid = 0;
    qint64 invalid = 0;
    for (qsizetype at = 0; at < bytes.size();) {
        const int count = Utf8_Bytes_At(bytes, at);
        valid += count > 1 ? 1 : 0;
        invalid += count == 0 ? 1 : 0;
        if (count == 0 && first_invalid < 0)
            first_invalid = at;
        at += std::max(1, count);
    }
    return invalid > 0 && valid * Most_Invalid_To_One_Valid >= invalid ? Line_Of(bytes, first_invalid) : QString();
}

bool Is_No_Character_Of_A_Text(char byte)
{
    const auto code = static_cast<unsigned char>(byte);
    return code < 0x20 && code != '\x1A' && (code < '\t' || code > '\r') && code != '\x1B';
}

QString Not_A_Text(const QByteArray& bytes, qsizetype at)
{
    return at < 0 || at == bytes.size() ? QString() : QString(Texts::Table::No_Text).arg(Line_Of(bytes, at));
}

// What no list holds stands, in the decoder's text, for bytes that are none of the encoding.
bool Fits(const QByteArray& bytes, const QString& encoding)
{
    const Utf8_Text text = Text_In_Utf8(bytes, encoding);
    const QString decoded = QString::fromUtf8(text.bytes);
    return text.trouble.isEmpty() && std::none_of(decoded.begin(), decoded.end(), [](QChar character) {
               return character == QChar::ReplacementCharacter || character.category() == QChar::Other_PrivateUse;
           });
}

} // namespace

QString Usual_Encoding(const QLocale& locale)
{
    const auto* usage = std::find_if(std::begin(Usages), std::end(Usages), [&](const Usage& row) {
        return row.language == locale.language() && (row.script == QLocale::AnyScript || row.script == locale.script());
    });
    return QLatin1String(usage == std::end(Usages) ? Western : usage->encoding);
}

Encoding_Guess Guess_Encoding(const QByteArray& bytes, const QString& usual)
{
    for (const Mark& mark : Marks)
        if (bytes.startsWith(mark.bytes))
            return {QLatin1String(mark.encoding)};
    if (const char* utf16 = Utf16_By_Zeros(bytes))
        return {QLatin1String(utf16)};
    if (Is_Valid_Utf8(bytes))
        return {QStringLiteral("UTF-8"), {}, true};
    const auto* odd = std::find_if(bytes.begin(), bytes.end(), Is_No_Character_Of_A_Text);
    if (const QString trouble = Not_A_Text(bytes, odd - bytes.begin()); !trouble.isEmpty())
        return {{}, trouble};
    if (const QString line = Line_Of_A_Mixture(bytes); !line.isEmpty())
        return {{}, QString(Texts::Table::Mixed_Encodings).arg(line)};
    if (!usual.isEmpty() && Fits(bytes, usual))
        return {usual, {}, false, false};
    // A toolkit without its tables of encodings still knows the one that differs in 27 characters.
    const bool is_known = QStringDecoder(Western).isValid();
    return {is_known ? QLatin1String(Western) : QLatin1String("ISO-8859-1"), {}, false, false};
}

Utf8_Text Text_In_Utf8(QByteArray bytes, const QString& encoding, bool is_valid)
{
    const QByteArray name = encoding.toUtf8();
    const auto known = QStringConverter::encodingForName(name.constData());
    if (known == QStringConverter::Utf8) {
        if (!is_valid && !Is_Valid_Utf8(bytes))
            return {{}, QString(Texts::Table::Wrong_Encoding).arg(encoding)};
        if (bytes.startsWith(Marks.front().bytes))
            bytes.remove(0, Marks.front().bytes.size());
    } else {
        QStringDecoder decoder(name.constData());
        if (!decoder.isValid())
            return {{}, QString(Texts::Table::Unknown_Encoding).arg(encoding)};
        QString text = decoder.decode(bytes);
        const int unit = encoding.startsWith(QLatin1String("UTF-16"), Qt::CaseInsensitive) ? 2 : 1;
        if (decoder.hasError() || bytes.size() % unit != 0 || !text.isValidUtf16()) // the decoder lets much pass
            return {{}, QString(Texts::Table::Wrong_Encoding).arg(encoding)};
        bytes.clear();
        if (text.startsWith(QChar::ByteOrderMark))
            text.remove(0, 1);
        bytes = text.toUtf8();
    }
    const QString trouble = Not_A_Text(bytes, bytes.indexOf('\0')); // UTF-8 may hold other control characters
    return {trouble.isEmpty() ? std::move(bytes) : QByteArray(), trouble};
}
