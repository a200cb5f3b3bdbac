#pragma once

#include "records/Data_Paths.h"
#include "records/Store_File.h"
#include "records/Template_Item.h"

#include <QList>
#include <functional>

// The file of templates. The send job appends to it; the templates window keeps an object of its own that loads and
// rewrites it. What holds for a Store_File holds here: workers only, one thread at a time for one object.
class Template_Store
{
public:
    explicit Template_Store(const QString& path = Templates_Path);

    /// Whether a line of the file at Templates_Path is exactly this text, blanks included, as it would come back from
    /// the file. Nothing is found in a file that is missing or can not be read. Asked again, it reads the file only
    /// when somebody else has changed it. For any worker.
    static bool Contains(const QString& text);

    /// Appends the text as it is to the file at Templates_Path, unless it is blank or there already. Returns whether it
    /// was appended. For any worker.
    static bool Append(const QString& text);

    /// Hands on the templates of the file, each once; none of a file that is missing or can not be read.
    void Load(const std::function<void(Template_Item)>& take);

    /// The same as a list. Where there are so many, early is handed the first of them as soon as they are read.
    QList<Template_Item> Load_List(qsizetype early_count,
                                   const std::function<void(const QList<Template_Item>&)>& early);

    /// Whether the file that the last load found holds something that could not be read.
    bool Was_Unreadable() const { return m_file.Was_Unreadable(); }

    /// Writes the templates back. See Store_File for what stays. What can not be read at all is put aside before, where
    /// there are templates that would be lost otherwise.
    bool Rewrite(const QList<Template_Item>& templates);
    bool Clear();
    void Forget();

private:
    Store_File m_file;
};
