#include "records/Job_Lines.h"

namespace {
constexpr qsizetype Bytes_At_Once = qsizetype{256} << 10;
} // namespace

Job_Lines Take_Job_Lines(const Descriptor& file, const std::function<bool(QByteArrayView line, qint64 begin)>& take)
{
    Job_Lines lines;
    for (;;) {
        const qsizetype held = lines.rest.size(); // without an LF
        lines.rest.resize(held + Bytes_At_Once);
        const ssize_t count = Uninterrupted(
            [&] { return pread(file.Number(), lines.rest.data() + held, Bytes_At_Once, lines.rest_begin + held); });
        lines.rest.truncate(held + qMax<ssize_t>(count, 0));
        lines.is_readable = count >= 0;
        if (count <= 0)
            return lines;
        qsizetype begin = 0;
        for (qsizetype end = lines.rest.indexOf('\n', held); end >= 0 && lines.is_taken;
             end = lines.rest.indexOf('\n', begin)) {
            const QByteArrayView line = QByteArrayView(lines.rest).sliced(begin, end - begin);
            lines.is_taken = take(line, lines.rest_begin + begin);
            begin = end + 1;
        }
        lines.rest.remove(0, begin);
        lines.rest_begin += begin;
        lines.is_taken = lines.is_taken && lines.rest.size() <= Longest_Job_Line;
        if (!lines.is_taken)
            return lines;
    }
}
