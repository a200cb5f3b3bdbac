#include "victim/World.h"

#include "support/Files.h"

#include <QDirIterator>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSettings>
#include <algorithm>

QByteArray Content_In(const World::Files& files, const QByteArray& name)
{
    const auto found = files.find(name);
    return found == files.end() ? "(none)" : found->second;
}

void World::Empty()
{
    QDir folder(Path());
    for (const char* name : {"data", "home"}) {
        QDir(folder.filePath(name)).removeRecursively();
        EXPECT_TRUE(folder.mkpath(name));
    }
    for (const QString& name : folder.entryList(QDir::Files | QDir::Hidden))
        folder.remove(name);
}

void World::Put(const QString& name, const QByteArray& bytes) const
{
    const QString path = QDir(Path()).absoluteFilePath(name);
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    Write_Bytes(path, bytes);
}

QByteArray World::Record(int number, const QByteArray& message, const QByteArray& date)
{
    return '\a' + QByteArray::number(number) + '\v' + message + '\a' + date + "\v\n";
}

bool World::Are_Records(const QByteArray& bytes)
{
    static const QRegularExpression records(QStringLiteral("\\A(\a\\d+\v[^\a\v\n]+\a\\d\\d/\\d\\d/\\d{4}\v\n)*\\z"));
    return records.match(QString::fromUtf8(bytes)).hasMatch();
}

void World::Furnish()
{
    Empty();
    QByteArray records;
    QByteArray templates;
    // Until so little of the file's second page is left that the third or fourth line to come begins the next.
    constexpr int old_bytes = 2 * 4096 - 200;
    for (int item = 1; records.size() < old_bytes || templates.size() < old_bytes; ++item) {
        const QByteArray text = "old message " + QByteArray::number(item) + ' ';
        const auto padded = [](const QByteArray& begun, qsizetype room) {
            return begun + QByteArray(std::clamp<qsizetype>(room - begun.size(), 1, 200), 'o');
        };
        if (records.size() < old_bytes)
            records += Record(item, padded(text, old_bytes - records.size() - 16), "20/11/2026");
        if (templates.size() < old_bytes)
            templates += padded(text, old_bytes - templates.size() - 1) + '\n';
    }
    const QString data = Data_Folder() + u'/';
    for (const auto& [name, bytes] : Files{{"SentItem.ZOVA", records},
                                           {"Templates.ZOVA", templates},
                                           {"AppExclusion.ZOVA", "Old\n"},
                                           {"Exclusion/ExListIndex.ZOVA", "Old\nKept\n"},
                                           {"Exclusion/Old.ZOVA", "1\n2\n"},
                                           {"Exclusion/Kept.ZOVA", "5\n"}})
        Put(data + name, bytes);
    QByteArray numbers;
    for (int number = 7000; number < 7300; ++number)
        numbers += QByteArray::number(number) + '\n';
    Put("numbers.txt", numbers);
    for (const char* name : {"contacts.txt", "sent.txt", "sent.html", "templates.txt", "templates.html"})
        Put(name, "exported before\n");
}

World::Files World::Files_Below(const QString& folder, bool with_subfolders)
{
    Files files;
    QDirIterator walk(folder, QDir::Files | QDir::Hidden,
                      with_subfolders ? QDirIterator::Subdirectories : QDirIterator::NoIteratorFlags);
    while (walk.hasNext()) {
        const QString path = walk.next();
        files[QFileInfo(path).fileName().toUtf8()] = Bytes_Of(path);
    }
    return files;
}

// What the program remembers of itself, such as the folder of the last file: all of it or none.
static bool Holds_Settings(const QString& path)
{
    const QSettings settings(path, QSettings::IniFormat);
    return settings.status() == QSettings::NoError && !settings.allKeys().isEmpty();
}

std::string World::Strangers() const
{
    static const QRegularExpression known(
        QStringLiteral("\\A(data|home|data/corvane|data/corvane/Running\\.lock|data/corvane/Resources"
                       "|data/corvane/Resources/CORVANE_DATA(/(Exclusion|[A-Za-z]+\\.ZOVA|Exclusion/[A-Za-z]+\\.ZOVA))?"
                       "|(numbers|contacts|sent|templates)\\.(txt|html))\\z"));
    std::string strangers;
    QDirIterator walk(Path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                      QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString name = walk.next().mid(Path().size() + 1);
        const bool is_settings = name == QLatin1String("data/corvane/Settings.ini") && Holds_Settings(walk.filePath());
        if (!is_settings && !known.match(name).hasMatch())
            strangers += name.toStdString() + '\n';
    }
    return strangers;
}
