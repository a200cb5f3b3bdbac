#include "records/Template_Store.h"

#include "platform/Text_Files.h"
#include "records/Data_Paths.h"
#include "records/Template_Format.h"
#include "records/Template_Lines.h"

#include <mutex>

namespace {

// What was last read of the file, with the two locks its user holds: the file's first.
class Known_Lines
{
public:
    explicit Known_Lines(const QString& path) : m_file_lock(path), m_guard(The_Mutex())
    {
        if (The_Lines().Path() != path)
            The_Lines() = Template_Lines(path);
    }

    Template_Lines* operator->() const { return &The_Lines(); }

private:
    static std::mutex& The_Mutex()
    {
        static std::mutex mutex;
        return mutex;
    }

    static Template_Lines& The_Lines()
    {
        static Template_Lines lines{QString()};
        return lines;
    }

    File_Lock m_file_lock;
    std::lock_guard<std::mutex> m_guard;
};

} // namespace

Template_Store::Template_Store(const QString& path) : m_file(path) {}

bool Template_Store::Contains(const QString& text)
{
    return Known_Lines(Templates_Path)->Contains(text);
}

bool Template_Store::Append(const QString& text)
{
    if (QStringView(text).trimmed().isEmpty())
        return false;
    const Known_Lines known(Templates_Path);
    Check_Path_And_Create_Files();
    if (known->Contains(text))
        return false;
    const QByteArray line = Template_Format::Line(text);
    if (!Store_File(Templates_Path).Append(line))
        return false;
    known->Was_Appended(text, line.size());
    return true;
}

void Template_Store::Load(const std::function<void(Template_Item)>& take)
{
    Template_Format::Read(m_file.Load(), take); // not under the file's lock: taking them may wait for a window
}

QList<Template_Item> Template_Store::Load_List(qsizetype early_count,
                                               const std::function<void(const QList<Template_Item>&)>& early)
{
    QList<Template_Item> list;
    Load([&](Template_Item item) {
        list.append(std::move(item));
        if (list.size() == early_count)
            early(list);
    });
    return list;
}

bool Template_Store::Rewrite(const QList<Template_Item>& templates)
{
    const QByteArray lines = Template_Format::Lines(templates);
    return m_file.Rewrite(lines) || (!templates.isEmpty() && m_file.Put_Aside() && m_file.Rewrite(lines));
}
