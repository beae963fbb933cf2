#include "PhotoUtil/ISerializable.h"

namespace Ombrel::PhotoUtil
{

ISerializable::ISerializable() = default;
ISerializable::ISerializable(const ISerializable&) = default;
ISerializable::ISerializable(ISerializable&&) noexcept = default;
ISerializable& ISerializable::operator=(const ISerializable&) = default;
ISerializable& ISerializable::operator=(ISerializable&&) noexcept = default;
ISerializable::~ISerializable() = default;

bool ISerializable::operator==(const ISerializable& other) const
{
    return GetClassId() == other.GetClassId();
}

} // namespace Ombrel::PhotoUtil
