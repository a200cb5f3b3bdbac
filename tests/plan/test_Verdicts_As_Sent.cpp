#include "engine/Confirmed_Test.h"
#include "list/Table_File.h"
#include "plan/Job_Sums.h"
#include "support/Data_Folder.h"

// What a plan says of each row of a list is what becomes of it in the confirmed job, whatever is the matter with it at
// once.

namespace {

const QString Usable = QStringLiteral("0770090010");
const QString Unusable = QStringLiteral("077009001001234567890123");

Row_State State_For(Row_Verdict verdict)
{
    switch (verdict) {
    case Row_Verdict::Send:
        return Row_State::Sent;
    case Row_Verdict::Duplicate:
        return Row_State::Repeated;
    case Row_Verdict::Excluded:
        return Row_State::Excluded;
    case Row_Verdict::Invalid_Number:
        return Row_State::Invalid_Number;
    default:
        return Row_State::Not_Filled;
    }
}

class Planned_Job : public Confirmed_Test, public testing::WithParamInterface<bool>
{
protected:
    Planned_Job()
    {
        Set_Pace(1000);
        m_order.choices.exclusion = true;
        m_order.choices.skip_duplicates = GetParam();
        for (const QString& number : {Usable + u'1', Unusable + u'1'})
            m_order.exclusions.Append(number);
        Write_Bytes(Applied_Exclusion_Path, "Excluded\n");
        Make_List("Excluded", (Usable + "1\n" + Unusable + "1\n").toUtf8());
    }

    /// Usable and unusable numbers, excluded or not, each twice with a name, twice without, and twice with one again.
    void Add_Every_Kind_Of_Row()
    {
        QByteArray csv = "Tel,Name\n";
        for (const char* name : {"Ann", "", "Bob"})
            for (int turn = 0; turn < 2; ++turn)
                for (const QString& number : {Usable, Unusable})
                    for (const char* last : {"1", "2", "3"})
                        csv += number.toUtf8() + last + ',' + name + '\n';
        const auto table = std::make_shared<const Contact_Table>(Table_Of_Bytes(csv, "a.csv", {}).table);
        for (int row = 0; row < table->Row_Count(); ++row)
            m_order.recipients.Append_From_Table(table->Field(row, 0), "Dear {{Name}}", table, row);
    }

    Data_Folder m_data;
};

} // namespace

TEST_P(Planned_Job, Ends_For_Each_Row_As_The_Plan_Says)
{
    Add_Every_Kind_Of_Row();
    Plan_Manner manner;
    manner.fixed_waits = false;
    const Job_Plan plan = Plan_Of(m_order, manner);
    Run();
    ASSERT_EQ(m_witness.m_outcomes.size(), static_cast<std::size_t>(plan.Count()));
    for (const auto& [index, state] : m_witness.m_outcomes)
        EXPECT_EQ(state, State_For(plan.Verdict_Of(index))) << index;
    EXPECT_EQ(Texts().size(), static_cast<std::size_t>(plan.Sums().send));
    EXPECT_GT(plan.Sums().send, 1);
}

INSTANTIATE_TEST_SUITE_P(With_Repeats_Skipped, Planned_Job, testing::Bool());
