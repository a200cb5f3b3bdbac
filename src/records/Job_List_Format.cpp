#include "records/Job_List_Format.h"

#include "platform/Text_Files.h"
#include "records/Job_Line.h"

#include <QLocale>
#include <QVarLengthArray>
#include <cmath>
#include <limits>

namespace {

constexpr int Most_Parts_Of_A_Row = 255;
constexpr int Most_Reference = 65535;
constexpr int Most_Class = 3;
constexpr int Largest_Number = std::numeric_limits<int>::max();
constexpr qsizetype Row_Fields = 9;
constexpr qsizetype Option_Fields = 6;

// Values of an enum in their order.
constexpr QByteArrayView Alphabets[] = {"gsm", "ucs2"};
constexpr QByteArrayView Choices[] = {"auto", "gsm", "unicode"};

using Fields = QVarLengthArray<QByteArrayView, Row_Fields + 1>;

Fields Split(QByteArrayView line)
{
    Fields fields;
    for (qsizetype begin = 0; begin <= line.size() && fields.size() <= Row_Fields;) {
        const qsizetype found = line.indexOf('\t', begin);
        const qsizetype end = found < 0 ? line.size() : found;
        fields.append(line.sliced(begin, end - begin));
        begin = end + 1;
    }
    return fields;
}

bool Has_Other_Half(const QString& text, qsizetype at)
{
    return text[at].isHighSurrogate() ? at + 1 < text.size() && text[at + 1].isLowSurrogate()
                                      : at > 0 && text[at - 1].isHighSurrogate();
}

QByteArray Escaped(const QString& text)
{
    QString escaped;
    escaped.reserve(text.size());
    for (qsizetype at = 0; at < text.size(); ++at) {
        const QChar unit = text[at];
        if (unit == u'\\')
            escaped += QLatin1String("\\\\");
        else if (unit == u'\n')
            escaped += QLatin1String("\\n");
        else if (unit == u'\r')
            escaped += QLatin1String("\\r");
        else if (unit == u'\t')
            escaped += QLatin1String("\\t");
        else if (unit < u' ' || unit == u'\x7F' || (unit.isSurrogate() && !Has_Other_Half(text, at)))
            escaped += QStringLiteral("\\u%1").arg(unit.unicode(), 4, 16, QLatin1Char('0'));
        else
            escaped += unit;
    }
    return escaped.toUtf8();
}

// What stands behind a backslash, taken off the front of the rest.
QChar Taken_Unit(QStringView& rest)
{
    const QChar kind = rest.isEmpty() ? QChar() : rest.front();
    const bool is_number = kind == u'u' && rest.size() > 4;
    const QChar unit = kind == u'n'   ? QChar(u'\n')
                       : kind == u'r' ? QChar(u'\r')
                       : kind == u't' ? QChar(u'\t')
                       : is_number    ? QChar(rest.sliced(1, 4).toUShort(nullptr, 16))
                                      : kind;
    rest = rest.sliced(rest.isEmpty() ? 0 : is_number ? 5 : 1);
    return unit;
}

std::optional<QString> Text_Of(QByteArrayView field)
{
    const auto decoded = Decode_Utf8(field.toByteArray());
    if (!decoded)
        return std::nullopt;
    QString text;
    for (QStringView rest = *decoded; !rest.isEmpty();) {
        const QChar unit = rest.front();
        rest = rest.sliced(1);
        text += unit == u'\\' ? Taken_Unit(rest) : unit;
    }
    return Escaped(text) == field ? std::optional(text) : std::nullopt;
}

// A number that "-" stands for when it is -1.
QByteArray Number(int number)
{
    return number < 0 ? QByteArrayLiteral("-") : QByteArray::number(number);
}

std::optional<int> Number_Of(QByteArrayView field, int most)
{
    if (field == QByteArrayView("-"))
        return -1;
    const auto number = Job_Line::Number_Of(field, 0, most);
    return number ? std::optional(static_cast<int>(*number)) : std::nullopt;
}

template <typename Enum, std::size_t Size>
std::optional<Enum> Value_Of(QByteArrayView field, const QByteArrayView (&names)[Size])
{
    for (std::size_t value = 0; value < Size; ++value) {
        if (field == names[value])
            return static_cast<Enum>(value);
    }
    return std::nullopt;
}

QByteArray Joined(const QByteArrayList& fields)
{
    return fields.join('\t') + '\n';
}

} // namespace

