#pragma once

#include <QProgressBar>

// A bar that shows that work is going on, not how far it has come. To a screen reader it says that the program is busy,
// without percentages, which would mean nothing. Part of its window; interface thread.
class Activity_Bar : public QProgressBar
{
    Q_OBJECT

public:
    explicit Activity_Bar(QWidget* parent = nullptr);
};
