#include "toolkit/Window_Fit.h"

#include "toolkit/Remembered.h"
#include "toolkit/Scrolling_Body.h"

#include <QBoxLayout>
#include <QEvent>
#include <QMainWindow>
#include <QPushButton>
#include <QScreen>
#include <algorithm>
#include <memory>
#include <optional>
#include <utility>

namespace {

// A window's title bar until the desktop has made one: most are less than two lines of text high.
constexpr int Title_Bar_Lines = 2;

QLayout* Layout_Of(const QWidget& window)
{
    const auto* main_window = qobject_cast<const QMainWindow*>(&window);
    const QWidget* laid_out = main_window ? main_window->centralWidget() : &window;
    return laid_out ? laid_out->layout() : nullptr;
}

QLayout* Last_Layout_In(const QLayout& layout)
{
    return layout.count() == 0 ? nullptr : layout.itemAt(layout.count() - 1)->layout();
}

// Layouts maintain a window's smallest size themselves, except for texts that wrap, which need more height the narrower
// they are, and for a screen smaller than that.
class Size_Keeper : public QObject
{
public:
    Size_Keeper(QWidget& window, Letters first_size) : QObject(&window), m_window(window), m_first_size(first_size)
    {
        if (auto* column = qobject_cast<QBoxLayout*>(Layout_Of(window)))
            m_body = Scrolling_Body::Made_For(*column);
        window.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Hide && !event->spontaneous())
            Remember_Size();
        if (!Has_A_Say())
            return false;
        m_is_resized = m_is_resized || (event->type() == QEvent::Resize && event->spontaneous());
        switch (event->type()) {
        case QEvent::Show:
            if (!event->spontaneous())
                Take_First_Size();
            Keep();
            break;
        case QEvent::Resize:
        case QEvent::LayoutRequest:
            Keep();
            break;
        default:
            break;
        }
        return false;
    }

private:
    bool Has_A_Say() const
    {
        return Layout_Of(m_window) && m_window.layout()->sizeConstraint() != QLayout::SetFixedSize;
    }

    QSize Frame() const
    {
        const QSize made = m_window.frameSize() - m_window.size();
        return made.expandedTo(QSize(0, Title_Bar_Lines * m_window.fontMetrics().lineSpacing()));
    }

    // A dialog opens where its owner is.
    QRect Screen() const
    {
        const QWidget* owner = m_window.parentWidget();
        return (owner ? owner : &m_window)->screen()->availableGeometry();
    }

    QSize Room() const { return Screen().size() - Frame(); }

    int Margins() const
    {
        const QMargins margins = Layout_Of(m_window)->contentsMargins();
        return margins.left() + margins.right();
    }

    // Buttons that a screen is too narrow for stand in two lines: those before the gap above the others. They are the
    // last row, which may stand in a column of its own together with what belongs to them.
    void Break_Buttons()
    {
        auto* column = qobject_cast<QBoxLayout*>(Layout_Of(m_window));
        if (auto* inner = column ? qobject_cast<QVBoxLayout*>(Last_Layout_In(*column)) : nullptr)
            column = inner;
        const int last = column ? column->count() - 1 : -1;
        auto* row = last < 0 ? nullptr : qobject_cast<QHBoxLayout*>(Last_Layout_In(*column));
        if (!row || row->minimumSize().width() <= Room().width() - Margins())
            return;
        int gap = 0;
        while (gap < row->count() && qobject_cast<QPushButton*>(row->itemAt(gap)->widget()))
            ++gap;
        if (gap == 0 || gap == row->count())
            return;
        auto* above = new QHBoxLayout;
        above->setSpacing(row->spacing());
        for (; gap > 0; --gap) {
            const std::unique_ptr<QLayoutItem> item(row->takeAt(0));
            above->addWidget(item->widget());
        }
        above->addStretch();
        column->insertLayout(last, above);
    }

    void Fold()
    {
        Break_Buttons();
        if (m_body)
            m_body->Fit_Into(Room().width() - Margins() - m_body->Bar_Width());
    }

    void Take_First_Size()
    {
        if (std::exchange(m_has_first_size, true)) { // the screen may be a different one now
            m_window.resize(m_window.size().boundedTo(Room()));
            return;
        }
        Fold();
        if (m_body)
            m_body->updateGeometry(); // its texts may have just been set
        const QFontMetrics letters = m_window.fontMetrics();
        QSize size = m_window.sizeHint();
        size.setWidth(std::max(size.width(), m_first_size.columns * letters.averageCharWidth()));
        if (m_body) // its texts need fewer lines in a wider window, or above wider buttons
            size.rheight() += m_body->Preferred_Height(size.width() - Margins()) - m_body->sizeHint().height();
        size.setHeight(std::max(size.height(), m_first_size.lines * letters.lineSpacing()));
        m_window.resize(Remembered_Size().value_or(size.boundedTo(Room())));
    }

    QString Size_Key() const { return QStringLiteral("Size/") + m_window.objectName(); }

    // Only what a person made of it; and not what the desktop makes of it for a while.
    void Remember_Size()
    {
        if (m_is_resized && !(m_window.windowState() & (Qt::WindowMaximized | Qt::WindowFullScreen)))
            Remembered::Put(Size_Key(), QStringLiteral("%1x%2").arg(m_window.width()).arg(m_window.height()));
    }

    // Nothing where it has no room on this screen.
    std::optional<QSize> Remembered_Size() const
    {
        const QStringList sides = Remembered::Word_For(Size_Key()).split(u'x');
        const QSize size(sides.first().toInt(), sides.last().toInt());
        const bool fits = sides.size() == 2 && !size.isEmpty() && size.boundedTo(Room()) == size;
        return fits ? std::optional(size) : std::nullopt;
    }

    QSize Needed() const
    {
        QLayout& layout = *Layout_Of(m_window);
        QSize needed = layout.totalMinimumSize();
        const int width = std::max(m_window.width(), needed.width());
        if (m_body) {
            needed.rheight() += m_body->Whole_Size(width - Margins()).height();
            if (needed.height() > Room().height())
                needed.rwidth() += m_body->Bar_Width();
        } else if (layout.hasHeightForWidth()) {
            needed.setHeight(std::max(needed.height(), layout.totalMinimumHeightForWidth(width)));
        }
        return needed;
    }

    void Keep()
    {
        if (m_is_keeping)
            return;
        m_is_keeping = true;
        Fold();
        const QSize smallest = Needed().boundedTo(Room());
        if (m_window.minimumSize() != smallest) {
            m_window.setMinimumSize(smallest);
            Stay_On_Screen();
        }
        m_is_keeping = false;
    }

    // A window that had to grow may now reach beyond the screen.
    void Stay_On_Screen()
    {
        if (!m_window.isVisible())
            return;
        const QRect screen = Screen();
        const QRect frame = m_window.frameGeometry();
        const QPoint beyond(std::max(frame.right() - screen.right(), 0), std::max(frame.bottom() - screen.bottom(), 0));
        if (!beyond.isNull())
            m_window.move(std::max(frame.left() - beyond.x(), screen.left()),
                          std::max(frame.top() - beyond.y(), screen.top()));
    }

    QWidget& m_window;
    Letters m_first_size;
    Scrolling_Body* m_body = nullptr;
    bool m_has_first_size = false;
    bool m_is_keeping = false;
    bool m_is_resized = false; // by a person or by the desktop
};

} // namespace

void Fit_Window(QWidget& window, Letters first_size)
{
    new Size_Keeper(window, first_size); // the window owns it
}
