#include "Proc/Settings/Settings.h"

#include "Proc/Reflection/Schema.h"
#include "Proc/Settings/SettingsRecord.h"

namespace Ombrel::Proc
{

bool Settings::IsEmpty() const
{
    return false;
}

void Settings::Deserialize(const std::string&) {}

bool AreFieldsEqual(const RecordSchema& schema, const void* a, const void* b)
{
    return schema.equal(a, b);
}

} // namespace Ombrel::Proc
