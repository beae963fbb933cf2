#ifndef OMBREL_BENCHMARKS_HAND_WRITTEN_H
#define OMBREL_BENCHMARKS_HAND_WRITTEN_H

#include "Proc/EffectSettings/EffectSettings.h"
#include "PropertyTree/PropertyTree.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Ombrel::Proc
{
class SettingsEffectAdjuster;
}

namespace Ombrel::Benchmarks
{

/// An effect as it would be without reflection: the same records, base and interface, and every key and default written out
/// where it is used.
class HandWrittenEffect : public PhotoCore::EffectSettings
{
public:
    using List = std::vector<std::shared_ptr<HandWrittenEffect>>;

    /// A new effect of the class.
    /// @throws std::out_of_range for an unknown id
    static std::shared_ptr<HandWrittenEffect> Create(std::string_view id);

    /// A new effect with a copy of the record.
    static std::shared_ptr<HandWrittenEffect> CreateFrom(const Proc::Settings& record);

    /// As the library stores effects of any class.
    virtual void SerializeWithId(PropertyTree& tree) const = 0;

    /// A new effect of the class in the tree.
    static std::shared_ptr<HandWrittenEffect> DeserializeWithId(const PropertyTree& tree);

    /// The place of its class in `Classes`.
    virtual std::size_t ClassIndex() const noexcept = 0;

protected:
    /// @param idCount how many class ids are beside the values: 0 or 1
    virtual void Read(const PropertyTree& tree, std::size_t idCount) = 0;

    std::size_t CountBase() const;
    void WriteBase(PropertyTree::Map& map, std::size_t count) const;
    void ReadBase(const PropertyTree::Map& map);
};

PropertyTree HandWriteEffects(const HandWrittenEffect::List& effects);
HandWrittenEffect::List HandReadEffects(const PropertyTree& tree);

/// Property access to the plain values of the adjuster. The nested records are left out, which is to the favour of the
/// hand-written side.
class HandWrittenAdjusterAccess : public PhotoUtil::ISerializableBase::IPropertyAccess
{
public:
    explicit HandWrittenAdjusterAccess(Proc::SettingsEffectAdjuster& record) : m_record(&record) {}

    PropertyTree GetProperty(const std::string& key) const override;
    void SetProperty(const std::string& key, const PropertyTree& value) override;
    std::vector<std::string> ListProperties() const override;

private:
    Proc::SettingsEffectAdjuster* m_record;
};

} // namespace Ombrel::Benchmarks

#endif
