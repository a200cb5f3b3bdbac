#pragma once

#include <QWidget>

class QPushButton;

// Asks in its window, and without a box, whether a job's files are really to go. Hidden until it is asked. What a
// second click of a double click meets is the button that keeps them. Part of its window; interface thread.
class Removal_Question : public QWidget
{
    Q_OBJECT

public:
    explicit Removal_Question(QWidget* parent = nullptr);

    void Ask();

Q_SIGNALS:
    /// Either way the question is hidden again.
    void Kept();
    void Confirmed();

private:
    QPushButton* m_keep;
};
