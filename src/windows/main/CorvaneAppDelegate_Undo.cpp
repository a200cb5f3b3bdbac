#include "engine/Composer_Rules.h"
#include "platform/Interface_Thread.h"
#include "toolkit/Row_Finder.h"
#include "ui_CorvaneAppDelegate.h"
#include "windows/main/Composer.h"
#include "windows/main/Confirm_Boxes.h"
#include "windows/main/CorvaneAppDelegate.h"
#include "windows/main/Undo_Strip.h"

#include <array>
#include <utility>

// What was removed, and how it comes back: the list as it was is kept for a while, as the value that it is, and nothing
// is copied.

namespace {

constexpr int Normal_Message_Index = 1;

// What the Reset button takes back to the start, but for the recipients.
struct Fields_And_Options
{
    QString previous_message;
    QString number;
    QString text;
    int type = 0;
    std::array<bool, 6> boxes{};
    Confirm_Choices confirm;
    QString batch_size;
    QString pause_choice;
};

std::array<QCheckBox*, 6> Boxes_Of(const Ui::CorvaneAppDelegate& ui)
{
    return {ui._Delayed_Delivry_Chk, ui._Exclusion_Chk,      ui._Save_Sent_Item_Chk,
            ui._Save_Templates_Chk,  ui._Skip_Duplicate_Chk, ui._Unicode_SMS_Chk};
}

// The choice of this text where there is one, and the text itself otherwise.
void Put_Back_Choice(QComboBox& box, const QString& text)
{
    box.setCurrentIndex(box.findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    box.setEditText(text);
}

} // namespace

void CorvaneAppDelegate::Offer_Undo(Recipient_List former, const QString& words, std::function<void()> more)
{
    m_ui->_Undo_Strip->Offer(words, [this, former = std::move(former), more = std::move(more)]() mutable {
        Bring_Back(std::move(former));
        if (more)
            more();
    });
}

void CorvaneAppDelegate::Offer_Undo(Recipient_List former)
{
    const int removed = former.Count() - nsListDataObject.Count();
    Offer_Undo(std::move(former),
               removed == 1 ? tr("1 recipient removed.") : tr("%n recipients removed.", nullptr, removed), nullptr);
}

void CorvaneAppDelegate::Bring_Back(Recipient_List former)
{
    Start_Worker("let go", [replaced = Exchange_List(std::move(former))]() mutable { replaced.Clear(); });
    Redisplay_Recipients();
    Update_List_Count();
    Focus(Field::Recipient_Table);
}

void CorvaneAppDelegate::Reset_Btn()
{
    auto put_fields_back = Way_Back_Of_The_Fields();
    const bool is_to_be_undone = nsListDataObject.Count() > 0 || m_composer->Length() > 0;
    prev_composer_msg.clear();
    m_finder->End();
    m_ui->_numberEdit->clear();
    m_composer->Clear();
    Recipient_List former = Exchange_List();
    Redisplay_Recipients();
    Update_List_Count();
    m_ui->_Msg_char_count->setText(Composer_Rules::Characters_Text(0));
    m_ui->_Msg_TypeComboBox->setCurrentIndex(Normal_Message_Index);
    for (auto* box : Boxes_Of(*m_ui))
        box->setChecked(false);
    m_confirm_boxes->Put_Back();
    m_ui->idExclusionTableView->hide();
    Show_Exclusion_Trouble({});
    Delayed_Delivery_Chk();
    Update_List_Count();
    Focus(Field::Number);
    if (is_to_be_undone)
        Offer_Undo(std::move(former), tr("List, fields and options were reset."), std::move(put_fields_back));
}

// What has been written since stays.
std::function<void()> CorvaneAppDelegate::Way_Back_Of_The_Fields()
{
    const Send_Choices choices = Read_Send_Choices();
    Fields_And_Options before{.previous_message = prev_composer_msg,
                              .number = choices.number_text,
                              .text = choices.composer_text,
                              .type = m_ui->_Msg_TypeComboBox->currentIndex(),
                              .confirm = choices.confirm,
                              .batch_size = choices.batch_size,
                              .pause_choice = m_ui->_delayed_time_combo->currentText()};
    const auto boxes = Boxes_Of(*m_ui);
    for (std::size_t box = 0; box < boxes.size(); ++box)
        before.boxes[box] = boxes[box]->isChecked();
    return [this, before] {
        const auto boxes_now = Boxes_Of(*m_ui);
        for (std::size_t box = 0; box < boxes_now.size(); ++box)
            boxes_now[box]->setChecked(before.boxes[box]);
        Delayed_Delivery_Chk();
        Put_Back_Choice(*m_ui->_delayed_msg_count_combo, before.batch_size);
        Put_Back_Choice(*m_ui->_delayed_time_combo, before.pause_choice);
        m_ui->_Msg_TypeComboBox->setCurrentIndex(before.type);
        m_confirm_boxes->Take_On(before.confirm);
        if (prev_composer_msg.isEmpty())
            prev_composer_msg = before.previous_message;
        if (m_ui->_numberEdit->text().isEmpty())
            m_ui->_numberEdit->setText(before.number);
        if (m_composer->Length() == 0)
            m_composer->Set_Text(before.text);
        m_composer->Refresh_Counter(false);
        Exclusion_Chk();
    };
}
