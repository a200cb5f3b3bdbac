#include "records/Contact_Export.h"

#include "records/Export_Writer.h"

namespace {

QByteArray Banner()
{
    const QByteArray rule(76, '=');
    return rule + "\n\n\t\t\t[ Corvane - Contact List ]\t\t\t\n\n" + rule + "\n";
}

} // namespace

bool Write_Contact_List(const QString& path, const Recipient_List& list)
{
    const auto line = [&](qsizetype index) -> QByteArray {
        return list.At(static_cast<int>(index)).Number.toUtf8() + '\n';
    };
    return Write_Export(path, {Banner(), list.Count(), line});
}
