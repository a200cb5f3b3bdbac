#pragma once

#include <QString>

/// Receives the ports that a search finds: called on the searching thread, once for each port that opened, in the order
/// found.
class Found_Port_List
{
public:
    virtual ~Found_Port_List() = default;
    virtual void Insert_port_in_List(const QString& path) = 0;
};
