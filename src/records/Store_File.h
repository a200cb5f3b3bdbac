#pragma once

#include <QByteArray>
#include <QString>

// One line-based data file that a window shows and rewrites while the send job appends to it. Remembers what was
// loaded, so that a rewrite keeps whatever was added to the file after that. Each operation holds the file's lock; not
// for the interface thread, since a file may be large. One object serves one thread at a time.
class Store_File
{
public:
    explicit Store_File(QString path);

    /// The bytes of the whole file, which are UTF-8; none when it is missing, cannot be read or is not UTF-8. They take
    /// up memory only once: the remembered bytes are the very same.
    QByteArray Load_Bytes();
    /// The same as a text.
    QString Load();

    /// Makes sure that the data files exist and appends the bytes of whole lines. Returns whether all of them are in
    /// the file; otherwise none are.
    bool Append(const QByteArray& lines) const;

    /// Replaces what was loaded by these lines; what was added to the file since then stays, after them. Bytes that are
    /// not UTF-8 are first kept beside the file, see Keep_What_Is_No_Utf8. A file that cannot be read, kept or replaced
    /// stays as it is, and the answer is false.
    bool Rewrite(const QByteArray& lines);

    /// Moves what could not be read at the last load, and still cannot be, out of the way: a file without permission, a
    /// folder, a pipe. It is kept beside the file under a name of its own. Returns whether the path is free now.
    bool Put_Aside() const;

    /// Whether something at the path could not be read, or was not UTF-8, at the last load.
    bool Was_Unreadable() const { return m_is_out_of_reach || !m_is_utf_8; }

    /// Rewrites without any lines, but only when there is a file.
    bool Clear();

    /// Releases what Load remembers. A rewrite without a preceding load keeps everything in the file.
    void Forget();

private:
    QString m_path;
    QByteArray m_loaded;
    bool m_is_out_of_reach = false; // whether something was there that could not be read
    bool m_is_utf_8 = true;
};
