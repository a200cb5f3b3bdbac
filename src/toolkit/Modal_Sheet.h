#pragma once

#include <QDialog>

// A window that lies over another one and keeps input away from it until the program takes it down: neither Escape nor
// the close button ends it. Created on the interface thread and owned by the code that shows it.
class Modal_Sheet : public QDialog
{
    Q_OBJECT

public:
    explicit Modal_Sheet(QWidget* parent = nullptr);

    /// Shows the sheet in the middle of a window, drawn before this returns. If it is already shown over that window,
    /// it stays where it is, as the user may have moved it there.
    void Begin_Sheet(QWidget* over);
    void End_Sheet();

    /// Leaves the sheet where it is, as a plain window that blocks nothing and that the user can close. Begin_Sheet
    /// makes it a sheet again.
    void Let_Go();

    void reject() override; ///< Escape: does nothing

protected:
    /// Gives the frame a close button, before the sheet is shown. closeEvent decides what a press does; the sheet
    /// stays.
    void Offer_Close_Button();
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override; ///< with an edge: some desktops give windows without buttons none

private:
    void Become(Qt::WindowModality modality, Qt::WindowFlags flags);

    Qt::WindowFlags m_sheet_flags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    bool m_is_ending = false;
    bool m_is_let_go = false;
};
