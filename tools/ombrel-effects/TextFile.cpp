#include "TextFile.h"

#include "ToolError.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

namespace Ombrel::EffectsTool
{
namespace
{

using Stream = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

Stream Open(const std::string& file, const char* mode)
{
    return {std::fopen(file.c_str(), mode), &std::fclose};
}

std::string ReadAll(std::FILE* stream)
{
    std::string text;
    std::array<char, 65536> buffer;
    while (const std::size_t count = std::fread(buffer.data(), 1, buffer.size(), stream))
    {
        text.append(buffer.data(), count);
    }
    return text;
}

} // namespace

std::string LastError()
{
    return std::generic_category().message(errno);
}

std::string NameOfFile(const std::string& file)
{
    return file == "-" ? "<stdin>" : file;
}

std::string ReadTextFile(const std::string& file)
{
    const Stream own = file == "-" ? Stream(nullptr, &std::fclose) : Open(file, "rb");
    std::FILE* const stream = file == "-" ? stdin : own.get();
    std::string text = stream ? ReadAll(stream) : std::string();
    if (!stream || std::ferror(stream))
    {
        throw ToolError(ExitCode::UsageOrFile, NameOfFile(file) + ": cannot be read: " + LastError());
    }
    return text;
}

void WriteTextFile(const std::string& file, std::string_view text)
{
    const Stream stream = Open(file, "wb");
    if (!stream || std::fwrite(text.data(), 1, text.size(), stream.get()) != text.size() || std::fflush(stream.get()) != 0)
    {
        throw ToolError(ExitCode::UsageOrFile, file + ": cannot be written: " + LastError());
    }
}

} // namespace Ombrel::EffectsTool
