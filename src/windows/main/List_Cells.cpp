#include "windows/main/List_Cells.h"

#include "toolkit/List_Tables.h"

QString Recipient_Cell(const Recipient_List& nsListDataObject, const QString& identifier, int pRowIndex)
{
    if (pRowIndex < 0 || pRowIndex >= nsListDataObject.Count())
        throw Invalid_Parameter("pRowIndex >= 0 && pRowIndex < [nsListDataObject count]");
    return nsListDataObject.At(pRowIndex).Value(identifier);
}

QString Exclusion_Cell(const Number_List& nsExclusionListDataObject, const QString& identifier, int pRowIndex)
{
    if (pRowIndex < 0 || pRowIndex >= nsExclusionListDataObject.Count())
        throw Invalid_Parameter("pRowIndex >= 0 && pRowIndex < [nsExclusionListDataObject count]");
    return identifier == QStringLiteral("Number") ? nsExclusionListDataObject.At(pRowIndex) : QString();
}
