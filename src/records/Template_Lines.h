#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>
#include <array>

// The lines of a template file, read again only when the file has changed. Used under the file's lock, by one thread at
// a time.
class Template_Lines
{
public:
    explicit Template_Lines(QString path);

    const QString& Path() const { return m_path; }

    /// Whether a line of the file is exactly this text, as it would come back from the file.
    bool Contains(const QString& text);

    /// Records that the text was appended, as a line of line_size bytes, right after Contains.
    void Was_Appended(const QString& text, qsizetype line_size);

private:
    // What changes whenever the file does: device, inode, size, and the times of its last changes.
    using Stamp = std::array<long long, 7>;

    Stamp Stamp_Of_File() const;
    void Read_If_Changed();

    QString m_path;
    QSet<QString> m_lines;
    Stamp m_stamp{};
    bool m_was_read = false;
    bool m_takes_lines = false; // whether what is appended to the file is a further line of it
};
