#include "victim/Person.h"

#include "support/In_Windows.h"

Person::Person()
{
    qApp->installEventFilter(this);
}

void Person::In_Window(const char* object_name, std::function<void(QWidget&)> steps)
{
    m_windows[QLatin1String(object_name)] = std::move(steps);
}

void Person::Will_Click(const char* object_name, const char* button)
{
    In_Window(object_name, [button](QWidget& window) { Click_In(window, button); });
}

QStringList Person::Boxes_Since()
{
    return std::exchange(m_boxes, {});
}

void Person::Click_In(QWidget& window, const char* button)
{
    auto& found = In<QAbstractButton>(window, button);
    QTest::mouseClick(&found, Qt::LeftButton, {}, QPoint(8, found.height() / 2));
}

bool Person::eventFilter(QObject* watched, QEvent* event)
{
    auto* window = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::Show || !window || !window->isWindow())
        return false;
    if (auto* box = qobject_cast<QMessageBox*>(window))
        m_boxes.append(box->text());
    Once_On_Top(window, this, [this](QWidget* on_top) {
        if (on_top)
            Handle(*on_top);
    });
    return false;
}

void Person::Handle(QWidget& window) const
{
    if (auto* box = qobject_cast<QMessageBox*>(&window)) {
        if (!Click_First(*box, {"Yes", "OK"}))
            qFatal("nothing to agree to: %s", qPrintable(box->text()));
    } else if (auto* panel = qobject_cast<QFileDialog*>(&window)) {
        Enter_Path(*panel, m_path);
    } else if (const auto steps = m_windows.find(window.objectName()); steps != m_windows.end()) {
        steps->second(window);
    }
}
