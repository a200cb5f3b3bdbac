#pragma once

#include <QStringList>
#include <span>

// The languages that the program can be read in. Interface thread.

struct Language
{
    const char* letters;  ///< ISO 639-1; its translation is i18n/corvane_<letters>.ts
    const char* own_name; ///< as its speakers write it, UTF-8
};

/// English, and every language with a translation.
std::span<const Language> All_Languages();

/// The languages that the desktop is to be read in, the dearest first; none where it has no language, as with LANG=C.
QStringList Languages_Of_The_Desktop();

/// The letters of the language that a person chose, or else of the first of the desktop's that the program has;
/// English where there is none.
QString Language_To_Read(const QString& chosen, const QStringList& of_the_desktop);

/// Has the application's texts, and the toolkit's where the system has its translation, in this language from now on.
/// For once, before the first window. Answers no, and leaves everything in English, when there is no translation.
bool Read_In(const QString& letters);
