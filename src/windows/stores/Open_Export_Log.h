#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class Open_Export_Log;
}

// Says that an export has been written and offers to open the file at Export_File_Path with the desktop's program for
// it. One shared instance, put over the window that exported; interface thread.
class Open_Export_Log : public QDialog
{
    Q_OBJECT

public:
    explicit Open_Export_Log(QWidget* parent = nullptr);
    ~Open_Export_Log() override;

    static Open_Export_Log* defaultInstance();

    /// Runs the dialog over a window. Returns 1 for OK and 0 for Cancel.
    int Open_Dialog(QWidget* over);

    void OKPressed(); ///< opens the file if the check box is on; stays and says so if nothing opens it
    void CancelPressed();
    void reject() override;

private:
    void Tell_It_Stays_Closed();
    void End(int code);

    std::unique_ptr<Ui::Open_Export_Log> m_ui;
};
