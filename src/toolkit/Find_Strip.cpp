#include "toolkit/Find_Strip.h"

#include "toolkit/Status_Label.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int Longest_Search = 200;

} // namespace

Find_Strip::Find_Strip(QWidget* parent)
    : Quiet_Strip("Find_Strip", parent), m_words(new QLineEdit), m_count(new Status_Label),
      m_close(Made_Button("Close_Find", tr("Close"), tr("Show all rows again (Escape)")))
{
    setAccessibleName(tr("Find"));
    auto* caption = Made_Label("find_caption");
    caption->setText(tr("Find:"));
    caption->setWordWrap(false);
    caption->setBuddy(m_words);
    m_words->setObjectName(QStringLiteral("_Find_Edit"));
    m_words->setAccessibleName(tr("Find"));
    m_words->setToolTip(tr("Only rows with all these words are shown. The list, and what is sent, stay as they are"));
    m_words->setMaxLength(Longest_Search);
    m_count->setObjectName(QStringLiteral("_Find_Count"));
    m_count->setTextFormat(Qt::PlainText);
    m_close->setFlat(true);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(14, 4, 4, 4);
    row->setSpacing(8);
    row->addWidget(caption);
    row->addWidget(m_words, 1);
    row->addWidget(m_count);
    row->addWidget(m_close, 0, Qt::AlignVCenter);
    connect(m_words, &QLineEdit::textChanged, this, &Find_Strip::Wanted);
    connect(m_close, &QPushButton::clicked, this, &Find_Strip::Left);
    hide();
}

void Find_Strip::Open()
{
    m_is_open = true;
    show();
    m_words->setFocus(Qt::ShortcutFocusReason);
    m_words->selectAll();
}

void Find_Strip::Close()
{
    m_is_open = false;
    hide();
    m_words->clear();
    m_count->clear();
}

void Find_Strip::Say(const QString& words)
{
    if (isVisible())
        m_count->Say(words);
    else
        m_count->setText(words);
}

void Find_Strip::Stand_Before(QWidget& table)
{
    setTabOrder(table.previousInFocusChain(), m_words);
    setTabOrder(m_words, m_close);
}

void Find_Strip::setVisible(bool visible)
{
    Quiet_Strip::setVisible(visible && m_is_open);
}

// What the field does not use itself. None of it is for the window, where Return may press a button.
void Find_Strip::keyPressEvent(QKeyEvent* event)
{
    switch (event->key()) {
    case Qt::Key_Escape:
        Q_EMIT Left();
        break;
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Down:
        Q_EMIT Table_Wanted();
        break;
    default:
        Quiet_Strip::keyPressEvent(event);
    }
}
