#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <stdexcept>

class QTableView;

// Somebody who sits before the program's real windows: looks for a window by its name, clicks and types into its
// controls, and takes pictures. Lives on a thread of its own, so that a dialog that opens and waits does not hold it
// up. Every step that can not be done within ten seconds throws Tour_Failed with what was being waited for.
class Visitor
{
public:
    explicit Visitor(QString picture_folder);

    /// Waits until a window or box with the name is on the screen.
    void Await(const QString& window);
    void Await_Gone(const QString& window);
    void Await_Until(const QString& what, const std::function<bool()>& is_so);

    void Click(const QString& window, const QString& control);
    /// Clicks the row that has the text in its second column.
    void Click_Row_With(const QString& window, const QString& table, const QString& text);
    void Type(const QString& window, const QString& control, const QString& text);
    /// Presses a button of the message box on top.
    void Press_In_Box(const QString& button);

    QString Text_Of(const QString& window, const QString& control);
    QString Text_Of_Box();

    /// Saves what a window shows as <folder>/<name>.png.
    void Take_Picture(const QString& window, const QString& name);
    /// The same with whatever stands over the window.
    void Take_Picture_With_What_Is_Over(const QString& window, const QString& name);

private:
    static QWidget* Find_Window(const QString& name);
    static QWidget& Control(const QString& window, const QString& name);
    static QTableView& Table(const QString& window, const QString& name);
    void Save(const QPixmap& picture, const QString& name);

    QString m_folder;
};

class Tour_Failed : public std::runtime_error
{
public:
    explicit Tour_Failed(const QString& what) : std::runtime_error(what.toStdString()) {}
};
