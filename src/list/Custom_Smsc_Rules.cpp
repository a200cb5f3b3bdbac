#include "list/Custom_Smsc_Rules.h"

#include "list/Number_Rules.h"

bool Custom_Smsc_Rules::Is_Valid(const QString& typed)
{
    return !Number_Rules::Normalised_Number(typed).isEmpty();
}
