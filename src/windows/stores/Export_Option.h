#pragma once

#include "toolkit/Form_Dialog.h"

namespace Ui {
class Export_Option;
}

// Asks whether to export as text or as HTML, and leaves the answer in SENT_EXPORT_MODE. One shared instance, put over
// the window that asks; interface thread.
class Export_Option : public Form_Dialog<Export_Option, Ui::Export_Option>
{
    Q_OBJECT

public:
    explicit Export_Option(QWidget* parent = nullptr);
    ~Export_Option() override;

    /// Runs the dialog over a window. Returns 1 for OK and 0 for Cancel, which resets the mode to text.
    int Open_Dialog(QWidget* over);

    void Export_In_Text_RD();
    void Export_In_Html_RD();
    void OKPressed();     ///< the mode is kept; the radio buttons go back to text
    void CancelPressed(); ///< both go back to text
private:
    void Show_Choice(bool is_html);
};
