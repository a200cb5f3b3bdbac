#include "device/Answer_Lines.h"

#include <algorithm>

namespace {

bool Is_Line_End(char character)
{
    return character == '\r' || character == '\n';
}

} // namespace

void Answer_Lines::Take(QByteArrayView bytes)
{
    m_bytes.remove(0, std::exchange(m_begin, 0));
    m_bytes.append(bytes);
}

std::optional<QByteArray> Answer_Lines::Next()
{
    for (;;) {
        const auto begin = m_bytes.cbegin() + m_begin;
        const auto end = std::find_if(begin, m_bytes.cend(), Is_Line_End);
        const qsizetype length = end - begin;
        if (end == m_bytes.cend()) {
            if (length > Longest_Line)
                m_bytes.truncate(m_begin + Longest_Line);
            return std::nullopt;
        }
        const QByteArray line = m_bytes.mid(m_begin, std::min(length, Longest_Line)).trimmed();
        m_begin += length + 1;
        if (!line.isEmpty())
            return line;
    }
}

bool Answer_Lines::Take_Prompt()
{
    const QByteArrayView rest = QByteArrayView(m_bytes).sliced(m_begin);
    if (rest.trimmed() != ">" || std::any_of(rest.begin(), rest.end(), Is_Line_End))
        return false;
    Forget();
    return true;
}

void Answer_Lines::Forget()
{
    m_bytes.clear();
    m_begin = 0;
}
