#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class Export_Option;
}

// Asks whether to export as text or as HTML, and leaves the answer in SENT_EXPORT_MODE. One shared instance, put over
// the window that asks; interface thread.
class Export_Option : public QDialog
{
    Q_OBJECT

public:
    explicit Export_Option(QWidget* parent = nullptr);
    ~Export_Option() override;

    static Export_Option* defaultInstance();

    /// Runs the dialog over a window. Returns 1 for OK and 0 for Cancel, which resets the mode to text.
    int Open_Dialog(QWidget* over);

    void Export_In_Text_RD();
    void Export_In_Html_RD();
    void OKPressed();     ///< the mode is kept; the radio buttons go back to text
    void CancelPressed(); ///< both go back to text
    void reject() override;

private:
    void Show_Choice(bool is_html);

    std::unique_ptr<Ui::Export_Option> m_ui;
};
