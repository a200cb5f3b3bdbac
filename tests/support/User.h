#pragma once

#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <functional>
#include <memory>

class QDialog;
class QMessageBox;

// The person at the screen, for a test: real windows and real message boxes open, and this person does to them what the
// test queued, as soon as each is on top. A box that nobody told the person about fails the test at once with its text
// and is closed; so is an answer that no box ever asked for, when the person leaves. One lives in a test, on the
// interface thread; boxes asked for by workers or from nested event loops are served alike.
class User
{
public:
    User();
    ~User();
    User(const User&) = delete;
    User& operator=(const User&) = delete;

    /// Queues an answer: the next message box gets the button with this text pressed ("Yes", "No", "OK").
    void Will_Press(const QString& button);
    /// Queues the Escape key, and the close button of the box's frame.
    void Will_Press_Escape();
    void Will_Close_It();
    /// Queues a box that the person looks at and leaves open.
    void Will_Leave_It_Open()
    {
        Will_Handle([](QMessageBox&) {}, "no answer at all");
    }
    /// Leaves every box open for which nothing is queued: somebody else answers.
    void Will_Leave_The_Others_Open();
    /// Queues anything else to do with the next box.
    void Will_Handle(std::function<void(QMessageBox&)> handle, const QString& name = "something of the test's own");

    /// What to do, once, when a window with this object name opens. A modal one is left in peace until nothing modal is
    /// above it. Several for one name happen one after the other, one at each opening.
    void When_Opens(const QString& object_name, std::function<void(QWidget&)> handle);
    /// What to do, once, with the next modal dialog that is no message box and that no When_Opens waits for.
    void Will_Do(const std::function<void(QDialog*)>& handle);

    /// The whole texts of the boxes shown so far, in order.
    QStringList Was_Shown() const;

private:
    class Eyes;
    std::unique_ptr<Eyes> m_eyes;
};

/// From now on a message box that opens while no User lives fails the test and is closed, so that no test hangs on it.
/// Called once by the test program's start, after the application object is made.
void Fail_On_Boxes_Without_A_User();

/// Clicks the first of these buttons that can be clicked in the box. Returns false when there is none.
bool Click_First(const QMessageBox& box, const QStringList& texts);

/// Calls a step as soon as the window can be used, or with nothing when the window has gone by then.
void Once_On_Top(const QPointer<QWidget>& window, QObject* context, const std::function<void(QWidget*)>& step,
                 int delay = 0);
