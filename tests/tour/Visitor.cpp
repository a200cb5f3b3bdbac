#include "tour/Visitor.h"

#include "platform/Interface_Thread.h"

#include <QApplication>
#include <QDir>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QScreen>
#include <QTableView>
#include <chrono>
#include <thread>

// What the visitor waits for and sees; what it does with its hands is in Visitor_Hands.cpp.

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

void Visitor::Await_Text(const QString& window, const QString& control, const QString& beginning)
{
    Await(window);
    Await_Until(control + QStringLiteral(" to show ") + beginning,
                [&] { return Text_Of(window, control).startsWith(beginning); });
}

void Visitor::Await_Input(const QString& window, const QString& control)
{
    Await_Until(control + QStringLiteral(" in ") + window, [&] {
        auto* found = Find_Window(window);
        return found && Control(window, control).isVisible() && Control(window, control).isEnabled() &&
               Takes_Input(*found);
    });
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
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
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
    if (!picture.toImage().convertToFormat(QImage::Format_RGB888).save(path, "PNG", Smallest_File))
        throw Tour_Failed(QStringLiteral("could not write ") + path);
    printf("picture  %s\n", qPrintable(path));
    fflush(stdout);
}
