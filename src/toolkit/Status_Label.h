#pragma once

#include <QLabel>

// A label that says what has just happened. Assistive tools are told that it is a line of status, and of each new text,
// of one that is as the last was, too. Part of its window; interface thread.
class Status_Label : public QLabel
{
    Q_OBJECT

public:
    explicit Status_Label(QWidget* parent = nullptr);

    /// Shows the text and announces it. To be called while the label can be seen.
    void Say(const QString& text);
};
