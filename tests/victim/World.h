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

    World() { Empty(); }

    QString Path() const { return m_folder.path(); }

    /// Everything is as before a first start.
    void Empty();
    /// The same, and then there are sent items, templates and exclusion lists, a file of numbers, and old exports.
    void Furnish();

    /// The data folder, and the files in it.
    QString Data_Folder() const { return m_folder.filePath(QStringLiteral("data/corvane/Resources/CORVANE_DATA")); }
    Files Data() const { return Files_Below(Data_Folder(), true); }
    /// The files that a person picks, to read or to export to.
    Files Picked() const { return Files_Below(Path(), false); }
    /// The files and folders that are no data and no other file of those that are to be there, a line each.
    std::string Strangers() const;

    static QByteArray Record(int number, const QByteArray& message, const QByteArray& date);
    /// Whether each line is a whole record.
    static bool Are_Records(const QByteArray& bytes);

    /// A file, with the folders that lead to it.
    void Put(const QString& name, const QByteArray& bytes) const;

private:
    static Files Files_Below(const QString& folder, bool with_subfolders);

    QTemporaryDir m_folder;
};

/// What a file holds; a file that is not there is told from an empty one.
QByteArray Content_In(const World::Files& files, const QByteArray& name);
