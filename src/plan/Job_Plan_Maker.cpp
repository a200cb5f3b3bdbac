#include "plan/Job_Plan_Maker.h"

#include <algorithm>

namespace {

constexpr int Rows_In_Batch = 64;
constexpr int Rows_Between_Reports = 64 * 64;

} // namespace

Job_Plan Job_Plan::Of_Table(std::shared_ptr<const Contact_Table> table, int number_column, const QString& message,
                            const Plan_Terms& terms, const Plan_Watch& watch)
{
    Job_Plan plan;
    plan.m_terms = terms;
    plan.m_number_column = number_column;
    plan.m_message = message;
    plan.m_table = std::move(table);
    plan.m_filling = plan.Has_Fields() ? std::make_shared<const Message_Filling>(message, *plan.m_table)
                                       : std::make_shared<const Message_Filling>(message);
    Maker(plan, plan.m_table->Row_Count(), watch).Run();
    return plan;
}

Job_Plan Job_Plan::Of_List(const Recipient_List& list, const Plan_Terms& terms, const Plan_Watch& watch)
{
    Job_Plan plan;
    plan.m_terms = terms;
    plan.m_list = list;
    Maker(plan, list.Count(), watch).Run();
    return plan;
}

Job_Plan::Maker::Maker(Job_Plan& plan, int count, const Plan_Watch& watch)
    : m_plan(plan), m_count(count), m_watch(watch), m_judge(plan.m_terms.manner)
{
    m_plan.m_entries.reserve(static_cast<std::size_t>(count));
}

void Job_Plan::Maker::Run()
{
    for (int begin = 0; begin < m_count; begin += Rows_In_Batch) {
        if (begin % Rows_Between_Reports == 0) {
            if (m_watch.is_stopped && m_watch.is_stopped())
                return;
            if (m_watch.progress)
                m_watch.progress(begin, m_count);
        }
        const int end = std::min(m_count, begin + Rows_In_Batch);
        m_plan.m_entries.resize(static_cast<std::size_t>(end));
        Read_Numbers(begin, end);
        Judge_Rows(begin, end);
    }
    if (m_watch.progress)
        m_watch.progress(m_count, m_count);
}

void Job_Plan::Maker::Read_Numbers(int begin, int end)
{
    for (int row = begin; row < end; ++row) {
        Packed_Number& number = m_plan.Entry_At(row).number;
        number = m_plan.Packed_At(row);
        m_to_be_sent.Fetch(number);
        m_plan.m_terms.excluded.Fetch(number);
        m_plan.m_terms.present.Fetch(number);
    }
}

void Job_Plan::Maker::Judge_Rows(int begin, int end)
{
    for (int row = begin; row < end; ++row) {
        m_plan.Judge(row, m_judge);
        Entry& entry = m_plan.Entry_At(row);
        if (entry.verdict != Row_Verdict::Send)
            continue;
        if (m_plan.m_terms.skip_duplicates && Is_Duplicate(row))
            entry.verdict = Row_Verdict::Duplicate;
        else
            m_plan.Count_Causes(row, m_judge, 1);
    }
}

bool Job_Plan::Maker::Is_Duplicate(int row)
{
    const auto is_among_others = [this](const auto& number) {
        if (m_to_be_sent.Contains(number) || m_plan.m_terms.present.Contains(number))
            return true;
        m_to_be_sent.Append(number);
        return false;
    };
    const Packed_Number& packed = m_plan.Entry_At(row).number;
    return packed.Is_Empty() ? is_among_others(m_plan.Number_Read(row)) : is_among_others(packed);
}
