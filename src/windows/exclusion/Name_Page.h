#pragma once

#include <QStringList>

class QLineEdit;

namespace Exclusion_Rules {
enum class Name_Verdict;
}

// The page of the exclusion wizard with the name of the list that is made or edited. Owned by the wizard; interface
// thread.
class Name_Page
{
public:
    explicit Name_Page(QLineEdit& field) : m_ex_list_name_edit(field) {}

    /// The name in the field as it is now, which is the current one from then on.
    const QString& Read();
    const QString& Current() const { return m_exlist_name_str; }
    /// Reads the name of a new list and tells when it may not be that. The focus goes back to the field, but stays
    /// where it is after a name that exists.
    Exclusion_Rules::Name_Verdict Read_New(const QStringList& existing_names);
    /// Puts the name of a list that is there into the field.
    void Show(const QString& name);

private:
    QLineEdit& m_ex_list_name_edit;
    QString m_exlist_name_str; // the name last read
};
