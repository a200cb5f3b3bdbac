#include "toolkit/Unused_Lines_Wnd.h"

#include "engine/Receipt_Cells.h"
#include "platform/One_Line.h"
#include "toolkit/Column_Widths.h"
#include "toolkit/Key_Actions.h"
#include "toolkit/List_Tables.h"
#include "ui_Unused_Lines_Wnd.h"

#include <QHeaderView>

namespace {

constexpr int Text_Column = 1;
constexpr Number_Verdict Reasons[] = {Number_Verdict::Not_Valid, Number_Verdict::Repeated, Number_Verdict::Excluded};

QString Words_Of(Number_Verdict reason)
{
    switch (reason) {
    case Number_Verdict::Not_Valid:
        return Unused_Lines_Wnd::tr("No phone number");
    case Number_Verdict::Repeated:
        return Unused_Lines_Wnd::tr("Already in the list");
    case Number_Verdict::Excluded:
        return Unused_Lines_Wnd::tr("In an exclusion list");
    case Number_Verdict::Accepted:
        break;
    }
    return {};
}

QString Sums_In_Words(const Import_Report& report)
{
    QStringList sums{Unused_Lines_Wnd::tr("Lines not used: %1.").arg(report.Unused())};
    for (const Number_Verdict reason : Reasons) {
        if (const int count = report.Unused(reason); count > 0)
            sums.append(QStringLiteral("%1: %2.").arg(Words_Of(reason), QString::number(count)));
    }
    if (report.Unused() > report.Noted().size())
        sums.append(Unused_Lines_Wnd::tr("These are the first %1.").arg(report.Noted().size()));
    return sums.join(u' ');
}

} // namespace

Unused_Lines_Wnd::Unused_Lines_Wnd(QWidget* parent)
    : Form_Dialog(parent, Letters{.columns = 100, .lines = 26}),
      m_rows(
          {{QStringLiteral("Line"), tr("Line")},
           {QStringLiteral("Text"), tr("As it stood there")},
           {QStringLiteral("Reason"), tr("Why it was not used")}},
          [this] { return static_cast<int>(m_report.Noted().size()); },
          [this](const QString& identifier, int row) { return Cell(identifier, row); })
{
    QTableView& table = *m_ui->_Rows;
    Prepare_List_Table(table, m_rows);
    table.verticalHeader()->hide(); // the lines have numbers of their own
    table.horizontalHeader()->setStretchLastSection(false);
    table.horizontalHeader()->setSectionResizeMode(Text_Column, QHeaderView::Stretch);
    const int letter = table.fontMetrics().averageCharWidth();
    table.setColumnWidth(0, letter * 12);
    table.setColumnWidth(2, letter * 26);
    new Column_Widths(table); // the table owns it
    Give_Table_Keys(table, {});
    connect(m_ui->Close_Btn, &QPushButton::clicked, this, &QDialog::close);
}

Unused_Lines_Wnd::~Unused_Lines_Wnd() = default;

void Unused_Lines_Wnd::Show_Report(const Import_Report& report)
{
    m_report = report;
    m_ui->_Sums->setText(Sums_In_Words(m_report));
    Reload_And_Select_First(*m_ui->_Rows, m_rows);
    m_ui->_Rows->scrollToTop();
    show();
    raise();
    activateWindow();
}

QString Unused_Lines_Wnd::Cell(const QString& identifier, int row) const
{
    const Import_Report::Unused_Line& line = m_report.Noted().at(row);
    if (identifier == u"Line")
        return QString::number(line.line);
    if (identifier == u"Reason")
        return Words_Of(line.reason);
    const QString text = Receipt_Cells::Printable(On_One_Line(line.text));
    return line.is_cut ? text + QChar(0x2026) : text;
}
