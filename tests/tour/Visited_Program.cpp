#include "tour/Visited_Program.h"

#include "platform/Interface_Thread.h"

#include <cstdio>
#include <exception>
#include <thread>

int Run_Visited(const Command_Line& command_line, const std::function<void(Program&)>& prepare,
                const std::function<void(Program&)>& visit)
{
    Program program(command_line);
    if (!program.Start())
        return 1;
    prepare(program);
    int status = 0;
    std::thread thread([&] {
        try {
            visit(program);
        } catch (const std::exception& failure) {
            printf("FAILED   %s\n", failure.what());
            status = 1;
        }
        fflush(stdout);
        Run_On_Interface_Thread([&] { program.Leave(); });
    });
    program.Run();
    thread.join();
    return status;
}
