#pragma once

#include <QProgressBar>

// A bar that shows that something goes on, and not how far it has come. A screen reader is told that the program is
// busy, and no percentages, which would mean nothing. Part of its window; interface thread.
class Activity_Bar : public QProgressBar
{
    Q_OBJECT

public:
    explicit Activity_Bar(QWidget* parent = nullptr);
};
