#include "TextFile.h"

#include "PropertyTreeJson/MessageText.h"
#include "ToolError.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

#include <fcntl.h>
#include <unistd.h>

namespace Ombrel::EffectsTool
{
namespace
{

[[noreturn]] void ThrowUnreadable(const std::string& file)
{
    throw ToolError(ExitCode::File, NameOfFile(file) + ": cannot be read: " + LastError());
}

} // namespace

std::string LastError()
{
    return std::generic_category().message(errno);
}

std::string NameOfFile(const std::string& file)
{
    return file == "-" ? "<stdin>" : MessageText::Printable(file);
}

std::string ReadDescriptor(int descriptor, const std::string& file, std::size_t maxBytes)
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
        const ssize_t count = ::read(descriptor, text.data() + size, text.size() - size);
        if (count < 0 && errno != EINTR)
        {
            ThrowUnreadable(file);
        }
        size += count < 0 ? 0 : static_cast<std::size_t>(count);
        if (size > maxBytes)
        {
            throw ToolError(ExitCode::File, NameOfFile(file) + ": is longer than the " + std::to_string(maxBytes) +
                                                " bytes that --max-bytes allows");
        }
        if (count == 0)
        {
            text.resize(size);
            return text;
        }
    }
}

std::string ReadTextFile(const std::string& file, std::size_t maxBytes)
{
    if (file == "-")
    {
        return ReadDescriptor(STDIN_FILENO, file, maxBytes);
    }
    const int descriptor = ::open(file.c_str(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
    {
        ThrowUnreadable(file);
    }
    struct Closer
    {
        explicit Closer(int opened) : descriptor(opened) {}
        Closer(const Closer&) = delete;
        Closer& operator=(const Closer&) = delete;
        ~Closer() { ::close(descriptor); }
        int descriptor;
    };
    const Closer closer(descriptor);
    return ReadDescriptor(descriptor, file, maxBytes);
}

void WriteTextFile(const std::string& file, std::string_view text)
{
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(std::fopen(file.c_str(), "wb"), &std::fclose);
    if (!stream || std::fwrite(text.data(), 1, text.size(), stream.get()) != text.size() || std::fflush(stream.get()) != 0)
    {
        throw ToolError(ExitCode::File, NameOfFile(file) + ": cannot be written: " + LastError());
    }
}

} // namespace Ombrel::EffectsTool
