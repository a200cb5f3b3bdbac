#include "records/Template_Format.h"

#include "records/Stored_Text.h"

#include <QSet>

QByteArray Template_Format::Line(const QString& text)
{
    return Stored_Line(text);
}

QByteArray Template_Format::Lines(const QList<Template_Item>& templates)
{
    QByteArray lines;
    for (const auto& item : templates)
        lines.append(Line(item.Message));
    return lines;
}

std::optional<Template_Item> Template_Format::Template_Of(const QString& text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    if (trimmed.isEmpty())
        return std::nullopt;
    return Template_Item{As_Stored(trimmed.left(Most_Characters).toString())};
}

void Template_Format::Read_Lines(const QString& text, const std::function<void(QString)>& take)
{
    for (const QStringView line : QStringView(text).tokenize(u'\n')) {
        if (!line.isEmpty())
            take(With_Line_Breaks(line));
    }
}

void Template_Format::Read(const QString& text, const std::function<void(Template_Item)>& take)
{
    QSet<QString> taken;
    Read_Lines(text, [&](const QString& line) {
        if (taken.contains(line))
            return;
        if (auto item = Template_Of(line)) {
            taken.insert(item->Message);
            take(std::move(*item));
        }
    });
}
