#include "windows/main/Appearance_Menu.h"

#include "platform/Log_Line.h"
#include "toolkit/Look.h"

#include <QActionGroup>
#include <QEvent>
#include <QMenu>
#include <QPushButton>

namespace {

const QString As_The_Desktop = QStringLiteral("Desktop");

struct Choice
{
    QString name; // in the settings
    const char* words;
    Look look;
};

const Choice Choices[] = {
    {QStringLiteral("Light"), QT_TRANSLATE_NOOP("Appearance_Menu", "&Light"), Look::Light},
    {QStringLiteral("Dark"), QT_TRANSLATE_NOOP("Appearance_Menu", "&Dark"), Look::Dark},
    {QStringLiteral("HighContrast"), QT_TRANSLATE_NOOP("Appearance_Menu", "&High contrast"), Look::High_Contrast},
    {As_The_Desktop, QT_TRANSLATE_NOOP("Appearance_Menu", "&As the desktop"), Look::Light},
};

} // namespace

Appearance_Menu::Appearance_Menu(QPushButton& button, const Program_Settings& settings)
    : QObject(&button), m_settings(settings), m_choices(new QActionGroup(this))
{
    auto* menu = new QMenu(&button);
    menu->setObjectName(QStringLiteral("Appearance_Menu"));
    for (const Choice& choice : Choices) {
        QAction* action = menu->addAction(tr(choice.words));
        action->setObjectName(QStringLiteral("Appearance_") + choice.name);
        action->setData(choice.name);
        action->setCheckable(true);
        m_choices->addAction(action);
    }
    button.setMenu(menu);
    button.window()->installEventFilter(this);
    connect(m_choices, &QActionGroup::triggered, this, [this](QAction* action) { Choose(action->data().toString()); });
    Take_On(m_settings.Appearance());
}

void Appearance_Menu::Choose(const QString& name)
{
    Take_On(name);
    if (!m_settings.Choose_Appearance(name == Choices[0].name ? QString() : name))
        Show_NSLog_Message(QStringLiteral("What is to be remembered cannot be written."));
}

// A name that nobody has written is the first.
void Appearance_Menu::Take_On(const QString& name)
{
    const auto* chosen =
        std::find_if(std::begin(Choices), std::end(Choices), [&](const Choice& choice) { return choice.name == name; });
    if (chosen == std::end(Choices))
        chosen = Choices;
    const auto actions = m_choices->actions();
    for (QAction* action : actions)
        action->setChecked(action->data().toString() == chosen->name);
    const Look look = chosen->name == As_The_Desktop ? Look_Of_The_Desktop() : chosen->look;
    if (look != Look_Now())
        Choose_Look(look);
}

bool Appearance_Menu::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::ThemeChange && m_choices->checkedAction()->data().toString() == As_The_Desktop)
        Take_On(As_The_Desktop);
    return QObject::eventFilter(watched, event);
}
