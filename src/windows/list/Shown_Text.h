#pragma once

#include "toolkit/Plain_Text_Edit.h"

// A message as a handset shows it, to be read: a few lines high, and scrolling when it is longer. Part of its window.
class Shown_Text : public Plain_Text_Edit
{
    Q_OBJECT

public:
    explicit Shown_Text(QWidget* parent = nullptr);

    /// Shows the text, with this place of it in sight.
    void Show_Text(const QString& text, int place);

    QSize minimumSizeHint() const override;

private:
    void Replace_What_Differs(const QString& text);

    QString m_text;
};
