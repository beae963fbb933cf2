#ifndef OMBREL_PROC_REFLECTION_PROPERTY_ACCESS_H
#define OMBREL_PROC_REFLECTION_PROPERTY_ACCESS_H

#include "OmbrelExport.h"
#include "PhotoUtil/ISerializableBase.h"
#include "Proc/Reflection/Reflected.h"

#include <string>
#include <vector>

namespace Ombrel::Proc
{

/// Key-by-key access to a record. The results are those of reading or writing the whole record, but only
/// the one field is read or written. It has a plain pointer to the record, which must outlive it.
class OMBREL_API PropertyAccess : public PhotoUtil::ISerializableBase::IPropertyAccess
{
public:
    /// Access to the `record` that `schema` describes.
    PropertyAccess(const RecordSchema& schema, void* record) noexcept;
    ~PropertyAccess() override;

    PropertyTree GetProperty(const std::string& key) const override;
    void SetProperty(const std::string& key, const PropertyTree& value) override;
    std::vector<std::string> ListProperties() const override;

private:
    const RecordSchema& m_schema;
    void* m_record;
};

/// The same for a caller who knows the record's type.
template <class Record> class PropertyAccessImpl final : public PropertyAccess
{
public:
    explicit PropertyAccessImpl(Record* record) noexcept : PropertyAccess(Reflected<Record>::Schema(), record) {}
};

} // namespace Ombrel::Proc

#endif
