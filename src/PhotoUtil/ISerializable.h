#ifndef OMBREL_PHOTO_UTIL_I_SERIALIZABLE_H
#define OMBREL_PHOTO_UTIL_I_SERIALIZABLE_H

#include "OmbrelExport.h"
#include "PhotoUtil/ISerializableBase.h"

#include <concepts>

namespace Ombrel::PhotoUtil
{

/// A value that can be stored in a tree and compared.
class OMBREL_API ISerializable : public ISerializableBase
{
public:
    ISerializable();
    ISerializable(const ISerializable&);
    ISerializable(ISerializable&&) noexcept;
    ISerializable& operator=(const ISerializable&);
    ISerializable& operator=(ISerializable&&) noexcept;
    ~ISerializable() override;

    /// True for the same class id, since the base has nothing else to compare. A derived class adds its members.
    virtual bool operator==(const ISerializable& other) const;
};

/// Two serialisable values of any classes compare through the virtual `operator==` of the left one. Without this form two
/// classes that each override it would be ambiguous.
template <std::derived_from<ISerializable> A, std::derived_from<ISerializable> B> bool operator==(const A& a, const B& b)
{
    return static_cast<const ISerializable&>(a).operator==(static_cast<const ISerializable&>(b));
}

} // namespace Ombrel::PhotoUtil

#endif
