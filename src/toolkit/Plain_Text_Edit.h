#pragma once

#include "toolkit/Text_Waves.h"

#include <QPlainTextEdit>

// How messages are read from and limited in text areas. Interface thread only.

inline constexpr int Longest_Message = 1600; ///< UTF-16 units; the rest is cut

/// The text as it was entered: lines end in "\n", and a no-break space remains one.
QString Exact_Text(const QPlainTextEdit& edit);

/// How many UTF-16 units the text has, without copying it.
int Text_Length(const QPlainTextEdit& edit);

/// Cuts the text to its first characters (UTF-16 units) and returns whether it was longer. The cut is part of the
/// change that made it necessary: undoing that restores the text before it. A cut also counts as a change of the text.
bool Cut_Text(QPlainTextEdit& edit, int most);

// A text area for a message. A huge paste or drop is cut down to what can be kept of it before it is laid out, so that
// it delays nothing; enforcing the exact limit, with Cut_Text, is up to the owner. Part of its window.
class Plain_Text_Edit : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit Plain_Text_Edit(QWidget* parent = nullptr);

    /// Underlines these stretches with waves, and no others. The text itself, its layout, its history and its listeners
    /// notice nothing. An edit takes the marks behind it along, and those that it touches away.
    void Mark(Text_Stretches stretches);
    const Text_Stretches& Marks() const { return m_marks; }

    /// Asks for a few lines of its font, and takes all the room there is.
    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;

protected:
    void insertFromMimeData(const QMimeData* source) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void Paint_Waves(const QRect& in_sight);
    void Repaint_Lines(int from, int to);

    Text_Stretches m_marks;
    Text_Waves m_waves;
};
