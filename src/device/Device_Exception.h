#pragma once

#include <stdexcept>

/// The one kind of exception that device work may raise and that the session's operations catch at their edge. Every
/// other kind passes through to the caller.
class Device_Exception : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};
