#include "toolkit/Languages.h"

#include "texts/Reading_Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>
#include <algorithm>
#include <array>

namespace {

constexpr std::array Languages{Language{"en", "English"},  Language{"de", "Deutsch"},  Language{"es", "Español"},
                               Language{"fr", "Français"}, Language{"it", "Italiano"}, Language{"pl", "Polski"},
                               Language{"pt", "Português"}};

const QString English = QStringLiteral("en");

bool Is_Known(const QString& letters)
{
    return std::any_of(Languages.begin(), Languages.end(),
                       [&](const Language& language) { return letters == QLatin1String(language.letters); });
}

// Goes with the application.
bool Install(const QString& name, const QString& folder)
{
    auto* translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(name, folder))
        return QCoreApplication::installTranslator(translator);
    delete translator;
    return false;
}

} // namespace

std::span<const Language> All_Languages()
{
    return Languages;
}

QStringList Languages_Of_The_Desktop()
{
    const QLocale desktop = QLocale::system();
    return desktop.language() == QLocale::C ? QStringList() : desktop.uiLanguages();
}

QString Language_To_Read(const QString& chosen, const QStringList& of_the_desktop)
{
    if (Is_Known(chosen))
        return chosen;
    for (const QString& name : of_the_desktop)
        if (const QString letters = name.section(u'-', 0, 0); Is_Known(letters))
            return letters;
    return English;
}

bool Read_In(const QString& letters)
{
    const QString own = QStringLiteral("corvane_") + letters;
    if (letters == English)
        return Install(own, QStringLiteral(":/i18n"));
    Install(QStringLiteral("qtbase_") + letters, QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    if (!Install(own, QStringLiteral(":/i18n")))
        return false;
    Reading_Language::Choose(letters);
    return true;
}
