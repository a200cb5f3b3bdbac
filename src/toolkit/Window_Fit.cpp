#include "toolkit/Window_Fit.h"

#include "toolkit/Scrolling_Body.h"

#include <QBoxLayout>
#include <QEvent>
#include <QMainWindow>
#include <QScreen>
#include <algorithm>
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
        if (!Has_A_Say())
            return false;
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

    void Fold()
    {
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
        const QSize hint = size;
        size.setWidth(std::max(size.width(), m_first_size.columns * letters.averageCharWidth()));
        if (m_body) { // texts need fewer lines in a wider window
            const QSize body = m_body->sizeHint();
            size.rheight() += m_body->Preferred_Height(body.width() + size.width() - hint.width()) - body.height();
        }
        size.setHeight(std::max(size.height(), m_first_size.lines * letters.lineSpacing()));
        m_window.resize(size.boundedTo(Room()));
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
};

} // namespace

void Fit_Window(QWidget& window, Letters first_size)
{
    new Size_Keeper(window, first_size); // the window owns it
}
