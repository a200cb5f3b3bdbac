#pragma once

#include <QObject>
#include <QStringList>
#include <functional>
#include <map>

class QWidget;

// The person at the screen of a program that may die or find its disk full at any moment: agrees to every box, notes
// what it said, picks files, and knows what to do in each window that opens. Lives on the interface thread.
class Person : public QObject
{
public:
    Person();

    /// What to do in windows of this name, from now on.
    void In_Window(const char* object_name, std::function<void(QWidget&)> steps);
    void Will_Click(const char* object_name, const char* button);
    /// The path to give to every panel that asks for a file, from now on.
    void Will_Pick(const QString& path) { m_path = path; }

    /// The texts of the boxes since the last time.
    QStringList Boxes_Since();

    bool eventFilter(QObject* watched, QEvent* event) override;

    static void Click_In(QWidget& window, const char* button);

private:
    void Handle(QWidget& window) const;

    std::map<QString, std::function<void(QWidget&)>> m_windows;
    QString m_path;
    QStringList m_boxes;
};
