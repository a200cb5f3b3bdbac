#pragma once

#include <QDialog>
#include <QPointer>
#include <QTimer>
#include <memory>

namespace Ui {
class Long_SMS_Dlg;
}

// Tells that a message has grown past one SMS and will go out in parts. A notice: whichever way it is closed, it ends
// with 1. It comes up while somebody types: what is typed until that has been noticed goes into the text and does not
// press the notice's button. One shared instance, put over the window that asks; interface thread.
class Long_SMS_Dlg : public QDialog
{
    Q_OBJECT

public:
    explicit Long_SMS_Dlg(QWidget* parent = nullptr);
    ~Long_SMS_Dlg() override;

    static Long_SMS_Dlg* defaultInstance();

    /// Waits a second, during which the window's texts can be typed on but nothing in it be pressed, and runs the
    /// dialog over the window until it is closed. Asked for again meanwhile, or while the program exits, it does
    /// nothing; nor does it open when the window was closed during the wait. The text may be another one afterwards.
    void Open_Dialog(QWidget* over, bool unicode);
    void OKPressed();

    void reject() override; ///< Escape and the close button: as OK

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

    std::unique_ptr<Ui::Long_SMS_Dlg> m_ui;
    bool m_is_open = false;
    QTimer m_first_moment{this}; // runs until nobody has typed for a while
    QPointer<QWidget> m_field;   // what was being typed into; none when that was nothing with text
};
