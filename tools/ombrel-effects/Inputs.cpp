#include "Inputs.h"

#include "System.h"
#include "TextFile.h"
#include "ToolError.h"

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace Ombrel::EffectsTool
{
namespace
{

namespace fs = std::filesystem;

// Adds the files of one folder and what is below it.
void AddFolder(const fs::path& folder, std::vector<std::string>& files, std::vector<std::string>& complaints)
{
    std::vector<fs::path> folders{folder};
    while (!folders.empty())
    {
        const fs::path next = std::move(folders.back());
        folders.pop_back();
        std::error_code failure;
        fs::directory_iterator entry(next, failure);
        for (; !failure && entry != fs::directory_iterator(); entry.increment(failure))
        {
            std::error_code ignored;
            if (entry->is_directory(ignored) && !entry->is_symlink(ignored))
            {
                folders.push_back(entry->path());
            }
            else if (entry->path().extension() == ".json" && !entry->is_directory(ignored))
            {
                files.push_back(System::NameOf(entry->path()));
            }
        }
        if (failure)
        {
            complaints.push_back(NameOfFile(System::NameOf(next)) + ": cannot be read: " + failure.message());
        }
    }
}

} // namespace

std::vector<std::string> FilesOf(const std::vector<std::string>& names, std::vector<std::string>& complaints)
{
    std::vector<std::string> files;
    for (const std::string& name : names)
    {
        std::error_code ignored;
        if (name == "-" || !fs::is_directory(System::PathOf(name), ignored))
        {
            files.push_back(name);
            continue;
        }
        const std::size_t before = files.size();
        const std::size_t complaintsBefore = complaints.size();
        AddFolder(System::PathOf(name), files, complaints);
        if (files.size() == before && complaints.size() == complaintsBefore)
        {
            throw ToolError(ExitCode::Usage, NameOfFile(name) + ": there is no *.json file below it");
        }
        std::sort(files.begin() + static_cast<std::ptrdiff_t>(before), files.end());
    }
    return files;
}

} // namespace Ombrel::EffectsTool
