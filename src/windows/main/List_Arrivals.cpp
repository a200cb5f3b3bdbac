#include "windows/main/List_Arrivals.h"

#include "platform/Interface_Thread.h"
#include "toolkit/Import_Strip.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTableView>
#include <QUrl>
#include <utility>

namespace {

// The path of what is dragged, if that is one file and nothing else; otherwise empty.
QString Only_File_Of(const QMimeData& data)
{
    const QList<QUrl> places = data.urls();
    const QString path = places.size() == 1 ? places.constFirst().toLocalFile() : QString();
    return QFileInfo(path).isFile() ? path : QString(); // a pipe or a device would never end
}

} // namespace

List_Arrivals::List_Arrivals(QWidget& ground, QTableView& table, Import_Strip& strip) : m_strip(strip)
{
    ground.setAcceptDrops(true);
    ground.installEventFilter(this);
    Offer_To_Paste(table);
    strip.Follow(table);
}

void List_Arrivals::Offer_To_Paste(QTableView& table)
{
    auto* paste = new QAction(tr("&Paste numbers"), &table);
    paste->setObjectName(QStringLiteral("Paste_Numbers"));
    paste->setShortcuts(QKeySequence::Paste);
    paste->setShortcutContext(Qt::WidgetShortcut);
    paste->setAutoRepeat(false);
    table.addAction(paste);
    table.setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(paste, &QAction::triggered, this, &List_Arrivals::Paste_Wanted);
}

void List_Arrivals::Forget()
{
    m_report.reset();
    m_strip.Forget();
}

void List_Arrivals::Tell()
{
    if (const auto report = std::exchange(m_report, std::nullopt))
        m_strip.Show_Report(*report);
}

// Whoever drags waits for the answer, so what is asked about the file comes later. A window may have come over this one
// by then.
bool List_Arrivals::eventFilter(QObject* ground, QEvent* event)
{
    const auto type = event->type();
    if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop)
        return QObject::eventFilter(ground, event);
    auto& drop = static_cast<QDropEvent&>(*event);
    const QString path = drop.mimeData() ? Only_File_Of(*drop.mimeData()) : QString();
    if (path.isEmpty() || !drop.possibleActions().testFlag(Qt::CopyAction)) {
        drop.ignore();
        return true;
    }
    drop.setDropAction(Qt::CopyAction);
    drop.accept();
    if (type == QEvent::Drop)
        Post_To_Interface_Thread(this, [this, path] {
            if (!QApplication::activeModalWidget())
                Q_EMIT Dropped(path);
        });
    return true;
}
