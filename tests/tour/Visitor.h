#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <stdexcept>

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
    /// Waits until a label or field begins with the text.
    void Await_Text(const QString& window, const QString& control, const QString& beginning);
    /// Waits until a control is there and can be clicked.
    void Await_Input(const QString& window, const QString& control);

    void Click(const QString& window, const QString& control);
    /// Clicks what closes the window.
    void Leave(const QString& window, const QString& button);
    /// Clicks the row that has the text in one of its columns; with Add_To_Selection, as with Ctrl held down.
    enum class Row_Click
    {
        Select,
        Add_To_Selection,
        Open ///< twice
    };
    void Click_Row_With(const QString& window, const QString& table, const QString& text,
                        Row_Click click = Row_Click::Select);
    /// Types at the end of what a field holds.
    void Type(const QString& window, const QString& control, const QString& text);
    /// Types in place of what a field or an editable box holds.
    void Retype(const QString& window, const QString& control, const QString& text);
    /// Presses a button of the message box on top, which must show this text.
    void Press_In_Box(const QString& button, const QString& expected_text);
    /// Types a file's name into the file panel, takes the panel's picture, and accepts.
    void Choose_File(const QString& name, const QString& picture);

    QString Text_Of(const QString& window, const QString& control);
    QString Text_Of_Box();

    /// Saves what a window shows as <folder>/<name>.png.
    void Take_Picture(const QString& window, const QString& name);
    /// The same with whatever stands over the window.
    void Take_Picture_With_What_Is_Over(const QString& window, const QString& name);

private:
    static QWidget* Find_Window(const QString& name);
    static QWidget& Control(const QString& window, const QString& name);
    void Do(const QString& window, const QString& control, const std::function<void(QWidget&)>& action);
    void Save(const QPixmap& picture, const QString& name);

    QString m_folder;
};

class Tour_Failed : public std::runtime_error
{
public:
    explicit Tour_Failed(const QString& what) : std::runtime_error(what.toStdString()) {}
};
