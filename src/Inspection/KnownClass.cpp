#include "Inspection/KnownClass.h"

#include "Inspection/TreeSteps.h"
#include "Inspection/Values.h"
#include "Proc/Settings/StoredKeys.h"

#include <functional>

namespace Ombrel::Inspection
{

bool IsOwn(const PhotoCore::EffectClass& effectClass)
{
    const auto own = PhotoCore::EffectClasses();
    const std::less<const PhotoCore::EffectClass*> isBefore;
    return !isBefore(&effectClass, own.data()) && isBefore(&effectClass, own.data() + own.size());
}

bool AreKeysKnown(const PhotoCore::EffectClass* effectClass)
{
    return effectClass && (effectClass->getSchema() || IsOwn(*effectClass));
}

const PhotoCore::EffectClass* KnownClassOf(const PropertyTree& effect)
{
    if (!effect.isMap())
    {
        return nullptr;
    }
    const auto name = effect.getMap().find(Proc::StoredKeys::NAME);
    if (name == effect.getMap().end() || !IsText(name->second))
    {
        return nullptr;
    }
    const PhotoCore::EffectClass* known = PhotoCore::FindEffectClass(name->second.getScalar().toString());
    return AreKeysKnown(known) && known->registration != PhotoCore::Registration::None ? known : nullptr;
}

bool HaveSameName(const PropertyTree& a, const PropertyTree& b)
{
    const PathStep name{std::string(Proc::StoredKeys::NAME)};
    return AreSameOrMissing(ChildAt(&a, name), ChildAt(&b, name));
}

} // namespace Ombrel::Inspection
