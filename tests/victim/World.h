#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>
#include <map>
#include <string>

// The folder that is all the world of a victim: its data home, its home, and what its person picks and exports.
class World
{
public:
    using Files = std::map<QByteArray, QByteArray>; ///< contents by names

    World();

    QString Path() const { return m_folder.path(); }
    QString Path(const QString& name) const { return m_folder.filePath(name); }

    /// Everything is as before a first start.
    void Empty();
    /// The same, and then there are sent items, templates and exclusion lists, a file of numbers, and old exports.
    void Furnish();

    /// The data files.
    Files Data() const;
    /// The files that a person picks, to read or to export to.
    Files Picked() const;
    /// The files and folders that are no data and no other file of those that are to be there, a line each.
    std::string Strangers() const;

    static QByteArray Record(int number, const QByteArray& message, const QByteArray& date);
    /// Whether each line is a whole record.
    static bool Are_Records(const QByteArray& bytes);

    /// The data folder.
    QString Data_Folder() const;

    /// A file, with the folders that lead to it.
    void Put(const QString& name, const QByteArray& bytes) const;

private:
    QTemporaryDir m_folder;
};

/// The file's bytes; empty when there is none.
QByteArray Bytes_In(const QString& path);
