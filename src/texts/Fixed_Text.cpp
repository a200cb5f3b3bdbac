#include "texts/Fixed_Text.h"

Fixed_Text::operator QString() const
{
    return QString::fromUtf8(m_english);
}
