#include "CommandLine.h"
#include "ToolError.h"

#include <csignal>
#include <exception>
#include <iostream>

int main(int argc, char** argv)
{
    using namespace Ombrel::EffectsTool;

    // A file that grows beyond the limit then fails to be written, instead of ending the program before it cleans up.
    std::signal(SIGXFSZ, SIG_IGN);
    try
    {
        return RunCommandLine(argc, argv);
    }
    catch (const std::exception& error)
    {
        std::cerr << "ombrel-effects: " << error.what() << '\n';
        return static_cast<int>(ExitCode::File);
    }
}
