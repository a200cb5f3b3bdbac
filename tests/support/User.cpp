#include "support/User.h"

#include "toolkit/Modal_Sheet.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QKeyEvent>
#include <QMessageBox>
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

void Turn_Away(QMessageBox& box)
{
    if (!Click_First(box, {"No", "OK"}))
        box.reject();
}

void Press(QMessageBox& box, const QString& text)
{
    if (Click_First(box, {text}))
        return;
    ADD_FAILURE() << "No button " << Shown(text) << " to press in the box " << Shown(box.text());
    Turn_Away(box);
}

void Press_Escape_In(QMessageBox& box)
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, Qt::Key_Escape, Qt::NoModifier);
        QApplication::sendEvent(&box, &event);
    }
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

bool Click_First(const QMessageBox& box, const QStringList& texts)
{
    const auto buttons = box.buttons();
    for (const QString& text : texts) {
        for (QAbstractButton* button : buttons) {
            if (button->text().remove(u'&') == text && button->isEnabled() && button->isVisible()) {
                button->click();
                return true;
            }
        }
    }
    return false;
}

void Once_On_Top(const QPointer<QWidget>& window, QObject* context, const std::function<void(QWidget*)>& step,
                 int delay)
{
    QTimer::singleShot(delay, context, [window, context, step] {
        const bool is_visible = window && window->isVisible();
        if (is_visible && window->isModal() && QApplication::activeModalWidget() != window)
            Once_On_Top(window, context, step, 1);
        else
            step(is_visible ? window.data() : nullptr);
    });
}

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
    std::deque<std::function<void(QWidget&)>> m_dialogs;
    QStringList m_shown;
    bool m_leaves_others_open = false;

private:
    void See_Box(QMessageBox& box)
    {
        const QString text = box.text();
        m_shown.append(text);
        Once_On_Top(&box, this, [this, text](QWidget* on_top) {
            auto* open_box = static_cast<QMessageBox*>(on_top);
            if (m_answers.empty() && !m_leaves_others_open) {
                ADD_FAILURE() << "An unexpected box: " << Shown(text);
                if (open_box)
                    Turn_Away(*open_box);
            } else if (!m_answers.empty() && open_box) {
                const Answer answer = std::move(m_answers.front());
                m_answers.pop_front();
                answer.handle(*open_box);
            }
        });
    }

    void See_Window(QWidget& window)
    {
        auto& openings = m_openings[window.objectName()];
        const bool is_sheet = dynamic_cast<Modal_Sheet*>(&window) != nullptr; // which asks for nothing
        if (!openings.empty())
            Handle(window, openings, "This window closed before anything could be done with it: ");
        else if (qobject_cast<QDialog*>(&window) && window.isModal() && !is_sheet && !m_dialogs.empty())
            Handle(window, m_dialogs, "A dialog closed before anything could be done with it: ");
    }

    void Handle(QWidget& window, std::deque<std::function<void(QWidget&)>>& queue, const char* failure)
    {
        Once_On_Top(&window, this, [handle = queue.front(), failure, name = window.objectName()](QWidget* on_top) {
            if (on_top)
                handle(*on_top);
            else
                ADD_FAILURE() << failure << Shown(name);
        });
        queue.pop_front();
    }
};

User::User() : m_eyes(std::make_unique<Eyes>()) {}

User::~User() = default;

void User::Will_Press(const QString& button)
{
    Will_Handle([button](QMessageBox& box) { Press(box, button); }, button);
}

void User::Will_Press_Escape()
{
    Will_Handle(Press_Escape_In, "the Escape key");
}

void User::Will_Close_It()
{
    Will_Handle([](QMessageBox& box) { box.close(); }, "the close button");
}

void User::Will_Leave_The_Others_Open()
{
    m_eyes->m_leaves_others_open = true;
}

void User::Will_Handle(std::function<void(QMessageBox&)> handle, const QString& name)
{
    m_eyes->m_answers.push_back({name, std::move(handle)});
}

void User::When_Opens(const QString& object_name, std::function<void(QWidget&)> handle)
{
    m_eyes->m_openings[object_name].push_back(std::move(handle));
}

void User::Will_Do(const std::function<void(QDialog*)>& handle)
{
    m_eyes->m_dialogs.emplace_back([handle](QWidget& dialog) { handle(static_cast<QDialog*>(&dialog)); });
}

QStringList User::Was_Shown() const
{
    return m_eyes->m_shown;
}

void Fail_On_Boxes_Without_A_User()
{
    qApp->installEventFilter(new Guard(qApp));
}
