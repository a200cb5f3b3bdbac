#pragma once

#include <QString>
#include <utility>

// The file of what a person wants remembered: words under keys, for the user's eyes alone (0600). It is there only
// while it holds something. One program at a time uses it. Any thread; one at a time.
class Settings_File
{
public:
    explicit Settings_File(QString path) : m_path(std::move(path)) {}

    /// Whether nothing else than such a file lies at the path.
    bool Is_Usable() const;
    /// Whether there is none, or one that cannot be read.
    bool Has_Nothing() const;
    /// Prepares for writing: what is no such file is removed if possible. Answers no where nothing can be written.
    bool Make_Usable() const;

    /// Removes what a write that was killed left beside the file. For the start, when nobody else writes.
    void Clear_Up() const;

    /// Empty where there is none.
    QString Word_At(const QString& key) const;
    /// An empty word takes the key away. Answers no when the file cannot be written.
    bool Put_Word(const QString& key, const QString& word) const;
    /// With all keys below it; the file goes with the last. Answers no when it stays.
    bool Remove_Key(const QString& key) const;

private:
    QString m_path;
};
