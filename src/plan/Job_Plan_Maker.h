#pragma once

#include "plan/Job_Plan.h"
#include "plan/Row_Judge.h"

// Fills a plan, batch by batch, so that the look-ups of numbers overlap. Made for one plan; its worker.
class Job_Plan::Maker
{
public:
    Maker(Job_Plan& plan, int count, const Plan_Watch& watch);

    void Run();

private:
    void Read_Numbers(int begin, int end);
    void Judge_Rows(int begin, int end);
    bool Is_Duplicate(int row);

    Job_Plan& m_plan;
    const int m_count;
    const Plan_Watch& m_watch;
    Row_Judge m_judge;
    Number_List m_to_be_sent; // where duplicates are skipped
};
