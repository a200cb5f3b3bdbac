#pragma once

#include <QString>
#include <span>

// How the numbers of a country are written: ITU-T E.164 and the national numbering plans. A row of a table; any thread.
struct Country
{
    const char* letters; ///< ISO 3166-1 alpha-2
    const char* code;
    const char* trunk; ///< the prefixes of national numbers, longest first, with blanks between; empty for none
    int fewest_digits; ///< of a mobile number without code and prefix
    int most_digits;
    bool mobiles_have_prefix = true; ///< whether mobile numbers are usually written with it

    /// Its name in the language that is read.
    QString Name() const;
};

std::span<const Country> All_Countries();

/// The country with these two letters in upper or lower case, also UK; null for none.
const Country* Country_With_Letters(QStringView letters);

/// A country whose code the digits of an international number begin with; null for none. Of several with the same code,
/// the first.
const Country* Country_With_Code_Of(QStringView digits);

/// How many of the digits of an international number are its country's code, or one of those that belong to no country;
/// 0 where there is no such code.
int Length_Of_Code_Of(QStringView digits);

/// What is dialled in a country in place of the "+", where that is something other than "00"; empty elsewhere.
QLatin1String Other_International_Prefix(const Country& country);
