#include "plan/Plan_Number.h"

#include "handset/Address.h"
#include "list/Number_File.h"
#include "list/Number_Rules.h"
#include "platform/String_Helpers.h"

#include <bit>
#include <cstring>
#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace {

constexpr qsizetype Longest_Shown = 100; // of what is no number, in characters

// By the rules of tables, but what an import passes over.
Read_Number Of_Country(QStringView written, const Country* country)
{
    constexpr QStringView passed_over = u"\\{}";
    QString kept;
    for (const QChar character : written.left(Longest_Shown + 1))
        if (!passed_over.contains(character))
            kept += character;
    return Number_As_Written(kept, country);
}

// A number as it is read.
struct Digits
{
    std::uint64_t packed = 0; // as Packed_Number has up to sixteen
    int count = 0;
    bool has_plus = false;
    bool is_plain = true; // nothing but blanks and "-" stood between them
};

// Without branches: where the marks stand in a number cannot be foretold.
Digits Digits_One_By_One(QByteArrayView written)
{
    Digits digits;
    digits.has_plus = written.startsWith('+');
    for (const char byte : written.sliced(digits.has_plus ? 1 : 0)) {
        const auto digit = static_cast<unsigned char>(byte - '0');
        const bool is_digit = digit <= 9;
        digits.packed = is_digit ? digits.packed << 4 | (digit + 1U) : digits.packed;
        digits.count += is_digit ? 1 : 0;
        digits.is_plain = digits.is_plain & (is_digit | (byte == '-') | (byte == ' '));
    }
    return digits;
}

#ifdef __SSE2__

constexpr qsizetype Bytes_At_Once = 16;

// Two bytes, of which each is less than sixteen, in one.
std::uint64_t Packed_In_Pairs(__m128i bytes)
{
    const __m128i pairs = _mm_or_si128(_mm_slli_epi16(bytes, 4), _mm_srli_epi16(bytes, 8));
    const __m128i packed = _mm_and_si128(pairs, _mm_set1_epi16(0xFF));
    std::uint64_t whole = 0;
    _mm_storel_epi64(reinterpret_cast<__m128i*>(&whole), _mm_packus_epi16(packed, packed));
    return __builtin_bswap64(whole);
}

// The same for a number of eight to sixteen bytes, all at once.
Digits Digits_At_Once(QByteArrayView written)
{
    const auto missing = static_cast<int>(Bytes_At_Once - written.size());
    std::uint64_t first = 0;
    std::memcpy(&first, written.data(), sizeof(first));
    first = first << 4 * missing << 4 * missing; // what is missing stands before it, and what the rest repeats goes
    __m128i bytes = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(written.data() + written.size() - 8));
    bytes = _mm_unpacklo_epi64(_mm_set1_epi64x(static_cast<long long>(first)), bytes);
    const __m128i values = _mm_sub_epi8(bytes, _mm_set1_epi8('0'));
    const __m128i are_digits = _mm_cmpeq_epi8(_mm_min_epu8(values, _mm_set1_epi8(9)), values);
    const __m128i are_marks =
        _mm_or_si128(_mm_cmpeq_epi8(bytes, _mm_set1_epi8('-')), _mm_cmpeq_epi8(bytes, _mm_set1_epi8(' ')));
    Digits digits;
    digits.packed = Packed_In_Pairs(_mm_and_si128(_mm_add_epi8(values, _mm_set1_epi8(1)), are_digits));
    digits.has_plus = written.front() == '+';
    unsigned marks = static_cast<unsigned>(_mm_movemask_epi8(are_marks)) | (digits.has_plus ? 1U : 0U) << missing;
    const unsigned all = 0xFFFFU << missing & 0xFFFFU;
    digits.is_plain = (static_cast<unsigned>(_mm_movemask_epi8(are_digits)) | marks) == all;
    digits.count = static_cast<int>(written.size());
    for (; marks != 0; marks &= marks - 1, --digits.count) { // what stands before a mark moves up to what follows
        const int place = 60 - 4 * std::countr_zero(marks);
        const std::uint64_t behind = (std::uint64_t{1} << place) - 1;
        digits.packed = digits.packed >> place >> 4 << place | (digits.packed & behind);
    }
    return digits;
}

Digits Digits_In(QByteArrayView written)
{
    return written.size() >= 8 && written.size() <= Bytes_At_Once ? Digits_At_Once(written)
                                                                  : Digits_One_By_One(written);
}

#else

Digits Digits_In(QByteArrayView written)
{
    return Digits_One_By_One(written);
}

#endif

} // namespace

Read_Number Number_Of_Input(QStringView written, Plan_Numbers numbers, const Country* country)
{
    if (numbers == Plan_Numbers::In_A_Table)
        return Number_As_Written(written, country);
    if (country)
        return Of_Country(written, country);
    if (numbers == Plan_Numbers::Typed)
        return {Number_Rules::Normalised_Number(written.toString()), Number_Reading::As_Written};
    return {Number_In_Line(written).Digits(), Number_Reading::As_Written};
}

std::optional<Packed_Number> Plain_Number_In(QByteArrayView utf8)
{
    if (utf8.size() > Longest_Shown)
        return std::nullopt;
    const Digits digits = Digits_In(utf8);
    if (!digits.is_plain || digits.count == 0)
        return std::nullopt;
    const std::uint64_t prefix = digits.has_plus ? 0x11 : 0; // 00
    if (digits.count + (digits.has_plus ? 2 : 0) <= 16)
        return Packed_Number::Of_Digits(prefix << (4 * digits.count & 63) | digits.packed);
    Packed_Number number = Packed_Number::Of_Digits(prefix);
    for (const char byte : utf8)
        if (byte >= '0' && byte <= '9' && !number.Add_Digit(static_cast<char16_t>(byte)))
            return std::nullopt;
    return number;
}

bool Can_Be_Dialled(const QString& number)
{
    return !number.isEmpty() &&
           Handset::Fault_Of(Handset::Destination_Of(number.toStdString())) == Handset::Address_Fault::None;
}

bool Can_Be_Dialled(const Packed_Number& number)
{
    static const Packed_Number no_more_than_a_prefix = *Packed_Number::Of(u"00");
    return !number.Is_Empty() && number != no_more_than_a_prefix;
}

// Half of a pair at the cut would be no character.
QString Shown_In_Place_Of_A_Number(QStringView written)
{
    QString beginning = Trim_Str(written.left(Longest_Shown).toString());
    if (!beginning.isEmpty() && beginning.back().isHighSurrogate())
        beginning.chop(1);
    return beginning.isEmpty() ? QStringLiteral("-") : beginning;
}
