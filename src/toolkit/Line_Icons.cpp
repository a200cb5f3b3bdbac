#include "toolkit/Line_Icons.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>
#include <QStringList>

namespace {

constexpr qreal Units = 20;
constexpr qreal Line_Width = 1.6;

// M x y moves, L x y draws a line, C draws a curve by two handles to its end, O x y r draws a circle, Z closes.
struct Drawing
{
    const char* name;
    const char* path;
};

constexpr Drawing Drawings[] = {
    {"phone", "M 7 2 L 13 2 C 14.1 2 15 2.9 15 4 L 15 16 C 15 17.1 14.1 18 13 18 L 7 18 C 5.9 18 5 17.1 5 16 L 5 4 "
              "C 5 2.9 5.9 2 7 2 Z M 8.5 15 L 11.5 15"},
    {"send", "M 18 2.5 L 2.5 8.5 L 8.5 11.5 L 11.5 17.5 Z M 18 2.5 L 8.5 11.5"},
    {"add", "M 10 4 L 10 16 M 4 10 L 16 10"},
    {"import", "M 10 3 L 10 12 M 6 8.5 L 10 12.5 L 14 8.5 M 3.5 16.5 L 16.5 16.5"},
    {"export", "M 10 13 L 10 4 M 6 7.5 L 10 3.5 L 14 7.5 M 3.5 16.5 L 16.5 16.5"},
    {"contacts", "O 8 6.5 3.2 M 2 17 C 2 13.5 4.5 12 8 12 C 11.5 12 14 13.5 14 17 M 13 3.6 C 15 4.2 15.6 5.3 15.6 6.6 "
                 "C 15.6 7.9 14.8 9 13.3 9.5 M 15.5 12.6 C 17.3 13.4 18 15 18 17"},
    {"paste", "M 5 4 L 15 4 L 15 17.5 L 5 17.5 Z M 8 2.5 L 12 2.5 L 12 5.5 L 8 5.5 Z M 7.5 9.5 L 12.5 9.5 M 7.5 13 L "
              "12.5 13"},
    {"clear", "M 4 5.5 L 16 5.5 M 8 5.5 L 8 3 L 12 3 L 12 5.5 M 5.5 5.5 L 6.5 17 L 13.5 17 L 14.5 5.5"},
    {"template",
     "M 5 2.5 L 12 2.5 L 15.5 6 L 15.5 17.5 L 5 17.5 Z M 12 2.5 L 12 6 L 15.5 6 M 8 10 L 12.5 10 M 8 13.5 L "
     "12.5 13.5"},
    {"exclusion", "O 10 10 7.2 M 5 5 L 15 15"},
    {"clock", "O 10 10 7.2 M 10 5.8 L 10 10 L 13 11.8"},
    {"warning", "M 10 3 L 18 16.5 L 2 16.5 Z M 10 8 L 10 12 M 10 14.2 L 10 14.4"},
    {"ok", "O 10 10 7.2 M 6.6 10.2 L 9 12.6 L 13.6 7.6"},
    {"help", "O 10 10 7.2 M 7.8 8 C 7.8 5.4 12.2 5.4 12.2 8 C 12.2 9.6 10 9.8 10 11.6 M 10 14 L 10 14.2"},
    {"notice", "O 10 10 7.2 M 10 9.2 L 10 13.8 M 10 6.2 L 10 6.4"},
    {"look", "O 10 10 7.2 M 10 2.8 L 10 17.2 M 12.5 6 L 12.5 14 M 15 8 L 15 12"},
    {"receipt", "M 5 2.5 L 15 2.5 L 15 17.5 L 12.5 16 L 10 17.5 L 7.5 16 L 5 17.5 Z M 8 7 L 12 7 M 8 10.5 L 12 10.5"},
    {"back", "M 16 10 L 4 10 M 9 5 L 4 10 L 9 15"},
    {"forward", "M 4 10 L 16 10 M 11 5 L 16 10 L 11 15"},
    {"up", "M 10 16 L 10 4 M 5 9 L 10 4 L 15 9"},
    {"folder", "M 2.5 16 L 2.5 4.5 L 8 4.5 L 10 6.5 L 17.5 6.5 L 17.5 16 Z"},
    {"new_folder",
     "M 2.5 16 L 2.5 4.5 L 8 4.5 L 10 6.5 L 17.5 6.5 L 17.5 16 Z M 10 8.8 L 10 13.8 M 7.5 11.3 L 12.5 11.3"},
    {"file", "M 5 2.5 L 12 2.5 L 15.5 6 L 15.5 17.5 L 5 17.5 Z M 12 2.5 L 12 6 L 15.5 6"},
    {"computer", "M 2.5 3.5 L 17.5 3.5 L 17.5 13.5 L 2.5 13.5 Z M 7 17 L 13 17 M 10 13.5 L 10 17"},
    {"home", "M 3 9.5 L 10 3.5 L 17 9.5 M 5 8 L 5 16.5 L 15 16.5 L 15 8"},
    {"tiles",
     "M 3.5 3.5 L 8 3.5 L 8 8 L 3.5 8 Z M 12 3.5 L 16.5 3.5 L 16.5 8 L 12 8 Z M 3.5 12 L 8 12 L 8 16.5 L 3.5 16.5 Z "
     "M 12 12 L 16.5 12 L 16.5 16.5 L 12 16.5 Z"},
    {"lines", "M 3.5 5 L 16.5 5 M 3.5 10 L 16.5 10 M 3.5 15 L 16.5 15"},
    {"words", "M 4 3.5 L 16 3.5 L 16 13.5 L 9.5 13.5 L 6 17 L 6 13.5 L 4 13.5 Z"},
};

// Takes the numbers of a step off the drawing, which only this file writes.
class Steps
{
public:
    explicit Steps(const char* path) : m_words(QString::fromLatin1(path).split(u' ')) {}

    QPainterPath Path()
    {
        QPainterPath path;
        while (m_next < m_words.size())
            Add_Step(path, m_words.at(m_next++));
        return path;
    }

private:
    qreal Number() { return m_words.value(m_next++).toDouble(); }

    QPointF Point()
    {
        const qreal x = Number();
        return {x, Number()};
    }

    void Add_Step(QPainterPath& path, const QString& step)
    {
        if (step == u"M") {
            path.moveTo(Point());
        } else if (step == u"L") {
            path.lineTo(Point());
        } else if (step == u"C") {
            const QPointF first = Point();
            const QPointF second = Point();
            path.cubicTo(first, second, Point());
        } else if (step == u"O") {
            const QPointF centre = Point();
            const qreal radius = Number();
            path.addEllipse(centre, radius, radius);
        } else {
            path.closeSubpath();
        }
    }

    QStringList m_words;
    qsizetype m_next = 0;
};

// Made when the first of them is painted.
const QHash<QString, QPainterPath>& Paths()
{
    static const QHash<QString, QPainterPath> paths = [] {
        QHash<QString, QPainterPath> made;
        for (const auto& [name, path] : Drawings)
            made.insert(QString::fromLatin1(name), Steps(path).Path());
        return made;
    }();
    return paths;
}

} // namespace

bool Is_Line_Icon(const QString& name)
{
    return !name.isEmpty() && Paths().contains(name);
}

void Paint_Line_Icon(QPainter& painter, const QRectF& place, const QString& name, const QColor& colour)
{
    const auto drawing = Paths().constFind(name);
    if (drawing == Paths().constEnd())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(place.topLeft());
    painter.scale(place.width() / Units, place.height() / Units);
    painter.setPen(QPen(colour, Line_Width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(*drawing);
    painter.restore();
}
