#include "Inspection/JsonPatch.h"

#include "Inspection/TreeEditor.h"
#include "Inspection/Values.h"

#include <charconv>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace Ombrel::Inspection
{
namespace
{

// Why an operation cannot be done.
struct Refusal
{
    std::string reason;
};

// A path of steps as RFC 6901 writes it.
std::string PointerOf(const Path& path)
{
    std::string pointer;
    if (!path.OwnSteps().empty() || path.Start())
    {
        pointer += '/';
        pointer += path.ToText();
    }
    return pointer;
}

class PatchWriter
{
public:
    PatchWriter() { m_patch.makeList(); }

    void Add(const Change& change)
    {
        const Change::Storing& stored = change.stored;
        const std::string pointer = PointerOf(stored.path);
        if (change.kind == ChangeKind::Move && stored.path == change.path)
        {
            Operation("test", pointer)["value"] = stored.before ? *stored.before : PropertyTree();
            PropertyTree& operation =
                Operation("move", pointer.substr(0, pointer.rfind('/') + 1) + std::to_string(change.target));
            operation["from"] = pointer;
            return;
        }
        if (stored.before)
        {
            Operation("test", pointer)["value"] = *stored.before;
        }
        if (stored.after)
        {
            Operation(stored.before ? "replace" : "add", pointer)["value"] = *stored.after;
        }
        else if (stored.before)
        {
            Operation("remove", pointer);
        }
    }

    PropertyTree Take() { return std::move(m_patch); }

private:
    PropertyTree& Operation(const char* name, std::string pointer)
    {
        PropertyTree& operation = m_patch.getList().emplace_back();
        operation["op"] = name;
        operation["path"] = std::move(pointer);
        return operation;
    }

    PropertyTree m_patch;
};

std::vector<std::string> TokensOf(std::string_view pointer)
{
    std::vector<std::string> tokens;
    if (!pointer.empty() && pointer.front() != '/')
    {
        throw Refusal{"a path begins with \"/\" or is empty"};
    }
    for (std::size_t index = 0; index != pointer.size(); ++index)
    {
        if (pointer[index] == '/')
        {
            tokens.emplace_back();
        }
        else if (pointer[index] != '~')
        {
            tokens.back() += pointer[index];
        }
        else if (++index != pointer.size() && (pointer[index] == '0' || pointer[index] == '1'))
        {
            tokens.back() += pointer[index] == '0' ? '~' : '/';
        }
        else
        {
            throw Refusal{"\"~\" stands before \"0\" or \"1\" alone"};
        }
    }
    return tokens;
}

// A number without a sign and leading zeros.
std::optional<std::size_t> IndexIn(std::string_view token)
{
    std::size_t index = 0;
    const char* const end = token.data() + token.size();
    const auto [last, error] = std::from_chars(token.data(), end, index);
    const bool isNumber = error == std::errc() && last == end && (token.size() == 1 || token.front() != '0');
    return isNumber ? std::optional(index) : std::nullopt;
}

using Tokens = std::span<const std::string>;

std::size_t CountValues(const PropertyTree& tree)
{
    std::size_t count = 0;
    std::vector<const PropertyTree*> pending{&tree};
    while (!pending.empty())
    {
        const PropertyTree& value = *pending.back();
        pending.pop_back();
        ++count;
        if (value.isMap())
        {
            for (const auto& [key, child] : value.getMap())
            {
                pending.push_back(&child);
            }
        }
        else if (value.isList())
        {
            for (const PropertyTree& child : value.getList())
            {
                pending.push_back(&child);
            }
        }
    }
    return count;
}

const PropertyTree& MemberOf(const PropertyTree& operation, const char* name)
{
    const PropertyTree* member = ChildAt(&operation, PathStep(std::string(name)));
    if (!member)
    {
        throw Refusal{"\"" + std::string(name) + "\" is missing"};
    }
    return *member;
}

const std::string& TextIn(const PropertyTree& operation, const char* name)
{
    const PropertyTree& member = MemberOf(operation, name);
    if (!IsText(member))
    {
        throw Refusal{"\"" + std::string(name) + "\" is no text"};
    }
    return member.getScalar().toString();
}

class PatchRun
{
public:
    PatchRun(PropertyTree tree, const JsonPatchOptions& options) : m_tree(std::move(tree)), m_left(options.maxCopied) {}

    void Do(const PropertyTree& operation)
    {
        const std::string& name = TextIn(operation, "op");
        const std::string& pointer = TextIn(operation, "path");
        try
        {
            Do(name, TokensOf(pointer), operation);
        }
        catch (const Refusal& refusal)
        {
            throw Refusal{name + " " + pointer + ": " + refusal.reason};
        }
    }

    PropertyTree Take()
    {
        m_editor.Close(m_tree);
        return std::move(m_tree);
    }

private:
    void Do(const std::string& name, const std::vector<std::string>& tokens, const PropertyTree& operation)
    {
        if (name == "add")
        {
            Add(tokens, MemberOf(operation, "value"));
        }
        else if (name == "remove")
        {
            PropertyTree removed = Remove(tokens);
            m_editor.Close(removed);
        }
        else if (name == "replace")
        {
            const PropertyTree& value = MemberOf(operation, "value");
            m_editor.Assign(At(tokens), value);
        }
        else if (name == "move")
        {
            Move(TokensOf(TextIn(operation, "from")), tokens);
        }
        else if (name == "copy")
        {
            Copy(TokensOf(TextIn(operation, "from")), tokens);
        }
        else if (name == "test")
        {
            PropertyTree copy;
            Test(m_editor.Plain(At(tokens), copy), MemberOf(operation, "value"));
        }
        else
        {
            throw Refusal{"no such operation"};
        }
    }

    PropertyTree& At(Tokens tokens)
    {
        PropertyTree* value = &m_tree;
        for (const std::string& token : tokens)
        {
            const std::optional<std::size_t> index = value->isList() ? IndexIn(token) : std::nullopt;
            value = index            ? m_editor.ChildAt(value, PathStep(*index))
                    : value->isMap() ? m_editor.ChildAt(value, PathStep(token))
                                     : nullptr;
            if (!value)
            {
                throw Refusal{"there is no such value"};
            }
        }
        return *value;
    }

    void Add(Tokens tokens, PropertyTree value)
    {
        if (tokens.empty())
        {
            m_editor.Assign(m_tree, std::move(value));
            return;
        }
        PropertyTree& around = At(tokens.first(tokens.size() - 1));
        if (around.isMap())
        {
            m_editor.Assign(around[tokens.back()], std::move(value));
            return;
        }
        if (!around.isList())
        {
            throw Refusal{"what is around it is no map or list"};
        }
        const std::size_t size = m_editor.SizeOf(around);
        const std::optional<std::size_t> index = tokens.back() == "-" ? size : IndexIn(tokens.back());
        if (!index || *index > size)
        {
            throw Refusal{"the list has no such place"};
        }
        m_editor.Insert(around, *index, std::move(value));
    }

    PropertyTree Remove(Tokens tokens)
    {
        if (tokens.empty())
        {
            throw Refusal{"the whole cannot be removed"};
        }
        PropertyTree& found = At(tokens);
        PropertyTree& around = At(tokens.first(tokens.size() - 1));
        if (!around.isMap())
        {
            return m_editor.Remove(around, *IndexIn(tokens.back()));
        }
        PropertyTree value = std::move(found);
        around.getMap().erase(tokens.back());
        return value;
    }

    void Move(const std::vector<std::string>& from, const std::vector<std::string>& tokens)
    {
        At(from);
        if (from == tokens)
        {
            return;
        }
        if (from.size() < tokens.size() && std::equal(from.begin(), from.end(), tokens.begin()))
        {
            throw Refusal{"a value cannot be moved into itself"};
        }
        Add(tokens, Remove(from));
    }

    void Copy(const std::vector<std::string>& from, const std::vector<std::string>& tokens)
    {
        PropertyTree copy;
        const PropertyTree& value = m_editor.Plain(At(from), copy);
        const std::size_t count = m_left == std::numeric_limits<std::size_t>::max() ? 0 : CountValues(value);
        if (count > m_left)
        {
            throw Refusal{"the patch copies too many values"};
        }
        m_left -= count;
        Add(tokens, PropertyTree(value));
    }

    static void Test(const PropertyTree& found, const PropertyTree& expected)
    {
        if (!AreSame(found, expected))
        {
            throw Refusal{"expected " + Shown(expected) + ", found " + Shown(found)};
        }
    }

    TreeEditor m_editor;
    PropertyTree m_tree;
    std::size_t m_left; // of the values that may be copied
};

} // namespace

PropertyTree ToJsonPatch(std::span<const Change> changes)
{
    PatchWriter writer;
    for (const Change& change : changes)
    {
        writer.Add(change);
    }
    return writer.Take();
}

JsonPatchError::JsonPatchError(std::size_t operation, const std::string& reason)
    : std::runtime_error("operation " + std::to_string(operation) + ": " + reason), m_operation(operation)
{
}

JsonPatchError::JsonPatchError(const JsonPatchError&) noexcept = default;
JsonPatchError& JsonPatchError::operator=(const JsonPatchError&) noexcept = default;
JsonPatchError::~JsonPatchError() = default;

void ApplyJsonPatch(const PropertyTree& patch, PropertyTree& tree, const JsonPatchOptions& options)
{
    if (!patch.isList())
    {
        throw JsonPatchError(0, "a patch is a list of operations");
    }
    PatchRun run(tree, options);
    std::size_t number = 0;
    for (const PropertyTree& operation : patch.getList())
    {
        try
        {
            run.Do(operation);
        }
        catch (const Refusal& refusal)
        {
            throw JsonPatchError(number, refusal.reason);
        }
        ++number;
    }
    tree = run.Take();
}

} // namespace Ombrel::Inspection
