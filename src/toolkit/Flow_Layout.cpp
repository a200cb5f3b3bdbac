#include "toolkit/Flow_Layout.h"

#include <QStyle>
#include <QWidget>
#include <algorithm>

Flow_Layout::Flow_Layout(QWidget* widget) : QLayout(widget)
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(8);
}

Flow_Layout::~Flow_Layout() = default;

void Flow_Layout::addItem(QLayoutItem* item)
{
    m_items.emplace_back(item);
}

QLayoutItem* Flow_Layout::itemAt(int index) const
{
    return index >= 0 && index < count() ? m_items[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* Flow_Layout::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    QLayoutItem* const item = m_items[static_cast<std::size_t>(index)].release();
    m_items.erase(m_items.begin() + index);
    return item;
}

int Flow_Layout::heightForWidth(int width) const
{
    return Height_In(QRect(0, 0, width, 0), false);
}

QSize Flow_Layout::sizeHint() const
{
    QSize size;
    for (const auto& item : m_items) {
        if (item->isEmpty()) // hidden
            continue;
        const QSize hint = item->sizeHint();
        size = QSize(size.width() + (size.isEmpty() ? 0 : spacing()) + hint.width(),
                     std::max(size.height(), hint.height()));
    }
    return size;
}

QSize Flow_Layout::minimumSize() const
{
    QSize size(0, 0);
    for (const auto& item : m_items) {
        if (!item->isEmpty())
            size = size.expandedTo(item->minimumSize());
    }
    return size;
}

void Flow_Layout::setGeometry(const QRect& place)
{
    QLayout::setGeometry(place);
    Height_In(place, true);
}

int Flow_Layout::Height_In(const QRect& place, bool moves) const
{
    int used = 0; // of the line
    int top = 0;
    int line_height = 0;
    for (const auto& item : m_items) {
        if (item->isEmpty())
            continue;
        const QSize size = item->sizeHint();
        if (used > 0 && used + spacing() + size.width() > place.width()) {
            top += line_height + spacing();
            used = 0;
            line_height = 0;
        }
        used += used > 0 ? spacing() : 0;
        const QRect spot(place.left() + used, place.top() + top, size.width(), size.height());
        if (moves)
            item->setGeometry(QStyle::visualRect(parentWidget()->layoutDirection(), place, spot));
        used += size.width();
        line_height = std::max(line_height, size.height());
    }
    return top + line_height;
}
