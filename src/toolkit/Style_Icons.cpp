#include "toolkit/Style_Icons.h"

#include "toolkit/Line_Icons.h"
#include "toolkit/Look_Tokens.h"

#include <QIconEngine>
#include <QPainter>

namespace {

class Line_Icon_Engine : public QIconEngine
{
public:
    Line_Icon_Engine(const char* name, QColor Look_Tokens::*colour) : m_name(name), m_colour(colour) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        Paint_Line_Icon(*painter, rect, QString::fromLatin1(m_name), Tokens_Now().*m_colour);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap made(size);
        made.fill(Qt::transparent);
        QPainter painter(&made);
        paint(&painter, {QPoint(), size}, mode, state);
        return made;
    }

    QIconEngine* clone() const override { return new Line_Icon_Engine(m_name, m_colour); }

private:
    const char* m_name;
    QColor Look_Tokens::*m_colour;
};

} // namespace

QIcon Style_Icons::Icon_Of(QStyle::StandardPixmap standard)
{
    switch (standard) {
    case QStyle::SP_MessageBoxInformation:
        return QIcon(new Line_Icon_Engine("notice", &Look_Tokens::accent));
    case QStyle::SP_MessageBoxQuestion:
        return QIcon(new Line_Icon_Engine("help", &Look_Tokens::accent));
    case QStyle::SP_MessageBoxWarning:
        return QIcon(new Line_Icon_Engine("warning", &Look_Tokens::warn));
    case QStyle::SP_MessageBoxCritical:
        return QIcon(new Line_Icon_Engine("warning", &Look_Tokens::error));
    default:
        return {};
    }
}
