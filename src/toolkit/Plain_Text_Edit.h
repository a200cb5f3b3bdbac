#pragma once

#include <QPlainTextEdit>

// How messages are taken from and kept in text areas. Interface thread only.

inline constexpr int Longest_Message = 1600; ///< UTF-16 units; what is longer is cut

/// The text as it was entered: lines end in "\n", a no-break space stays one.
QString Exact_Text(const QPlainTextEdit& edit);

/// How many UTF-16 units the text has, without copying it.
int Text_Length(const QPlainTextEdit& edit);

/// Cuts the text to its first characters (UTF-16 units) and answers whether it was longer. The cut belongs to the
/// change that made it necessary: undoing that one brings back what stood there before. A cut is a change of the text,
/// too.
bool Cut_Text(QPlainTextEdit& edit, int most);

// A text area for a message. A huge paste or drop is cut down to what can be kept of it before it is laid out, so that
// it holds up nothing; the exact limit is for the owner to keep, with Cut_Text. Part of its window.
class Plain_Text_Edit : public QPlainTextEdit
{
    Q_OBJECT

public:
    using QPlainTextEdit::QPlainTextEdit;

    /// Asks for some lines of its font, and takes whatever else there is.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void insertFromMimeData(const QMimeData* source) override;
};
