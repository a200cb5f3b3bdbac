#include "platform/Interface_Thread.h"
#include "tour/Visitor.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QTableView>
#include <QTest>

// What the visitor does to the windows. It is left for the interface thread and not waited for: a click that opens a
// dialog returns only when the dialog has closed.

namespace {

const QString File_Panel = QStringLiteral("QFileDialog");
const QString File_Name = QStringLiteral("fileNameEdit");

QWidget* Box_On_Top()
{
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

QModelIndex Row_With(const QTableView& table, const QString& text)
{
    const auto* rows = table.model();
    for (int column = 0; column < rows->columnCount(); ++column) {
        const auto found = rows->match(rows->index(0, column), Qt::DisplayRole, text, 1, Qt::MatchExactly);
        if (!found.isEmpty())
            return found.constFirst();
    }
    return {};
}

void Type_Lines(QWidget& widget, const QString& text)
{
    const auto lines = text.split(u'\n');
    for (qsizetype line = 0; line < lines.size(); ++line) {
        if (line > 0)
            QTest::keyClick(&widget, Qt::Key_Return);
        QTest::keyClicks(&widget, lines.at(line));
    }
}

} // namespace

void Visitor::Click(const QString& window, const QString& control)
{
    Await_Input(window, control);
    Post_To_Interface_Thread(qApp, [=] {
        auto& widget = Control(window, control);
        QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(12, widget.height() / 2));
    });
}

void Visitor::Click_Row_With(const QString& window, const QString& table, const QString& text, Row_Click click)
{
    Await_Input(window, table);
    Await_Until(text + QStringLiteral(" in ") + table, [&] { return Row_With(Table(window, table), text).isValid(); });
    Post_To_Interface_Thread(qApp, [=] {
        auto& view = Table(window, table);
        const auto row = Row_With(view, text);
        view.scrollTo(row);
        const auto keys = click == Row_Click::Add_To_Selection ? Qt::ControlModifier : Qt::NoModifier;
        const QPoint place = view.visualRect(row).center();
        QTest::mouseClick(view.viewport(), Qt::LeftButton, keys, place);
        if (click == Row_Click::Open)
            QTest::mouseDClick(view.viewport(), Qt::LeftButton, keys, place);
    });
}

void Visitor::Type(const QString& window, const QString& control, const QString& text)
{
    Click(window, control);
    Post_To_Interface_Thread(qApp, [=] {
        auto& widget = Control(window, control);
        QTest::keyClick(&widget, Qt::Key_End, Qt::ControlModifier);
        Type_Lines(widget, text);
    });
}

void Visitor::Retype(const QString& window, const QString& control, const QString& text)
{
    Await_Input(window, control);
    Post_To_Interface_Thread(qApp, [=] {
        auto& widget = Control(window, control);
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&widget, Qt::Key_Delete);
        Type_Lines(widget, text);
    });
}

void Visitor::Press_Return(const QString& window, const QString& control)
{
    Await_Input(window, control);
    Post_To_Interface_Thread(qApp, [=] { QTest::keyClick(&Control(window, control), Qt::Key_Return); });
}

void Visitor::Press_In_Box(const QString& button, const QString& expected_text)
{
    const QString text = Text_Of_Box();
    if (text.trimmed() != expected_text)
        throw Tour_Failed(QStringLiteral("a box said: ") + text);
    Post_To_Interface_Thread(qApp, [=] {
        const auto buttons = Box_On_Top()->findChildren<QAbstractButton*>();
        for (auto* candidate : buttons) {
            if (candidate->text().remove(u'&') == button)
                QTest::mouseClick(candidate, Qt::LeftButton);
        }
    });
    Await_Until(QStringLiteral("the box to close"), [] { return Box_On_Top() == nullptr; });
}

void Visitor::Choose_File(const QString& name, const QString& picture)
{
    Retype(File_Panel, File_Name, name);
    Await_Text(File_Panel, File_Name, name);
    Take_Picture(File_Panel, picture);
    Press_Return(File_Panel, File_Name);
    Await_Gone(File_Panel);
}
