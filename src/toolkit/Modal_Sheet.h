#pragma once

#include <QDialog>

// A window that stands over another one and keeps input away from it until the program takes it down: neither Escape
// nor the close button ends it. Created on the interface thread and owned by whoever shows it.
class Modal_Sheet : public QDialog
{
    Q_OBJECT

public:
    explicit Modal_Sheet(QWidget* parent = nullptr);

    /// Shows the sheet in the middle of a window, drawn before this returns. Shown over that window already, it stays
    /// where it is, which is where the user may have put it.
    void Begin_Sheet(QWidget* over);
    void End_Sheet();

    /// Leaves the sheet where it is, as a plain window that holds nothing back and that the user can close. Begin_Sheet
    /// makes it a sheet again.
    void Let_Go();

    void reject() override; ///< Escape: nothing happens

protected:
    /// Gives the frame a close button. What a press does is for closeEvent to say; the sheet stays. Before it is shown.
    void Offer_Close_Button();
    void closeEvent(QCloseEvent* event) override;
    void paintEvent(QPaintEvent* event) override; ///< with an edge, which some desktops give no window without buttons

private:
    void Become(Qt::WindowModality modality, Qt::WindowFlags flags);

    Qt::WindowFlags m_sheet_flags = Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint;
    bool m_is_ending = false;
    bool m_is_let_go = false;
};
