#pragma once

#include <QString>
#include <optional>
#include <utility>

// What a person has chosen about sending message by message.
struct Confirm_Choices
{
    bool confirms = false; ///< each message is judged by the device's own answers; the others hold only then
    bool asks_for_reports = false;
    bool keeps_receipt = false;

    bool operator==(const Confirm_Choices&) const = default;
};

// The choices that a person wants remembered, in a small file of the user's alone (0600). One program at a time uses
// it. Any thread; one at a time.
class Program_Settings
{
public:
    explicit Program_Settings(QString path) : m_path(std::move(path)) {}

    /// Nothing when none are remembered, or the file is none that the program has written.
    std::optional<Confirm_Choices> Remembered() const;
    /// Answers no when the file cannot be written.
    bool Remember(const Confirm_Choices& choices) const;
    /// The file goes with the last that it holds. Answers no when it stays.
    bool Forget() const;

    /// Whether a notice, by its name, is to be shown: each one is until it is not wanted.
    bool Wants_Notice(const QString& name) const;
    /// Answers no when the file cannot be written.
    bool Want_Notice(const QString& name, bool is_wanted) const;

    /// The name of the look that was chosen; empty when none was.
    QString Appearance() const;
    /// An empty name forgets the choice. Answers no when the file cannot be written.
    bool Choose_Appearance(const QString& name) const;

    /// The two letters of the language that was chosen; empty when it is the desktop's.
    QString Language() const;
    /// Empty letters forget the choice. Answers no when the file cannot be written.
    bool Choose_Language(const QString& letters) const;

private:
    QString Word_At(const QString& key) const;
    bool Write_Word(const QString& key, const QString& word) const;
    bool Make_Usable() const;
    bool Remove_Key(const QString& key) const;
    bool Is_Usable() const;

    QString m_path;
};
