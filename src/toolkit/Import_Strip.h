#pragma once

#include "list/Import_Report.h"
#include "toolkit/Quiet_Strip.h"

#include <QPointer>
#include <functional>

class Status_Label;
class Unused_Lines_Wnd;

/// What an import did, on a line or two: "198 added, 2 lines not used."
QString Import_In_Words(const Import_Report& report);

// A quiet strip that says what the last import did, and shows the lines that were not used when it is asked to. It
// takes no focus and opens nothing by itself. Hidden, whoever shows what it lies in, as long as there is nothing to
// say. Part of its window; interface thread.
class Import_Strip : public Quiet_Strip
{
    Q_OBJECT

public:
    explicit Import_Strip(QWidget* parent = nullptr);

    /// Has the Tab key come here from a control of the window.
    void Follow(QWidget& control);
    /// Has Alt with S and D press the buttons; for a window that has no other use for these letters.
    void Give_Letters();

    /// Says what an import did, in the place of what was said before.
    void Show_Report(const Import_Report& report);
    /// Says something else about rows, in the same place; looks at them when it is asked to, if that is given.
    void Show_News(const QString& words, std::function<void()> look);
    /// Nothing is said any more, and no lines are shown.
    void Forget();

    void Show_Unused_Btn();
    void Dismiss_Btn() { Forget(); }

    void setVisible(bool visible) override;

protected:
    void hideEvent(QHideEvent* event) override;

private:
    Status_Label* m_words;
    QPushButton* m_show;
    QPushButton* m_dismiss;
    QPointer<Unused_Lines_Wnd> m_lines; // over the window, once it has been asked for
    Import_Report m_report;
    std::function<void()> m_look; // at the rows of news
    bool m_has_report = false;
};
