#pragma once

#include "list/Import_Report.h"
#include "toolkit/Form_Dialog.h"
#include "toolkit/Row_Table_Model.h"

namespace Ui {
class Unused_Lines_Wnd;
}

// The lines that an import did not use: where they stood, what was there, and why not. It blocks nothing and stays
// until it is closed. Made by the strip that speaks of the import, over the strip's window; interface thread.
class Unused_Lines_Wnd : public Form_Dialog<Unused_Lines_Wnd, Ui::Unused_Lines_Wnd>
{
    Q_OBJECT

public:
    explicit Unused_Lines_Wnd(QWidget* parent);
    ~Unused_Lines_Wnd() override;

    /// Comes to the front with the lines of this import, and returns.
    void Show_Report(const Import_Report& report);

private:
    QString Cell(const QString& identifier, int row) const;

    Import_Report m_report;
    Row_Table_Model m_rows;
};
