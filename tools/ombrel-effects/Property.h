#ifndef OMBREL_EFFECTS_TOOL_PROPERTY_H
#define OMBREL_EFFECTS_TOOL_PROPERTY_H

#include "Document.h"
#include "EffectReader.h"
#include "PropertyPath.h"
#include "PropertyTree/PropertyTree.h"

#include <memory>

namespace Ombrel::EffectsTool
{

/// A property of one effect of a document, or a value within it, reached through the library. Nothing of it reaches the
/// document before `StoreIn`.
class Property
{
public:
    /// `document` must outlive the object, and `target` leads below an effect.
    /// @throws ToolError `BadInput` if the effect cannot be read, `NotAsAsked` if there is no such property or value
    Property(const Document& document, const Document::Target& target);

    /// The value that the path leads to, in its stored form; null if a change has left none there.
    const PropertyTree* Value() const;

    /// Changes that value.
    /// @throws ToolError `BadInput` if the library refuses it
    void Set(const PropertyTree& value);

    /// Takes the property over into the stored effect, or out of it if it has its default now. All other keys stay.
    void StoreIn(PropertyTree& element) const;

    const std::string& key() const { return m_path.front(); }
    const EffectPtr& effect() const { return m_effect; }
    std::string Where() const { return m_document.Where(m_index, m_path); }

private:
    void CheckKey() const;
    void CheckPlace() const;

    const Document& m_document;
    std::size_t m_index;
    Path m_path;
    EffectPtr m_effect;
    std::unique_ptr<PhotoUtil::ISerializableBase::IPropertyAccess> m_access;
    PropertyTree m_tree; // the whole property
};

} // namespace Ombrel::EffectsTool

#endif
