#pragma once

#include <QLocale>
#include <QString>

// The language that a person reads the program in: English, or the one whose translation was loaded. It is chosen once,
// before the first text is shown; from then on any thread.
namespace Reading_Language {

/// Takes a language by its two letters. Texts are translated by the application's translators, not here.
void Choose(const QString& letters);

bool Is_English();

/// For dates and numbers within texts; the C locale for English.
QLocale Locale();

// As long as one of these lives, the texts of its thread are the English originals: for what goes into files, which are
// to be the same in every language.
class Originals
{
public:
    Originals();
    ~Originals();
    Originals(const Originals&) = delete;
    Originals& operator=(const Originals&) = delete;

    static bool Are_Wanted();
};

} // namespace Reading_Language
