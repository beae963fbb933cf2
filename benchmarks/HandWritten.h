#ifndef OMBREL_BENCHMARKS_HAND_WRITTEN_H
#define OMBREL_BENCHMARKS_HAND_WRITTEN_H

#include "Proc/EffectSettings/EffectSettings.h"
#include "PropertyTree/PropertyTree.h"

#include <nlohmann/json_fwd.hpp>

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
/// where it is used. Beside the tree it knows nlohmann's DOM, of the same keys and values.
class HandWrittenEffect : public PhotoCore::EffectSettings
{
public:
    using List = std::vector<std::shared_ptr<HandWrittenEffect>>;

    /// A new effect of the class.
    /// @throws std::out_of_range for an unknown id
    static std::shared_ptr<HandWrittenEffect> Create(std::string_view id);

    /// A new effect with a copy of the record.
    static std::shared_ptr<HandWrittenEffect> CreateFrom(const Proc::Settings& record);

    // With the class id, as the library stores effects of any class.
    static void WriteWithId(PropertyTree& tree, const HandWrittenEffect& effect);
    static std::shared_ptr<HandWrittenEffect> ReadWithId(const PropertyTree& tree);
    static void WriteDomWithId(nlohmann::json& dom, const HandWrittenEffect& effect);
    static std::shared_ptr<HandWrittenEffect> ReadDomWithId(const nlohmann::json& dom);

    virtual void WriteDom(nlohmann::json& dom) const = 0;
    virtual void ReadDom(const nlohmann::json& dom) = 0;

protected:
    void WriteBase(PropertyTree::Map& map) const;
    void ReadBase(const PropertyTree::Map& map);
    void WriteDomBase(nlohmann::json& dom) const;
    void ReadDomBase(const nlohmann::json& dom);
};

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
