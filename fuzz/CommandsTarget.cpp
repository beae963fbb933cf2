#include "CommandsComparison.h"
#include "Fuzz.h"
#include "StoredEffects.h"

#include <functional>
#include <string_view>

// The commands of the tool on a file. The bytes of the input also pick the places and values.

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::size_t hash = std::hash<std::string_view>()({reinterpret_cast<const char*>(data), size});
    Fuzz::Mutation mutation(static_cast<unsigned>(hash));
    for (const Ombrel::PropertyTree& tree : Fuzz::ParseInput(data, size))
    {
        Fuzz::CompareCommands(tree, mutation);
    }
    return 0;
}
