#pragma once

#include <QWidget>

// A line icon among labels, as large as their letters. It says nothing by itself: the words beside it do. Part of its
// window; interface thread.
class Icon_Label : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString line_icon MEMBER m_icon)

public:
    explicit Icon_Label(QWidget* parent = nullptr);

    enum class Tone
    {
        Soft,
        Accent,
        Ok
    };
    void Set_Tone(Tone tone);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_icon;
    Tone m_tone = Tone::Soft;
};
