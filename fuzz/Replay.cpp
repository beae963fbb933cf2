#include "Fuzz.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <vector>

// Runs a target over the files of folders, with any compiler: what was found once is looked at in every test run.
namespace
{

std::vector<std::filesystem::path> FilesOf(const std::filesystem::path& folder)
{
    std::vector<std::filesystem::path> files(std::filesystem::directory_iterator(folder), {});
    std::ranges::sort(files);
    return files;
}

std::string ContentOf(const std::filesystem::path& path)
{
    std::ifstream file(path, std::ios::binary);
    std::string content(std::istreambuf_iterator<char>(file), {});
    Fuzz::Require(file.good() || file.eof(), "a seed cannot be read", path.string());
    return content;
}

} // namespace

int main(int argc, char** argv)
{
    std::size_t count = 0;
    for (int i = 1; i < argc; ++i)
    {
        for (const std::filesystem::path& path : FilesOf(argv[i]))
        {
            std::cerr << path.filename().string() << "\n"; // the last that is named is the one at fault
            const std::string content = ContentOf(path);
            LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(content.data()), content.size());
            ++count;
        }
    }
    Fuzz::Require(count > 0, "there are no seeds");
    std::cout << count << " seeds\n";
    return EXIT_SUCCESS;
}
