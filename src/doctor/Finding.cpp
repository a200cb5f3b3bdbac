#include "doctor/Finding.h"

#include "texts/Doctor_Texts.h"

namespace T = Texts::Doctor;

QChar Sign_Of(Finding::Mark mark)
{
    switch (mark) {
    case Finding::Mark::Good:
        return u'✓';
    case Finding::Mark::Note:
        return u'!';
    case Finding::Mark::Bad:
        break;
    }
    return u'✗';
}

QString Word_Of(Finding::Mark mark)
{
    switch (mark) {
    case Finding::Mark::Good:
        return T::Good;
    case Finding::Mark::Note:
        return T::Note;
    case Finding::Mark::Bad:
        break;
    }
    return T::Bad;
}

QString Code_Of(Finding::Check check)
{
    static constexpr const char* Codes[] = {"port",    "right",  "holder", "answer",  "card",
                                            "network", "signal", "centre", "messages"};
    return QString::fromLatin1(Codes[static_cast<int>(check)]);
}

QString Code_Of(Finding::Mark mark)
{
    static constexpr const char* Codes[] = {"good", "note", "bad"};
    return QString::fromLatin1(Codes[static_cast<int>(mark)]);
}
