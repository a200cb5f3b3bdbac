#pragma once

#include "list/Recipient_List.h"
#include "plan/Message_Preview.h"

#include <QFrame>
#include <functional>
#include <memory>

class Main_Window;
class Plain_Text_Edit;
class QLabel;

namespace Ui {
class Handset_Bubble;
}

// What a handset will show of the message being written: worked out of the very frames that would be written, with what
// gets lost on the way or makes the message Unicode, and what helps. Takes no room while there is no message, and opens
// nothing. Part of its window; interface thread.
class Handset_Bubble : public QFrame
{
    Q_OBJECT

public:
    /// For whom a message is shown, and how it would be sent.
    struct Terms
    {
        Plan_Manner manner;
        QString number;                             ///< empty for one of usual length
        bool has_fields = false;                    ///< whether placeholders are filled in
        std::shared_ptr<const Contact_Table> table; ///< null for a recipient without fields
        int table_row = -1;
    };
    /// As the main window stands: for a recipient of its list, or nobody where there is no such one.
    static Terms Terms_For(const Main_Window& window, int row);

    explicit Handset_Bubble(QWidget* parent = nullptr);
    ~Handset_Bubble() override;

    /// Shows from now on what becomes of the text in an editor, marks there what gets lost, and counts its parts in a
    /// label. Both outlive the bubble; the terms are asked for each time.
    void Follow(Plain_Text_Edit& editor, QLabel& parts, std::function<Terms()> terms);
    /// Offers sending as Unicode, where that helps, by Unicode_Wanted.
    void Offer_Unicode() { m_offers_unicode = true; }
    /// Shows a message that is not to be changed here.
    void Show_Message(const QString& message, const Terms& terms);

    /// The text or the terms have changed. They are looked at when control returns to the event loop, and once then,
    /// however often they changed.
    void Look_Again();
    /// How often they have been looked at.
    int Looks() const { return m_looks; }

    /// Not for the layouts around it; see Fit_Height.
    bool hasHeightForWidth() const override { return false; }

Q_SIGNALS:
    void Unicode_Wanted();

protected:
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void Look();
    void Fit_Height();
    void Show_Nothing();
    void Show_Preview(const QString& text, int place, const Terms& terms);
    QString Losses_Of(const Message_Preview& sent, const Plan_Manner& manner) const;
    void Show_Help(const QString& text, const Plan_Manner& manner);
    void Replace(Replaced what);
    int First_Replaceable() const;

    std::unique_ptr<Ui::Handset_Bubble> m_ui;
    Plain_Text_Edit* m_editor = nullptr; // null where nothing is written
    QLabel* m_parts = nullptr;
    std::function<Terms()> m_terms;
    Message_Preview m_preview; // of the text as it is written
    bool m_offers_unicode = false;
    bool m_is_due = false;
    int m_looks = 0;
};
