#pragma once

#include "platform/System_Log.h"

#include <algorithm>
#include <mutex>
#include <string>
#include <vector>

/// Hears the system log from its making to its end, every line as it was written. One at a time; any thread may log.
class Log_Lines
{
public:
    Log_Lines()
    {
        Set_Log_Listener([this](const QString& line) {
            const std::lock_guard guard(m_lock);
            m_lines.push_back(line.toStdString());
        });
    }
    ~Log_Lines() { Set_Log_Listener({}); }
    Log_Lines(const Log_Lines&) = delete;
    Log_Lines& operator=(const Log_Lines&) = delete;

    std::vector<std::string> All() const
    {
        const std::lock_guard guard(m_lock);
        return m_lines;
    }

    /// How often exactly this line was written.
    long Count(const std::string& line) const
    {
        const auto lines = All();
        return std::count(lines.begin(), lines.end(), line);
    }

    bool Has(const std::string& line) const { return Count(line) > 0; }

    /// All lines in one text, for looking for a piece.
    std::string Joined() const
    {
        std::string text;
        for (const auto& line : All())
            text += line + "|";
        return text;
    }

    void Forget()
    {
        const std::lock_guard guard(m_lock);
        m_lines.clear();
    }

private:
    mutable std::mutex m_lock;
    std::vector<std::string> m_lines;
};
