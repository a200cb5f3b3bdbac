#pragma once

#include "records/Data_Paths.h"
#include "records/Store_File.h"
#include "records/Template_Item.h"

#include <QList>
#include <functional>

// The file of templates. The send job appends to it; the templates window keeps an object of its own that loads and
// rewrites it. The rules for a Store_File apply: workers only, one thread at a time per object.
class Template_Store
{
public:
    explicit Template_Store(const QString& path = Templates_Path);

    /// Whether a line of the file at Templates_Path is exactly this text, blanks included, as it would come back from
    /// the file. Nothing is found in a file that is missing or cannot be read. Asked again, it reads the file only if
    /// something else has changed it. For any worker.
    static bool Contains(const QString& text);

    /// Appends the text as it is to the file at Templates_Path, unless it is blank or already there. Returns whether it
    /// was appended. For any worker.
    static bool Append(const QString& text);

    /// Passes on the templates of the file, each once; none if it is missing or cannot be read.
    void Load(const std::function<void(Template_Item)>& take);

    /// The same as a list. As soon as early_count templates have been read, if there are as many, early receives them.
    QList<Template_Item> Load_List(qsizetype early_count,
                                   const std::function<void(const QList<Template_Item>&)>& early);

    /// Whether the file found by the last load holds something that could not be read.
    bool Was_Unreadable() const { return m_file.Was_Unreadable(); }

    /// Writes the templates back. See Store_File for what is kept. What cannot be read at all is first put aside, if
    /// templates would be lost otherwise.
    bool Rewrite(const QList<Template_Item>& templates);
    bool Clear() { return m_file.Clear(); }
    void Forget() { m_file.Forget(); }

private:
    Store_File m_file;
};
