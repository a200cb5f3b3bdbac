#pragma once

#include "list/Import_Report.h"

#include <QObject>
#include <optional>

class Import_Strip;
class QTableView;

// How numbers come into the recipient list many at a time without being picked in a panel: from the clipboard, and in a
// file that is dropped on the list; and what is said of every import, wherever it came from. It takes nothing in
// itself. Owned by the main window; interface thread.
class List_Arrivals : public QObject
{
    Q_OBJECT

public:
    /// All outlive it: where files may be dropped, the table that is pasted into, and what says what an import did.
    List_Arrivals(QWidget& ground, QTableView& table, Import_Strip& strip);

    /// An import begins, or the list is emptied: what was said of the last one goes.
    void Forget();
    /// What became of the lines of the import under way.
    void Note(const Import_Report& report) { m_report = report; }
    /// That import is over: says what was noted of it, if anything was.
    void Tell();

    bool eventFilter(QObject* ground, QEvent* event) override;

Q_SIGNALS:
    void Paste_Wanted();
    /// A single file was dropped. Comes after the drop has been answered.
    void Dropped(const QString& path);

private:
    void Offer_To_Paste(QTableView& table);

    Import_Strip& m_strip;
    std::optional<Import_Report> m_report;
};
