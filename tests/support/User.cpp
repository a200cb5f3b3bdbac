#include "support/User.h"

#include "toolkit/Modal_Sheet.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <deque>
#include <gtest/gtest.h>
#include <map>

namespace {

int Users_Alive = 0;

std::string Shown(const QString& text)
{
    return "\"" + text.toStdString() + "\"";
}

QAbstractButton* Button_Of(const QMessageBox& box, const QString& text)
{
    const auto buttons = box.buttons();
    for (QAbstractButton* button : buttons) {
        if (button->text().remove(QLatin1Char('&')) == text)
            return button;
    }
    return nullptr;
}

void Turn_Away(QMessageBox& box)
{
    for (const char* text : {"No", "OK"}) {
        if (QAbstractButton* button = Button_Of(box, QLatin1String(text))) {
            button->click();
            return;
        }
    }
    box.reject();
}

void Press(QMessageBox& box, const QString& text)
{
    QAbstractButton* button = Button_Of(box, text);
    if (button && button->isEnabled() && button->isVisible()) {
        button->click();
        return;
    }
    ADD_FAILURE() << "No button " << Shown(text) << " to press in the box " << Shown(box.text());
    Turn_Away(box);
}

void Press_Escape_In(QMessageBox& box)
{
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&box, &press);
    QKeyEvent release(QEvent::KeyRelease, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(&box, &release);
}

bool Is_Under_Something_Modal(const QWidget& window)
{
    return window.isModal() && QApplication::activeModalWidget() != &window;
}

// Calls a step as soon as the window can be used, or drops it when the window has gone by then.
void Once_On_Top(const QPointer<QWidget>& window, QObject* context, const std::function<void(QWidget*)>& step,
                 int delay = 0)
{
    QTimer::singleShot(delay, context, [window, context, step] {
        if (window && window->isVisible() && Is_Under_Something_Modal(*window))
            Once_On_Top(window, context, step, 1);
        else
            step(window && window->isVisible() ? window.data() : nullptr);
    });
}

class Guard : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* box = qobject_cast<QMessageBox*>(watched);
        if (!box || event->type() != QEvent::Show || Users_Alive > 0)
            return false;
        ADD_FAILURE() << "A box opened with nobody to answer it: " << Shown(box->text());
        QTimer::singleShot(0, box, [box] { Turn_Away(*box); });
        return false;
    }
};

} // namespace

class User::Eyes : public QObject
{
public:
    Eyes()
    {
        ++Users_Alive;
        qApp->installEventFilter(this);
    }

    ~Eyes() override
    {
        --Users_Alive;
        for (const auto& answer : m_answers)
            ADD_FAILURE() << "No box ever asked for this answer: " << Shown(answer.name);
        for (const auto& [object_name, handles] : m_openings) {
            for (std::size_t left = 0; left < handles.size(); ++left)
                ADD_FAILURE() << "No window ever opened by this name: " << Shown(object_name);
        }
        for (std::size_t left = 0; left < m_dialogs.size(); ++left)
            ADD_FAILURE() << "No modal dialog opened for something that was to be done with one";
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (event->type() != QEvent::Show || !widget || !widget->isWindow())
            return false;
        if (auto* box = qobject_cast<QMessageBox*>(widget))
            See_Box(*box);
        else
            See_Window(*widget);
        return false;
    }

    struct Answer
    {
        QString name;
        std::function<void(QMessageBox&)> handle;
    };

    std::deque<Answer> m_answers;
    std::map<QString, std::deque<std::function<void(QWidget&)>>> m_openings;
    std::deque<std::function<void(QDialog*)>> m_dialogs;
    QStringList m_shown;
    bool m_leaves_others_open = false;

private:
    void See_Box(QMessageBox& box)
    {
        const QString text = box.text();
        m_shown.append(text);
        Once_On_Top(&box, this, [this, text](QWidget* on_top) {
            auto* open_box = static_cast<QMessageBox*>(on_top);
            if (m_answers.empty() && m_leaves_others_open)
                return;
            if (m_answers.empty()) {
                ADD_FAILURE() << "An unexpected box: " << Shown(text);
                if (open_box)
                    Turn_Away(*open_box);
            } else if (open_box) {
                const Answer answer = std::move(m_answers.front());
                m_answers.pop_front();
                answer.handle(*open_box);
            }
        });
    }

    void See_Window(QWidget& window)
    {
        const auto waiting = m_openings.find(window.objectName());
        if (waiting != m_openings.end() && !waiting->second.empty()) {
            const auto handle = std::move(waiting->second.front());
            waiting->second.pop_front();
            Once_On_Top(&window, this, [handle, name = window.objectName()](QWidget* on_top) {
                if (on_top)
                    handle(*on_top);
                else
                    ADD_FAILURE() << "This window closed before anything could be done with it: " << Shown(name);
            });
            return;
        }
        auto* dialog = qobject_cast<QDialog*>(&window);
        const bool is_a_sheet = dynamic_cast<Modal_Sheet*>(&window) != nullptr; // which asks for nothing
        if (!dialog || !dialog->isModal() || is_a_sheet || m_dialogs.empty())
            return;
        const auto handle = std::move(m_dialogs.front());
        m_dialogs.pop_front();
        Once_On_Top(dialog, this, [handle](QWidget* on_top) {
            if (on_top)
                handle(static_cast<QDialog*>(on_top));
            else
                ADD_FAILURE() << "A dialog closed before anything could be done with it";
        });
    }
};

User::User() : m_eyes(std::make_unique<Eyes>()) {}

User::~User() = default;

void User::Will_Press(const QString& button)
{
    m_eyes->m_answers.push_back({button, [button](QMessageBox& box) { Press(box, button); }});
}

void User::Will_Press_Escape()
{
    m_eyes->m_answers.push_back({QStringLiteral("the Escape key"), Press_Escape_In});
}

void User::Will_Close_It()
{
    m_eyes->m_answers.push_back({QStringLiteral("the close button"), [](QMessageBox& box) { box.close(); }});
}

void User::Will_Leave_It_Open()
{
    m_eyes->m_answers.push_back({QStringLiteral("no answer at all"), [](QMessageBox&) {}});
}

void User::Will_Leave_The_Others_Open()
{
    m_eyes->m_leaves_others_open = true;
}

void User::Will_Handle(std::function<void(QMessageBox&)> handle)
{
    m_eyes->m_answers.push_back({QStringLiteral("something of the test's own"), std::move(handle)});
}

void User::When_Opens(const QString& object_name, std::function<void(QWidget&)> handle)
{
    m_eyes->m_openings[object_name].push_back(std::move(handle));
}

void User::Will_Do(std::function<void(QDialog*)> handle)
{
    m_eyes->m_dialogs.push_back(std::move(handle));
}

QStringList User::Was_Shown() const
{
    return m_eyes->m_shown;
}

void Fail_On_Boxes_Without_A_User()
{
    qApp->installEventFilter(new Guard(qApp));
}
