#include "platform/Text_Files.h"

#include "platform/Descriptor.h"
#include "platform/File_Steps.h"
#include "platform/Large_Pages.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>
#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <new>
#include <sys/stat.h>
#include <unistd.h>

using namespace File_Steps;

namespace {

constexpr mode_t Data_File_Permissions = 0777;
constexpr qint64 Largest_Read = qint64{2} << 30;
constexpr qsizetype Read_Step = qsizetype{64} << 10;
constexpr off_t Smallest_Page = 4096;

bool Write_Replacement(const QByteArray& name, const QByteArray& bytes)
{
    unlink(name.constData()); // left by a replacement that was killed
    Descriptor file = Open(name, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW, Data_File_Permissions);
    return file.Is_Open() && Give_Permissions(file, Data_File_Permissions) && Write_All(file, bytes) && Sync(file) &&
           file.Close();
}

// Whether a kill can cut an append short: the system checks for one between two pages of a file, but not within a page.
bool Can_Be_Left_Half_Done(off_t size, const QByteArray& bytes)
{
    return size % Smallest_Page + bytes.size() > Smallest_Page;
}

// An append in progress. If it cannot be noted, mostly for lack of room, it is done all the same.
class Append_Note
{
public:
    Append_Note(const QString& path, off_t size, const QByteArray& bytes)
    {
        if (!Can_Be_Left_Half_Done(size, bytes))
            return;
        m_name = Native_Name(Append_Note_Path(path));
        Descriptor file = Open(m_name, O_WRONLY | O_CREAT | O_TRUNC | O_NOFOLLOW, 0600);
        if (!Regular_Size(file) || !Write_All(file, QByteArray::number(qint64{size}) + '\n' + bytes))
            Remove();
    }

    void Remove() const
    {
        if (!m_name.isEmpty())
            unlink(m_name.constData());
    }

    // Cuts the file back to its size before the append if it ends in only a part of what was to be appended. Returns
    // whether the file is whole.
    static bool Undo(const QString& path)
    {
        const auto note = Read_File(Append_Note_Path(path));
        if (!note) // it is unknown, unless this is no note at all
            return !QFileInfo(Append_Note_Path(path)).isFile();
        const qsizetype line_end = note->indexOf('\n');
        const QByteArray bytes = note->mid(line_end + 1);
        bool is_number = false;
        const auto size = static_cast<off_t>(note->left(line_end).toLongLong(&is_number));
        if (line_end <= 0 || !is_number || size < 0)
            return true; // the note itself was not finished: nothing had been appended yet
        const auto added = Read_From(path, size, bytes.size());
        if (!added)
            return false;
        if (added->isEmpty() || added->size() == bytes.size() || !bytes.startsWith(*added))
            return true;
        return Cut(Open(Native_Name(path), O_WRONLY), size);
    }

private:
    // What follows the first bytes of a file, up to a limit, as the file may be large. Nothing at all when the file
    // exists but cannot be read.
    static std::optional<QByteArray> Read_From(const QString& path, off_t first, qsizetype at_most)
    {
        const Descriptor file = Open(Native_Name(path), O_RDONLY);
        if (!file.Is_Open() && errno == ENOENT)
            return QByteArray();
        if (!Regular_Size(file) || lseek(file.Number(), first, SEEK_SET) != first)
            return std::nullopt;
        QByteArray bytes(at_most, Qt::Uninitialized);
        const auto size = static_cast<size_t>(at_most);
        const ssize_t count = Uninterrupted([&] { return read(file.Number(), bytes.data(), size); });
        return count < 0 ? std::nullopt : std::optional(bytes.left(count));
    }

    QByteArray m_name;
};

} // namespace

std::optional<QByteArray> Read_File(const QString& path)
{
    const QByteArray name = Native_Name(path);
    if (!Is_Regular_Or_Missing(name))
        return std::nullopt;
    const Descriptor file = Open(name, O_RDONLY);
    const std::optional<off_t> size = Regular_Size(file);
    if (!size || *size > Largest_Read)
        return std::nullopt;
    try {
        QByteArray bytes(static_cast<qsizetype>(*size) + Read_Step, Qt::Uninitialized);
        Prefer_Large_Pages(bytes.constData(), static_cast<size_t>(bytes.size()));
        qsizetype total = 0;
        for (;;) {
            const auto room = static_cast<size_t>(bytes.size() - total);
            const ssize_t count = Uninterrupted([&] { return read(file.Number(), bytes.data() + total, room); });
            if (count < 0 || total + count > Largest_Read)
                return std::nullopt;
            if (count == 0)
                break;
            total += count;
            if (total == bytes.size())
                bytes.resize(2 * total);
        }
        bytes.truncate(total);
        return bytes;
    } catch (const std::bad_alloc&) {
        return std::nullopt;
    }
}

