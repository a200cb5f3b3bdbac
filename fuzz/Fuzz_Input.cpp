#include "fuzz/Fuzz_Input.h"

#include <QList>
#include <QStringDecoder>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string_view>

namespace {

constexpr char Piece_End = 0x1E;
constexpr char Wide_Text = 0x1D;
constexpr char Long_Mark[] = "\x1FLONG";
constexpr unsigned Long_Ones_Kept = 64; // one in so many: they are slow

} // namespace

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t most);

// The fuzzer's own changes, but a long document is made seldom, or they would take nearly all of its time.
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t most, unsigned seed);

std::size_t LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t most, unsigned seed)
{
    const std::size_t changed = LLVMFuzzerMutate(data, size, most);
    if (seed % Long_Ones_Kept == 0)
        return changed;
    const std::string_view mark(Long_Mark);
    const std::size_t found = std::string_view(reinterpret_cast<const char*>(data), changed).find(mark);
    if (found == std::string_view::npos)
        return changed;
    std::memmove(data + found, data + found + mark.size(), changed - found - mark.size());
    return changed - mark.size();
}

Fuzz_Input::Fuzz_Input(const std::uint8_t* data, std::size_t size)
    : m_bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size))
{
}

unsigned Fuzz_Input::Octet()
{
    return Is_At_End() ? 0 : static_cast<unsigned char>(m_bytes.at(m_at++));
}

QByteArray Fuzz_Input::Piece()
{
    const qsizetype found = m_bytes.indexOf(Piece_End, m_at);
    const qsizetype end = found < 0 ? m_bytes.size() : found;
    const QByteArray piece = m_bytes.mid(m_at, end - m_at);
    m_at = found < 0 ? end : end + 1;
    return piece;
}

QString Fuzz_Input::Text()
{
    return Text_Of(Piece());
}

QByteArray Fuzz_Input::Rest()
{
    const QByteArray rest = m_bytes.mid(m_at);
    m_at = m_bytes.size();
    return rest;
}

QByteArray Fuzz_Input::Document(qsizetype long_size)
{
    if (!QByteArrayView(m_bytes).sliced(m_at).startsWith(Long_Mark))
        return Rest();
    m_at += qsizetype(sizeof Long_Mark) - 1;
    const QByteArray head = Piece();
    const QByteArray piece = Piece();
    return piece.isEmpty() ? head : head + piece.repeated(long_size / piece.size());
}

QString Fuzz_Input::Text_Of(const QByteArray& bytes)
{
    if (!bytes.startsWith(Wide_Text))
        return QString::fromUtf8(bytes);
    QString text;
    for (qsizetype at = 1; at + 1 < bytes.size(); at += 2) {
        const auto low = static_cast<unsigned char>(bytes.at(at));
        const auto high = static_cast<unsigned char>(bytes.at(at + 1));
        text += QChar(low, high);
    }
    return text;
}

void Must(bool holds, const char* condition, const char* file, int line)
{
    if (holds)
        return;
    std::fprintf(stderr, "%s:%d: does not hold: %s\n", file, line, condition);
    std::abort();
}

bool Is_Utf8(const std::string& bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString text = decoder(QByteArrayView(bytes.data(), static_cast<qsizetype>(bytes.size())));
    return !text.isNull() ? !decoder.hasError() : bytes.empty();
}

QString With_Whole_Pairs(const QString& text)
{
    return QString::fromUcs4(reinterpret_cast<const char32_t*>(text.toUcs4().constData()), text.toUcs4().size());
}
