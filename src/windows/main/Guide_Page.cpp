#include "windows/main/Guide_Page.h"

#include "texts/Reading_Language.h"

#include <QCoreApplication>
#include <QFileInfo>

QString Guide_Page()
{
    const QString letters = Reading_Language::Locale().name().section(u'_', 0, 0); // "C" for English, which no page has
    const QString beside_the_program = QCoreApplication::applicationDirPath();
    for (const QString& name : {QStringLiteral("USER_GUIDE.") + letters, QStringLiteral("USER_GUIDE")}) {
        for (const char* way : {"/share", "/../share"}) {
            for (const char* ending : {".html", ".md"}) { // which it has where pages could not be made of it
                const QFileInfo page(beside_the_program + QLatin1String(way) + QStringLiteral("/doc/corvane/guide/") +
                                     name + QLatin1String(ending));
                if (page.isFile())
                    return page.canonicalFilePath();
            }
        }
    }
    return {};
}
