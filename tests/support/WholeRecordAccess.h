#ifndef OMBREL_TESTS_SUPPORT_WHOLE_RECORD_ACCESS_H
#define OMBREL_TESTS_SUPPORT_WHOLE_RECORD_ACCESS_H

#include "PhotoUtil/ISerializableBase.h"
#include "Proc/Reflection/Schema.h"
#include "PropertyTree/PropertyTree.h"

#include <string>
#include <vector>

namespace Support
{

/// Property access as it is told: each operation writes the whole record out and looks there, or reads a map with the one key.
class WholeRecordAccess final : public Ombrel::PhotoUtil::ISerializableBase::IPropertyAccess
{
public:
    WholeRecordAccess(const Ombrel::Proc::RecordSchema& schema, void* record) : m_schema(schema), m_record(record) {}

    Ombrel::PropertyTree GetProperty(const std::string& key) const override
    {
        const Ombrel::PropertyTree tree = WriteAll();
        return tree.contains(key) ? tree[key] : Ombrel::PropertyTree();
    }

    void SetProperty(const std::string& key, const Ombrel::PropertyTree& value) override
    {
        constexpr Ombrel::Proc::ReadFlags flags{.resetMissing = false};
        Ombrel::PropertyTree scratch;
        scratch[key] = value;
        m_schema.read(m_record, scratch.getMap(), &flags);
    }

    std::vector<std::string> ListProperties() const override
    {
        const Ombrel::PropertyTree tree = WriteAll();
        std::vector<std::string> keys;
        for (const auto& [key, child] : tree.getMap())
        {
            keys.push_back(key);
        }
        return keys;
    }

    Ombrel::PropertyTree WriteAll() const
    {
        constexpr Ombrel::Proc::WriteFlags flags{.resetTargets = true, .omitDefaults = false};
        Ombrel::PropertyTree tree;
        tree.convertToMap();
        m_schema.write(m_record, tree.getMap(), &flags, 0);
        return tree;
    }

private:
    const Ombrel::Proc::RecordSchema& m_schema;
    void* m_record;
};

} // namespace Support

#endif
