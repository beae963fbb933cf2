#include "Property.h"

#include "EffectForms.h"
#include "Proc/Settings/StoredKeys.h"
#include "ToolError.h"
#include "Values.h"

#include <algorithm>

namespace Ombrel::EffectsTool
{

Property::Property(const Document& document, const Document::Target& target)
    : m_document(document), m_index(target.index), m_path(target.rest), m_effect(document.Read(target.index))
{
    CheckKey();
    m_access = m_effect->GetPropertyAccess();
    m_tree = m_access->GetProperty(key());
    CheckPlace();
}

void Property::CheckKey() const
{
    const auto fail = [this](const std::string& reason)
    { throw ToolError(ExitCode::NotAsAsked, m_document.Where(m_index, PathView(m_path).first(1)) + reason); };

    if (!m_effect)
    {
        fail("the effect is null and has no properties");
    }
    if (std::ranges::find(Proc::StoredKeys::RESERVED, key()) != Proc::StoredKeys::RESERVED.end())
    {
        fail("is a key of the stored effect itself, not a property");
    }
    const auto access = m_effect->GetPropertyAccess();
    if (!access)
    {
        fail(m_effect->GetClassId() + " has no property access");
    }
    const std::vector<std::string> keys = access->ListProperties();
    if (std::ranges::find(keys, key()) == keys.end())
    {
        const bool isIndex = !m_document.isList() && IndexOf(key());
        fail(m_effect->GetClassId() + " has no such property, " +
             (keys.empty() ? "it has none" : "expected one of " + PathTexts(keys)) +
             (isIndex ? "; the file is a single effect, so the index is left out" : ""));
    }
}

void Property::CheckPlace() const
{
    const PropertyTree* value = &m_tree;
    for (std::size_t depth = 1; depth < m_path.size(); ++depth)
    {
        const PropertyTree* child = FindChild(*value, m_path[depth]);
        if (!child)
        {
            throw ToolError(ExitCode::NotAsAsked, m_document.Where(m_index, PathView(m_path).first(depth + 1)) +
                                                      "does not exist, " + ExpectedBelow(*value));
        }
        value = child;
    }
}

const PropertyTree& Property::Value() const
{
    return At(m_tree, PathView(m_path).subspan(1));
}

const PropertyTree* Property::FindValue() const
{
    return Find(m_tree, PathView(m_path).subspan(1));
}

void Property::Set(const PropertyTree& value)
{
    At(m_tree, PathView(m_path).subspan(1)) = value;
    try
    {
        m_access->SetProperty(key(), m_tree);
    }
    catch (const std::exception& error)
    {
        throw ToolError(ExitCode::BadInput, Where() + "cannot store " + ShownInBrief(value) + ": " + ReasonOf(error));
    }
    m_tree = m_access->GetProperty(key());
}

void Property::StoreIn(PropertyTree& element) const
{
    const PropertyTree stored = StoredForm(m_effect);
    if (stored.contains(key()))
    {
        element[key()] = stored[key()];
    }
    else
    {
        element.getMap().erase(key());
    }
}

} // namespace Ombrel::EffectsTool
