#pragma once

#include <QByteArray>
#include <QString>

// One data file of lines that a window shows and rewrites while the send job appends to it. Remembers what was loaded,
// so that a rewrite keeps whatever came into the file after that. Each operation holds the file's lock; not for the
// interface thread, since a file may be large. One object serves one thread at a time.
class Store_File
{
public:
    explicit Store_File(QString path);

    /// The bytes of the whole file, which are UTF-8; none when it is missing, can not be read or is no UTF-8. What they
    /// take is taken once: the bytes are the very ones that are remembered.
    QByteArray Load_Bytes();
    /// The same as a text.
    QString Load();

    /// Makes sure that the data files exist and appends the bytes of whole lines. Returns whether they are in the file
    /// whole; otherwise nothing of them is.
    bool Append(const QByteArray& lines) const;

    /// Replaces what was loaded by these lines; what was added to the file since then stays, behind them. Bytes that
    /// are no UTF-8 are kept beside the file first, see Keep_What_Is_No_Utf8. A file that can not be read, kept or
    /// replaced stays as it is, and the answer is false.
    bool Rewrite(const QByteArray& lines);

    /// Moves what could not be read at the last load, and still can not be, out of the way: a file without permission,
    /// a folder, a pipe. It is kept beside under a name of its own. Returns whether the path is free now.
    bool Put_Aside() const;

    /// Whether something that could not be read, or was no UTF-8, stood at the path at the last load.
    bool Was_Unreadable() const { return m_is_out_of_reach || !m_is_utf_8; }

    /// Rewrite without any lines, but only when there is a file.
    bool Clear();

    /// Lets go of what Load remembers. A rewrite without a load before it keeps everything there is.
    void Forget();

private:
    QString m_path;
    QByteArray m_loaded;
    bool m_is_out_of_reach = false; // whether something stood there that could not be read
    bool m_is_utf_8 = true;
};
