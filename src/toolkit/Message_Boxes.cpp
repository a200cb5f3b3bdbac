#include "toolkit/Message_Boxes.h"

#include "platform/Interface_Thread.h"
#include "platform/Waiting.h"
#include "toolkit/Main_Window.h"

#include <QApplication>
#include <QMessageBox>
#include <QPushButton>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(Message_Boxes)
};

// By its first letter, and not by an ampersand in its text, which is "Yes" or "No".
void Give_Key(QPushButton& button)
{
    button.setShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(button.text().at(0).toUpper().unicode())));
}

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
    auto* ok = box.addButton(Words::tr("OK"), QMessageBox::AcceptRole);
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
    auto* yes = box.addButton(Words::tr("Yes"), QMessageBox::YesRole);
    auto* no = box.addButton(Words::tr("No"), QMessageBox::NoRole);
    Give_Key(*yes);
    Give_Key(*no);
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
