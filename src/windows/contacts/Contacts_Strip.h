#pragma once

#include "toolkit/Quiet_Strip.h"

#include <QStringList>

class QLabel;
class QPushButton;
class Status_Label;

// A quiet strip under a list: the fields that its recipients have, and what became of rows that are not among those
// sent to. It takes no focus and opens nothing by itself. Hidden as long as there is nothing to say; part of its
// window; interface thread.
class Contacts_Strip : public Quiet_Strip
{
    Q_OBJECT

public:
    explicit Contacts_Strip(QWidget* parent = nullptr);

    /// The fields of the list; none hides them.
    void Show_Fields(const QStringList& names);
    /// Says something about rows, which can be looked at if there is anything to be seen; empty words hide it.
    void Say(const QString& words, bool has_rows);

Q_SIGNALS:
    void Save_Wanted();
    void Show_Wanted();

private:
    void Appear();

    QLabel* m_fields;
    QPushButton* m_save;
    Status_Label* m_words;
    QPushButton* m_show;
    QPushButton* m_dismiss;
};
