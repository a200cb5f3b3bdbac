#include "send/Output.h"

#include "platform/Descriptor.h"

#include <cerrno>
#include <unistd.h>

namespace {
constexpr char Empty_Line[] = "\r\x1b[K";
}

void Output::Line(const QByteArray& line)
{
    Write((m_shows ? Empty_Line : "") + line + '\n');
    m_shows = false;
}

void Output::Show(const QByteArray& text)
{
    if (isatty(STDOUT_FILENO) != 1)
        return;
    Write(Empty_Line + text);
    m_shows = !text.isEmpty();
}

void Output::Write(const QByteArray& bytes)
{
    for (qsizetype at = 0; at < bytes.size() && m_error == 0;) {
        const ssize_t count = Uninterrupted(
            [&] { return write(STDOUT_FILENO, bytes.constData() + at, static_cast<std::size_t>(bytes.size() - at)); });
        if (count < 0)
            m_error = errno;
        else
            at += count;
    }
}
