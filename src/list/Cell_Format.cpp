#include "list/Cell_Format.h"

#include <QDateTime>
#include <QLocale>
#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

constexpr int Most_Digits = 15;        // that a number of this kind holds
constexpr int Most_Decimals = 30;      // as many as a spreadsheet shows
constexpr double Latest_Day = 2958466; // the first of the year 10000
constexpr double Seconds_Of_A_Day = 86400;

bool Is_One_Of(char byte, std::string_view those)
{
    return those.find(byte) != std::string_view::npos;
}

char Lower(char byte)
{
    return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte + 0x20) : byte;
}

// Divided at semicolons that stand for themselves.
std::vector<std::string_view> Sections_Of(std::string_view code)
{
    std::vector<std::string_view> sections;
    std::size_t begin = 0;
    bool is_quoted = false;
    for (std::size_t at = 0; at < code.size(); ++at) {
        if (code[at] == '"')
            is_quoted = !is_quoted;
        else if (code[at] == '\\' && !is_quoted)
            ++at;
        else if (code[at] == ';' && !is_quoted) {
            sections.push_back(code.substr(begin, at - begin));
            begin = at + 1;
        }
    }
    sections.push_back(code.substr(std::min(begin, code.size())));
    return sections;
}

// What is shown like a plain number: texts, and fractions after their digits.
bool Is_Plain_From(std::string_view code, bool has_digits)
{
    return code.starts_with('@') || code.starts_with("General") || (code.starts_with('/') && has_digits);
}

const char* Code_Of_Built_In(int number)
{
    switch (number) {
    case 1:
        return "0";
    case 2:
        return "0.00";
    case 3:
    case 37:
    case 38:
        return "#,##0";
    case 4:
    case 39:
    case 40:
        return "#,##0.00";
    case 9:
        return "0%";
    case 10:
        return "0.00%";
    case 15:
        return "d-mmm-yy";
    case 16:
        return "d-mmm";
    case 17:
        return "mmm-yy";
    case 18:
        return "h:mm AM/PM";
    case 19:
        return "h:mm:ss AM/PM";
    case 20:
        return "h:mm";
    case 21:
        return "h:mm:ss";
    case 22:
        return "yyyy-mm-dd h:mm";
    case 45:
        return "mm:ss";
    case 46:
        return "[h]:mm:ss";
    case 47:
        return "mm:ss";
    default:
        return number == 14 || (number >= 27 && number <= 36) || (number >= 50 && number <= 58) ? "yyyy-mm-dd" : "";
    }
}

QByteArray Padded(qint64 number, qsizetype width)
{
    return QByteArray::number(number).rightJustified(width, '0');
}

} // namespace

QByteArray Plain_Number(double value)
{
    QByteArray text = QByteArray::number(value, 'g', Most_Digits);
    if (!text.contains('e') || !std::isfinite(value))
        return text;
    const double size = std::abs(value);
    return size >= 1e-9 && size < 1 ? QByteArray::number(value, 'f', QLocale::FloatingPointShortest) : text.toUpper();
}

Cell_Format::Cell_Format(std::string_view code)
{
    for (const std::string_view section : Sections_Of(code))
        m_sections.push_back(Section_Of(section));
    if (m_sections.size() == 1 && m_sections.front().is_plain)
        m_sections.clear();
}

Cell_Format Cell_Format::Built_In(int number)
{
    const std::string_view code = Code_Of_Built_In(number);
    return code.empty() ? Cell_Format() : Cell_Format(code);
}

