#include "windows/exclusion/Name_Page.h"

#include "list/Exclusion_Rules.h"
#include "texts/Texts.h"
#include "toolkit/Message_Boxes.h"
#include "windows/exclusion/Page_Work.h"

#include <QLineEdit>
#include <QSignalBlocker>

const QString& Name_Page::Read()
{
    m_exlist_name_str = Exclusion_Rules::List_Name(m_ex_list_name_edit.text());
    return m_exlist_name_str;
}

Exclusion_Rules::Name_Verdict Name_Page::Read_New(const QStringList& existing_names)
{
    using Exclusion_Rules::Name_Verdict;
    const auto verdict = Exclusion_Rules::Judge_List_Name(Read(), existing_names);
    switch (verdict) {
    case Name_Verdict::Empty:
        Tell_And_Focus(Texts::Exclusion::Name_Missing, m_ex_list_name_edit);
        break;
    case Name_Verdict::Forbidden_Sequence:
        Tell_And_Focus(Texts::Exclusion::Name_Not_Valid, m_ex_list_name_edit);
        break;
    case Name_Verdict::Name_Of_Index:
        Tell_And_Focus(Texts::Exclusion::Name_Not_Free, m_ex_list_name_edit);
        break;
    case Name_Verdict::Exists:
        Show_MessageBox(Texts::Exclusion::Name_Exists);
        break;
    case Name_Verdict::Accepted:
        break;
    }
    return verdict;
}

void Name_Page::Show(const QString& name)
{
    // Only what is typed is cut: a list that came by its name in another way is this one, not one like it.
    const QSignalBlocker muted(m_ex_list_name_edit);
    m_ex_list_name_edit.setText(name);
}
