#include "PhotoUtil/ISerializableBase.h"

namespace Ombrel::PhotoUtil
{

std::unique_ptr<const ISerializableBase::IPropertyAccess> ISerializableBase::GetPropertyAccess() const
{
    return nullptr;
}

std::unique_ptr<ISerializableBase::IPropertyAccess> ISerializableBase::GetPropertyAccess()
{
    return nullptr;
}

ISerializableBase::~ISerializableBase() = default;

ISerializableBase::IPropertyAccess::~IPropertyAccess() = default;

} // namespace Ombrel::PhotoUtil
