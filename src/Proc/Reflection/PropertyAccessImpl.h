#ifndef OMBREL_PROC_REFLECTION_PROPERTY_ACCESS_IMPL_H
#define OMBREL_PROC_REFLECTION_PROPERTY_ACCESS_IMPL_H

#include "OmbrelExport.h"
#include "PhotoUtil/ISerializableBase.h"
#include "Proc/Reflection/Reflected.h"

#include <string>
#include <vector>

namespace Ombrel::Proc
{

/// Key-by-key access to a record of the described type. It answers as reading and writing the whole record would, and touches
/// the one field alone. It holds a plain pointer: the record must outlive it.
class OMBREL_API PropertyAccess : public PhotoUtil::ISerializableBase::IPropertyAccess
{
public:
    ~PropertyAccess() override;

    PropertyTree GetProperty(const std::string& key) const override;
    void SetProperty(const std::string& key, const PropertyTree& value) override;
    std::vector<std::string> ListProperties() const override;

protected:
    PropertyAccess(const RecordSchema& schema, void* record) noexcept;

private:
    const RecordSchema& m_schema;
    void* m_record;
};

/// Key-by-key access to a reflected record.
template <class Record> class PropertyAccessImpl final : public PropertyAccess
{
public:
    explicit PropertyAccessImpl(Record* record) noexcept : PropertyAccess(Reflected<Record>::Schema(), record) {}
};

} // namespace Ombrel::Proc

#endif