bool Job_List_Format::Can_Be_Written(const Job_Row& row)
{
    const int least_parts = row.skipped.isEmpty() ? 1 : 0;
    return row.source_row >= 1 && row.parts >= least_parts && row.parts <= Most_Parts_Of_A_Row && row.reference >= -1 &&
           row.reference <= Most_Reference && row.message_class >= -1 && row.message_class <= Most_Class;
}

QByteArray Job_List_Format::First_Line(const QString& id)
{
    return Joined({"L1", Escaped(id)});
}

QByteArray Job_List_Format::Line(const Job_Options& options)
{
    return Joined({"O", Escaped(options.service_centre), Number(options.report_seconds), Number(options.batch),
                   QByteArray::number(options.pause_seconds, 'g', QLocale::FloatingPointShortest),
                   Choices[static_cast<std::size_t>(options.alphabet)].toByteArray()});
}

QByteArray Job_List_Format::Line(const Job_Row& row)
{
    return Joined({"R", Number(row.source_row), Escaped(row.number),
                   Alphabets[static_cast<std::size_t>(row.alphabet)].toByteArray(), Number(row.message_class),
                   Number(row.parts), Number(row.reference), Escaped(row.skipped), Escaped(row.text)});
}

QByteArray Job_List_Format::Last_Line(int rows, int parts)
{
    return Joined({"Z", Number(rows), Number(parts)});
}

std::optional<Job_Options> Job_List_Format::Options_Of(QByteArrayView line)
{
    const Fields fields = Split(line);
    if (fields.size() != Option_Fields || fields[0] != QByteArrayView("O"))
        return std::nullopt;
    const auto service_centre = Text_Of(fields[1]);
    const auto report_seconds = Number_Of(fields[2], Largest_Number);
    const auto batch = Number_Of(fields[3], Largest_Number);
    bool is_number = false;
    const double pause_seconds = fields[4].toByteArray().toDouble(&is_number);
    const auto alphabet = Value_Of<Job_Alphabet_Choice>(fields[5], Choices);
    if (!service_centre || !report_seconds || !batch || !is_number || !std::isfinite(pause_seconds) || !alphabet)
        return std::nullopt;
    return Job_Options{*service_centre, *report_seconds, *batch, pause_seconds, *alphabet};
}

std::optional<Job_Row> Job_List_Format::Row_Of(QByteArrayView line)
{
    const Fields fields = Split(line);
    if (fields.size() != Row_Fields || fields[0] != QByteArrayView("R"))
        return std::nullopt;
    const auto source_row = Number_Of(fields[1], Largest_Number);
    const auto number = Text_Of(fields[2]);
    const auto alphabet = Value_Of<Job_Alphabet>(fields[3], Alphabets);
    const auto message_class = Number_Of(fields[4], Most_Class);
    const auto parts = Number_Of(fields[5], Most_Parts_Of_A_Row);
    const auto reference = Number_Of(fields[6], Most_Reference);
    const auto skipped = Text_Of(fields[7]);
    const auto text = Text_Of(fields[8]);
    if (!source_row || !number || !alphabet || !message_class || !parts || !reference || !skipped || !text)
        return std::nullopt;
    const Job_Row row{*source_row, *number, *text, *alphabet, *message_class, *parts, *reference, *skipped};
    return Can_Be_Written(row) ? std::optional(row) : std::nullopt;
}

std::optional<Job_List_Format::Extent> Job_List_Format::Extent_Of(QByteArrayView line)
{
    const Fields fields = Split(line);
    if (fields.size() != Row_Fields || fields[0] != QByteArrayView("R"))
        return std::nullopt;
    const Extent extent{Number_Of(fields[5], Most_Parts_Of_A_Row).value_or(-1), !fields[7].isEmpty()};
    return extent.parts < (extent.is_skipped ? 0 : 1) ? std::nullopt : std::optional(extent);
}