std::optional<QString> Decode_Utf8(const QByteArray& bytes)
{
    // Without this flag the decoder would drop the byte-order mark.
    QStringDecoder decoder(QStringConverter::Utf8,
                           QStringConverter::Flag::Stateless | QStringConverter::Flag::ConvertInitialBom);
    QString text = decoder.decode(bytes);
    if (decoder.hasError())
        return std::nullopt;
    return text;
}

bool Is_Valid_Utf8(const QByteArray& bytes)
{
    return QUtf8StringView(bytes).isValidUtf8();
}

std::optional<QString> Read_Utf8_File(const QString& path)
{
    const std::optional<QByteArray> bytes = Read_File(path);
    return bytes ? Decode_Utf8(*bytes) : std::nullopt;
}

bool Append_To_File(const QString& path, const QByteArray& bytes)
{
    const File_Lock lock(path);
    const QByteArray name = Native_Name(path);
    if (!Is_Regular_Or_Missing(name))
        return false;
    const bool is_new = access(name.constData(), F_OK) != 0 && errno == ENOENT;
    Descriptor file = Open(name, O_WRONLY | O_APPEND | O_CREAT, Data_File_Permissions);
    const std::optional<off_t> size = Regular_Size(file);
    if (!size || (is_new && !Give_Permissions(file, Data_File_Permissions)))
        return false;
    const Append_Note note(path, *size, bytes);
    const bool is_written = Write_All(file, bytes);
    bool is_whole = is_written || Cut(file, *size);
    const bool is_closed = file.Close();
    if (is_written && !is_closed)
        is_whole = Cut(Open(name, O_WRONLY), *size); // a file on a server may refuse its bytes as late as this
    if (is_whole)
        note.Remove();
    return is_written && is_closed;
}

bool Replace_File(const QString& path, const QByteArray& bytes)
{
    const File_Lock lock(path);
    const QByteArray name = Native_Name(path);
    const QByteArray beside = Native_Name(Replacement_Path(path));
    if (name.isEmpty())
        return false;
    if (!Write_Replacement(beside, bytes) || rename(beside.constData(), name.constData()) != 0) {
        unlink(beside.constData());
        return false;
    }
    // The new file stays from here on, whether or not its folder can be synced.
    const Descriptor folder = Open(Native_Name(QFileInfo(path).path()), O_RDONLY | O_DIRECTORY);
    if (folder.Is_Open())
        Sync(folder);
    return true;
}

QString Replacement_Path(const QString& path)
{
    return path + QLatin1String(".new");
}

QString Append_Note_Path(const QString& path)
{
    return path + QLatin1String(".appending");
}

void Clear_Up_After_A_Kill(const QString& folder, const QString& extension)
{
    const QStringList left = {Replacement_Path(extension), Replacement_Path(Kept_Path(extension)),
                              Append_Note_Path(extension)};
    QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::System);
    while (files.hasNext()) {
        const QString name = files.next();
        // No filter of names: the toolkit would make a pattern of each, at every start.
        if (std::none_of(left.begin(), left.end(), [&](const QString& end) { return name.endsWith(end); }))
            continue;
        const QString noted = name.chopped(Append_Note_Path({}).size());
        const File_Lock lock(noted);
        if (!name.endsWith(Append_Note_Path({})) || Append_Note::Undo(noted))
            Remove_File(name);
    }
}

bool Keep_What_Is_No_Utf8(const QString& path, const QByteArray& bytes)
{
    return Is_Valid_Utf8(bytes) || Replace_File(Kept_Path(path), bytes);
}

QString Kept_Path(const QString& path)
{
    return path + QStringLiteral(".unreadable");
}

bool Can_Be_Written(const QString& path)
{
    const QByteArray name = Native_Name(path);
    const QByteArray folder = QFile::encodeName(QFileInfo(path).path());
    struct stat found = {};
    if (stat(name.constData(), &found) == 0)
        return S_ISREG(found.st_mode) && faccessat(AT_FDCWD, name.constData(), W_OK, AT_EACCESS) == 0;
    return errno == ENOENT && !name.isEmpty() && faccessat(AT_FDCWD, folder.constData(), W_OK | X_OK, AT_EACCESS) == 0;
}

bool Remove_File(const QString& path)
{
    const QByteArray name = Native_Name(path);
    struct stat found = {};
    if (lstat(name.constData(), &found) == 0)
        return (S_ISREG(found.st_mode) || S_ISLNK(found.st_mode)) && unlink(name.constData()) == 0;
    return errno == ENOENT || errno == ENOTDIR;
}

bool Write_File_In_Pieces(const QString& path, const std::function<std::optional<QByteArray>()>& next_piece)
{
    const QByteArray name = Native_Name(path);
    if (!Is_Regular_Or_Missing(name))
        return false;
    // Emptied only once it is known to be a regular file.
    Descriptor file = Open(name, O_WRONLY | O_CREAT, 0666);
    if (!Regular_Size(file) || !Cut(file, 0))
        return false;
    while (const std::optional<QByteArray> piece = next_piece()) {
        if (!Write_All(file, *piece))
            return false;
    }
    const bool is_synced = Sync(file);
    return file.Close() && is_synced;
}
