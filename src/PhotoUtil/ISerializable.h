#ifndef OMBREL_PHOTO_UTIL_I_SERIALIZABLE_H
#define OMBREL_PHOTO_UTIL_I_SERIALIZABLE_H

#include "OmbrelExport.h"
#include "PhotoUtil/ISerializableBase.h"

namespace Ombrel::PhotoUtil
{

/// A serialisable value that can be compared.
class OMBREL_API ISerializable : public ISerializableBase
{
public:
    ISerializable();
    ISerializable(const ISerializable&);
    ISerializable(ISerializable&&) noexcept;
    ISerializable& operator=(const ISerializable&);
    ISerializable& operator=(ISerializable&&) noexcept;
    ~ISerializable() override;

    /// Compares the class ids, since the base has nothing else; a derived class goes on with its members.
    virtual bool operator==(const ISerializable& other) const;
};

} // namespace Ombrel::PhotoUtil

#endif
