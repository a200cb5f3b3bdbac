#include "platform/Bus_Probe.h"

#include "platform/Descriptor.h"
#include "platform/Waiting.h"

#include <QByteArray>
#include <QString>
#include <cstddef>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>

namespace {

constexpr double Longest_Answer = 2;      // real seconds
constexpr char Question[] = "\0AUTH\r\n"; // which ways there are to log in
constexpr std::size_t Question_Length = sizeof Question - 1;

struct Socket_Name
{
    sockaddr_un address = {};
    socklen_t length = 0; // none
};

// The first of several addresses counts, and its first value.
Socket_Name Name_In(const QString& bus_address)
{
    Socket_Name name;
    const QByteArray address = bus_address.section(u';', 0, 0).section(u',', 0, 0).toUtf8();
    const bool is_abstract = address.startsWith("unix:abstract=");
    if (!is_abstract && !address.startsWith("unix:path="))
        return name;
    QByteArray path = QByteArray::fromPercentEncoding(address.mid(address.indexOf('=') + 1));
    if (is_abstract)
        path.prepend('\0');
    if (path.isEmpty() || path.size() >= static_cast<qsizetype>(sizeof name.address.sun_path))
        return name;
    name.address.sun_family = AF_UNIX;
    memcpy(name.address.sun_path, path.constData(), static_cast<std::size_t>(path.size()));
    name.length = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + static_cast<std::size_t>(path.size()) +
                                         (is_abstract ? 0 : 1));
    return name;
}

} // namespace

bool Bus_Answers(const QString& address)
{
    const Socket_Name name = Name_In(address);
    if (name.length == 0)
        return false;
    // Not even connect waits, when the queue of a hung bus is full.
    const Descriptor line(socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0));
    char answer = 0;
    return line.Is_Open() &&
           connect(line.Number(), reinterpret_cast<const sockaddr*>(&name.address), name.length) == 0 &&
           send(line.Number(), Question, Question_Length, MSG_NOSIGNAL) == static_cast<ssize_t>(Question_Length) &&
           Wait_For_Descriptor(line.Number(), POLLIN, Longest_Answer) == Line_Event::Ready &&
           recv(line.Number(), &answer, 1, 0) == 1;
}
