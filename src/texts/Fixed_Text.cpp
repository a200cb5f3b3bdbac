#include "texts/Fixed_Text.h"

#include "texts/Reading_Language.h"

#include <QCoreApplication>

Fixed_Text::operator QString() const
{
    if (Reading_Language::Is_English())
        return QString::fromUtf8(m_english);
    return QCoreApplication::translate("Fixed_Text", m_english);
}
