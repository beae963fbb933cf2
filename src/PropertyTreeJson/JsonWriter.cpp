#include "PropertyTreeJson/JsonOutput.h"
#include "PropertyTreeJson/JsonText.h"
#include "PropertyTreeJson/MessageText.h"
#include "PropertyTreeJson/PropertyTreeJson.h"

#include <algorithm>
#include <cmath>
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
    PropertyTree::Map::const_iterator entry; // of a map: its current child, or the first one before there is any
    std::size_t begun = 0;                   // children written, including the current one
};

class Writer
{
public:
    Writer(std::string& out, const JsonWriteOptions& options) : m_out(out), m_options(options) {}

    void Write(const PropertyTree& top)
    {
        WriteOrOpen(top);
        while (!m_open.empty())
        {
            if (m_open.back().tree->isList())
            {
                WriteElements();
            }
            else
            {
                WriteEntries();
            }
        }
        m_out.Flush();
    }

private:
    // Writes the next elements of the innermost list, up to one that is a list or map with children, or else to its end.
    void WriteElements()
    {
        Level& level = m_open.back();
        const PropertyTree::List& list = level.tree->getList();
        do
        {
            if (level.begun == list.size())
            {
                Close(']');
                return;
            }
            StartChild(level);
        } while (!WriteOrOpen(list[level.begun++]));
    }

    // The same for the entries of the innermost map.
    void WriteEntries()
    {
        Level& level = m_open.back();
        const auto end = level.tree->getMap().end();
        do
        {
            if (level.begun != 0 && ++level.entry == end)
            {
                Close('}');
                return;
            }
            StartChild(level);
            ++level.begun;
            WriteString(level.entry->first, "the key is not valid UTF-8");
            m_out.Add(':');
            if (m_options.indent != 0)
            {
                m_out.Add(' ');
            }
        } while (!WriteOrOpen(level.entry->second));
    }

    // True if `tree` has children, which are to be written next.
    bool WriteOrOpen(const PropertyTree& tree)
    {
        if (tree.isScalar())
        {
            WriteScalar(tree.getScalar());
        }
        else if (tree.isNull())
        {
            m_out.Add("null");
        }
        else if (tree.isList() ? tree.getList().empty() : tree.getMap().empty())
        {
            m_out.Add(tree.isList() ? "[]" : "{}");
        }
        else
        {
            m_out.Add(tree.isList() ? '[' : '{');
            m_open.push_back({&tree, tree.isMap() ? tree.getMap().begin() : PropertyTree::Map::const_iterator()});
            return true;
        }
        return false;
    }

    void Close(char bracket)
    {
        m_open.pop_back();
        StartLine();
        m_out.Add(bracket);
    }

    void StartChild(const Level& level)
    {
        if (level.begun != 0)
        {
            m_out.Add(',');
        }
        StartLine();
    }

    void StartLine()
    {
        if (m_options.indent != 0)
        {
            m_out.AddLine(m_options.indent * std::min(m_open.size(), MAX_INDENTED_LEVELS));
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
            m_out.Add(scalar.toInt());
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
        m_out.Add(value ? "true" : "false");
    }

    void WriteFloat(double value)
    {
        if (std::isfinite(value))
        {
            m_out.Add(value);
            return;
        }
        const std::string_view name = JsonText::NonFiniteText(value);
        if (!m_options.nonFiniteAsText)
        {
            Fail(std::string(name) + " has no JSON form");
        }
        m_out.AddQuoted(name);
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
        if (!m_out.AddQuoted(text))
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

    JsonOutput m_out;
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
