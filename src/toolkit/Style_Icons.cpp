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

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        const Look_Tokens& tokens = Tokens_Now();
        const QColor& colour = mode == QIcon::Disabled   ? tokens.edge
                               : mode == QIcon::Selected ? tokens.on_accent
                                                         : tokens.*m_colour;
        Paint_Line_Icon(*painter, rect, QString::fromLatin1(m_name), colour);
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
    using T = Look_Tokens;
    static const struct
    {
        QStyle::StandardPixmap standard;
        const char* name;
        QColor T::*colour;
    } Icons[] = {
        {QStyle::SP_MessageBoxInformation, "notice", &T::accent},
        {QStyle::SP_MessageBoxQuestion, "help", &T::accent},
        {QStyle::SP_MessageBoxWarning, "warning", &T::warn},
        {QStyle::SP_MessageBoxCritical, "warning", &T::error},
        // Of the panel that asks for a file.
        {QStyle::SP_ArrowBack, "back", &T::ink},
        {QStyle::SP_ArrowForward, "forward", &T::ink},
        {QStyle::SP_FileDialogToParent, "up", &T::ink},
        {QStyle::SP_FileDialogNewFolder, "new_folder", &T::ink},
        {QStyle::SP_FileDialogListView, "tiles", &T::ink},
        {QStyle::SP_FileDialogDetailedView, "lines", &T::ink},
        {QStyle::SP_DirIcon, "folder", &T::accent},
        {QStyle::SP_DirClosedIcon, "folder", &T::accent},
        {QStyle::SP_DirOpenIcon, "folder", &T::accent},
        {QStyle::SP_DirLinkIcon, "folder", &T::accent},
        {QStyle::SP_DirHomeIcon, "home", &T::accent},
        {QStyle::SP_FileIcon, "file", &T::soft},
        {QStyle::SP_FileLinkIcon, "file", &T::soft},
        {QStyle::SP_ComputerIcon, "computer", &T::soft},
        {QStyle::SP_DriveHDIcon, "computer", &T::soft},
    };
    for (const auto& icon : Icons) {
        if (icon.standard == standard)
            return QIcon(new Line_Icon_Engine(icon.name, icon.colour));
    }
    return {};
}
