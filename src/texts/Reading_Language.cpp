#include "texts/Reading_Language.h"

namespace Reading_Language {

namespace {

const QLatin1String English("en");

QString& Letters()
{
    static QString letters = English;
    return letters;
}

thread_local int Originals_Alive = 0;

} // namespace

void Choose(const QString& letters)
{
    Letters() = letters;
}

bool Is_English()
{
    return Originals::Are_Wanted() || Letters() == English;
}

QLocale Locale()
{
    return Is_English() ? QLocale::c() : QLocale(Letters());
}

Originals::Originals()
{
    ++Originals_Alive;
}

Originals::~Originals()
{
    --Originals_Alive;
}

bool Originals::Are_Wanted()
{
    return Originals_Alive > 0;
}

} // namespace Reading_Language
