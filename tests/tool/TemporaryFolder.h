#ifndef OMBREL_TESTS_TOOL_TEMPORARY_FOLDER_H
#define OMBREL_TESTS_TOOL_TEMPORARY_FOLDER_H

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <system_error>

namespace Ombrel
{

/// A new folder, which is removed with all that is in it. Names are UTF-8.
class TemporaryFolder
{
public:
    TemporaryFolder()
    {
        std::random_device random;
        do
        {
            m_path = std::filesystem::temp_directory_path() / ("ombrel-test-" + std::to_string(random()));
        } while (!std::filesystem::create_directory(m_path));
        std::filesystem::permissions(m_path, std::filesystem::perms::owner_all);
    }

    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    ~TemporaryFolder()
    {
        std::error_code ignored;
        std::filesystem::permissions(m_path, std::filesystem::perms::owner_all, ignored);
        std::filesystem::remove_all(m_path, ignored);
    }

    const std::filesystem::path& Path() const { return m_path; }

    std::filesystem::path At(const std::string& name) const { return m_path / std::u8string(name.begin(), name.end()); }

    void Write(const std::string& name, std::string_view content) const
    {
        std::ofstream(At(name), std::ios::binary) << content;
    }

    std::string Content(const std::string& name) const
    {
        std::ifstream file(At(name), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

private:
    std::filesystem::path m_path;
};

} // namespace Ombrel

#endif
