#pragma once

#include "texts/Reading_Language.h"
#include "toolkit/Languages.h"

#include <QCoreApplication>
#include <QTranslator>
#include <gtest/gtest.h>

// A test's program is read in another language, as if it had been started so, until this goes. The test program links
// corvane_languages.
class In_Language
{
public:
    explicit In_Language(const QString& letters) { EXPECT_TRUE(Read_In(letters)) << qPrintable(letters); }

    /// With a translation of the test's own, by the path of its file, for the dates and numbers of this language.
    In_Language(const QString& letters, const QString& path)
    {
        auto* translator = new QTranslator(qApp);
        EXPECT_TRUE(translator->load(path)) << qPrintable(path);
        QCoreApplication::installTranslator(translator);
        Reading_Language::Choose(letters);
    }

    ~In_Language()
    {
        qDeleteAll(qApp->findChildren<QTranslator*>(QString(), Qt::FindDirectChildrenOnly));
        Reading_Language::Choose(QStringLiteral("en"));
    }
    In_Language(const In_Language&) = delete;
    In_Language& operator=(const In_Language&) = delete;
};
