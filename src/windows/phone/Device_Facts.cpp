#include "windows/phone/Device_Facts.h"

#include "platform/One_Line.h"
#include "windows/phone/Phone_List_Wnd.h"

#include <QLineEdit>

QString Facts_Of_The_Device(const Phone_List_Wnd& wizard)
{
    const auto words_in = [&](const char* name) {
        const auto* field = wizard.findChild<QLineEdit*>(QLatin1String(name));
        return field ? On_One_Line(field->text()).trimmed() : QString();
    };
    const QString signal = words_in("_signal_edit");
    QStringList facts{QStringList{words_in("_manfacturer_edit"), words_in("_model_edit")}.join(u' ').trimmed(),
                      words_in("_operator_edit"),
                      signal.isEmpty() ? QString() : Phone_List_Wnd::tr("signal %1").arg(signal)};
    facts.removeAll(QString());
    return facts.join(QStringLiteral("  \u00B7  "));
}
