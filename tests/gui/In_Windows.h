#pragma once

#include "support/Serve_Until.h"
#include "support/User.h"

#include <QAbstractButton>
#include <QFileDialog>
#include <QLineEdit>
#include <QTest>
#include <gtest/gtest.h>

// What a person does in any window that is open.

/// A control, known by its name.
template <typename Control>
Control& In(const QWidget& window, const char* name)
{
    auto* control = window.findChild<Control*>(name);
    if (!control)
        qFatal("there is no %s in %s", name, qPrintable(window.objectName()));
    return *control;
}

inline void Click_In(const QWidget& window, const char* name)
{
    QTest::mouseClick(&In<QAbstractButton>(window, name), Qt::LeftButton);
}

/// Presses the button once the window opens.
inline void Will_Click_In(User& user, const char* window, const char* button)
{
    user.When_Opens(window, [button](QWidget& opened) { Click_In(opened, button); });
}

/// Does something in the window once it opens and its worker, if it has one, is done.
inline void When_Filled(User& user, const char* window, const std::function<void(QWidget&)>& meanwhile)
{
    user.When_Opens(window, [meanwhile](QWidget& opened) {
        EXPECT_TRUE(Serve_Until([] { return Workers_Running() == 0; }));
        meanwhile(opened);
    });
}

inline bool Is_File_Panel(const QWidget* window)
{
    return qobject_cast<const QFileDialog*>(window) != nullptr;
}

/// Types a path into a file panel, and Return.
inline void Enter_Path(const QWidget& panel, const QString& path)
{
    ASSERT_TRUE(Is_File_Panel(&panel));
    auto& name = In<QLineEdit>(panel, "fileNameEdit");
    name.setText(path);
    QTest::keyClick(&name, Qt::Key_Return);
}

/// Enters the path in the file panel that opens next.
inline void Will_Enter_Path(User& user, const QString& path)
{
    user.Will_Do([path](QDialog* panel) { Enter_Path(*panel, path); });
}
