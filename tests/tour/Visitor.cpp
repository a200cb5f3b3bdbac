#include "tour/Visitor.h"

#include "platform/Interface_Thread.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QKeyEvent>
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
constexpr int Smallest_File = 0; // how hard the picture is packed: as far as it goes

// Whether keys and clicks reach a window: neither a dialog stands over it, nor does the program hold them back.
bool Takes_Input(QWidget& window)
{
    class Probe : public QWidget
    {
    public:
        using QWidget::QWidget;
        bool m_is_reached = false;

    protected:
        void keyReleaseEvent(QKeyEvent*) override { m_is_reached = true; }
    };
    const QWidget* modal = QApplication::activeModalWidget();
    if (modal && modal != &window)
        return false;
    Probe probe(&window);
    QKeyEvent key(QEvent::KeyRelease, Qt::Key_unknown, {});
    QCoreApplication::sendEvent(&probe, &key);
    return probe.m_is_reached;
}

const QString File_Panel = "QFileDialog";
const QString File_Name = "fileNameEdit";

QMessageBox* Box_On_Top()
{
    return qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
}

void Click_In(QWidget& widget)
{
    QTest::mouseClick(&widget, Qt::LeftButton, {}, QPoint(12, widget.height() / 2));
}

QModelIndex Row_With(const QWidget& table, const QString& text)
{
    const auto* rows = dynamic_cast<const QTableView&>(table).model();
    for (int column = 0; column < rows->columnCount(); ++column) {
        const auto found = rows->match(rows->index(0, column), Qt::DisplayRole, text, 1, Qt::MatchExactly);
        if (!found.isEmpty())
            return found.constFirst();
    }
    return {};
}

// A key for a character that no key of a plain keyboard has stands for a combination of them.
void Type_Character(QWidget& widget, QChar character)
{
    if (character.unicode() < 0x80) {
        QTest::keyClick(&widget, character.toLatin1());
        return;
    }
    QKeyEvent press(QEvent::KeyPress, Qt::Key_unknown, {}, character);
    QCoreApplication::sendEvent(&widget, &press);
}

void Type_Lines(QWidget& widget, const QString& text)
{
    const auto lines = text.split(u'\n');
    for (qsizetype line = 0; line < lines.size(); ++line) {
        if (line > 0)
            QTest::keyClick(&widget, Qt::Key_Return);
        for (const QChar character : lines.at(line))
            Type_Character(widget, character);
    }
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
    throw Tour_Failed("waited in vain for " + what);
}

void Visitor::Await(const QString& window)
{
    Await_Until(window, [&] { return Find_Window(window) != nullptr; });
}

void Visitor::Await_Gone(const QString& window)
{
    Await_Until(window + " to go", [&] { return Find_Window(window) == nullptr; });
}

void Visitor::Await_Text(const QString& window, const QString& control, const QString& beginning)
{
    Await(window);
    Await_Until(control + " to show " + beginning, [&] { return Text_Of(window, control).startsWith(beginning); });
}

void Visitor::Await_Input(const QString& window, const QString& control)
{
    Await_Until(control + " in " + window, [&] {
        auto* found = Find_Window(window);
        return found && Control(window, control).isVisible() && Control(window, control).isEnabled() &&
               Takes_Input(*found);
    });
}

QString Visitor::Text_Of(const QString& window, const QString& control)
{
    QVariant text;
    Run_On_Interface_Thread([&] {
        const auto& widget = Control(window, control);
        text = widget.property(qobject_cast<const QPlainTextEdit*>(&widget) ? "plainText" : "text");
    });
    return text.toString();
}

QString Visitor::Text_Of_Box()
{
    QString text;
    Await_Until("a message box", [&] {
        const auto* box = Box_On_Top();
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

void Visitor::Save(const QPixmap& picture, const QString& name)
{
    const QString path = m_folder + u'/' + name + ".png";
    if (!picture.toImage().convertToFormat(QImage::Format_RGB888).save(path, "PNG", Smallest_File))
        throw Tour_Failed("could not write " + path);
    printf("picture  %s\n", qPrintable(path));
    fflush(stdout);
}

// Not waited for: a click that opens a dialog returns only when the dialog has closed.
void Visitor::Do(const QString& window, const QString& control, const std::function<void(QWidget&)>& action)
{
    Await_Input(window, control);
    Post_To_Interface_Thread(qApp, [=] { action(Control(window, control)); });
}

void Visitor::Click(const QString& window, const QString& control)
{
    Do(window, control, Click_In);
}

void Visitor::Leave(const QString& window, const QString& button)
{
    Click(window, button);
    Await_Gone(window);
}

void Visitor::Click_Row_With(const QString& window, const QString& table, const QString& text, Row_Click click)
{
    Await_Input(window, table);
    Await_Until(text + " in " + table, [&] { return Row_With(Control(window, table), text).isValid(); });
    Do(window, table, [=](QWidget& widget) {
        auto& view = dynamic_cast<QTableView&>(widget);
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
    Do(window, control, [=](QWidget& widget) {
        Click_In(widget);
        QTest::keyClick(&widget, Qt::Key_End, Qt::ControlModifier);
        Type_Lines(widget, text);
    });
}

void Visitor::Retype(const QString& window, const QString& control, const QString& text)
{
    Do(window, control, [=](QWidget& widget) {
        widget.setFocus();
        QTest::keyClick(&widget, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(&widget, Qt::Key_Delete);
        Type_Lines(widget, text);
    });
}

void Visitor::Press_In_Box(const QString& button, const QString& expected_text)
{
    const QString text = Text_Of_Box();
    if (text.trimmed() != expected_text)
        throw Tour_Failed("a box said: " + text);
    Post_To_Interface_Thread(qApp, [=] {
        const auto buttons = Box_On_Top()->findChildren<QAbstractButton*>();
        for (auto* candidate : buttons) {
            if (candidate->text().remove(u'&') == button)
                QTest::mouseClick(candidate, Qt::LeftButton);
        }
    });
    Await_Until("the box to close", [] { return Box_On_Top() == nullptr; });
}

void Visitor::Choose_File(const QString& name, const QString& picture)
{
    Retype(File_Panel, File_Name, name);
    Await_Text(File_Panel, File_Name, name);
    Take_Picture(File_Panel, picture);
    Do(File_Panel, File_Name, [](QWidget& field) { QTest::keyClick(&field, Qt::Key_Return); });
    Await_Gone(File_Panel);
}
