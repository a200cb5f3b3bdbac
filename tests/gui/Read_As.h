#pragma once

#include "support/In_Language.h"

#include <QApplication>
#include <optional>

/// A language of the program, or one that is made up: "pseudo", 40 % longer than English, and "leftward", which is
/// read from right to left as well.
class Read_As
{
public:
    explicit Read_As(const QString& language)
    {
        if (language == u"pseudo" || language == u"leftward")
            m_reading.emplace(QStringLiteral("de"), QStringLiteral(CORVANE_BUILD_DIR "/i18n/corvane_pseudo.qm"));
        else
            m_reading.emplace(language);
        if (language == u"leftward")
            QApplication::setLayoutDirection(Qt::RightToLeft);
    }
    ~Read_As() { QApplication::setLayoutDirection(Qt::LeftToRight); }
    Read_As(const Read_As&) = delete;
    Read_As& operator=(const Read_As&) = delete;

private:
    std::optional<In_Language> m_reading;
};
