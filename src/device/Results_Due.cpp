#include "device/Results_Due.h"

void Results_Due::Reset(int count)
{
    m_count = count;
    m_is_mixed = false;
    m_is_passed = false;
}

void Results_Due::Add()
{
    if (m_is_passed)
        Reset(0);
    ++m_count;
    m_is_mixed = m_is_mixed || m_count > 1;
}

void Results_Due::Add_Reference()
{
    Reset(1);
    m_is_passed = true;
}

void Results_Due::Pass()
{
    m_is_passed = m_count > 0;
}

void Results_Due::Take(const Late_Result& result)
{
    if (m_count == 0 || (m_is_passed && result.m_cause))
        return;
    if (Is_One()) {
        m_settled = result;
        Reset(0);
        return;
    }
    --m_count;
    m_is_mixed = m_count > 0;
    m_is_passed = m_is_passed && m_count > 0;
}

void Results_Due::Mix(int results)
{
    m_count = m_count + 1 > results ? m_count + 1 - results : 0;
    m_is_mixed = m_count > 0;
    m_is_passed = false;
}
