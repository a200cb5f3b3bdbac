#include "toolkit/Column_Widths.h"

#include "toolkit/Remembered.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QTableView>
#include <utility>

namespace {

constexpr int Most_Columns = 64;
constexpr int Widest = 1 << 14; // so that no sum of them is too large

// "0=180 2=95"; all or nothing of what was written.
std::map<int, int> Widths_In(const QString& word, int narrowest)
{
    std::map<int, int> widths;
    for (const QString& part : word.split(u' ', Qt::SkipEmptyParts)) {
        const QStringList pair = part.split(u'=');
        bool is_column = false;
        bool is_width = false;
        const int column = pair.first().toInt(&is_column);
        const int width = pair.last().toInt(&is_width);
        if (pair.size() != 2 || !is_column || !is_width || column < 0 || column >= Most_Columns || width < narrowest ||
            width > Widest)
            return {};
        widths[column] = width;
    }
    return widths;
}

QString Word_Of(const std::map<int, int>& widths)
{
    QStringList parts;
    for (const auto& [column, width] : widths)
        parts.append(QStringLiteral("%1=%2").arg(column).arg(width));
    return parts.join(u' ');
}

} // namespace

Column_Widths::Column_Widths(QTableView& table) : QObject(&table), m_table(table)
{
    QHeaderView& headings = *table.horizontalHeader();
    headings.viewport()->installEventFilter(this);
    connect(&headings, &QHeaderView::sectionResized, this, [this](int column, int /*before*/, int width) {
        if (m_is_pressed && Has_Width_Of_Its_Own(column))
            m_dragged[column] = width;
    });
    connect(&headings, &QHeaderView::sectionCountChanged, this, [this](int /*before*/, int columns) {
        m_usual.erase(m_usual.lower_bound(columns - 1), m_usual.end()); // the last one may be new
    });
}

bool Column_Widths::eventFilter(QObject* /*headings*/, QEvent* event)
{
    const auto is_left = [event] { return static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton; };
    switch (event->type()) {
    case QEvent::Show:
        Read_Known();
        Take_Known();
        break;
    case QEvent::Resize:
        Take_Known();
        break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick: // makes a column as wide as what is in it
        m_is_pressed = is_left();
        break;
    case QEvent::MouseButtonRelease:
        m_is_pressed = false;
        Keep_Dragged();
        break;
    default:
        break;
    }
    return false;
}

QString Column_Widths::Key() const
{
    return QStringLiteral("Columns/%1.%2").arg(m_table.window()->objectName(), m_table.objectName());
}

// Nobody else writes them while the window lives.
void Column_Widths::Read_Known()
{
    if (!m_known)
        m_known = Widths_In(Remembered::Word_For(Key()), m_table.horizontalHeader()->minimumSectionSize());
}

// All or none: a column that is pushed out of sight by another's width would have to be looked for.
void Column_Widths::Take_Known()
{
    if (!m_known || m_known->empty())
        return;
    QHeaderView& headings = *m_table.horizontalHeader();
    const bool fit = Needed_With(*m_known) <= headings.viewport()->width();
    for (const auto& [column, width] : *m_known) {
        if (!Has_Width_Of_Its_Own(column))
            continue;
        const auto usual = m_usual.try_emplace(column, headings.sectionSize(column)).first;
        headings.resizeSection(column, fit ? width : usual->second);
    }
}

// What is seen now is what is wanted, also of columns whose known widths had no room.
void Column_Widths::Keep_Dragged()
{
    if (m_dragged.empty())
        return;
    const Widths dragged = std::exchange(m_dragged, {});
    if (!m_known)
        m_known.emplace();
    for (auto& [column, width] : *m_known) {
        if (Has_Width_Of_Its_Own(column))
            width = m_table.horizontalHeader()->sectionSize(column);
    }
    m_known->insert(dragged.begin(), dragged.end());
    for (const auto& [column, width] : *m_known) {
        if (Has_Width_Of_Its_Own(column))
            m_usual[column] = width;
    }
    Remembered::Put(Key(), Word_Of(*m_known));
}

bool Column_Widths::Has_Width_Of_Its_Own(int column) const
{
    const QHeaderView& headings = *m_table.horizontalHeader();
    if (column >= headings.count() || headings.isSectionHidden(column) ||
        headings.sectionResizeMode(column) != QHeaderView::Interactive)
        return false;
    const bool is_last = headings.visualIndex(column) == headings.count() - 1;
    return !is_last || !headings.stretchLastSection();
}

// With the others as they are, and those that take what is left as wide as their headings.
int Column_Widths::Needed_With(const Widths& widths) const
{
    const QHeaderView& headings = *m_table.horizontalHeader();
    int needed = 0;
    for (int column = 0; column < headings.count(); ++column) {
        const auto known = widths.find(column);
        const bool is_own = Has_Width_Of_Its_Own(column);
        if (headings.isSectionHidden(column))
            continue;
        if (is_own && known != widths.end())
            needed += known->second;
        else if (is_own || headings.sectionResizeMode(column) == QHeaderView::ResizeToContents)
            needed += headings.sectionSize(column);
        else
            needed += headings.sectionSizeHint(column);
    }
    return needed;
}
