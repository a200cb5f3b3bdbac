#include "tour/Visitor.h"

#include "platform/Interface_Thread.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTableView>
#include <QTest>
#include <chrono>
#include <thread>

namespace {

constexpr auto Look_Again_After = std::chrono::milliseconds(10);
constexpr int Most_Looks = 1000;

QWidget* Box_On_Top()
{
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

} // namespace

Visitor::Visitor(QString picture_folder) : m_folder(std::move(picture_folder))
{
    QDir().mkpath(m_folder);
}

void Visitor::Await_Until(const QString& what, const std::function<bool()>& is_so)
{
    for (int look = 0; look < Most_Looks; ++look) {
        bool is_so_now = false;
        Run_On_Interface_Thread([&] { is_so_now = is_so(); });
        if (is_so_now)
            return;
        std::this_thread::sleep_for(Look_Again_After);
    }
    throw Tour_Failed(QStringLiteral("waited in vain for ") + what);
}

void Visitor::Await(const QString& window)
{
    Await_Until(window, [&] { return Find_Window(window) != nullptr; });
}

void Visitor::Await_Gone(const QString& window)
{
    Await_Until(window + QStringLiteral(" to go"), [&] { return Find_Window(window) == nullptr; });
}

void Visitor::Click(const QString& window, const QString& control)
{
    Await_Until(control + QStringLiteral(" in ") + window, [&] {
        return Find_Window(window) && Control(window, control).isVisible() && Control(window, control).isEnabled();
    });
    // Left for the interface thread, not waited for: a click that opens a dialog returns only when the dialog has
    // closed.
    Post_To_Interface_Thread(qApp, [=] {
        auto& widget = Control(window, control);
        QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(12, widget.height() / 2));
    });
}

void Visitor::Click_Row_With(const QString& window, const QString& table, const QString& text)
{
    const auto find = [=] {
        const auto* rows = Table(window, table).model();
        return rows->match(rows->index(0, 1), Qt::DisplayRole, text, 1, Qt::MatchExactly);
    };
    Await_Until(text + QStringLiteral(" in ") + table, [&] { return !find().isEmpty(); });
    Post_To_Interface_Thread(qApp, [=] {
        auto& view = Table(window, table);
        QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(find().constFirst()).center());
    });
}

void Visitor::Type(const QString& window, const QString& control, const QString& text)
{
    Click(window, control);
    Post_To_Interface_Thread(qApp, [=] { QTest::keyClicks(&Control(window, control), text); });
}

void Visitor::Press_In_Box(const QString& button)
{
    Await_Until(QStringLiteral("a box with ") + button, [] { return Box_On_Top() != nullptr; });
    Post_To_Interface_Thread(qApp, [=] {
        const auto buttons = Box_On_Top()->findChildren<QAbstractButton*>();
        for (auto* candidate : buttons) {
            if (candidate->text().remove(u'&') == button)
                QTest::mouseClick(candidate, Qt::LeftButton);
        }
    });
    Await_Until(QStringLiteral("the box to close"), [] { return Box_On_Top() == nullptr; });
}

QString Visitor::Text_Of(const QString& window, const QString& control)
{
    QString text;
    Run_On_Interface_Thread([&] {
        auto& widget = Control(window, control);
        if (auto* label = qobject_cast<QLabel*>(&widget))
            text = label->text();
        else if (auto* field = qobject_cast<QLineEdit*>(&widget))
            text = field->text();
        else if (auto* area = qobject_cast<QPlainTextEdit*>(&widget))
            text = area->toPlainText();
    });
    return text;
}

QString Visitor::Text_Of_Box()
{
    QString text;
    Await_Until(QStringLiteral("a message box"), [&] {
        auto* box = qobject_cast<QMessageBox*>(Box_On_Top());
        text = box ? box->text() : QString();
        return box != nullptr;
    });
    return text;
}

void Visitor::Take_Picture(const QString& window, const QString& name)
{
    Await(window);
    Run_On_Interface_Thread([&] {
        QCoreApplication::sendPostedEvents();
        Save(Find_Window(window)->grab(), name);
    });
}

void Visitor::Take_Picture_With_What_Is_Over(const QString& window, const QString& name)
{
    Await(window);
    Run_On_Interface_Thread([&] {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
        const QRect place = Find_Window(window)->geometry();
        Save(QApplication::primaryScreen()->grabWindow(0, place.x(), place.y(), place.width(), place.height()), name);
    });
}

QWidget* Visitor::Find_Window(const QString& name)
{
    const auto windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->isVisible() && window->objectName() == name)
            return window;
    }
    return nullptr;
}

QWidget& Visitor::Control(const QString& window, const QString& name)
{
    QWidget* found = Find_Window(window);
    QWidget* control = found ? found->findChild<QWidget*>(name) : nullptr;
    if (!control)
        qFatal("the tour looked for %s in %s, which is not there", qPrintable(name), qPrintable(window));
    return *control;
}

QTableView& Visitor::Table(const QString& window, const QString& name)
{
    return dynamic_cast<QTableView&>(Control(window, name));
}

void Visitor::Save(const QPixmap& picture, const QString& name)
{
    const QString path = m_folder + u'/' + name + QStringLiteral(".png");
    if (!picture.save(path))
        throw Tour_Failed(QStringLiteral("could not write ") + path);
    printf("picture  %s\n", qPrintable(path));
    fflush(stdout);
}
