#pragma once

#include "toolkit/PleaseWait_Modeless.h"
#include "toolkit/Shared_Instance.h"
#include "toolkit/Window_Look.h"
#include "toolkit/Window_Work.h"

#include <QDialog>
#include <memory>

class Main_Window;

// What the dialogs have in common: the controls of a form, a shared instance for those that are asked for it, and that
// Escape and the close button press Cancel where there is one. Interface thread.
template <class Self, class Form>
class Form_Dialog : public QDialog
{
public:
    /// Belongs to Shared_Instance, or to the window that the dialog has been put over.
    static Self* defaultInstance() { return Shared_Instance<Self>::Get(); }

    void reject() override
    {
        if constexpr (requires(Self & self) { self.CancelPressed(); })
            static_cast<Self*>(this)->CancelPressed();
        else
            QDialog::reject();
    }

protected:
    explicit Form_Dialog(QWidget* parent, Letters first_size = {}) : QDialog(parent)
    {
        m_ui->setupUi(this);
        Apply_Window_Look(*this, first_size);
    }

    const std::unique_ptr<Form> m_ui = std::make_unique<Form>();
};

// A dialog with work that takes time, and a please-wait sheet over it meanwhile.
template <class Self, class Form>
class Working_Dialog : public Form_Dialog<Self, Form>
{
public:
    void Show_Create_Modeless() { m_work.Show_Sheet(); }
    void Hide_Destroy_Modeless() { m_work.Hide_Sheet(); }

protected:
    using Form_Dialog<Self, Form>::Form_Dialog;

    const std::unique_ptr<PleaseWait_Modeless> plz_wait_Window = std::make_unique<PleaseWait_Modeless>();
    Window_Work m_work{*this, *plz_wait_Window};
    Main_Window* m_window = nullptr; ///< the one the dialog was last opened over
};
