#pragma once

#include <QBasicTimer>
#include <QProgressBar>

// A bar that shows that work is going on, not how far it has come. To a screen reader it says that the program is busy,
// without percentages, which would mean nothing. Part of its window; interface thread.
class Activity_Bar : public QProgressBar
{
    Q_OBJECT

public:
    explicit Activity_Bar(QWidget* parent = nullptr);

    /// While the bar has no end, which is a range from 0 to 0: how far what runs along it has come, from 0 to 1.
    double Round_Done() const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    QBasicTimer m_pace;
    int m_step = 25; // seen at once
};
