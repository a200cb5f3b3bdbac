#include "Written_Lists.h"

#include <QFile>
#include <QRegularExpression>
#include <QXmlStreamReader>
#include <algorithm>
#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString Source(const char* path)
{
    QFile file(QStringLiteral(CORVANE_SOURCE_DIR "/") + QLatin1String(path));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path;
    return QString::fromUtf8(file.readAll());
}

QString Guide_On_Characters()
{
    return Source("docs/USER_GUIDE.md")
        .section(u"### Which characters arrive without Unicode"_s, 1)
        .section(u"\n## "_s, 0, 0);
}

QString Without_Blanks(QString list)
{
    return list.remove(QRegularExpression(u"\\s"_s));
}

// Three lists, each between the same marks.
Written_Lists Lists_Between(const QString& text, const QString& begin, const QString& end)
{
    QString lists[3];
    for (int list = 0; list < 3; ++list) {
        lists[list] = Without_Blanks(text.section(begin, list + 1, list + 1).section(end, 0, 0));
        EXPECT_FALSE(lists[list].isEmpty()) << list;
    }
    QString in_words = u" \n"_s;
    for (char16_t letter = u'a'; letter <= u'z'; ++letter)
        in_words += QString(QChar(letter)) + QChar(letter).toUpper();
    return {in_words + u"0123456789"_s + lists[0], lists[1], lists[2]};
}

QStringList Cells(const QString& row)
{
    QStringList cells = row.split(u'|');
    for (QString& cell : cells)
        cell = cell.trimmed();
    return cells.size() < 3 ? QStringList()
                            : cells.mid(2, cells.size() - 3); // without what is before and behind, and the head
}

} // namespace

Written_Lists Lists_In_The_Guide()
{
    const QString lists = Guide_On_Characters().replace(QRegularExpression(u"```\n([^`]*)```"_s), u"<tt>\\1</tt>"_s);
    return Lists_Between(lists, u"<tt>"_s, u"</tt>"_s);
}

Written_Lists Lists_In_The_Help_Window()
{
    QXmlStreamReader reader(Source("src/windows/main/Help_Wnd.ui"));
    QString html;
    while (html.isEmpty() && reader.readNext() != QXmlStreamReader::EndDocument && !reader.hasError()) {
        if (reader.isStartElement() && reader.attributes().value(u"name"_s) == u"html"_s &&
            reader.readNextStartElement())
            html = reader.readElementText();
    }
    Written_Lists lists = Lists_Between(html, u"<tt>"_s, u"</tt>"_s);
    lists.everywhere.replace(u"&lt;"_s, u"<"_s).replace(u"&gt;"_s, u">"_s).replace(u"&amp;"_s, u"&"_s);
    return lists;
}

std::vector<Typed_And_Shown> Changes_In_The_Guide(const QString& second_row)
{
    const QStringList lines = Guide_On_Characters().split(u'\n');
    std::vector<Typed_And_Shown> changes;
    for (qsizetype line = 2; line < lines.size(); ++line) {
        if (!lines.at(line).startsWith(u"| "_s + second_row))
            continue;
        const QStringList typed = Cells(lines.at(line - 2));
        const QStringList shown = Cells(lines.at(line));
        EXPECT_EQ(typed.size(), shown.size());
        for (qsizetype column = 0; column < std::min(typed.size(), shown.size()); ++column)
            changes.push_back({typed.at(column), shown.at(column)});
    }
    EXPECT_FALSE(changes.empty());
    return changes;
}
