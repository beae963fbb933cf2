#ifndef OMBREL_EFFECTS_TOOL_PROPERTY_H
#define OMBREL_EFFECTS_TOOL_PROPERTY_H

#include "Document.h"
#include "EffectReader.h"
#include "PropertyPath.h"
#include "PropertyTree/PropertyTree.h"

#include <memory>

namespace Ombrel::EffectsTool
{

/// A property of one effect of a document, or a value within that property. `Set` changes only this object, `StoreIn` changes
/// the stored effect.
class Property
{
public:
    /// `document` must outlive the object, and `target` leads below an effect.
    /// @throws ToolError `BadInput` if the effect cannot be read, `NotAsAsked` if there is no such property or value
    Property(const Document& document, const Document::Target& target);

    /// The value at the end of the path, in its stored form.
    /// @throws std::logic_error if a change has removed it
    const PropertyTree& Value() const;

    /// The same. Null if a change has removed it.
    const PropertyTree* FindValue() const;

    /// Changes that value.
    /// @throws ToolError `BadInput` if the library refuses it
    void Set(const PropertyTree& value);

    /// Writes the property into the stored effect, or removes it there if it has its default. All other keys stay.
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
    PropertyTree m_tree; // the whole property in its stored form
};

} // namespace Ombrel::EffectsTool

#endif
