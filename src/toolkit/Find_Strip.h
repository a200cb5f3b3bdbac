#pragma once

#include "toolkit/Quiet_Strip.h"

class QLineEdit;
class Status_Label;

// A quiet row in which a person writes what is sought in the table below it. Hidden until it is asked for, whoever
// shows what it lies in. Part of its window; interface thread.
class Find_Strip : public Quiet_Strip
{
    Q_OBJECT

public:
    explicit Find_Strip(QWidget* parent = nullptr);

    bool Is_Open() const { return m_is_open; }
    /// Shows it, ready to be written in.
    void Open();
    /// Hides it, emptied, and so looks for nothing any more.
    void Close();
    void Say(const QString& words);
    /// Has the Tab key come here before it comes to the table.
    void Stand_Before(QWidget& table);

    void setVisible(bool visible) override;

Q_SIGNALS:
    void Wanted(const QString& words);
    /// The Escape key, or the button.
    void Left();
    /// Return, or a key that goes down into the table.
    void Table_Wanted();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    QLineEdit* m_words;
    Status_Label* m_count;
    QPushButton* m_close;
    bool m_is_open = false;
};
