#pragma once

#include <stdexcept>

/// The only exception that the session's operations catch; every other passes through to the caller.
class Device_Exception : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};
