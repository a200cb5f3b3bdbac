#pragma once

#include "platform/Interface_Thread.h"
#include "support/Serve_Until.h"
#include "support/User.h"

#include <QtTest>
#include <QtWidgets>
#include <algorithm>
#include <functional>
#include <gmock/gmock.h>

// So that a failed comparison of texts shows the texts. Found by argument-dependent look-up.
inline void PrintTo(const QString& text, std::ostream* out)
{
    *out << '"' << text.toStdString() << '"';
}
inline void PrintTo(const QStringList& texts, std::ostream* out)
{
    *out << texts.join(QStringLiteral(" | ")).toStdString();
}

// What a person does and sees in any window that is open.

inline bool Is_Shown(const QString& window_name)
{
    const auto windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [&](const QWidget* window) {
        return window->isVisible() && window->objectName() == window_name;
    });
}

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

/// As an event of the window system, which what stands over a window keeps away.
inline void Click_At(const QWidget& control, const QPoint& place, Qt::KeyboardModifiers keys = {})
{
    QTest::mouseClick(control.window()->windowHandle(), Qt::LeftButton, keys, control.mapTo(control.window(), place));
}

inline void Click_Middle_Of(const QWidget& control, Qt::KeyboardModifiers keys = {})
{
    Click_At(control, control.rect().center(), keys);
}

/// Where Tab leads to from the control that has the focus, until it comes back.
inline QStringList Tab_Order(const QWidget& window)
{
    QStringList order;
    for (QWidget* control = window.focusWidget(); control && !order.contains(control->objectName());
         control = window.focusWidget()) {
        order.append(control->objectName());
        QTest::keyClick(control, Qt::Key_Tab);
    }
    return order;
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

// ---- Tables

inline QPoint Middle_Of(const QTableView& table, int row)
{
    return table.visualRect(table.model()->index(row, 0)).center();
}

/// What the cells of a column hold, from the top.
inline QStringList Rows_Of(const QTableView& table, int column = 0)
{
    QStringList rows;
    for (int row = 0; row < table.model()->rowCount(); ++row)
        rows.append(table.model()->index(row, column).data().toString());
    return rows;
}

/// The first row whose cell in the column holds exactly this; not valid where there is none.
inline QModelIndex Row_With(const QTableView& table, const QString& text, int column)
{
    const auto found = table.model()->match(table.model()->index(0, column), Qt::DisplayRole, text, 1,
                                            Qt::MatchExactly | Qt::MatchCaseSensitive);
    return found.isEmpty() ? QModelIndex() : found.constFirst();
}

/// These rows and no others.
inline void Select_Rows_In(QTableView& table, const std::vector<int>& rows)
{
    table.clearSelection();
    for (const int row : rows)
        table.selectionModel()->select(table.model()->index(row, 0),
                                       QItemSelectionModel::Select | QItemSelectionModel::Rows);
}
