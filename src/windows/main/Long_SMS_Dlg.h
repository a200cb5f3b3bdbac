#pragma once

#include "toolkit/Form_Dialog.h"

#include <QPointer>
#include <QTimer>

namespace Ui {
class Long_SMS_Dlg;
}

// Says that a message has grown past one SMS and will be sent in parts. A notice: however it is closed, it ends with 1.
// It appears while the user types: keys typed before the user notices it go into the text and do not press the notice's
// button. One shared instance, put over the window that asks; interface thread.
class Long_SMS_Dlg : public Form_Dialog<Long_SMS_Dlg, Ui::Long_SMS_Dlg>
{
    Q_OBJECT

public:
    explicit Long_SMS_Dlg(QWidget* parent = nullptr);
    ~Long_SMS_Dlg() override;

    /// Waits a second, in which text can be typed in the window but nothing pressed, and runs the dialog over the
    /// window until it is closed. A call during that time, or while the program exits, does nothing; the dialog does
    /// not open either if the window was closed during the wait. The text may have changed afterwards.
    void Open_Dialog(QWidget* over, bool unicode);
    void OKPressed() { done(1); }

    void reject() override { OKPressed(); } ///< Escape and the close button: as OK

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    QVariant inputMethodQuery(Qt::InputMethodQuery query) const override;
    bool focusNextPrevChild(bool next) override;
    bool event(QEvent* event) override;

private:
    void Begin_First_Moment(const QWidget& over);
    void End_First_Moment();
    void Hand_On_To_Field(QEvent& event);

    bool m_is_open = false;
    QTimer m_first_moment{this}; // runs until there has been no typing for a while
    QPointer<QWidget> m_field;   // what was being typed into; null if that was no text field
};
