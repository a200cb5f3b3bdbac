#pragma once

#include <QPlainTextEdit>

// A message as a handset shows it, to be read: a few lines high, and scrolling when it is longer. Part of its window.
class Shown_Text : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit Shown_Text(QWidget* parent = nullptr);

    /// Shows the text, with this place of it in sight.
    void Show_Text(const QString& text, int place);

    QSize sizeHint() const override { return minimumSizeHint(); }
    QSize minimumSizeHint() const override;

private:
    QString m_text;
};
