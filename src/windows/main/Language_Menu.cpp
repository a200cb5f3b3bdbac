#include "windows/main/Language_Menu.h"

#include "platform/Log_Line.h"
#include "toolkit/Languages.h"

#include <QActionGroup>
#include <QCoreApplication>
#include <QMenu>

namespace {

struct Words
{
    Q_DECLARE_TR_FUNCTIONS(Language_Menu)
};

QAction* Add_Choice(QMenu& menu, QActionGroup& choices, const QString& words, const QString& letters)
{
    QAction* action = menu.addAction(words);
    action->setObjectName(QStringLiteral("Language_") + (letters.isEmpty() ? QStringLiteral("Desktop") : letters));
    action->setData(letters);
    action->setCheckable(true);
    choices.addAction(action);
    return action;
}

} // namespace

void Add_Language_Menu(QMenu& menu, const Program_Settings& settings)
{
    menu.addSeparator();
    auto* languages = menu.addMenu(Words::tr("La&nguage (from the next start on)"));
    languages->setObjectName(QStringLiteral("Language_Menu"));
    auto* choices = new QActionGroup(languages);
    QAction* desktop = Add_Choice(*languages, *choices, Words::tr("As the &desktop"), {});
    desktop->setChecked(true);
    for (const Language& language : All_Languages()) {
        const QString letters = QLatin1String(language.letters);
        QAction* action = Add_Choice(*languages, *choices, QString::fromUtf8(language.own_name), letters);
        if (letters == settings.Language())
            action->setChecked(true);
    }
    QObject::connect(choices, &QActionGroup::triggered, languages, [settings](QAction* action) {
        if (!settings.Choose_Language(action->data().toString()))
            Show_NSLog_Message(QStringLiteral("What is to be remembered cannot be written."));
    });
}
