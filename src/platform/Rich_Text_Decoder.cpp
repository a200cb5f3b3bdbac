#include "platform/Rich_Text_Decoder.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <iterator>

namespace {

constexpr int Ansi_Code_Page = 1252;
constexpr qsizetype Most_Held = 4096;
constexpr char16_t Replacement = QChar::ReplacementCharacter;
constexpr const char* Units_Of_A_Text = Q_BYTE_ORDER == Q_LITTLE_ENDIAN ? "UTF-16LE" : "UTF-16BE";

struct Code_Page
{
    int number;
    const char* name; // as iconv knows it
};

constexpr Code_Page Code_Pages[] = {
    {437, "CP437"},         {708, "ISO-8859-6"},
    {737, "CP737"},         {775, "CP775"},
    {819, "ISO-8859-1"},    {850, "CP850"},
    {852, "CP852"},         {855, "CP855"},
    {857, "CP857"},         {858, "CP858"},
    {860, "CP860"},         {861, "CP861"},
    {862, "CP862"},         {863, "CP863"},
    {864, "CP864"},         {865, "CP865"},
    {866, "CP866"},         {869, "CP869"},
    {874, "CP874"},         {932, "CP932"},
    {936, "GBK"},           {949, "UHC"},
    {950, "BIG5"},          {1250, "CP1250"},
    {1251, "CP1251"},       {1252, "CP1252"},
    {1253, "CP1253"},       {1254, "CP1254"},
    {1255, "CP1255"},       {1256, "CP1256"},
    {1257, "CP1257"},       {1258, "CP1258"},
    {1361, "JOHAB"},        {10000, "MACINTOSH"},
    {10001, "CP932"},       {10002, "BIG5"},
    {10003, "UHC"},         {10007, "MAC-CYRILLIC"},
    {10008, "GBK"},         {10029, "MAC-CENTRALEUROPE"},
    {20866, "KOI8-R"},      {20932, "EUC-JP"},
    {21866, "KOI8-U"},      {28591, "ISO-8859-1"},
    {28592, "ISO-8859-2"},  {28593, "ISO-8859-3"},
    {28594, "ISO-8859-4"},  {28595, "ISO-8859-5"},
    {28596, "ISO-8859-6"},  {28597, "ISO-8859-7"},
    {28598, "ISO-8859-8"},  {28599, "ISO-8859-9"},
    {28605, "ISO-8859-15"}, {51949, "EUC-KR"},
    {54936, "GB18030"},     {65001, "UTF-8"},
};

struct Charset
{
    int number;
    int code_page;
};

// Rich Text Format 1.9.1, "Font Table". "ANSI", "default" and "symbol" name no code page of their own.
constexpr Charset Charsets[] = {
    {77, 10000}, {78, 10001}, {79, 10003}, {80, 10008}, {81, 10002}, {88, 10029}, {89, 10007}, {128, 932},
    {129, 949},  {130, 1361}, {134, 936},  {136, 950},  {161, 1253}, {162, 1254}, {163, 1258}, {177, 1255},
    {178, 1256}, {186, 1257}, {204, 1251}, {222, 874},  {238, 1250}, {254, 437},  {255, 850},
};

const char* Name_Of_Code_Page(int number)
{
    const auto* found = std::ranges::find(Code_Pages, number, &Code_Page::number);
    return found == std::end(Code_Pages) ? Name_Of_Code_Page(Ansi_Code_Page) : found->name;
}

iconv_t No_Converter()
{
    return reinterpret_cast<iconv_t>(-1); // NOLINT(performance-no-int-to-ptr): what iconv_open returns
}

} // namespace

Rich_Text_Decoder::~Rich_Text_Decoder()
{
    for (const auto& [name, converter] : m_converters) {
        if (converter != No_Converter())
            iconv_close(converter);
    }
}

void Rich_Text_Decoder::Put(char byte, int code_page, QString& text)
{
    if (code_page != m_code_page) {
        Finish(text);
        m_code_page = code_page;
        m_name = Name_Of_Code_Page(code_page);
    }
    // Below 0x80 every code page in the table is ASCII, unless the byte is the second half of a character.
    const bool is_ascii = static_cast<unsigned char>(byte) < 0x80;
    if (is_ascii && m_held.isEmpty()) {
        text += QLatin1Char(byte);
        return;
    }
    m_held += byte;
    if (is_ascii || m_held.size() >= Most_Held)
        Convert_Held(text);
}

void Rich_Text_Decoder::Finish(QString& text)
{
    if (m_held.isEmpty())
        return;
    Convert_Held(text);
    if (!m_held.isEmpty())
        text += QChar::ReplacementCharacter;
    m_held.clear();
}

iconv_t Rich_Text_Decoder::Converter()
{
    const auto [place, is_new] = m_converters.try_emplace(m_name, No_Converter());
    if (is_new)
        place->second = iconv_open(Units_Of_A_Text, m_name);
    return place->second;
}

void Rich_Text_Decoder::Convert_Held(QString& text)
{
    const iconv_t converter = Converter();
    if (converter == No_Converter()) {
        text += QLatin1String(m_held);
        m_held.clear();
        return;
    }
    QString units(2 * m_held.size() + 8, Qt::Uninitialized);
    char* const begin = reinterpret_cast<char*>(units.data());
    char* output = begin;
    auto room = static_cast<size_t>(units.size()) * sizeof(QChar);
    char* input = m_held.data();
    auto left = static_cast<size_t>(m_held.size());
    bool is_incomplete = false;
    while (left > 0 && !is_incomplete) {
        if (iconv(converter, &input, &left, &output, &room) != static_cast<size_t>(-1))
            break;
        is_incomplete = errno == EINVAL;
        if (errno == EILSEQ && left > 0 && room >= sizeof Replacement) {
            std::memcpy(output, &Replacement, sizeof Replacement);
            output += sizeof Replacement;
            room -= sizeof Replacement;
            ++input;
            --left;
        } else if (!is_incomplete) {
            break;
        }
    }
    iconv(converter, nullptr, nullptr, &output, &room); // what it held back to combine with a following character
    units.truncate((output - begin) / static_cast<qsizetype>(sizeof(QChar)));
    text += units;
    m_held = is_incomplete ? QByteArray(input, static_cast<qsizetype>(left)) : QByteArray();
}

int Rich_Text_Decoder::Code_Page_Of_Charset(int charset)
{
    const auto* found = std::ranges::find(Charsets, charset, &Charset::number);
    return found == std::end(Charsets) ? 0 : found->code_page;
}
