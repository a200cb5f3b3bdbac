#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

// What the quiet strips of windows have in common: words and buttons on a ground with an edge, among the other things
// of the window. Part of its window; interface thread.
class Quiet_Strip : public QWidget
{
    Q_OBJECT

protected:
    explicit Quiet_Strip(const char* name, QWidget* parent);

    /// Words of any length, on as many lines as they need.
    static QLabel* Made_Label(const char* name);
    static QPushButton* Made_Button(const char* name, const QString& text, const QString& tool_tip);

    void paintEvent(QPaintEvent* event) override;
};
