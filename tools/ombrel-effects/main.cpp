#include "CommandLine.h"
#include "System.h"
#include "ToolError.h"

#include <algorithm>
#include <exception>
#include <iostream>
#include <iterator>
#include <string>
#include <vector>

int main(int argc, char** argv)
{
    using namespace Ombrel::EffectsTool;

    const System::Session session;
    try
    {
        std::vector<std::string> words = System::Arguments(argc, argv);
        std::vector<char*> pointers;
        std::ranges::transform(words, std::back_inserter(pointers), [](std::string& word) { return word.data(); });
        pointers.push_back(nullptr);
        return RunCommandLine(static_cast<int>(words.size()), pointers.data());
    }
    catch (const std::exception& error)
    {
        std::cerr << "ombrel-effects: " << error.what() << '\n';
        return static_cast<int>(ExitCode::File);
    }
}
