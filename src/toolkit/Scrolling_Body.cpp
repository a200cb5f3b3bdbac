#include "toolkit/Scrolling_Body.h"

#include <QApplication>
#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QScrollBar>
#include <algorithm>

namespace {

// The scroll area asks its page for its preferred height and would scroll earlier than necessary.
class Page : public QWidget
{
public:
    int heightForWidth(int width) const override { return layout()->totalMinimumHeightForWidth(width); }
};

bool Needs_A_Body(QBoxLayout& column)
{
    const int rows = column.count();
    if (rows < 2 || !column.itemAt(rows - 1)->layout() || column.sizeConstraint() == QLayout::SetFixedSize)
        return false;
    return rows > 2 || !qobject_cast<QAbstractScrollArea*>(column.itemAt(0)->widget());
}

void Move_First_Row(QBoxLayout& from, QBoxLayout& to)
{
    const int stretch = from.stretch(0);
    QLayoutItem* row = from.takeAt(0);
    if (QWidget* widget = row->widget()) {
        delete row; // before the next item: a widget reports changes of its size to only one at a time
        to.addWidget(widget, stretch);
    } else if (QLayout* layout = row->layout()) {
        to.addLayout(layout, stretch);
    } else {
        to.addItem(row);
        to.setStretch(to.count() - 1, stretch);
    }
}

// What lies on a page that is not shown would keep what it knew.
void Forget_Sizes_Above(const QLayout& row)
{
    for (QObject* above = row.parent(); above; above = above->parent()) {
        auto* widget = qobject_cast<QWidget*>(above);
        if (auto* layout = widget ? widget->layout() : qobject_cast<QLayout*>(above))
            layout->invalidate();
        if (widget)
            widget->updateGeometry();
    }
}

} // namespace

Scrolling_Body* Scrolling_Body::Made_For(QBoxLayout& column)
{
    return Needs_A_Body(column) ? new Scrolling_Body(column) : nullptr; // the column's window owns it
}

Scrolling_Body::Scrolling_Body(QBoxLayout& column) : QScrollArea(column.parentWidget())
{
    setObjectName(QStringLiteral("body"));
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setWidgetResizable(true);
    auto* page = new Page;
    setWidget(page);
    page->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
    m_rows = new QVBoxLayout(page);
    m_rows->setContentsMargins(0, 0, 0, 0);
    m_rows->setSpacing(column.spacing());
    while (column.count() > 1)
        Move_First_Row(column, *m_rows);
    column.insertWidget(0, this, 1);
    for (int i = 0; i < m_rows->count(); ++i) {
        auto* row = qobject_cast<QBoxLayout*>(m_rows->itemAt(i)->layout());
        if (row && row->direction() == QBoxLayout::LeftToRight)
            m_foldable.push_back({row});
    }
    Watch_Boxes();
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, QWidget* now) { Bring_Into_Sight(now); });
}

// What is in it may lose the focus only when its own base goes.
Scrolling_Body::~Scrolling_Body()
{
    disconnect(qApp, nullptr, this, nullptr);
}

QSize Scrolling_Body::sizeHint() const
{
    const int width = m_rows->totalSizeHint().width();
    return {width, Preferred_Height(width)};
}

// No height of its own: that is up to the window, which alone knows its screen.
QSize Scrolling_Body::minimumSizeHint() const
{
    return {m_rows->totalMinimumSize().width(), 0};
}

void Scrolling_Body::Fit_Into(int width)
{
    for (auto& [row, row_width] : m_foldable) {
        const bool is_row = row->direction() == QBoxLayout::LeftToRight;
        if (is_row)
            row_width = row->minimumSize().width();
        if (is_row != (row_width <= width))
            row->setDirection(is_row ? QBoxLayout::TopToBottom : QBoxLayout::LeftToRight);
    }
    Fold_Inner_Rows(width);
}

// Rows within others, the widest first, as long as one is what needs the width. They stay so: nothing but a larger
// screen would give them more.
void Scrolling_Body::Fold_Inner_Rows(int width)
{
    constexpr int Most_Around_A_Row = 120;
    while (m_rows->totalMinimumSize().width() > width) {
        QHBoxLayout* widest = nullptr;
        for (auto* row : widget()->findChildren<QHBoxLayout*>()) {
            if (row->parent() != m_rows && row->direction() == QBoxLayout::LeftToRight && row->count() > 1 &&
                (!widest || row->minimumSize().width() > widest->minimumSize().width()))
                widest = row;
        }
        if (!widest || widest->minimumSize().width() <= width - Most_Around_A_Row)
            return;
        widest->setDirection(QBoxLayout::TopToBottom);
        Forget_Sizes_Above(*widest);
    }
}

QSize Scrolling_Body::Whole_Size(int width) const
{
    QSize whole = m_rows->totalMinimumSize();
    whole.setWidth(std::max(whole.width(), width));
    if (m_rows->hasHeightForWidth())
        whole.setHeight(std::max(whole.height(), m_rows->totalMinimumHeightForWidth(whole.width())));
    return whole;
}

int Scrolling_Body::Preferred_Height(int width) const
{
    return m_rows->hasHeightForWidth() ? m_rows->totalHeightForWidth(width) : m_rows->totalSizeHint().height();
}

int Scrolling_Body::Bar_Width() const
{
    return verticalScrollBar()->sizeHint().width();
}

bool Scrolling_Body::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == widget()) {
        if (event->type() == QEvent::LayoutRequest)
            updateGeometry(); // the surrounding layout caches the sizes it asked for
    } else if (event->type() == QEvent::Wheel && !static_cast<QWidget*>(watched)->hasFocus()) {
        // Turning the wheel to scroll must not change a choice that the pointer happens to pass.
        event->ignore(); // so that it goes on to what surrounds the box
        return true;
    }
    return QScrollArea::eventFilter(watched, event);
}

void Scrolling_Body::Watch_Boxes()
{
    const auto boxes = findChildren<QComboBox*>();
    for (auto* box : boxes) {
        box->setFocusPolicy(Qt::StrongFocus); // so that the wheel does not focus it either
        box->installEventFilter(this);
    }
}

// All of it, from its top where the view is too low, whereas the scroll area would settle for a text area's cursor.
void Scrolling_Body::Bring_Into_Sight(const QWidget* control)
{
    if (!control || !widget()->isAncestorOf(control))
        return;
    const QRect place(control->mapTo(widget(), QPoint()), control->size());
    auto& bar = *verticalScrollBar();
    bar.setValue(std::min(std::max(bar.value(), place.bottom() + 1 - viewport()->height()), place.top()));
}
