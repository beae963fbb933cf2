#include "TextFile.h"

#include "PropertyTreeJson/MessageText.h"
#include "ToolError.h"

#include <algorithm>
#include <optional>

namespace Ombrel::EffectsTool
{

std::string NameOfFile(const std::string& file)
{
    return file == "-" ? "<stdin>" : MessageText::Printable(file);
}

void ThrowUnreadable(const std::string& file)
{
    throw ToolError(ExitCode::File, NameOfFile(file) + ": cannot be read: " + System::LastError());
}

System::File OpenTextFile(const std::string& file)
{
    System::File opened = file == "-" ? System::StandardInput() : System::OpenToRead(file);
    if (!opened.IsOpen())
    {
        ThrowUnreadable(file);
    }
    return opened;
}

std::string ReadRest(const System::File& file, const std::string& name, std::size_t maxBytes)
{
    constexpr std::size_t least = 65536;
    std::string text;
    std::size_t size = 0;
    for (;;)
    {
        if (size == text.size())
        {
            text.resize(std::max(size * 2, least));
        }
        const std::optional<std::size_t> count = file.Read(text.data() + size, text.size() - size);
        if (!count)
        {
            ThrowUnreadable(name);
        }
        size += *count;
        if (size > maxBytes)
        {
            throw ToolError(ExitCode::File, NameOfFile(name) + ": is longer than the " + std::to_string(maxBytes) +
                                                " bytes that --max-bytes allows");
        }
        if (*count == 0)
        {
            text.resize(size);
            return text;
        }
    }
}

std::string ReadTextFile(const std::string& file, std::size_t maxBytes)
{
    return ReadRest(OpenTextFile(file), file, maxBytes);
}

void WriteTextFile(const std::string& file, std::string_view text)
{
    const System::File created = System::Create(file);
    if (!created.IsOpen() || !created.Write(text))
    {
        throw ToolError(ExitCode::File, NameOfFile(file) + ": cannot be written: " + System::LastError());
    }
}

} // namespace Ombrel::EffectsTool
