#include "victim/Person.h"

#include <QAbstractButton>
#include <QApplication>
#include <QEvent>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTest>
#include <QTimer>
#include <utility>

Person::Person()
{
    qApp->installEventFilter(this);
}

Person::~Person() = default;

void Person::In_Window(const QString& object_name, std::function<void(QWidget&)> steps)
{
    m_windows[object_name] = std::move(steps);
}

QStringList Person::Boxes_Since()
{
    return std::exchange(m_boxes, {});
}

void Person::Click_In(QWidget& window, const char* button)
{
    auto* found = window.findChild<QAbstractButton*>(QLatin1String(button));
    if (!found)
        qFatal("there is no %s in %s", button, qPrintable(window.objectName()));
    QTest::mouseClick(found, Qt::LeftButton, {}, QPoint(8, found->height() / 2));
}

bool Person::eventFilter(QObject* watched, QEvent* event)
{
    auto* window = qobject_cast<QWidget*>(watched);
    if (event->type() != QEvent::Show || !window || !window->isWindow())
        return false;
    if (auto* box = qobject_cast<QMessageBox*>(window))
        m_boxes.append(box->text());
    See(*window);
    return false;
}

// Does what is to be done as soon as nothing modal stands above the window.
void Person::See(QWidget& window)
{
    QTimer::singleShot(0, this, [this, seen = QPointer<QWidget>(&window)] {
        if (!seen || !seen->isVisible())
            return;
        if (seen->isModal() && QApplication::activeModalWidget() != seen) {
            QTimer::singleShot(1, this, [this, seen] {
                if (seen)
                    See(*seen);
            });
            return;
        }
        if (auto* box = qobject_cast<QMessageBox*>(seen.data()))
            Agree(*box);
        else if (auto* panel = qobject_cast<QFileDialog*>(seen.data()))
            Pick(*panel);
        else if (const auto steps = m_windows.find(seen->objectName()); steps != m_windows.end())
            steps->second(*seen);
    });
}

void Person::Agree(QMessageBox& box)
{
    const auto buttons = box.buttons();
    for (QAbstractButton* button : buttons) {
        const QString text = button->text().remove(QLatin1Char('&'));
        if (text == QStringLiteral("Yes") || text == QStringLiteral("OK")) {
            button->click();
            return;
        }
    }
    qFatal("nothing to agree to: %s", qPrintable(box.text()));
}

void Person::Pick(QFileDialog& panel) const
{
    auto* name = panel.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
    name->setText(m_path);
    QTest::keyClick(name, Qt::Key_Return);
}
