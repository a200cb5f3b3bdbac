#pragma once

#include "doctor/Port_Doctor.h"
#include "toolkit/Form_Dialog.h"

#include <atomic>
#include <functional>

namespace Ui {
class Doctor_Wnd;
}

// "Why does my phone not show?": looks at ports and devices and lists what it finds, each with its sign and with what
// helps. The list can be copied, and the virtual phone be tried in place of a real one. Made for one opening, over the
// window that offers it; interface thread, with a worker that its end waits for.
class Doctor_Wnd : public Working_Dialog<Doctor_Wnd, Ui::Doctor_Wnd>
{
    Q_OBJECT

public:
    /// A look: tells findings and steps as the wishes say, on the calling thread.
    using Look = std::function<QStringList(const Port_Doctor::Wishes& wishes)>;
    static constexpr int Virtual_Phone_Is_There = 2;

    explicit Doctor_Wnd(QWidget* parent = nullptr);
    Doctor_Wnd(QWidget* parent, Look look);
    ~Doctor_Wnd() override;

    /// Looks and runs modally. Returns Virtual_Phone_Is_There if the virtual phone was started, which the next search
    /// finds; otherwise 0.
    int exec() override;

    void Look_Again();
    void Copy_Report();
    void Try_Virtual_Phone();
    void CancelPressed(); ///< closes the window

    void Show_Finding(const Finding& finding);
    void Show_End(bool has_ready_device);

    /// Ends the look first.
    void done(int result) override;

private:
    void Begin_Look();
    void Show_Looking(bool is_looking);

    const Look m_look;
    QList<Finding> m_findings;
    std::atomic<bool> m_is_over{false};
};
