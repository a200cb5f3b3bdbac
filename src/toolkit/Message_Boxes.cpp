#include "toolkit/Message_Boxes.h"

#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "toolkit/Main_Window.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace {

QWidget* Window_On_Top()
{
    if (QWidget* modal = QApplication::activeModalWidget())
        return modal;
    return Main_App_wnd ? Main_App_wnd->Window() : nullptr;
}

void Prepare_Box(QMessageBox& box, const QString& text)
{
    box.setObjectName(QStringLiteral("Message_Box"));
    box.setWindowTitle(QStringLiteral("Corvane"));
    box.setTextFormat(Qt::PlainText);
    box.setText(text);
}

void Tell(const QString& text)
{
    QMessageBox box(Window_On_Top());
    Prepare_Box(box, QStringLiteral("\n") + text);
    box.setIcon(QMessageBox::Information);
    auto* ok = box.addButton(QStringLiteral("OK"), QMessageBox::AcceptRole);
    ok->setProperty("is_first", true);
    box.setDefaultButton(ok);
    box.setEscapeButton(ok);
    box.exec();
}

bool Ask(const QString& text)
{
    QMessageBox box(Window_On_Top());
    Prepare_Box(box, text);
    box.setIcon(QMessageBox::Question);
    auto* yes = box.addButton(QStringLiteral("Yes"), QMessageBox::YesRole);
    auto* no = box.addButton(QStringLiteral("No"), QMessageBox::NoRole);
    // Not by an ampersand in their texts, which are "Yes" and "No".
    yes->setShortcut(QKeySequence(Qt::ALT | Qt::Key_Y));
    no->setShortcut(QKeySequence(Qt::ALT | Qt::Key_N));
    yes->setProperty("is_first", true);
    box.setDefaultButton(yes);
    box.setEscapeButton(no);
    box.exec();
    return box.clickedButton() == yes;
}

} // namespace

void Show_MessageBox(const QString& text)
{
    Run_On_Interface_Thread([&] {
        if (!Program_Is_Exiting())
            Tell(text);
    });
}

void Tell_And_Focus(const QString& text, QWidget& control)
{
    Show_MessageBox(text);
    control.setFocus();
}

bool Show_YES_NO_MessageBox(const QString& text)
{
    bool answer = false;
    Run_On_Interface_Thread([&] {
        if (!Program_Is_Exiting())
            answer = Ask(text);
    });
    return answer;
}

void Close_Message_Boxes(const QWidget* window)
{
    const auto widgets = QApplication::topLevelWidgets();
    for (QWidget* widget : widgets) {
        auto* box = qobject_cast<QMessageBox*>(widget);
        if (box && box->isVisible() && (!window || box->parentWidget() == window))
            box->reject();
    }
}
