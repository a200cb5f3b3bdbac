#include "victim/World.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <algorithm>
#include <gtest/gtest.h>

QByteArray Bytes_In(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

World::World()
{
    Empty();
}

QString World::Data_Folder() const
{
    return Path(QStringLiteral("data/corvane/Resources/CORVANE_DATA"));
}

void World::Empty()
{
    for (const char* name : {"data", "home"}) {
        QDir(Path(QLatin1String(name))).removeRecursively();
        EXPECT_TRUE(QDir().mkpath(Path(QLatin1String(name))));
    }
    QDir folder(Path());
    const QStringList files = folder.entryList(QDir::Files | QDir::Hidden);
    for (const QString& name : files)
        folder.remove(name);
}

void World::Put(const QString& name, const QByteArray& bytes) const
{
    QFile file(QDir(Path()).absoluteFilePath(name));
    EXPECT_TRUE(QDir().mkpath(QFileInfo(file).path()) && file.open(QIODevice::WriteOnly) &&
                file.write(bytes) == bytes.size())
        << qPrintable(name);
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
    const QString data = QStringLiteral("data/corvane/Resources/CORVANE_DATA/");
    Put(data + u"SentItem.ZOVA"_qs, records);
    Put(data + u"Templates.ZOVA"_qs, templates);
    Put(data + u"AppExclusion.ZOVA"_qs, "Old\n");
    Put(data + u"Exclusion/ExListIndex.ZOVA"_qs, "Old\nKept\n");
    Put(data + u"Exclusion/Old.ZOVA"_qs, "1\n2\n");
    Put(data + u"Exclusion/Kept.ZOVA"_qs, "5\n");
    QByteArray numbers;
    for (int number = 7000; number < 7300; ++number)
        numbers += QByteArray::number(number) + '\n';
    Put(u"numbers.txt"_qs, numbers);
    for (const char* name : {"contacts.txt", "sent.txt", "sent.html", "templates.txt", "templates.html"})
        Put(QLatin1String(name), "exported before\n");
}

World::Files World::Data() const
{
    Files files;
    QDirIterator walk(Data_Folder(), QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString path = walk.next();
        files[QFileInfo(path).fileName().toUtf8()] = Bytes_In(path);
    }
    return files;
}

World::Files World::Picked() const
{
    Files files;
    const QFileInfoList found = QDir(Path()).entryInfoList(QDir::Files | QDir::Hidden);
    for (const QFileInfo& file : found)
        files[file.fileName().toUtf8()] = Bytes_In(file.filePath());
    return files;
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
        if (!known.match(name).hasMatch())
            strangers += name.toStdString() + '\n';
    }
    return strangers;
}