Cell_Format::Section Cell_Format::Section_Of(std::string_view code)
{
    Section section;
    const auto add = [&](Piece::Kind kind, std::string_view text) {
        section.pieces.push_back({kind, QByteArray(text.data(), static_cast<qsizetype>(text.size()))});
    };
    bool is_past_point = false;
    bool is_past_digits = false;
    for (std::size_t at = 0; at < code.size(); ++at) {
        const char byte = code[at];
        const std::string_view rest = code.substr(at);
        if (byte == '"') {
            const std::size_t end = std::min(code.find('"', at + 1), code.size());
            add(Piece::Literal, code.substr(at + 1, end - at - 1));
            at = end;
        } else if (byte == '[') {
            const std::size_t end = std::min(code.find(']', at + 1), code.size());
            Take_Bracket(code.substr(at + 1, end - at - 1), section);
            at = end;
        } else if (byte == '\\' || byte == '_' || byte == '*') { // as it is; as wide as; as often as there is room
            if (++at < code.size() && byte == '\\')
                add(Piece::Literal, code.substr(at, 1));
        } else if (Is_Plain_From(rest, section.whole_digits > 0) || (Lower(byte) == 'e' && at > 0)) {
            section.is_plain = true; // as are exponents and fractions
            break;
        } else if (rest.starts_with("AM/PM") || rest.starts_with("A/P")) {
            add(Piece::Date, rest.starts_with("AM") ? "AM/PM" : "A/P");
            section.is_date = true;
            at += rest.starts_with("AM") ? 4 : 2;
        } else if (Is_One_Of(Lower(byte), "ymdhs")) {
            std::size_t end = at;
            while (end < code.size() && Lower(code[end]) == Lower(byte))
                ++end;
            add(Piece::Date, std::string(end - at, Lower(byte)));
            section.is_date = true;
            at = end - 1;
        } else if (Is_One_Of(byte, "0#?")) {
            add(Piece::Digit, code.substr(at, 1));
            section.whole_digits += is_past_point ? 0 : 1;
            is_past_digits = true;
        } else if (byte == '.' && !is_past_point && !section.is_date) {
            add(Piece::Point, ".");
            is_past_point = true;
        } else if (byte == ',' && is_past_digits && !section.is_date) {
            const bool has_more = code.find_first_of("0#?", at) != std::string_view::npos;
            section.has_thousands = section.has_thousands || has_more;
            section.scale += has_more ? 0 : 1;
        } else {
            add(byte == '%' ? Piece::Percent : Piece::Literal, code.substr(at, 1));
        }
    }
    Tell_Minutes(section);
    return section;
}

// [<=9999999], [h], [$EUR-407], [Red]
void Cell_Format::Take_Bracket(std::string_view inside, Section& section)
{
    if (inside.empty())
        return;
    if (Is_One_Of(inside.front(), "<>=")) {
        const bool is_or_equal = inside.size() > 1 && inside[1] == '=';
        section.compares = !is_or_equal ? inside.front() : inside.front() == '<' ? 'l' : 'g';
        inside.remove_prefix(is_or_equal ? 2 : 1);
        std::from_chars(inside.data(), inside.data() + inside.size(), section.compared);
    } else if (inside.front() == '$') {
        const std::string_view sign = inside.substr(1, std::min(inside.find('-'), inside.size()) - 1);
        section.pieces.push_back({Piece::Literal, QByteArray(sign.data(), static_cast<qsizetype>(sign.size()))});
    } else if (Is_One_Of(Lower(inside.front()), "hms") && Lower(inside.back()) == Lower(inside.front())) {
        section.pieces.push_back({Piece::Date, QByteArray("[") + Lower(inside.front())});
        section.is_date = true;
    }
}

// An m is a minute after an hour and before a second.
void Cell_Format::Tell_Minutes(Section& section)
{
    Piece* before = nullptr;
    for (Piece& piece : section.pieces) {
        if (piece.kind != Piece::Date || piece.text.endsWith('P') || piece.text.endsWith('M'))
            continue;
        if (before && piece.text.startsWith('m') && before->text.endsWith('h'))
            piece.text.fill('n');
        else if (before && piece.text.startsWith('s') && before->text.startsWith('m'))
            before->text.fill('n');
        before = &piece;
    }
}

// Takes the sign off where the section has one of its own.
const Cell_Format::Section& Cell_Format::Section_For(double& value) const
{
    const auto fits = [&](const Section& section) {
        switch (section.compares) {
        case '<':
            return value < section.compared;
        case '>':
            return value > section.compared;
        case '=':
            return value == section.compared;
        case 'l':
            return value <= section.compared;
        default:
            return value >= section.compared;
        }
    };
    for (const Section& section : m_sections)
        if (section.compares != 0 && fits(section))
            return section;
    if (m_sections.front().compares != 0)
        return m_sections.size() > 1 ? m_sections[1] : m_sections.front();
    if (value < 0 && m_sections.size() > 1) {
        value = -value;
        return m_sections[1];
    }
    return value == 0 && m_sections.size() > 2 ? m_sections[2] : m_sections.front();
}

QByteArray Cell_Format::Shown(double value, bool counts_from_1904) const
{
    if (Is_Plain() || !std::isfinite(value))
        return Plain_Number(value);
    const Section& section = Section_For(value);
    if (section.is_plain)
        return Plain_Number(value);
    if (!section.is_date)
        return Number_In(section, value);
    return value < 0 || value >= Latest_Day ? Plain_Number(value) : Date_In(section, value, counts_from_1904);
}

