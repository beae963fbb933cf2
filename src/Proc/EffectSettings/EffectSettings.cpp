#include "Proc/EffectSettings/EffectSettings.h"

#include "Proc/ImplNames.h"
#include "Proc/Reflection/PropertyAccess.h"
#include "Proc/Reflection/Reflected.h"
#include "Proc/Settings/Settings.h"
#include "Proc/Settings/StoredKeys.h"
#include "PropertyTree/PropertyTreeMapFiller.h"

#include <cstddef>
#include <stdexcept>
#include <utility>

namespace Ombrel::PhotoCore
{
namespace
{

namespace StoredKeys = Proc::StoredKeys;

// How many effects this thread is reading and writing, each inside the one before.
constinit thread_local int effectsInRead = 0;
constinit thread_local int effectsInWrite = 0;

// Counts one level for as long as it lives. Each level takes stack, which a stored tree must not exhaust; and what is too deep
// to be read must not be written.
class NestingGuard
{
public:
    explicit NestingGuard(int& depth) : m_depth(depth)
    {
        if (depth == LIMIT)
        {
            throw std::length_error("effects stand in effects more than 512 levels deep");
        }
        ++depth;
    }

    NestingGuard(const NestingGuard&) = delete;
    NestingGuard& operator=(const NestingGuard&) = delete;

    ~NestingGuard() { --m_depth; }

private:
    static constexpr int LIMIT = 512;

    int& m_depth;
};

std::shared_ptr<IEffectSettings> Make(const std::string& id)
{
    std::shared_ptr<IEffectSettings> effect = IEffectSettings::CreateEffectSettings(id);
    if (!effect)
    {
        throw std::logic_error("the factory of " + id + " made no effect");
    }
    return effect;
}

} // namespace

EffectSettings::EffectSettings() : m_implName(Proc::ImplNames::DEFAULT_NAME) {}
EffectSettings::EffectSettings(const EffectSettings&) = default;
EffectSettings& EffectSettings::operator=(const EffectSettings&) = default;

// Both leave the default name, so that a moved-from effect stores none. It is short enough to need no memory.

EffectSettings::EffectSettings(EffectSettings&& other) noexcept
    : IEffectSettings(std::move(other)), m_implName(std::exchange(other.m_implName, Proc::ImplNames::DEFAULT_NAME)),
      m_helperSettings(std::move(other.m_helperSettings))
{
}

EffectSettings& EffectSettings::operator=(EffectSettings&& other) noexcept
{
    if (this != &other)
    {
        IEffectSettings::operator=(std::move(other));
        m_implName = std::exchange(other.m_implName, Proc::ImplNames::DEFAULT_NAME);
        m_helperSettings = std::move(other.m_helperSettings);
    }
    return *this;
}

EffectSettings::~EffectSettings() = default;

void EffectSettings::Serialize(PropertyTree& tree) const
{
    constexpr Proc::WriteFlags flags{.resetTargets = true, .omitDefaults = true};
    tree.makeMap();
    if (!Proc::Reflected<HelperSettings>::Equal(m_helperSettings, Proc::Reflected<HelperSettings>::Default()))
    {
        Proc::Codec<HelperSettings>::Write(tree[StoredKeys::HELPER_SETTINGS], m_helperSettings, &flags);
    }
    if (m_implName != Proc::ImplNames::DEFAULT_NAME)
    {
        Proc::WriteString(tree[StoredKeys::IMPL_NAME], m_implName);
    }
}

void EffectSettings::Deserialize(const PropertyTree& tree)
{
    constexpr Proc::ReadFlags flags{.resetMissing = true};
    const PropertyTree::Map& map = tree.getMap();
    if (const auto found = map.find(StoredKeys::IMPL_NAME); found != map.end())
    {
        Proc::ReadString(found->second, m_implName);
    }
    if (const auto found = map.find(StoredKeys::HELPER_SETTINGS); found != map.end())
    {
        Proc::Codec<HelperSettings>::Read(found->second, m_helperSettings, &flags);
    }
}

void EffectSettings::SerializeWith(PropertyTree& tree, SchemaSource* getSchema, const void* object) const
{
    EffectSettings::Serialize(tree);
    if (const Proc::RecordSchema* schema = getSchema())
    {
        constexpr Proc::WriteFlags flags{.resetTargets = false, .omitDefaults = true};
        constexpr std::size_t others = 1; // the class id, where it is added
        schema->write(object, tree.getMap(), &flags, others);
    }
}

void EffectSettings::DeserializeWith(const PropertyTree& tree, SchemaSource* getSchema, void* object)
{
    EffectSettings::Deserialize(tree);
    if (const Proc::RecordSchema* schema = getSchema())
    {
        constexpr Proc::ReadFlags flags{.resetMissing = true};
        schema->read(object, tree.getMap(), &flags);
    }
}

std::unique_ptr<PhotoUtil::ISerializableBase::IPropertyAccess> EffectSettings::MakePropertyAccess(SchemaSource* getSchema,
                                                                                                  void* record)
{
    const Proc::RecordSchema* schema = getSchema ? getSchema() : nullptr;
    return schema ? std::make_unique<Proc::PropertyAccess>(*schema, record) : nullptr;
}

std::unique_ptr<const PhotoUtil::ISerializableBase::IPropertyAccess> EffectSettings::MakePropertyAccess(SchemaSource* getSchema,
                                                                                                        const void* record)
{
    // The access object promises nothing about const: what is handed out can only be read through.
    return MakePropertyAccess(getSchema, const_cast<void*>(record));
}

void* EffectSettings::RecordOf(IEffectSettings& effect) noexcept
{
    return dynamic_cast<void*>(&effect.GetEffectSettingsRef());
}

bool EffectSettings::HasClassId(const IEffectSettings& effect, const std::string& id)
{
    const std::string& other = effect.GetEffectSettings().GetClassId();
    return &other == &id || other == id;
}

const std::string& EffectSettings::GetImplName() const
{
    return m_implName;
}

const HelperSettings& EffectSettings::GetHelperSettings() const
{
    return m_helperSettings;
}

HelperSettings& EffectSettings::HelperSetting()
{
    return m_helperSettings;
}

bool EffectSettings::IsAdditive() const
{
    return false;
}

bool EffectSettings::IsEmpty() const
{
    return false;
}

void EffectSettings::SerializePtr(PropertyTree& tree, const std::shared_ptr<const IEffectSettings>& effect)
{
    if (!effect)
    {
        tree = PropertyTree();
        return;
    }
    const NestingGuard guard(effectsInWrite);
    const bool wasNull = tree.isNull();
    effect->Serialize(tree);
    // The entries of a tree that was null nobody has seen yet, so they may still move.
    PropertyTree& id = wasNull && !tree.isNull() ? PropertyTreeMapFiller::FindOrInsertMoving(tree.getMap(), StoredKeys::NAME)
                                                 : tree[StoredKeys::NAME];
    id = PropertyTreeScalar(effect->GetClassId());
}

void EffectSettings::DeserializePtr(const PropertyTree& tree, std::shared_ptr<IEffectSettings>& effect)
{
    if (tree.isNull())
    {
        effect.reset();
        return;
    }
    const NestingGuard guard(effectsInRead);
    // The old effect goes last: the tree may be one that it holds.
    const auto old = std::exchange(effect, Make(tree.getMap().at(StoredKeys::NAME).getScalar().toString()));
    effect->Deserialize(tree);
}

} // namespace Ombrel::PhotoCore
