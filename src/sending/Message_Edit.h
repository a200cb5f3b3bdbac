#pragma once

#include <QPlainTextEdit>

// The area a message is written in. A huge paste or drop is cut down to what can be kept of it before it is laid out,
// so that it holds up nothing; the exact limit is the Composer's. Part of the main window; interface thread.
class Message_Edit : public QPlainTextEdit
{
    Q_OBJECT

public:
    using QPlainTextEdit::QPlainTextEdit;

protected:
    void insertFromMimeData(const QMimeData* source) override;
};
