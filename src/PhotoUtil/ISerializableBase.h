#ifndef OMBREL_PHOTO_UTIL_I_SERIALIZABLE_BASE_H
#define OMBREL_PHOTO_UTIL_I_SERIALIZABLE_BASE_H

#include "OmbrelExport.h"

#include <memory>
#include <string>
#include <vector>

namespace Ombrel
{
class PropertyTree;
}

namespace Ombrel::PhotoUtil
{

/// A value that can be stored in a tree and read back. The order of the virtual operations is fixed.
class OMBREL_API ISerializableBase
{
public:
    class IPropertyAccess;

    /// The name of the class in stored trees. The reference stays for as long as the library is loaded.
    virtual const std::string& GetClassId() const = 0;

    /// Replaces `tree` by the stored form of this object: a map, whatever the tree was.
    virtual void Serialize(PropertyTree& tree) const = 0;

    /// Reads the stored form. A missing key resets its field to the default. An unknown key is ignored. After a failure the
    /// fields that were read before it have their new values, all others their old ones.
    /// @throws what the tree throws for a value of the wrong state or kind (`std::invalid_argument`, `std::out_of_range`)
    virtual void Deserialize(const PropertyTree& tree) = 0;

    /// Access to the single properties, or an empty pointer if the class has none. It refers to this object and must not
    /// outlive it.
    virtual std::unique_ptr<const IPropertyAccess> GetPropertyAccess() const;
    virtual std::unique_ptr<IPropertyAccess> GetPropertyAccess();

    virtual ~ISerializableBase();

protected:
    ISerializableBase() = default;
    ISerializableBase(const ISerializableBase&) = default;
    ISerializableBase(ISerializableBase&&) noexcept = default;
    ISerializableBase& operator=(const ISerializableBase&) = default;
    ISerializableBase& operator=(ISerializableBase&&) noexcept = default;
};

/// Key-by-key access to the properties of one object. The order of the virtual operations is fixed.
class OMBREL_API ISerializableBase::IPropertyAccess
{
public:
    virtual ~IPropertyAccess();

    /// The property in its stored form, even if it has its default; a null tree for an unknown key.
    virtual PropertyTree GetProperty(const std::string& key) const = 0;

    /// Reads one property from its stored form and changes no other; an unknown key does nothing.
    /// @throws what `Deserialize` throws for the same value
    virtual void SetProperty(const std::string& key, const PropertyTree& value) = 0;

    /// The keys of all properties, in byte order.
    virtual std::vector<std::string> ListProperties() const = 0;

protected:
    IPropertyAccess() = default;
    IPropertyAccess(const IPropertyAccess&) = default;
    IPropertyAccess& operator=(const IPropertyAccess&) = default;
};

} // namespace Ombrel::PhotoUtil

#endif
