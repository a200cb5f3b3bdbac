#pragma once

#include <QString>

/// Takes the ports that a search finds. Implemented by whoever asked for the search; called on the searching thread,
/// once for each port that could be opened, in the order found.
class Found_Port_List
{
public:
    virtual ~Found_Port_List() = default;
    virtual void Insert_port_in_List(const QString& path) = 0;
};
