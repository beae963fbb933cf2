#include "PropertyTreeJson/JsonText.h"
#include "PropertyTreeJson/MessageText.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>
#include <vector>

namespace Ombrel
{
namespace
{

// Lines in deeper levels are not indented further. Else the text would grow with the square of the depth.
constexpr std::size_t MAX_INDENTED_LEVELS = 64;

// A map or list that is being written, and its current child.
struct Level
{
    const PropertyTree* tree;
    std::size_t begun = 0; // children written, including the current one
    PropertyTree::Map::const_iterator entry{};

    std::size_t Size() const { return tree->isList() ? tree->getList().size() : tree->getMap().size(); }

    void Advance()
    {
        if (!tree->isList())
        {
            entry = begun == 0 ? tree->getMap().begin() : std::next(entry);
        }
        ++begun;
    }
};

class Writer
{
public:
    Writer(std::string& out, const JsonWriteOptions& options) : m_out(out), m_options(options) {}

    void Write(const PropertyTree& top)
    {
        WriteValue(top);
        while (!m_open.empty())
        {
            if (m_open.back().begun == m_open.back().Size())
            {
                Close();
            }
            else
            {
                WriteNextChild();
            }
        }
    }

private:
    void WriteNextChild()
    {
        Level& level = m_open.back();
        if (level.begun != 0)
        {
            m_out += ',';
        }
        level.Advance();
        StartLine();
        if (level.tree->isList())
        {
            WriteValue(level.tree->getList()[level.begun - 1]);
            return;
        }
        WriteString(level.entry->first, "the key is not valid UTF-8");
        m_out += m_options.indent == 0 ? ":" : ": ";
        WriteValue(level.entry->second);
    }

    void WriteValue(const PropertyTree& tree)
    {
        if (tree.isNull())
        {
            m_out += "null";
        }
        else if (tree.isScalar())
        {
            WriteScalar(tree.getScalar());
        }
        else
        {
            Open(tree);
        }
    }

    void Open(const PropertyTree& tree)
    {
        const Level level{&tree};
        if (level.Size() == 0)
        {
            m_out += tree.isList() ? "[]" : "{}";
            return;
        }
        m_out += tree.isList() ? '[' : '{';
        m_open.push_back(level);
    }

    void Close()
    {
        const bool isList = m_open.back().tree->isList();
        m_open.pop_back();
        StartLine();
        m_out += isList ? ']' : '}';
    }

    void StartLine()
    {
        if (m_options.indent != 0)
        {
            m_out += '\n';
            m_out.append(m_options.indent * std::min(m_open.size(), MAX_INDENTED_LEVELS), ' ');
        }
    }

    void WriteScalar(const PropertyTreeScalar& scalar)
    {
        switch (scalar.kind())
        {
        case PropertyTreeScalar::Kind::Bool:
            WriteBool(scalar);
            break;
        case PropertyTreeScalar::Kind::Integer:
            WriteDigits(scalar.toInt());
            break;
        case PropertyTreeScalar::Kind::Float:
            WriteFloat(scalar.toDouble());
            break;
        case PropertyTreeScalar::Kind::String:
            WriteText(scalar.toString());
            break;
        }
    }

    void WriteBool(const PropertyTreeScalar& scalar)
    {
        bool value = false;
        scalar.convertTo(value);
        m_out += value ? "true" : "false";
    }

    void WriteFloat(double value)
    {
        if (!std::isfinite(value))
        {
            const std::string name(JsonText::NonFiniteText(value));
            if (!m_options.nonFiniteAsText)
            {
                Fail(name + " has no JSON form");
            }
            m_out += '"' + name + '"';
            return;
        }
        const std::size_t start = m_out.size();
        WriteDigits(value);
        if (m_out.find_first_of(".e", start) == std::string::npos)
        {
            m_out += ".0"; // otherwise the number would read back as an integer
        }
    }

    // Writes the shortest text that reads back as the same number. It has at most 24 characters.
    void WriteDigits(auto value)
    {
        std::array<char, 32> digits;
        const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), value);
        m_out.append(digits.data(), result.ptr);
    }

    void WriteText(const std::string& text)
    {
        constexpr const char* reason = "the string is not valid UTF-8";
        if (m_options.nonFiniteAsText && JsonText::NeedsGuard(text))
        {
            WriteString('\\' + text, reason);
        }
        else
        {
            WriteString(text, reason);
        }
    }

    void WriteString(std::string_view text, const char* reasonOfFailure)
    {
        if (!JsonText::AppendQuoted(m_out, text))
        {
            Fail(reasonOfFailure);
        }
    }

    [[noreturn]] void Fail(const std::string& reason) const
    {
        MessageText::Path path;
        for (const Level& level : m_open)
        {
            if (level.tree->isList())
            {
                path.Add(level.begun - 1);
            }
            else
            {
                path.Add(level.entry->first);
            }
        }
        throw JsonWriteError(path.Text(), reason);
    }

    std::string& m_out;
    const JsonWriteOptions& m_options;
    std::vector<Level> m_open;
};

} // namespace

std::string WriteJson(const PropertyTree& tree, const JsonWriteOptions& options)
{
    std::string text;
    Writer(text, options).Write(tree);
    return text;
}

void AppendJson(std::string& text, const PropertyTree& tree, const JsonWriteOptions& options)
{
    const std::size_t before = text.size();
    try
    {
        Writer(text, options).Write(tree);
    }
    catch (...)
    {
        text.resize(before);
        throw;
    }
}

} // namespace Ombrel
