#ifndef OMBREL_PROC_REFLECTION_PROPERTY_ACCESS_IMPL_H
#define OMBREL_PROC_REFLECTION_PROPERTY_ACCESS_IMPL_H

#include "PhotoUtil/ISerializableBase.h"
#include "Proc/Reflection/Reflected.h"

#include <string>
#include <vector>

namespace Ombrel::Proc
{

/// Key-by-key access to a reflected record. It holds a plain pointer: the record must outlive it.
template <class Record> class PropertyAccessImpl final : public PhotoUtil::ISerializableBase::IPropertyAccess
{
public:
    explicit PropertyAccessImpl(Record* record) noexcept : m_record(record) {}

    PropertyTree GetProperty(const std::string& key) const override
    {
        const PropertyTree tree = WriteAll();
        return tree.contains(key) ? tree[key] : PropertyTree();
    }

    void SetProperty(const std::string& key, const PropertyTree& value) override
    {
        constexpr ReadFlags flags{.resetMissing = false};
        PropertyTree scratch;
        scratch[key] = value;
        Reflected<Record>::Read({*m_record, scratch.getMap(), &flags});
    }

    std::vector<std::string> ListProperties() const override
    {
        const PropertyTree tree = WriteAll();
        std::vector<std::string> keys;
        for (const auto& [key, child] : tree.getMap())
        {
            keys.push_back(key);
        }
        return keys;
    }

private:
    PropertyTree WriteAll() const
    {
        constexpr WriteFlags flags{.resetTargets = true, .omitDefaults = false};
        PropertyTree tree;
        tree.convertToMap();
        Reflected<Record>::Write({*m_record, tree.getMap(), &flags});
        return tree;
    }

    Record* m_record;
};

} // namespace Ombrel::Proc

#endif