QByteArray Cell_Format::Number_In(const Section& section, double value)
{
    int decimals = 0;
    int needed = 0; // of the decimals
    bool is_past_point = false;
    for (const Piece& piece : section.pieces) {
        is_past_point = is_past_point || piece.kind == Piece::Point;
        if (piece.kind == Piece::Percent)
            value *= 100;
        if (piece.kind == Piece::Digit && is_past_point && decimals < Most_Decimals) {
            ++decimals;
            needed = piece.text == "0" ? decimals : needed;
        }
    }
    QByteArray digits = QByteArray::number(std::abs(value) / std::pow(1000, section.scale), 'f', decimals);
    QByteArray fraction = decimals > 0 ? digits.mid(digits.size() - decimals) : QByteArray();
    while (fraction.size() > needed && fraction.endsWith('0'))
        fraction.chop(1);
    QByteArray whole = decimals > 0 ? digits.chopped(decimals + 1) : digits;
    if (whole == "0")
        whole.clear(); // a place of its own shows a zero
    QByteArray shown = value < 0 ? "-" : "";
    int places = section.whole_digits;
    is_past_point = false;
    for (const Piece& piece : section.pieces) {
        if (piece.kind == Piece::Point) {
            is_past_point = true;
            shown += whole; // where the format has no place for it
            whole.clear();
            shown += fraction.isEmpty() ? "" : "." + fraction;
        } else if (piece.kind == Piece::Digit && !is_past_point) {
            const qsizetype here = std::max<qsizetype>(0, whole.size() - places + 1); // the first place takes the rest
            const QByteArray taken = here > 0 ? whole.left(here) : QByteArray(piece.text == "0" ? "0" : "");
            whole.remove(0, here);
            for (qsizetype i = 0; i < taken.size(); ++i) {
                shown += taken[i];
                const qsizetype after = taken.size() - 1 - i + places - 1; // digits of the whole
                shown += section.has_thousands && after > 0 && after % 3 == 0 ? "," : "";
            }
            --places;
        } else if (piece.kind != Piece::Digit) {
            shown += piece.text;
        }
    }
    return shown.trimmed();
}

QByteArray Cell_Format::Date_In(const Section& section, double value, bool counts_from_1904)
{
    // Until the end of February 1900 one day less was counted: there was no 29th of that month.
    const int first_day = counts_from_1904 ? 1462 : value < 60 ? 1 : 0;
    const auto all_seconds = static_cast<qint64>(std::llround(value * Seconds_Of_A_Day));
    const QDate date = QDate(1899, 12, 30).addDays(all_seconds / 86400 + first_day);
    const auto seconds = static_cast<int>(all_seconds % 86400);
    const QTime time = QTime::fromMSecsSinceStartOfDay(seconds * 1000);
    const bool has_halves = std::any_of(section.pieces.begin(), section.pieces.end(), [](const Piece& piece) {
        return piece.text == "AM/PM" || piece.text == "A/P";
    });
    const int hour = has_halves ? (time.hour() + 11) % 12 + 1 : time.hour();
    QByteArray shown;
    for (const Piece& piece : section.pieces) {
        const qsizetype count = piece.text.size();
        const char letter = piece.text.isEmpty() ? '\0' : piece.text.front();
        if (piece.kind != Piece::Date)
            shown += piece.kind == Piece::Digit ? QByteArray() : piece.text;
        else if (letter == 'A')
            shown += count > 3 ? (time.hour() < 12 ? "AM" : "PM") : (time.hour() < 12 ? "A" : "P");
        else if (letter == '[')
            shown += QByteArray::number(all_seconds / (piece.text[1] == 'h' ? 3600 : piece.text[1] == 'm' ? 60 : 1));
        else if (letter == 'y')
            shown += count <= 2 ? Padded(date.year() % 100, 2) : Padded(date.year(), 4);
        else if (letter == 'm' && count >= 3)
            shown += QLocale::c().toString(date, count == 3 ? u"MMM" : u"MMMM").left(count == 5 ? 1 : 100).toUtf8();
        else if (letter == 'd' && count >= 3)
            shown += QLocale::c().toString(date, count == 3 ? u"ddd" : u"dddd").toUtf8();
        else
            shown += Padded(letter == 'm'   ? date.month()
                            : letter == 'd' ? date.day()
                            : letter == 'h' ? hour
                            : letter == 'n' ? time.minute()
                                            : time.second(),
                            std::min<qsizetype>(count, 2));
    }
    return shown.trimmed();
}
