#pragma once

#include "send/Arguments.h"
#include "send/Output.h"

#include <memory>

class Printer;
class Stop_Signals;

// Does what corvane-send was asked for. Made by main() after the application object, for one run; interface thread.
class Send_Program
{
public:
    /// Both outlive it.
    Send_Program(const Arguments& arguments, Stop_Signals& signals);
    ~Send_Program();
    Send_Program(const Send_Program&) = delete;
    Send_Program& operator=(const Send_Program&) = delete;

    /// Returns the exit status.
    int Run();

private:
    int Do();
    int Send();
    int Plan();
    int List_Jobs();
    int Look_At_Devices();
    int Fail(const Trouble& trouble) const;

    const Arguments& m_arguments;
    Stop_Signals& m_signals;
    Output m_output;
    std::unique_ptr<Printer> m_printer;
};

/// Writes one line about what is wrong to standard error.
void Complain(const Trouble& trouble);
