#pragma once

#include "toolkit/Form_Dialog.h"

namespace Ui {
class Open_Export_Log;
}

// Says that an export has been written and offers to open the file at Export_File_Path with the desktop's program for
// it. One shared instance, put over the window that exported; interface thread.
class Open_Export_Log : public Form_Dialog<Open_Export_Log, Ui::Open_Export_Log>
{
    Q_OBJECT

public:
    explicit Open_Export_Log(QWidget* parent = nullptr);
    ~Open_Export_Log() override;

    /// Runs the dialog over a window. Returns 1 for OK and 0 for Cancel.
    int Open_Dialog(QWidget* over);

    void OKPressed(); ///< opens the file if the check box is on; stays and says so if nothing opens it
    void CancelPressed();

private:
    void Tell_It_Stays_Closed();
    void End(int code);
};
